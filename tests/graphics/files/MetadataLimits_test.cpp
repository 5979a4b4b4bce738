// SPDX-License-Identifier: MIT
// Metadata that would take Exiv2 seconds or minutes to read.
#include "graphics/files/LumioImage.h"
#include "graphics/files/TiffDirectory.h"
#include "graphics/files/TiffMetadata.h"
#include "tests/graphics/files/MetadataFiles.h"
#include "tests/graphics/files/PictureFiles.h"
#include "tests/support/CpuTimer.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>
#include <QtEndian>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

using namespace grisal::test;
using grisal::graphics::LumioImage;
using grisal::graphics::MetadataBlocks;

namespace
{

constexpr int quality = 90;
/// Instead of minutes; also with sanitizers.
constexpr double generousSeconds = 20;

struct MetadataLimitsTest : testing::Test {
    QTemporaryDir directory;
    LumioImage image;

    QString path(const QString &name) const { return directory.filePath(name); }

    /// A file with Exif, IPTC and a profile.
    QString written(const QString &name) const
    {
        painted(24, 16, 8, [](int, int) { return Samples{0x1010, 0x2020, 0x3030}; }).write(path(name).toStdString());
        Metadata most = fullMetadata();
        most.xmp.clear();
        setMetadata(path(name), most);
        return path(name);
    }

