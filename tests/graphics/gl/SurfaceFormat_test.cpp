// SPDX-License-Identifier: MIT
#include "graphics/gl/SurfaceFormat.h"

#include <gtest/gtest.h>

#include <QSurfaceFormat>

namespace grisal::graphics
{

TEST(SurfaceFormatTest, RequestsOpenGl21WithTheFixedPipeline)
{
    setDefaultSurfaceFormat();

    const QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    EXPECT_EQ(format.renderableType(), QSurfaceFormat::OpenGL);
    EXPECT_EQ(format.version(), qMakePair(2, 1));
    EXPECT_EQ(format.profile(), QSurfaceFormat::CompatibilityProfile);
}

TEST(SurfaceFormatTest, RequestsNoAlpha)
{
    setDefaultSurfaceFormat();

    EXPECT_FALSE(QSurfaceFormat::defaultFormat().hasAlpha());
}

} // namespace grisal::graphics
