// SPDX-License-Identifier: MIT
#include "ui/preview/ContextEnd.h"

#include <QOpenGLContext>
#include <QOpenGLWidget>

namespace grisal::ui
{

void callBeforeContextEnds(QOpenGLWidget *widget, const char *slot)
{
    QObject::connect(widget->context(), SIGNAL(aboutToBeDestroyed()), widget, slot);
}

} // namespace grisal::ui
