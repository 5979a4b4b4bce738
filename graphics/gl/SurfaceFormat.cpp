// SPDX-License-Identifier: MIT
#include "graphics/gl/SurfaceFormat.h"

#include <QSurfaceFormat>

namespace grisal::graphics
{

void setDefaultSurfaceFormat()
{
    QSurfaceFormat format;
    // Set explicitly because Qt may otherwise choose OpenGL ES, whose shading language lacks features that the filters
    // use.
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(2, 1);
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    QSurfaceFormat::setDefaultFormat(format);
}

} // namespace grisal::graphics
