// SPDX-License-Identifier: MIT
#include "ui/preview/GraphicsStart.h"

#include "graphics/gl/GL.h"

#include <QDebug>

namespace grisal::ui
{

namespace
{

QString glText(GLenum name)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(glGetString(name)));
}

} // namespace

graphics::Message startGraphics()
{
    switch (graphics::initialiseGlEntryPoints()) {
    case graphics::GlStart::Ready:
        break;
    case graphics::GlStart::TooOld:
        return graphics::Message(QT_TRANSLATE_NOOP("Message", "The graphics driver offers only OpenGL %1."),
                                 glText(GL_VERSION));
    case graphics::GlStart::NoContext:
        return graphics::Message(QT_TRANSLATE_NOOP("Message", "The graphics driver does not start OpenGL."));
    }
    qDebug("GL vendor: %s", qPrintable(glText(GL_VENDOR)));
    qDebug("GL renderer: %s", qPrintable(glText(GL_RENDERER)));
    qDebug("GL version: %s", qPrintable(glText(GL_VERSION)));
    return {};
}

} // namespace grisal::ui
