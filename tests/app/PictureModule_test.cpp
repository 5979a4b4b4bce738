// SPDX-License-Identifier: MIT
// What is loaded for image files: this program knows where it is.
#include "app/PictureModule.h"
#include "tests/support/LogCapture.h"

#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace
{

using grisal::test::LogCapture;

class PictureModule : public testing::TestWithParam<const char *>
{
};

INSTANTIATE_TEST_SUITE_P(Formats, PictureModule, testing::Values("jpg", "png", "tif"),
                         [](const auto &test) { return std::string(test.param); });

TEST_P(PictureModule, MakesPicturesThatReadAndWriteFiles)
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("source.png"));
    const QString saved = folder.filePath(QStringLiteral("saved.%1").arg(QString::fromLatin1(GetParam())));
    QImage grey(3, 2, QImage::Format_RGB32);
    grey.fill(qRgb(90, 90, 90));
    grey.setText(QStringLiteral("Description"), QStringLiteral("three by two"));
    ASSERT_TRUE(grey.save(source, "PNG"));

    const auto picture = picture_module::newPicture();
    ASSERT_TRUE(picture);
    ASSERT_TRUE(picture->read(source)) << picture->problem().toStdString();
    ASSERT_TRUE(picture->save(saved, 100)) << picture->problem().toStdString();
    const auto again = picture_module::newPicture();
    ASSERT_TRUE(again->read(saved)) << again->problem().toStdString();
    ASSERT_EQ(again->width(), 3);
    ASSERT_EQ(again->height(), 2);
    std::vector<std::uint8_t> bytes(std::size_t{3} * 2 * 3);
    EXPECT_TRUE(again->getPixels(bytes.data(), false, false));
    EXPECT_EQ(bytes, std::vector<std::uint8_t>(bytes.size(), 90));
    EXPECT_TRUE(log.warnings().isEmpty());
}

} // namespace
