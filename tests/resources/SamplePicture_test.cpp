// SPDX-License-Identifier: MIT
// The sample picture is rendered by hand; the demo and the scripts that take screenshots rely on its size.
#include "graphics/files/LumioImage.h"

#include <gtest/gtest.h>

#include <QFileInfo>

namespace
{

const QString path = QStringLiteral(GRISAL_SAMPLE_PICTURE);

TEST(SamplePictureTest, IsAJpegImageOf1800x1200Pixels)
{
    grisal::graphics::LumioImage picture;
    ASSERT_TRUE(picture.read(path)) << picture.problem().english().toStdString();
    EXPECT_TRUE(picture.warning().isEmpty());
    EXPECT_EQ(picture.width(), 1800);
    EXPECT_EQ(picture.height(), 1200);
}

TEST(SamplePictureTest, OccupiesAtMost700KB)
{
    EXPECT_LE(QFileInfo(path).size(), 700 * 1000);
}

} // namespace
