// SPDX-License-Identifier: MIT
#include "graphics/files/TiffDocumentName.h"

#include "graphics/files/TiffDirectory.h"
#include "tests/graphics/files/MetadataFiles.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include <fcntl.h>

#include <vector>

using namespace grisal::test;
using namespace grisal::graphics;

namespace
{

constexpr int quality = 90;

struct TiffDocumentNameTest : testing::Test {
    QTemporaryDir directory;

    QString path(const QString &name) const { return directory.filePath(name); }
};

TEST_F(TiffDocumentNameTest, IsRemovedWithItsText)
{
    const TiffByteOrder order(false);
    const QByteArray start = QByteArray("II*\0", 4) + order.bytesOf(std::uint32_t{20}) + "/proc/a/b/c\0";
    const std::vector<TiffEntry> entries{
        {256, 3, 1, "wide"}, {269, 2, 12, order.bytesOf(std::uint32_t{8})}, {305, 2, 4, "Acme"}};
    const QByteArray before = start.leftJustified(20, '\0') + encodeDirectory(entries, order) + "pixels";
    writeFile(path("a.tif"), before);
    removeDocumentName(OpenFile(open(path("a.tif").toLocal8Bit().constData(), O_RDWR | O_CLOEXEC)));
    const QByteArray after = contentsOf(path("a.tif"));
    EXPECT_EQ(after.size(), before.size());
    EXPECT_FALSE(after.contains("/proc/"));
    EXPECT_TRUE(after.endsWith("pixels"));
    const std::vector<TiffEntry> left = decodeDirectory(after.mid(20), order);
    ASSERT_EQ(left.size(), 2U);
    EXPECT_EQ(left[0].tag, 256);
    EXPECT_EQ(left[1].content, "Acme");
}

TEST_F(TiffDocumentNameTest, FilesWithoutItStayUnchanged)
{
    const QByteArray none =
        QByteArray("II*\0\x08\0\0\0", 8) + encodeDirectory({{256, 3, 1, "wide"}}, TiffByteOrder(false));
    for (const QByteArray &contents : {none, none.first(9), none.first(5), QByteArray()}) {
        writeFile(path("a.tif"), contents);
        removeDocumentName(OpenFile(open(path("a.tif").toLocal8Bit().constData(), O_RDWR | O_CLOEXEC)));
        EXPECT_EQ(contentsOf(path("a.tif")), contents);
    }
}

// The number of the open file is of one digit or more.
TEST_F(TiffDocumentNameTest, SavesOfTheSameImageAreEqual)
{
    for (const bool withMetadata : {false, true}) {
        LumioImage image = pictureOf(Bytes(24 * 16 * 3, 100), 24, 16);
        if (withMetadata) {
            painted(24, 16, 8, [](int, int) { return Samples{}; }).write(path("source.jpg").toStdString());
            setMetadata(path("source.jpg"), fullMetadata());
            ASSERT_TRUE(image.read(path("source.jpg")));
        }
        ASSERT_TRUE(image.save(path("a.tif"), quality));
        std::vector<OpenFile> others;
        for (int i = 0; i < 100; ++i) {
            others.emplace_back(open("/dev/null", O_RDONLY | O_CLOEXEC));
        }
        ASSERT_TRUE(image.save(path("another name.tif"), quality));
        const QByteArray first = contentsOf(path("a.tif"));
        EXPECT_EQ(first, contentsOf(path("another name.tif")));
        EXPECT_FALSE(first.contains("/proc/"));
        EXPECT_FALSE(first.contains("self/fd"));
    }
}

} // namespace
