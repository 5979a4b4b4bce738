// SPDX-License-Identifier: MIT
// What is loaded for image files: this program knows where it is.
#include "app/PictureModule.h"
#include "tests/support/LogCapture.h"

#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

using grisal::test::LogCapture;

TEST(PictureModule, MakesPicturesThatReadAndWriteFiles)
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("source.png"));
    const QString saved = folder.filePath(QStringLiteral("saved.png"));
    ASSERT_TRUE(QImage(3, 2, QImage::Format_RGB32).save(source, "PNG"));

    const auto picture = picture_module::newPicture();
    ASSERT_TRUE(picture);
    ASSERT_TRUE(picture->read(source)) << picture->problem().toStdString();
    EXPECT_EQ(picture->width(), 3);
    EXPECT_EQ(picture->height(), 2);
    EXPECT_TRUE(picture->save(saved, 90)) << picture->problem().toStdString();
    EXPECT_TRUE(picture_module::newPicture()->read(saved));
    EXPECT_TRUE(log.warnings().isEmpty());
}

} // namespace
