// SPDX-License-Identifier: MIT
// Metadata that is invalid, too large, or too large for another format.
#include "graphics/files/LumioImage.h"
#include "graphics/files/MetadataBlocks.h"
#include "tests/graphics/files/MetadataFiles.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>

#include <fcntl.h>
#include <sys/resource.h>

#include <cstdlib>
#include <string>

using namespace grisal::test;
using grisal::graphics::ImageFormat;
using grisal::graphics::LumioImage;
using grisal::graphics::OpenFile;

namespace
{

constexpr int quality = 90;

Samples colours(int x, int y)
{
    return {static_cast<std::uint16_t>(x * 2570), static_cast<std::uint16_t>(y * 5140), 0x4040};
}

struct MetadataHostileTest : testing::Test {
    QTemporaryDir directory;
    LumioImage image;

    QString path(const QString &name) const { return directory.filePath(name); }

    QString written(const QString &name) const
    {
        painted(24, 16, 8, colours).write(path(name).toStdString());
        return path(name);
    }

    /// A file with all of fullMetadata(), with orientation 6.
    QString full(const QString &name) const
    {
        QString file = written(name);
        setMetadata(file, fullMetadata());
        return file;
    }

    /// Reads, and expects nothing on standard error.
    bool reads(const QString &file)
    {
        testing::internal::CaptureStderr();
        const bool read = image.read(file);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << file.toStdString();
        return read;
    }
    std::string make(const QString &file) const { return metadataIn(file)["Exif.Image.Make"]; }
};

TEST_F(MetadataHostileTest, ImagesWithInvalidExifAreRead)
{
    const QByteArray good = exifBlock(fullMetadata().exif);
    QByteArray everyOther = good;
    for (qsizetype i = 8; i < everyOther.size(); i += 2) {
        everyOther[i] = '\xee';
    }
    int i = 0;
    for (const QByteArray &exif : {QByteArray("rubbish"), QByteArray(), good.left(20), everyOther,
                                   QByteArray("II*\0\xff\xff\xff\xff", 8), QByteArray("II*\0\x08\0\0\0\xff\xff", 10)}) {
        const QString jpeg = written(QStringLiteral("%1.jpg").arg(++i));
        addSegment(jpeg, '\xe1', QByteArray("Exif\0\0", 6) + exif);
        EXPECT_TRUE(reads(jpeg)) << i << ", " << image.problem().english().toStdString();
        EXPECT_EQ(image.width(), 24) << i;
        EXPECT_TRUE(image.save(path("saved.png"), quality)) << i;
        const QString png = written(QStringLiteral("%1.png").arg(i));
        addChunk(png, "eXIf", exif);
        EXPECT_TRUE(reads(png)) << i << ", " << image.problem().english().toStdString();
        EXPECT_EQ(image.width(), 24) << i;
        EXPECT_TRUE(image.save(path("saved.jpg"), quality)) << i;
    }
}

TEST_F(MetadataHostileTest, InvalidXmpGivesAWarningAndTheRestIsKept)
{
    const QString jpeg = full("a.jpg");
    addSegment(jpeg, '\xe1', QByteArray("http://ns.adobe.com/xap/1.0/\0<x:xmpmeta xmlns:x='adobe", 54));
    ASSERT_TRUE(reads(jpeg));
    EXPECT_TRUE(image.warning().english().contains(jpeg)) << image.warning().english().toStdString();
    ASSERT_TRUE(image.save(path("b.png"), quality));
    EXPECT_EQ(make(path("b.png")), "Acme");
}

TEST_F(MetadataHostileTest, FilesWithBytesChangedAtRandomAreReadOrRejected)
{
    std::srand(1);
    for (const char *name : {"a.jpg", "a.png", "a.tif"}) {
        const QByteArray good = contentsOf(full(QString::fromLatin1(name)));
        int read = 0;
        for (int i = 0; i < 300; ++i) {
            QByteArray bad = good;
            for (int j = 0; j < 1 + i % 8; ++j) {
                bad[std::rand() % bad.size()] = static_cast<char>(std::rand());
            }
            writeFile(path("bad"), bad);
            const bool isRead = image.read(path("bad"));
            read += isRead ? 1 : 0;
            if (isRead && i % 10 == 0) { // writing to the disk is slow
                EXPECT_TRUE(image.save(path("saved.tif"), quality)) << name << ", " << i;
            }
        }
        std::cout << name << ": " << read << " of 300 read\n";
    }
}

// GraphicsMagick reads no TIFF file with this unit.
TEST_F(MetadataHostileTest, MetadataThatMakesATiffUnreadableIsLeftOut)
{
    const QString jpeg = written("a.jpg");
    Metadata impossible = fullMetadata();
    impossible.exif["Exif.Image.ResolutionUnit"] = std::uint16_t{84};
    setMetadata(jpeg, impossible);
    ASSERT_TRUE(reads(jpeg));
    ASSERT_TRUE(image.save(path("b.tif"), quality));
    EXPECT_FALSE(image.warning().isEmpty());
    LumioImage again;
    EXPECT_TRUE(again.read(path("b.tif"))) << again.problem().english().toStdString();
}

TEST_F(MetadataHostileTest, TooLargeValuesOfATiffAreLeftOut)
{
    const QString tiff = written("a.tif");
    Metadata large = fullMetadata();
    large.exif["Exif.Photo.UserComment"] = std::string(9 << 20, 'x');
    setMetadata(tiff, large);
    ASSERT_TRUE(reads(tiff));
    EXPECT_FALSE(image.warning().isEmpty());
    EXPECT_EQ(image.width(), 16);
    ASSERT_TRUE(image.save(path("b.tif"), quality));
    EXPECT_EQ(make(path("b.tif")), "Acme");
    EXPECT_EQ(metadataIn(path("b.tif"))["Exif.Photo.UserComment"], "");
    EXPECT_LT(contentsOf(path("b.tif")).size(), 100'000);
}

TEST_F(MetadataHostileTest, ATooLargeExifChunkIsLeftOut)
{
    const QString png = written("a.png");
    addChunk(png, "eXIf", exifBlock(fullMetadata().exif) + QByteArray(1 << 20, 'x'));
    ASSERT_TRUE(reads(png));
    EXPECT_FALSE(image.warning().isEmpty());
    EXPECT_EQ(image.width(), 24);
}

TEST_F(MetadataHostileTest, ATiffDirectoryThatContainsItselfIsRead)
{
    const QString tiff = full("a.tif");
    QByteArray contents = contentsOf(tiff);
    const auto start = qFromLittleEndian<quint32>(contents.constData() + 4);
    const auto entries = qFromLittleEndian<quint16>(contents.constData() + start);
    int changed = 0;
    for (quint32 at = start + 2; at < start + 2 + entries * 12U; at += 12) {
        const auto tag = qFromLittleEndian<quint16>(contents.constData() + at);
        if (tag == 34665 || tag == 34853) {
            qToLittleEndian(start, contents.data() + at + 8);
            ++changed;
        }
    }
    ASSERT_EQ(changed, 2);
    writeFile(tiff, contents);
    EXPECT_TRUE(reads(tiff)) << image.problem().english().toStdString();
}

// Each of 200 inner directories is the outer one.
TEST_F(MetadataHostileTest, CopiesOfRecursiveDirectoriesAreLimited)
{
    const auto numbers16 = [](std::initializer_list<quint16> numbers) {
        QByteArray bytes;
        for (const quint16 number : numbers) {
            bytes += static_cast<char>(number % 256);
            bytes += static_cast<char>(number / 256);
        }
        return bytes;
    };
    QByteArray contents = QByteArray("II*\0\x08\0\0\0", 8) + numbers16({209});
    for (const quint16 tag : {256, 257, 258, 259, 262, 273, 277, 278, 279}) {
        contents += numbers16({tag, 3, 1, 0, static_cast<quint16>(tag == 258 || tag == 273 ? 8 : 1), 0});
    }
    for (int i = 0; i < 200; ++i) {
        contents += numbers16({34665, 4, 1, 0, 8, 0});
    }
    writeFile(path("a.tif"), contents + numbers16({0, 0}));
    const OpenFile file(open(path("a.tif").toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC));
    const grisal::graphics::MetadataBlocks blocks = extractMetadata(file, ImageFormat::Tiff);
    EXPECT_FALSE(blocks.complete);
    EXPECT_LT(blocks.exif.size(), 10 << 20);
    image.read(path("a.tif"));
}

TEST_F(MetadataHostileTest, AJpegWithExcessivePaddingIsRead)
{
    const QString jpeg = full("a.jpg");
    QByteArray contents = contentsOf(jpeg);
    writeFile(jpeg, contents.insert(2, QByteArray(100'000, '\xff')));
    EXPECT_TRUE(reads(jpeg));
}

TEST_F(MetadataHostileTest, OnAFullDiskTheImageIsSavedWithoutMetadata)
{
    ASSERT_TRUE(image.read(full("a.jpg")));
    LumioImage plain = pictureOf(bytesOf(image), image.width(), image.height());
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    for (const char *name : {"b.jpg", "b.png", "b.tif"}) {
        const QString target = path(QString::fromLatin1(name));
        ASSERT_TRUE(plain.save(target, quality));
        const QByteArray without = contentsOf(target);
        const rlimit limit{static_cast<rlim_t>(without.size()) + 100, before.rlim_max};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
        const bool saved = image.save(target, quality);
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
        EXPECT_TRUE(saved) << name << ": " << image.problem().english().toStdString();
        EXPECT_FALSE(image.warning().isEmpty()) << name;
        EXPECT_EQ(contentsOf(target), without) << name;
        ASSERT_TRUE(image.save(target, quality));
        EXPECT_TRUE(image.warning().isEmpty()) << name;
        EXPECT_EQ(make(target), "Acme") << name;
    }
    EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files | QDir::Hidden).size(), 4);
}

TEST_F(MetadataHostileTest, NothingIsInsertedIntoAnInvalidFile)
{
    for (const ImageFormat format : {ImageFormat::Jpeg, ImageFormat::Png, ImageFormat::Tiff}) {
        for (const QByteArray &contents :
             {QByteArray(), QByteArray("II*\0\x08", 5), QByteArray("II*\0\x08\0\0\0", 8)}) {
            writeFile(path("short"), contents);
            const OpenFile file(open(path("short").toLocal8Bit().constData(), O_RDWR | O_CLOEXEC));
            EXPECT_FALSE(insertMetadata(file, format, {}));
            EXPECT_EQ(contentsOf(path("short")), contents);
        }
    }
}

} // namespace