    /// Reads a file and saves it in all formats. Returns what was saved last.
    Metadata carried(const QString &file)
    {
        const CpuTimer timer;
        EXPECT_TRUE(image.read(file)) << image.problem().english().toStdString();
        EXPECT_EQ(image.width() * image.height(), 24 * 16);
        m_isComplete = image.metadata().isComplete();
        EXPECT_TRUE(m_isComplete || !image.warning().isEmpty());
        for (const char *name : {"saved.jpg", "saved.png", "saved.tif"}) {
            EXPECT_TRUE(image.save(path(QString::fromLatin1(name)), quality));
        }
        EXPECT_LT(timer.seconds(), generousSeconds);
        return metadataIn(path(QStringLiteral("saved.tif")));
    }
    bool isComplete() const { return m_isComplete; }

private:
    bool m_isComplete = true;
};

QByteArray xmpOf(int attributes)
{
    QByteArray packet = "<x:xmpmeta xmlns:x='adobe:ns:meta/'>"
                        "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
                        "<rdf:Description rdf:about='' xmlns:q='http://q/' xmlns:dc='http://purl.org/dc/elements/1.1/'"
                        " dc:source='roll 7'";
    for (int i = 0; i < attributes; ++i) {
        packet += " q:a" + QByteArray::number(i) + "='1'";
    }
    return packet + "/></rdf:RDF></x:xmpmeta>";
}

class XmpOfFormats : public MetadataLimitsTest, public testing::WithParamInterface<const char *>
{
protected:
    QString file() const { return QStringLiteral("a.") + QString::fromLatin1(GetParam()); }
    int tooMany() const { return file().endsWith("jpg") ? 4'500 : 40'000; }
};

TEST_P(XmpOfFormats, IsKeptWithinTheLimits)
{
    const QString source = written(file());
    addXmp(source, xmpOf(2'000));
    const Metadata saved = carried(source);
    EXPECT_TRUE(isComplete());
    EXPECT_EQ(saved["Xmp.dc.source"], "roll 7");
    EXPECT_EQ(saved.xmp.count(), 2'001);
}

TEST_P(XmpOfFormats, IsLeftOutWithAWarningBeyondTheLimits)
{
    const QString source = written(file());
    addXmp(source, xmpOf(tooMany()));
    const Metadata saved = carried(source);
    EXPECT_FALSE(isComplete());
    EXPECT_TRUE(saved.xmp.empty());
    EXPECT_EQ(saved["Exif.Image.Make"], "Acme");
    EXPECT_EQ(saved["Iptc.Application2.City"], "Chur");
    EXPECT_EQ(saved.profile, profileFor("RGB "));
}

INSTANTIATE_TEST_SUITE_P(Formats, XmpOfFormats, testing::Values("jpg", "png", "tif"),
                         [](const auto &test) { return std::string(test.param); });

/// A PNG chunk with compressed XMP.
void addCompressedXmp(const QString &file, const QByteArray &packet)
{
    addChunk(file, "iTXt", QByteArray("XML:com.adobe.xmp\0\1\0\0\0", 22) + qCompress(packet).mid(4));
}

TEST_F(MetadataLimitsTest, CompressedXmpIsKeptWithinTheLimits)
{
    const QString source = written(QStringLiteral("a.png"));
    addCompressedXmp(source, xmpOf(2'000));
    EXPECT_EQ(carried(source).xmp.count(), 2'001);
    EXPECT_TRUE(isComplete());
}

TEST_F(MetadataLimitsTest, CompressedXmpIsLeftOutBeyondTheLimits)
{
    const QString source = written(QStringLiteral("a.png"));
    addCompressedXmp(source, xmpOf(40'000));
    EXPECT_TRUE(carried(source).xmp.empty());
    EXPECT_FALSE(isComplete());
}

TEST_F(MetadataLimitsTest, TextsThatExpandBeyondTheLimitAreLeftOut)
{
    const QString source = written(QStringLiteral("a.png"));
    addCompressedXmp(source, QByteArray(40 << 20, ' '));
    EXPECT_EQ(carried(source)["Exif.Image.Make"], "Acme");
    EXPECT_FALSE(isComplete());
}

// Exiv2 decodes XMP in a block of Exif, too, but writes none.
TEST_F(MetadataLimitsTest, XmpAndIptcInABlockOfExifAreRemoved)
{
    using namespace grisal::graphics;
    const TiffByteOrder order(false);
    const QByteArray packet = xmpOf(1);
    const QByteArray records = QByteArray("\x1c\2\x5a\0\4Chur", 9);
    const auto offset = static_cast<std::uint32_t>(8 + 2 + 3 * tiffEntrySize + 4);
    const auto sizeOf = [](const QByteArray &bytes) { return static_cast<std::uint32_t>(bytes.size()); };
    const QByteArray block = QByteArray("II*\0\x08\0\0\0", 8) +
                             encodeDirectory({{271, 2, 4, QByteArray("Acm\0", 4)},
                                              {700, 1, sizeOf(packet), order.bytesOf(offset)},
                                              {33723, 1, sizeOf(records), order.bytesOf(offset + sizeOf(packet))}},
                                             order) +
                             packet + records;
    const MetadataBlocks blocks = extractExif(block);
    EXPECT_TRUE(blocks.complete);
    EXPECT_TRUE(blocks.xmp.isEmpty());
    EXPECT_TRUE(blocks.iptc.isEmpty());
    Exiv2::ExifData exif;
    Exiv2::ExifParser::decode(exif, reinterpret_cast<const Exiv2::byte *>(blocks.exif.constData()),
                              static_cast<std::uint32_t>(blocks.exif.size()));
    ASSERT_EQ(exif.count(), 1);
    EXPECT_EQ(exif.begin()->key(), "Exif.Image.Make");
}

QByteArray shorts(std::initializer_list<int> numbers)
{
    QByteArray bytes(static_cast<qsizetype>(numbers.size()) * 2, '\0');
    qsizetype at = 0;
    for (const int number : numbers) {
        qToLittleEndian(static_cast<quint16>(number), bytes.data() + at);
        at += 2;
    }
    return bytes;
}

/// A block of Exif whose first directory refers to `count` Exif directories of 250 entries.
QByteArray exifOf(int count)
{
    constexpr int entries = 250;
    constexpr int size = 2 + entries * 12 + 4;
    const int first = 8 + 2 + count * 12 + 4;
    QByteArray block = QByteArray("II*\0\x08\0\0\0", 8) + shorts({count});
    for (int i = 0; i < count; ++i) {
        const int offset = first + i * size;
        block += shorts({34665, 4, 1, 0, offset % 65'536, offset / 65'536});
    }
    block += QByteArray(4, '\0');
    for (int i = 0; i < count; ++i) {
        block += shorts({entries});
        for (int j = 0; j < entries; ++j) {
            block += shorts({36'864 + j, 3, 1, 0, 7, 0});
        }
        block += QByteArray(4, '\0');
    }
    return block;
}

TEST_F(MetadataLimitsTest, EntriesOfExifAreLimitedOverAllDirectories)
{
    const MetadataBlocks few = grisal::graphics::extractExif(exifOf(15));
    EXPECT_TRUE(few.complete);
    const MetadataBlocks many = grisal::graphics::extractExif(exifOf(150));
    EXPECT_FALSE(many.complete);
    Exiv2::ExifData exif;
    Exiv2::ExifParser::decode(exif, reinterpret_cast<const Exiv2::byte *>(many.exif.constData()),
                              static_cast<std::uint32_t>(many.exif.size()));
    EXPECT_LE(exif.count(), 4'000);
    EXPECT_GE(exif.count(), 3'000);

    const QString png = path(QStringLiteral("plain.png"));
    painted(24, 16, 8, [](int, int) { return Samples{}; }).write(png.toStdString());
    addChunk(png, "eXIf", exifOf(150));
    carried(png);
    EXPECT_FALSE(isComplete());
}

TEST_F(MetadataLimitsTest, DirectoriesOfTooManyEntriesAreReported)
{
    QByteArray block = QByteArray("II*\0\x08\0\0\0", 8) + shorts({257});
    for (int i = 0; i < 257; ++i) {
        block += shorts({40'000 + i, 3, 1, 0, 7, 0});
    }
    EXPECT_FALSE(grisal::graphics::extractExif(block + QByteArray(4, '\0')).complete);
}

TEST_F(MetadataLimitsTest, InvalidRawProfilesOfAPngAreReported)
{
    for (const QByteArray &profile : {QByteArray("\nexif\n 4\n41414141"), QByteArray("no digits")}) {
        const QString png = path(QStringLiteral("plain.png"));
        painted(24, 16, 8, [](int, int) { return Samples{}; }).write(png.toStdString());
        addChunk(png, "tEXt", QByteArray("Raw profile type exif\0", 22) + profile);
        carried(png);
        EXPECT_FALSE(isComplete());
    }
}

TEST_F(MetadataLimitsTest, MetadataOfAPngIsLeftOutBehindSixteenMebibytesOfTexts)
{
    const QByteArray invalid = QByteArray("Raw profile type exif\0", 22).leftJustified(4 << 20);
    for (const int count : {3, 4}) {
        const QString source = written(QStringLiteral("a.png"));
        for (int i = 0; i < count; ++i) {
            addChunk(source, "tEXt", invalid);
        }
        EXPECT_EQ(carried(source)["Exif.Image.Make"], count == 3 ? "Acme" : "");
    }
}

TEST_F(MetadataLimitsTest, RecordsOfIptcAreLimited)
{
    for (const int count : {1'000, 12'000}) {
        const QString source = written(QStringLiteral("a.tif"));
        Metadata all = fullMetadata();
        for (int i = 0; i < count; ++i) {
            Exiv2::Iptcdatum keyword(Exiv2::IptcKey("Iptc.Application2.Keywords"));
            keyword.setValue("Alps");
            all.iptc.add(keyword);
        }
        setMetadata(source, all);
        const Metadata saved = carried(source);
        EXPECT_EQ(isComplete(), count < 10'000);
        EXPECT_EQ(saved.iptc.count(), count > 10'000 ? 0 : count + 2);
        EXPECT_EQ(saved["Exif.Image.Make"], "Acme");
    }
}

TEST_F(MetadataLimitsTest, ProfilesOfExcessiveSizeAreLeftOut)
{
    const QString source = written(QStringLiteral("a.jpg"));
    Metadata all = fullMetadata();
    all.profile = profileFor("RGB ", 5'000'000);
    setMetadata(source, all);
    const Metadata saved = carried(source);
    EXPECT_FALSE(isComplete());
    EXPECT_TRUE(saved.profile.isEmpty());
    EXPECT_EQ(saved["Exif.Image.Make"], "Acme");
}

// A file with them opens, too.
TEST_F(MetadataLimitsTest, LargeProfilesAndXmpAreKeptInEveryFormat)
{
    Metadata all = fullMetadata();
    all.profile = profileFor("RGB ", 1 << 22);
    std::mt19937 random(1);
    std::generate(all.profile.begin() + 132, all.profile.end(), [&] { return static_cast<char>(random()); });
    all.xmp["Xmp.dc.source"] = std::string(1'500'000, 'x');
    const QString source = written(QStringLiteral("a.tif"));
    setMetadata(source, all);
    ASSERT_TRUE(image.read(source));
    ASSERT_TRUE(image.save(path(QStringLiteral("b.png")), quality));
    ASSERT_TRUE(image.read(path(QStringLiteral("b.png")))) << image.problem().english().toStdString();
    ASSERT_TRUE(image.save(path(QStringLiteral("c.tif")), quality));
    const Metadata saved = metadataIn(path(QStringLiteral("c.tif")));
    EXPECT_EQ(saved.profile, all.profile);
    EXPECT_EQ(saved["Xmp.dc.source"].size(), 1'500'000);
}

// A segment of a JPEG file has 65,533 bytes.
TEST_F(MetadataLimitsTest, LargeMakersNotesAreKeptExceptInJpegFiles)
{
    const QByteArray note = "Acme" + QByteArray(100'000, 'n') + "TheNote";
    Metadata all = fullMetadata();
    const Exiv2::DataValue value(reinterpret_cast<const Exiv2::byte *>(note.constData()),
                                 static_cast<long>(note.size()));
    all.exif.add(Exiv2::ExifKey("Exif.Photo.MakerNote"), &value);
    const QString source = written(QStringLiteral("a.tif"));
    setMetadata(source, all);
    for (const char *name : {"b.tif", "b.png", "b.jpg"}) {
        const QString target = path(QString::fromLatin1(name));
        ASSERT_TRUE(image.read(source));
        ASSERT_TRUE(image.metadata().isComplete());
        ASSERT_TRUE(image.save(target, quality));
        const bool isJpeg = target.endsWith("jpg");
        EXPECT_EQ(contentsOf(target).contains(note), !isJpeg) << name;
        EXPECT_EQ(image.warning().isEmpty(), !isJpeg) << name;
        EXPECT_EQ(metadataIn(target)["Exif.Photo.ExposureTime"], "1/60") << name;
        EXPECT_EQ(metadataIn(target)["Exif.Image.Make"], "Acme") << name;
    }
    ASSERT_TRUE(image.read(path(QStringLiteral("b.png"))));
    EXPECT_TRUE(image.metadata().isComplete());
}

TEST_F(MetadataLimitsTest, SegmentsOfIncompleteIptcAreLimited)
{
    const QByteArray incomplete("Photoshop 3.0\0"
                                "8BIM\4\4\0\0\x7f\0\0\0",
                                26);
    for (const int count : {64, 65}) {
        const QString source = written(QStringLiteral("a.jpg"));
        Metadata all = fullMetadata();
        all.xmp.clear();
        all.iptc.clear();
        setMetadata(source, all);
        for (int i = 0; i < count; ++i) {
            addSegment(source, '\xed', incomplete);
        }
        EXPECT_EQ(carried(source)["Exif.Image.Make"], "Acme");
        EXPECT_EQ(isComplete(), count == 64);
    }
}

TEST_F(MetadataLimitsTest, SegmentsWithoutContentsAreLimited)
{
    const QString source = written(QStringLiteral("a.jpg"));
    QByteArray contents = contentsOf(source);
    writeFile(source,
              contents.insert(contents.lastIndexOf("\xff\xda"), QByteArray("\xff\xe5\0\2", 4).repeated(1'000'000)));
    EXPECT_EQ(carried(source)["Exif.Image.Make"], "Acme");
    EXPECT_FALSE(isComplete());
}

} // namespace
