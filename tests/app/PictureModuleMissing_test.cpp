// SPDX-License-Identifier: MIT
// What is loaded for image files: this program does not know where it is, as in a broken installation.
#include "app/PictureModule.h"
#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

namespace
{

using grisal::test::LogCapture;

TEST(PictureModuleMissing, IsToldOnceAndGivesNoPictures)
{
    const LogCapture log;
    EXPECT_FALSE(picture_module::newPicture());
    EXPECT_FALSE(picture_module::newPicture());
    ASSERT_EQ(log.warnings().size(), 1);
    EXPECT_TRUE(log.contains(QStringLiteral("libgrisal_pictures.so"))) << log.warnings().first().toStdString();
}

} // namespace
