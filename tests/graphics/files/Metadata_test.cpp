// SPDX-License-Identifier: MIT
// Metadata from file to file.
#include "graphics/files/LumioImage.h"
#include "tests/graphics/files/MetadataFiles.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include <string>
#include <tuple>

using namespace grisal::test;
using grisal::graphics::LumioImage;
using Said = grisal::test::Metadata;

namespace
{

constexpr int quality = 90;

Samples colours(int x, int y)
{
    return {static_cast<std::uint16_t>(x * 2570), static_cast<std::uint16_t>(y * 5140), 0x4040};
}

struct MetadataTest : testing::Test {
    QTemporaryDir directory;

    QString path(const QString &name) const { return directory.filePath(name); }

    /// An image file of 24 x 16 pixels.
    QString written(const QString &name, Magick::ImageType type = Magick::TrueColorType, int depth = 8) const
    {
        Magick::Image picture = painted(24, 16, depth, colours);
        picture.type(type);
        picture.write(path(name).toStdString());
        return path(name);
    }

    /// Saves the image of a file as the window does: through an output image.
    static std::string savedAs(const QString &source, const QString &target)
    {
        LumioImage image;
        EXPECT_TRUE(image.read(source)) << image.problem().english().toStdString();
        LumioImage output = image.is16Bit() ? pictureOf(samples16Of(image), image.width(), image.height())
                                            : pictureOf(bytesOf(image), image.width(), image.height());
        output.setMetadata(image.metadata());
        testing::internal::CaptureStderr();
        EXPECT_TRUE(output.save(target, quality)) << output.problem().english().toStdString();
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
        return (image.warning().english() + output.warning().english()).toStdString();
    }
};

class FromFormatToFormat : public MetadataTest,
                           public testing::WithParamInterface<std::tuple<const char *, const char *, int>>
{
protected:
    QString source() const { return QStringLiteral("source.") + QString::fromLatin1(std::get<0>(GetParam())); }
    QString target() const { return path(QStringLiteral("target.") + QString::fromLatin1(std::get<1>(GetParam()))); }
    int depth() const { return std::get<2>(GetParam()); }

    Said carried() const
    {
        const QString from = written(source(), Magick::TrueColorType, depth());
        setMetadata(from, fullMetadata());
        EXPECT_EQ(savedAs(from, target()), "");
        return metadataIn(target());
    }
};

TEST_P(FromFormatToFormat, KeepsAllMetadata)
{
    const Said all = carried();
    EXPECT_EQ(all["Exif.Image.Make"], "Acme");
    EXPECT_EQ(all["Exif.Image.Artist"], "Ansel");
    EXPECT_EQ(all["Exif.Photo.ExposureTime"], "1/60");
    EXPECT_EQ(all["Exif.Photo.DateTimeOriginal"], "2024:05:06 07:08:09");
    EXPECT_EQ(all["Exif.GPSInfo.GPSLatitudeRef"], "N");
    EXPECT_EQ(all["Exif.GPSInfo.GPSLatitude"], "47/1 30/1 0/1");
    EXPECT_EQ(all["Iptc.Application2.Caption"], "A valley");
    EXPECT_EQ(all["Iptc.Application2.City"], "Chur");
    EXPECT_EQ(all["Xmp.dc.title"], "lang=\"x-default\" Morning");
    EXPECT_EQ(all["Xmp.xmp.Rating"], "4");
    EXPECT_EQ(all.profile, profileFor("RGB "));
}

// The source is rotated by 90 degrees.
TEST_P(FromFormatToFormat, UpdatesOrientationAndSize)
{
    const Said all = carried();
    EXPECT_EQ(all["Exif.Image.Orientation"], "1");
    EXPECT_EQ(all["Exif.Photo.PixelXDimension"], "16");
    EXPECT_EQ(all["Exif.Photo.PixelYDimension"], "24");
    EXPECT_EQ(all["Exif.Iop.RelatedImageWidth"], "16");
    EXPECT_EQ(all["Exif.Iop.RelatedImageLength"], "24");
    EXPECT_EQ(all["Xmp.tiff.Orientation"], "1");
    EXPECT_EQ(all["Xmp.tiff.ImageWidth"], "16");
}

TEST_P(FromFormatToFormat, DropsTheThumbnail)
{
    for (const Exiv2::Exifdatum &datum : carried().exif) {
        EXPECT_NE(datum.groupName(), "Thumbnail") << datum.key();
    }
    EXPECT_TRUE(contentsOf(path(source())).contains("a small picture") || source().endsWith("png"));
    EXPECT_FALSE(contentsOf(target()).contains("a small picture"));
}

// It contains offsets from the start of the file or of itself.
TEST_P(FromFormatToFormat, KeepsTheMakersNote)
{
    const QString from = written(source(), Magick::TrueColorType, depth());
    Said note;
    note.exif["Exif.Image.Make"] = "Canon";
    note.exif["Exif.Canon.OwnerName"] = "Ansel of the mountains";
    note.exif["Exif.Canon.FirmwareVersion"] = "Firmware 1.2.3";
    setMetadata(from, note);
    ASSERT_EQ(metadataIn(from)["Exif.Canon.OwnerName"], "Ansel of the mountains");
    EXPECT_EQ(savedAs(from, target()), "");
    EXPECT_EQ(metadataIn(target())["Exif.Canon.OwnerName"], "Ansel of the mountains");
    EXPECT_EQ(savedAs(target(), path("once.more.jpg")), "");
    EXPECT_EQ(metadataIn(path("once.more.jpg"))["Exif.Canon.FirmwareVersion"], "Firmware 1.2.3");
}

// Of several blocks, some programs read the first and others the last.
TEST_P(FromFormatToFormat, WritesEachBlockOnce)
{
    carried();
    const QByteArray contents = contentsOf(target());
    EXPECT_EQ(contents.count("<x:xmpmeta"), 1);
    EXPECT_EQ(contents.count("Acme"), 1);
    if (target().endsWith("jpg")) {
        EXPECT_EQ(contents.count("Exif"), 1);
        EXPECT_EQ(contents.count("ICC_PROFILE"), 1);
    } else if (target().endsWith("png")) {
        EXPECT_EQ(contents.count("eXIf"), 1);
        EXPECT_EQ(contents.count("iCCP"), 1);
        EXPECT_LT(contents.indexOf("eXIf"), contents.indexOf("IDAT"));
    }
}

TEST_P(FromFormatToFormat, DoesNotChangePixels)
{
    carried();
    LumioImage image;
    ASSERT_TRUE(image.read(path(source())));
    LumioImage plain = depth() == 16 ? pictureOf(samples16Of(image), 16, 24) : pictureOf(bytesOf(image), 16, 24);
    const QString without = path(QStringLiteral("without.") + target().right(3));
    ASSERT_TRUE(plain.save(without, quality));
    EXPECT_EQ(samplesOf(target()), samplesOf(without));
    EXPECT_EQ(bitsPerChannel(target()), bitsPerChannel(without));
}

// An image that GraphicsMagick has read itself still contains profiles and attributes.
TEST_P(FromFormatToFormat, IsTheSameWithoutAnOutputImage)
{
    const Said all = carried();
    LumioImage image;
    ASSERT_TRUE(image.read(path(source())));
    const QString again = path(QStringLiteral("again.") + target().right(3));
    ASSERT_TRUE(image.save(again, quality));
    const Said same = metadataIn(again);
    EXPECT_EQ(same["Exif.Image.Orientation"], "1");
    EXPECT_EQ(same["Exif.Image.Make"], all["Exif.Image.Make"]);
    EXPECT_EQ(same.profile, all.profile);
    EXPECT_EQ(contentsOf(again).count("<x:xmpmeta"), 1);
    EXPECT_EQ(contentsOf(again).count("Acme"), 1);
}

INSTANTIATE_TEST_SUITE_P(EightBits, FromFormatToFormat,
                         testing::Combine(testing::Values("jpg", "png", "tif"), testing::Values("jpg", "png", "tif"),
                                          testing::Values(8)));
INSTANTIATE_TEST_SUITE_P(SixteenBits, FromFormatToFormat,
                         testing::Combine(testing::Values("png", "tif"), testing::Values("png", "tif"),
                                          testing::Values(16)));

TEST_F(MetadataTest, IsAbsentWithoutMetadataInTheSource)
{
    for (const char *from : {"a.jpg", "a.png"}) {
        for (const char *to : {"b.jpg", "b.png"}) {
            EXPECT_EQ(savedAs(written(QString::fromLatin1(from)), path(QString::fromLatin1(to))), "");
            EXPECT_TRUE(metadataIn(path(QString::fromLatin1(to))).isEmpty()) << from << ", " << to;
        }
    }
}

TEST_F(MetadataTest, BelongsToTheImageThatIsReadLast)
{
    const QString full = written(QStringLiteral("full.jpg"));
    setMetadata(full, fullMetadata());
    LumioImage image;
    ASSERT_TRUE(image.read(full));
    ASSERT_FALSE(image.read(path(QStringLiteral("missing.jpg"))));
    ASSERT_TRUE(image.save(path(QStringLiteral("b.jpg")), quality));
    EXPECT_EQ(metadataIn(path(QStringLiteral("b.jpg")))["Exif.Image.Make"], "Acme");
    ASSERT_TRUE(image.read(written(QStringLiteral("plain.jpg"))));
    ASSERT_TRUE(image.save(path(QStringLiteral("b.jpg")), quality));
    EXPECT_TRUE(metadataIn(path(QStringLiteral("b.jpg"))).isEmpty());
}

TEST_F(MetadataTest, KeepsTheExifChunkOfAPng)
{
    const QString source = written(QStringLiteral("a.png"));
    addChunk(source, "eXIf", exifBlock(fullMetadata().exif));
    for (const char *name : {"b.jpg", "b.png", "b.tif"}) {
        EXPECT_EQ(savedAs(source, path(QString::fromLatin1(name))), "");
        const Said all = metadataIn(path(QString::fromLatin1(name)));
        EXPECT_EQ(all["Exif.Photo.ExposureTime"], "1/60") << name;
        EXPECT_EQ(all["Exif.Photo.PixelXDimension"], "16") << name;
    }
}

// Grey and CMYK images are saved as RGB.
TEST_F(MetadataTest, DropsAProfileForOtherColours)
{
    for (const char *name : {"a.jpg", "a.png", "a.tif"}) {
        const QString source = written(QString::fromLatin1(name), Magick::GrayscaleType);
        Said all = fullMetadata();
        all.profile = profileFor("GRAY");
        setMetadata(source, all);
        ASSERT_EQ(metadataIn(source).profile, profileFor("GRAY"));
        for (const char *target : {"b.jpg", "b.png", "b.tif"}) {
            EXPECT_EQ(savedAs(source, path(QString::fromLatin1(target))), "");
            EXPECT_TRUE(metadataIn(path(QString::fromLatin1(target))).profile.isEmpty()) << name << ", " << target;
            EXPECT_EQ(metadataIn(path(QString::fromLatin1(target)))["Exif.Image.Make"], "Acme");
        }
    }
}

TEST_F(MetadataTest, DropsAProfileForCmyk)
{
    for (const char *name : {"a.jpg", "a.tif"}) {
        Magick::Image picture = painted(24, 16, 8, colours);
        picture.colorSpace(Magick::CMYKColorspace);
        picture.type(Magick::ColorSeparationType);
        const QString source = path(QString::fromLatin1(name));
        picture.write(source.toStdString());
        Said all = fullMetadata();
        all.profile = profileFor("CMYK");
        setMetadata(source, all);
        for (const char *target : {"b.jpg", "b.png", "b.tif"}) {
            EXPECT_EQ(savedAs(source, path(QString::fromLatin1(target))), "");
            EXPECT_TRUE(metadataIn(path(QString::fromLatin1(target))).profile.isEmpty()) << name << ", " << target;
            EXPECT_FALSE(contentsOf(path(QString::fromLatin1(target))).contains("acsp"));
        }
    }
}

TEST_F(MetadataTest, KeepsAProfileOfSeveralSegments)
{
    const QString source = written(QStringLiteral("a.tif"));
    Said all;
    all.profile = profileFor("RGB ", 200'000);
    setMetadata(source, all);
    EXPECT_EQ(savedAs(source, path(QStringLiteral("b.jpg"))), "");
    EXPECT_EQ(metadataIn(path(QStringLiteral("b.jpg"))).profile, all.profile);
    EXPECT_EQ(savedAs(path(QStringLiteral("b.jpg")), path(QStringLiteral("c.png"))), "");
    EXPECT_EQ(metadataIn(path(QStringLiteral("c.png"))).profile, all.profile);
    EXPECT_EQ(savedAs(path(QStringLiteral("c.png")), path(QStringLiteral("d.tif"))), "");
    EXPECT_EQ(metadataIn(path(QStringLiteral("d.tif"))).profile, all.profile);
}

// A segment of a JPEG file has 65,533 bytes.
TEST_F(MetadataTest, KeepsIptcOfSeveralSegments)
{
    const QString source = written(QStringLiteral("a.jpg"));
    Said all;
    for (int i = 0; i < 2'000; ++i) {
        Exiv2::Iptcdatum keyword(Exiv2::IptcKey("Iptc.Application2.Keywords"));
        keyword.setValue(std::string(60, 'k'));
        all.iptc.add(keyword);
    }
    setMetadata(source, all);
    ASSERT_EQ(contentsOf(source).count("Photoshop 3.0"), 2);
    EXPECT_EQ(savedAs(source, path(QStringLiteral("b.tif"))), "");
    EXPECT_EQ(metadataIn(path(QStringLiteral("b.tif"))).iptc.count(), 2'000);
}

TEST_F(MetadataTest, TakesIptcFromTheFirstOfTwoCompleteSegments)
{
    const QString source = written(QStringLiteral("a.jpg"));
    Said later;
    later.iptc["Iptc.Application2.Keywords"] = "later";
    setMetadata(source, later);
    addSegment(source, '\xed',
               QByteArray("Photoshop 3.0\0"
                          "8BIM\4\4\0\0\0\0\0\x0a"
                          "\x1c\2\x19\0\5first",
                          36));
    EXPECT_EQ(savedAs(source, path(QStringLiteral("b.tif"))), "");
    const Said saved = metadataIn(path(QStringLiteral("b.tif")));
    EXPECT_EQ(saved.iptc.count(), 1);
    EXPECT_EQ(saved["Iptc.Application2.Keywords"], "first");
}

// Readers of JFIF expect its segment directly after the start of the image.
TEST_F(MetadataTest, FollowsTheJfifSegmentOfAJpeg)
{
    const QString source = written(QStringLiteral("a.png"));
    setMetadata(source, fullMetadata());
    EXPECT_EQ(savedAs(source, path(QStringLiteral("b.jpg"))), "");
    const QByteArray contents = contentsOf(path(QStringLiteral("b.jpg")));
    EXPECT_EQ(contents.first(11), QByteArray("\xff\xd8\xff\xe0\0\x10JFIF\0", 11));
    constexpr int jfifEnd = 2 + 2 + 16;
    EXPECT_EQ(contents.mid(jfifEnd, 2), "\xff\xe1");
    EXPECT_EQ(contents.mid(jfifEnd + 4, 4), "Exif");
}

// XMP has to fit into one segment of a JPEG file, 64 KB.
TEST_F(MetadataTest, LeavesOutXmpThatIsTooLargeForTheFormat)
{
    const QString source = written(QStringLiteral("a.tif"));
    Said all = fullMetadata();
    all.xmp["Xmp.dc.description"] = std::string(100'000, 'x');
    setMetadata(source, all);
    EXPECT_NE(savedAs(source, path(QStringLiteral("b.jpg"))), "");
    EXPECT_TRUE(metadataIn(path(QStringLiteral("b.jpg"))).xmp.empty());
    EXPECT_EQ(metadataIn(path(QStringLiteral("b.jpg")))["Exif.Image.Make"], "Acme");
    EXPECT_EQ(savedAs(source, path(QStringLiteral("b.tif"))), "");
    EXPECT_EQ(metadataIn(path(QStringLiteral("b.tif")))["Xmp.dc.description"].size(), 100'000 + 17);
}

} // namespace
