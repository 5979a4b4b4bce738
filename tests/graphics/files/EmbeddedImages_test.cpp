// SPDX-License-Identifier: MIT
// A saved file contains no image of the coloured original.
#include "graphics/files/EmbeddedImages.h"
#include "graphics/files/LumioImage.h"
#include "tests/graphics/files/MetadataFiles.h"
#include "tests/graphics/files/PictureFiles.h"
#include "tests/support/CpuTimer.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include <string>
#include <utility>

using namespace grisal::test;
using grisal::graphics::LumioImage;

namespace
{

constexpr int quality = 90;
const QByteArray jpeg = QByteArray::fromHex("ffd8ffe000104a46494600010101006000600000"
                                            "ffc0000b080010001001011100") +
                        "ColoursOfTheOriginal" + QByteArray(7'000, 'J');
const QByteArray png = QByteArray("\x89PNG\r\n\x1a\n") + "ColoursOfTheOriginal" + QByteArray(7'000, 'P');

const QByteArray webp = QByteArray("RIFF\0\0\1\0WEBPVP8 ", 16) + "ColoursOfTheOriginal" + QByteArray(7'000, 'W');

QByteArray packetOf(const QByteArray &properties)
{
    return "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
           "<rdf:Description rdf:about='' xmlns:xmp='http://ns.adobe.com/xap/1.0/'"
           " xmlns:xmpGImg='http://ns.adobe.com/xap/1.0/g/img/' xmlns:xmpTPg='http://ns.adobe.com/xap/1.0/t/pg/'"
           " xmlns:dc='http://purl.org/dc/elements/1.1/' xmlns:xmpNote='http://ns.adobe.com/xmp/note/'"
           ""
           " xmlns:depth='http://ns.google.com/photos/1.0/depthmap/' xmlns:q='http://q/' dc:source='roll 7'>" +
           properties + "</rdf:Description></rdf:RDF></x:xmpmeta>";
}

struct EmbeddedImagesTest : testing::Test {
    QTemporaryDir directory;

    QString path(const QString &name) const { return directory.filePath(name); }

    QString written(const QString &name) const
    {
        painted(24, 16, 8, [](int, int) { return Samples{0x1010, 0x2020, 0x3030}; }).write(path(name).toStdString());
        return path(name);
    }

    QString writtenWithXmp(const QByteArray &properties) const
    {
        QString file = written(QStringLiteral("a.png"));
        addChunk(file, "iTXt", QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22) + packetOf(properties));
        return file;
    }

    /// Saves in each format and returns the metadata and the bytes of the files, which agree.
    std::pair<Metadata, QByteArray> saved(const QString &source) const
    {
        LumioImage image;
        EXPECT_TRUE(image.read(source)) << image.problem().english().toStdString();
        EXPECT_TRUE(image.metadata().isComplete());
        QByteArray contents;
        for (const char *name : {"b.jpg", "b.png", "b.tif"}) {
            EXPECT_TRUE(image.save(path(QString::fromLatin1(name)), quality));
            contents += contentsOf(path(QString::fromLatin1(name)));
        }
        return {metadataIn(path(QStringLiteral("b.tif"))), contents};
    }

    /// Whether nothing but dc:source is kept of these properties.
    bool dropsXmp(const QByteArray &properties) const
    {
        const auto [metadata, contents] = saved(writtenWithXmp(properties));
        EXPECT_EQ(metadata["Xmp.dc.source"], "roll 7");
        return metadata.xmp.count() == 1 && !contents.contains("/9j/") && !contents.contains("iVBOR") &&
               !contents.contains("UklGR");
    }
};

QByteArray bag(const QByteArray &property, const QByteArray &item)
{
    return "<" + property + "><rdf:Bag><rdf:li rdf:parseType='Resource'>" + item + "</rdf:li></rdf:Bag></" + property +
           ">";
}

Metadata withMakerNote(const QByteArray &note)
{
    Metadata metadata;
    metadata.exif["Exif.Image.Make"] = "Acme";
    const Exiv2::DataValue value(reinterpret_cast<const Exiv2::byte *>(note.constData()),
                                 static_cast<long>(note.size()));
    metadata.exif.add(Exiv2::ExifKey("Exif.Photo.MakerNote"), &value);
    return metadata;
}

TEST_F(EmbeddedImagesTest, XmpKnownByNameIsDropped)
{
    EXPECT_TRUE(dropsXmp("<p:Mime xmlns:p='http://ns.google.com/photos/1.0/image/'>image/jpeg</p:Mime>"
                         "<p:Data xmlns:p='http://ns.google.com/photos/1.0/image/'>/9j/4AAQ</p:Data>"));
    EXPECT_TRUE(dropsXmp("<depth:Data>iVBORw0KGgo</depth:Data>"));
    EXPECT_TRUE(dropsXmp(bag("xmp:Thumbnails", "<xmpGImg:image>/9j/4AAQ</xmpGImg:image>")));
    EXPECT_TRUE(dropsXmp(bag("xmp:PageInfo", "<xmpTPg:PageNumber>1</xmpTPg:PageNumber>"
                                             "<xmpGImg:image>/9j/4AAQ</xmpGImg:image>")));
    EXPECT_TRUE(dropsXmp(bag("q:Ingredients", "<xmpGImg:format>JPEG</xmpGImg:format>"
                                              "<xmpGImg:image>/9j/4AAQ</xmpGImg:image>")));
    EXPECT_TRUE(dropsXmp(bag("q:Ingredients", "<GImage:Data xmlns:GImage='http://ns.google.com/photos/1.0/image/'>"
                                              "/9j/4AAQ</GImage:Data>")));
}

TEST_F(EmbeddedImagesTest, XmpValuesThatAreImagesAreDropped)
{
    for (const QByteArray &image : {jpeg, png, webp, jpeg.first(150), png.first(150), webp.first(150)}) {
        const QByteArray text = image.toBase64();
        EXPECT_TRUE(dropsXmp("<q:a>" + text + "</q:a>"));
        EXPECT_TRUE(dropsXmp("<q:a>\n data:image/any;base64,\n" + text + "</q:a>"));
        EXPECT_TRUE(dropsXmp("<q:a><rdf:Seq><rdf:li>1</rdf:li><rdf:li>" + text + "</rdf:li></rdf:Seq></q:a>"));
        EXPECT_TRUE(dropsXmp("<dc:title><rdf:Alt><rdf:li xml:lang='de'>" + text + "</rdf:li></rdf:Alt></dc:title>"));
        EXPECT_TRUE(dropsXmp(bag("q:a", "<q:b>1</q:b><q:c>" + text + "</q:c>")));
    }
}

TEST_F(EmbeddedImagesTest, OtherXmpIsKept)
{
    const std::string text = QByteArray(9'000, 'x').toBase64().toStdString();
    EXPECT_EQ(saved(writtenWithXmp("<q:a>" + QByteArray::fromStdString(text) + "</q:a>")).first["Xmp.q.a"], text);
    EXPECT_EQ(saved(writtenWithXmp("<q:a>/9j/4AAQ</q:a>")).first["Xmp.q.a"], "/9j/4AAQ");
    EXPECT_EQ(saved(writtenWithXmp("<q:a>1</q:a><q:b>" + jpeg.toBase64() + "</q:b>")).first["Xmp.q.a"], "1");
}

// It would refer to extension segments, which are not kept.
TEST_F(EmbeddedImagesTest, XmpInExtensionSegmentsIsDropped)
{
    const QString source = written(QStringLiteral("a.jpg"));
    const QByteArray digest(32, 'A');
    addSegment(source, '\xe1',
               QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) +
                   packetOf("<xmpNote:HasExtendedXMP>" + digest + "</xmpNote:HasExtendedXMP>"));
    addSegment(source, '\xe1',
               QByteArray("http://ns.adobe.com/xmp/extension/\0", 35) + digest + QByteArray(8, '\0') +
                   "ColoursOfTheOriginal");
    const auto [kept, contents] = saved(source);
    EXPECT_FALSE(contents.contains("ColoursOfTheOriginal"));
    EXPECT_FALSE(contents.contains(digest));
    EXPECT_EQ(kept["Xmp.dc.source"], "roll 7");
}

TEST_F(EmbeddedImagesTest, MakersNotesWithAnImageAreDropped)
{
    for (const char *source : {"a.jpg", "a.png", "a.tif"}) {
        const QByteArray image = QByteArray("Acme\0\1 lens 50 mm", 16) + jpeg;
        const QString file = written(QString::fromLatin1(source));
        setMetadata(file, withMakerNote(image));
        const auto [kept, contents] = saved(file);
        EXPECT_EQ(kept["Exif.Image.Make"], "Acme") << source;
        EXPECT_EQ(kept["Exif.Photo.MakerNote"], "") << source;
        EXPECT_FALSE(contents.contains("ColoursOfTheOriginal")) << source;
    }
}

TEST_F(EmbeddedImagesTest, OtherMakersNotesAreKept)
{
    for (const QByteArray &note :
         {QByteArray(7'000, 'n') + "TheNote", QByteArray("TheNote\xff\xd8\xff and no image")}) {
        const QString file = written(QStringLiteral("a.jpg"));
        setMetadata(file, withMakerNote(note));
        EXPECT_EQ(saved(file).second.count("TheNote"), 3);
    }
}

// 100 times the 16-bit numbers -3, -40 and -32.
const QByteArray littleEndianTable = QByteArray::fromHex("fdffd8ffe0ff").repeated(100);
const QByteArray bigEndianTable = QByteArray::fromHex("fffdffd8ffe0").repeated(100);

TEST_F(EmbeddedImagesTest, TablesOfNegativeNumbersAreKept)
{
    for (const QByteArray &numbers : {littleEndianTable, bigEndianTable}) {
        const QString file = written(QStringLiteral("a.jpg"));
        setMetadata(file, withMakerNote("TheNote" + numbers));
        EXPECT_EQ(saved(file).second.count("TheNote" + numbers), 3);
    }
    Metadata metadata;
    metadata.exif["Exif.Image.Make"] = "Canon";
    metadata.exif["Exif.Canon.OwnerName"] = "Ansel of the mountains";
    Exiv2::ValueType<std::int16_t> value;
    for (int i = 0; i < 100; ++i) {
        value.value_.insert(value.value_.end(), {-3, -40, -32});
    }
    metadata.exif.add(Exiv2::ExifKey("Exif.Canon.0x4fff"), &value);
    const QString file = written(QStringLiteral("a.jpg"));
    setMetadata(file, metadata);
    EXPECT_EQ(saved(file).second.count(littleEndianTable), 3);
}

TEST_F(EmbeddedImagesTest, AnImageBehindATableIsFound)
{
    const QString file = written(QStringLiteral("a.jpg"));
    setMetadata(file, withMakerNote(littleEndianTable + jpeg));
    EXPECT_FALSE(saved(file).second.contains("ColoursOfTheOriginal"));
}

// Of a note that Exiv2 decodes, only the value with the image is dropped.
TEST_F(EmbeddedImagesTest, ValuesOfDecodedMakersNotesAreDroppedSingly)
{
    Metadata metadata;
    metadata.exif["Exif.Image.Make"] = "Canon";
    metadata.exif["Exif.Canon.OwnerName"] = "Ansel of the mountains";
    const Exiv2::DataValue value(reinterpret_cast<const Exiv2::byte *>(jpeg.constData()),
                                 static_cast<long>(jpeg.size()));
    metadata.exif.add(Exiv2::ExifKey("Exif.Canon.0x4fff"), &value);
    const QString file = written(QStringLiteral("a.jpg"));
    setMetadata(file, metadata);
    ASSERT_TRUE(contentsOf(file).contains("ColoursOfTheOriginal"));
    const auto [kept, contents] = saved(file);
    EXPECT_FALSE(contents.contains("ColoursOfTheOriginal"));
    EXPECT_EQ(kept["Exif.Canon.OwnerName"], "Ansel of the mountains");
}

TEST_F(EmbeddedImagesTest, PreviewsInIptcAreDropped)
{
    Metadata metadata;
    Exiv2::DataValue value(reinterpret_cast<const Exiv2::byte *>(png.constData()), static_cast<long>(png.size()));
    metadata.iptc.add(Exiv2::IptcKey("Iptc.Application2.Preview"), &value);
    metadata.iptc["Iptc.Application2.City"] = "Chur";
    const QString file = written(QStringLiteral("a.jpg"));
    setMetadata(file, metadata);
    ASSERT_TRUE(contentsOf(file).contains("ColoursOfTheOriginal"));
    const auto [kept, contents] = saved(file);
    EXPECT_FALSE(contents.contains("ColoursOfTheOriginal"));
    EXPECT_EQ(kept["Iptc.Application2.City"], "Chur");
}

/// Instead of minutes; also with sanitizers.
constexpr double generousSeconds = 20;

TEST_F(EmbeddedImagesTest, ManyIptcRecordsAreDroppedInLinearTime)
{
    Exiv2::IptcData iptc;
    for (int i = 0; i < 20'000; ++i) {
        Exiv2::Iptcdatum datum(Exiv2::IptcKey(10, 8));
        datum.setValue(std::string(20, 'x'));
        iptc.add(datum);
    }
    iptc["Iptc.Application2.City"] = "Chur";
    const CpuTimer timer;
    grisal::graphics::removeEmbeddedImages(iptc);
    EXPECT_LT(timer.seconds(), generousSeconds);
    EXPECT_EQ(iptc.count(), 1);
}

TEST_F(EmbeddedImagesTest, LongListsOfImagesInXmpAreDroppedInLinearTime)
{
    // A structure among the items makes a property of each.
    const QByteArray items =
        "<rdf:li rdf:parseType='Resource'><q:a>1</q:a></rdf:li>" + QByteArray("<rdf:li>1</rdf:li>").repeated(49'998);
    const CpuTimer timer;
    EXPECT_TRUE(dropsXmp("<xmp:Thumbnails><rdf:Bag>" + items + "</rdf:Bag></xmp:Thumbnails>"));
    EXPECT_LT(timer.seconds(), generousSeconds);
}

} // namespace
