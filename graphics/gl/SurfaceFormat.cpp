// SPDX-License-Identifier: MIT
#include "graphics/gl/SurfaceFormat.h"

#include <QSurfaceFormat>

namespace grisal::graphics
{

void setDefaultSurfaceFormat()
{
    QSurfaceFormat format;
    // Named outright: the default type may turn into OpenGL ES, whose shaders lack what the filters use.
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(2, 1);
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    QSurfaceFormat::setDefaultFormat(format);
}

} // namespace grisal::graphics
