// SPDX-License-Identifier: MIT
// The text of a look in the XMP of image files.
#include "graphics/files/LookInFile.h"
#include "graphics/files/LumioImage.h"
#include "tests/graphics/files/MetadataFiles.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include <string>

using namespace grisal::test;
using grisal::graphics::LumioImage;
using grisal::graphics::readLook;

namespace
{

constexpr int quality = 90;
constexpr const char *lookKey = "Xmp.grisal.Look";

/// With characters that XML, JSON or Exiv2 treat specially.
const QByteArray look =
    R"({"name":"Été <1> & 'zwei' \"drei\" \\ ]]> &amp; lang=x type=Bag 😀","mixer":[0.25,-1.5e-3,1]})";

QByteArray lookOfSize(qsizetype size)
{
    return QByteArray("{\"a\":\"") + QByteArray(size - 8, 'x') + "\"}";
}

QByteArray packetWith(const QByteArray &elements)
{
    return "<x:xmpmeta xmlns:x='adobe:ns:meta/'>"
           "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
           "<rdf:Description rdf:about='' xmlns:q='https://grisal.example/look/1.0/'"
           " xmlns:dc='http://purl.org/dc/elements/1.1/'><dc:source>roll 7</dc:source>" +
           elements + "</rdf:Description></rdf:RDF></x:xmpmeta>";
}

struct LookTest : testing::Test {
    QTemporaryDir directory;

    QString path(const QString &name) const { return directory.filePath(name); }

    QString written(const QString &name) const
    {
        painted(24, 16, 8, [](int x, int y) {
            return Samples{static_cast<std::uint16_t>(x * 2570), static_cast<std::uint16_t>(y * 5140), 0x4040};
        }).write(path(name).toStdString());
        return path(name);
    }
    QString withXmp(const QString &name, const Exiv2::XmpData &xmp) const
    {
        QString file = written(name);
        Metadata metadata = fullMetadata();
        metadata.xmp = xmp;
        metadata.profile.clear(); // GraphicsMagick warns of one that Exiv2 has written into a PNG file
        setMetadata(file, metadata);
        return file;
    }
    QString withElements(const QString &name, const QByteArray &elements) const
    {
        QString file = written(name);
        addXmp(file, packetWith(elements));
        return file;
    }

    /// Saves the image of a file with a look. Returns the warnings.
    static std::string savedAs(const QString &source, const QString &target, const QByteArray &text)
    {
        LumioImage image;
        EXPECT_TRUE(image.read(source)) << image.problem().english().toStdString();
        auto metadata = image.metadata();
        metadata.setLook(text);
        image.setMetadata(metadata);
        const std::string warning = image.warning().english().toStdString();
        testing::internal::CaptureStderr();
        EXPECT_TRUE(image.save(target, quality)) << image.problem().english().toStdString();
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
        return warning + image.warning().english().toStdString();
    }
};

// The first test, since reading a file initialises Exiv2.
TEST_F(LookTest, IsWrittenBeforeAnyFileIsRead)
{
    LumioImage image(24, 16, false);
    grisal::graphics::Metadata metadata;
    metadata.setLook(look);
    image.setMetadata(metadata);
    for (const char *name : {"a.jpg", "a.png", "a.tif"}) {
        ASSERT_TRUE(image.save(path(QString::fromLatin1(name)), quality));
        EXPECT_TRUE(image.warning().isEmpty()) << name;
    }
    for (const char *name : {"a.jpg", "a.png", "a.tif"}) {
        EXPECT_EQ(readLook(path(QString::fromLatin1(name))).text, look) << name;
    }
}

class LookOfFormats : public LookTest, public testing::WithParamInterface<const char *>
{
protected:
    static QString named(const char *stem)
    {
        return QString::fromLatin1(stem) + QLatin1Char('.') + QString::fromLatin1(GetParam());
    }
    QString source() const { return named("source"); }
    QString target() const { return path(named("target")); }
};

TEST_P(LookOfFormats, IsReadFromASavedFile)
{
    EXPECT_EQ(savedAs(withXmp(source(), fullMetadata().xmp), target(), look), "");
    EXPECT_EQ(readLook(target()).text, look);
    EXPECT_EQ(metadataIn(target())[lookKey], look.toStdString());
}

TEST_P(LookOfFormats, IsWrittenIntoAFileWithoutOtherMetadata)
{
    EXPECT_EQ(savedAs(written(QStringLiteral("plain.png")), target(), look), "");
    EXPECT_EQ(readLook(target()).text, look);
    EXPECT_EQ(metadataIn(target()).xmp.count(), 1);
}

TEST_P(LookOfFormats, IsAddedToTheXmpOfTheSource)
{
    const QString from = withXmp(source(), fullMetadata().xmp);
    const QString without = path(named("without"));
    EXPECT_EQ(savedAs(from, without, {}), "");
    EXPECT_EQ(savedAs(from, target(), look), "");
    const Metadata expected = metadataIn(without);
    const Metadata saved = metadataIn(target());
    EXPECT_EQ(saved.xmp.count(), expected.xmp.count() + 1);
    for (const Exiv2::Xmpdatum &datum : expected.xmp) {
        EXPECT_EQ(saved[datum.key().c_str()], datum.toString()) << datum.key();
    }
    EXPECT_EQ(saved["Xmp.dc.title"], "lang=\"x-default\" Morning");
    EXPECT_EQ(saved["Exif.Image.Make"], "Acme");
    EXPECT_EQ(saved["Iptc.Application2.City"], "Chur");
}

TEST_P(LookOfFormats, ReplacesTheLookOfTheSource)
{
    const QString from = path(source());
    EXPECT_EQ(savedAs(withXmp(named("original"), fullMetadata().xmp), from, "{\"a\":1}"), "");
    LumioImage image;
    ASSERT_TRUE(image.read(from));
    EXPECT_EQ(image.metadata().sourceLook(), "{\"a\":1}");
    EXPECT_EQ(savedAs(from, target(), look), "");
    EXPECT_EQ(readLook(target()).text, look);
    EXPECT_FALSE(contentsOf(target()).contains("{&quot;a&quot;:1}"));
}

TEST_P(LookOfFormats, OfTheSourceIsDroppedIfNoneIsSet)
{
    const QString without = path(named("without"));
    const QString from = withElements(source(), "<q:Look>{}</q:Look>");
    EXPECT_EQ(savedAs(from, target(), {}), "");
    EXPECT_EQ(savedAs(withElements(named("plain"), ""), without, {}), "");
    EXPECT_EQ(contentsOf(target()), contentsOf(without));
    EXPECT_EQ(metadataIn(target())["Xmp.dc.source"], "roll 7");
}

TEST_P(LookOfFormats, IsReadUnderAnotherPrefix)
{
    const QString from = withElements(source(), "<q:Look>{&quot;a&quot;:1}</q:Look>");
    EXPECT_EQ(readLook(from).text, "{\"a\":1}");
}

TEST_P(LookOfFormats, OfTheSourceIsDroppedIfItIsNotPlainText)
{
    for (const QByteArray &element :
         {QByteArray("<q:Look><rdf:Bag><rdf:li>{}</rdf:li></rdf:Bag></q:Look>"),
          QByteArray("<q:Look><rdf:Alt><rdf:li xml:lang='x-default'>{}</rdf:li></rdf:Alt></q:Look>"),
          QByteArray("<q:Look rdf:parseType='Resource'><q:a>{}</q:a><q:b>{}</q:b></q:Look>"),
          QByteArray("<q:Look xml:lang='de'>{}</q:Look>"), QByteArray("<q:Look>type=Bag {}</q:Look>"),
          QByteArray("<q:Look/>")}) {
        const QString from = withElements(source(), element);
        EXPECT_EQ(readLook(from).text, "") << element.toStdString();
        EXPECT_TRUE(readLook(from).problem.isEmpty());
        EXPECT_EQ(savedAs(from, target(), {}), "") << element.toStdString();
        EXPECT_EQ(metadataIn(target()).xmp.count(), 1) << element.toStdString();
        EXPECT_EQ(savedAs(from, target(), look), "") << element.toStdString();
        EXPECT_EQ(readLook(target()).text, look);
        EXPECT_EQ(metadataIn(target()).xmp.count(), 2) << element.toStdString();
    }
}

TEST_P(LookOfFormats, IsAbsentIfTheXmpIsInvalid)
{
    const QString from = withElements(source(), "<q:Look>{\"\xff\"}</q:Look>");
    EXPECT_EQ(readLook(from).text, "");
    EXPECT_NE(savedAs(from, target(), {}), "");
    EXPECT_TRUE(metadataIn(target()).xmp.empty());
}

// Exiv2 cannot encode the fields of a structure that have another prefix than the one that is registered.
TEST_P(LookOfFormats, IsWrittenAloneIfTheXmpOfTheSourceCannotBeEncoded)
{
    const QString from = withElements(source(), "<q:Other rdf:parseType='Resource'><q:a>1</q:a><q:b>2</q:b></q:Other>");
    EXPECT_NE(savedAs(from, target(), {}), "");
    EXPECT_TRUE(metadataIn(target()).xmp.empty());
    EXPECT_NE(savedAs(from, target(), look), "");
    EXPECT_EQ(readLook(target()).text, look);
    EXPECT_EQ(metadataIn(target()).xmp.count(), 1);
}

// Exiv2 has one name space for each prefix, in all files that are read.
TEST_P(LookOfFormats, IsNotAPropertyOfAnotherNameSpaceWithTheSamePrefix)
{
    const QString from =
        withElements(source(), "<grisal:Look xmlns:grisal='http://elsewhere.example/'>{}</grisal:Look>");
    EXPECT_EQ(readLook(from).text, "");
    EXPECT_NE(savedAs(from, target(), look), "");
    EXPECT_EQ(readLook(target()).text, look);
    EXPECT_FALSE(contentsOf(target()).contains("elsewhere"));
    EXPECT_EQ(metadataIn(target())["Xmp.dc.source"], "roll 7");
    EXPECT_EQ(savedAs(written(named("next")), target(), look), "");
    EXPECT_EQ(contentsOf(target()).count("https://grisal.example/look/1.0/"), 1);
}

INSTANTIATE_TEST_SUITE_P(Formats, LookOfFormats, testing::Values("jpg", "png", "tif"),
                         [](const auto &test) { return std::string(test.param); });

TEST_F(LookTest, OfSixtyKilobytesIsKeptInPngAndTiff)
{
    const QString source = withXmp(QStringLiteral("a.tif"), fullMetadata().xmp);
    const QByteArray large = lookOfSize(60'000);
    for (const char *name : {"b.png", "b.tif"}) {
        const QString target = path(QString::fromLatin1(name));
        EXPECT_EQ(savedAs(source, target, large), "");
        EXPECT_EQ(readLook(target).text, large) << name;
        EXPECT_EQ(metadataIn(target)["Xmp.xmp.Rating"], "4") << name;
    }
}

// Which is 64 KB, with padding.
TEST_F(LookTest, IsLeftOutOfAJpegIfTheSegmentOfItsXmpIsTooSmallForBoth)
{
    Exiv2::XmpData xmp = fullMetadata().xmp;
    xmp["Xmp.dc.source"] = std::string(61'000, 'x');
    const QString source = withXmp(QStringLiteral("a.tif"), xmp);
    const QString without = path(QStringLiteral("without.jpg"));
    const QString target = path(QStringLiteral("b.jpg"));
    EXPECT_EQ(savedAs(source, without, {}), "");
    EXPECT_NE(savedAs(source, target, lookOfSize(3'000)), "");
    EXPECT_EQ(contentsOf(target), contentsOf(without));
    EXPECT_EQ(metadataIn(target)["Xmp.dc.source"].size(), 61'000);
}

TEST_F(LookTest, IsWrittenAloneIntoAJpegIfTheXmpOfTheSourceIsTooLarge)
{
    Exiv2::XmpData xmp = fullMetadata().xmp;
    xmp["Xmp.dc.source"] = std::string(100'000, 'x');
    const QString target = path(QStringLiteral("b.jpg"));
    EXPECT_NE(savedAs(withXmp(QStringLiteral("a.tif"), xmp), target, look), "");
    EXPECT_EQ(readLook(target).text, look);
    EXPECT_EQ(metadataIn(target).xmp.count(), 1);
    EXPECT_EQ(metadataIn(target)["Exif.Image.Make"], "Acme");
}

TEST_F(LookTest, ThatFitsIntoNoSegmentLeavesTheOtherMetadataOfAJpeg)
{
    const QString target = path(QStringLiteral("b.jpg"));
    EXPECT_NE(savedAs(withXmp(QStringLiteral("a.jpg"), fullMetadata().xmp), target, lookOfSize(1 << 16)), "");
    EXPECT_EQ(readLook(target).text, "");
    EXPECT_EQ(metadataIn(target)["Xmp.xmp.Rating"], "4");
    EXPECT_NE(savedAs(written(QStringLiteral("plain.jpg")), target, lookOfSize(1 << 16)), "");
    EXPECT_TRUE(metadataIn(target).isEmpty());
}

TEST_F(LookTest, OfMoreThan64KiBIsDropped)
{
    const auto sourceWith = [&](const QByteArray &text) {
        Exiv2::XmpData xmp;
        xmp["Xmp.dc.source"] = "roll 7";
        Exiv2::XmpProperties::registerNs("https://grisal.example/look/1.0/", "grisal");
        xmp[lookKey] = text.toStdString();
        return withXmp(QStringLiteral("a.png"), xmp);
    };
    EXPECT_EQ(readLook(sourceWith(lookOfSize(1 << 16))).text, lookOfSize(1 << 16));
    const QString source = sourceWith(lookOfSize((1 << 16) + 1));
    EXPECT_EQ(readLook(source).text, "");
    EXPECT_EQ(savedAs(source, path(QStringLiteral("b.png")), {}), "");
    EXPECT_EQ(metadataIn(path(QStringLiteral("b.png"))).xmp.count(), 1);
}

TEST_F(LookTest, IsNotSetIfXmpCannotContainTheText)
{
    for (const QByteArray &text :
         {QByteArray(), lookOfSize((1 << 16) + 1), QByteArray("{\"\xff\"}"), QByteArray("{\"\xed\xa0\x80\"}"),
          QByteArray("{\"\x1b\"}"), QByteArray("{\"\0\"}", 5), QByteArray("{\"\xef\xbf\xbf\"}")}) {
        grisal::graphics::Metadata metadata;
        metadata.setLook(look);
        EXPECT_FALSE(metadata.isEmpty());
        metadata.setLook(text);
        EXPECT_TRUE(metadata.isEmpty()) << text.left(20).toHex().toStdString();
    }
}

TEST_F(LookTest, ThatExiv2TakesForAnArrayIsLeftOutWithAWarning)
{
    for (const char *name : {"b.jpg", "b.png", "b.tif"}) {
        const QString target = path(QString::fromLatin1(name));
        EXPECT_NE(savedAs(withXmp(QStringLiteral("a.jpg"), fullMetadata().xmp), target, "type=Bag {}"), "");
        EXPECT_EQ(metadataIn(target)["Xmp.xmp.Rating"], "4");
    }
}

TEST_F(LookTest, OfACopyDoesNotChangeTheOriginal)
{
    LumioImage image;
    ASSERT_TRUE(image.read(withXmp(QStringLiteral("a.jpg"), fullMetadata().xmp)));
    auto copy = image.metadata();
    copy.setLook(look);
    ASSERT_TRUE(image.save(path(QStringLiteral("b.jpg")), quality));
    EXPECT_EQ(readLook(path(QStringLiteral("b.jpg"))).text, "");
}

TEST_F(LookTest, IsEmptyWithoutAProblemInAFileWithoutALook)
{
    for (const char *name : {"a.jpg", "a.png", "a.tif"}) {
        const auto found = readLook(written(QString::fromLatin1(name)));
        EXPECT_EQ(found.text, "");
        EXPECT_TRUE(found.problem.isEmpty());
    }
}

TEST_F(LookTest, OfAFileThatIsNoImageIsAProblem)
{
    writeFile(path(QStringLiteral("text.jpg")), look);
    for (const char *name : {"missing.jpg", "text.jpg", ""}) {
        const auto found = readLook(path(QString::fromLatin1(name)));
        EXPECT_EQ(found.text, "");
        EXPECT_FALSE(found.problem.isEmpty()) << name;
    }
}

TEST_F(LookTest, IsReadWithoutThePixels)
{
    const QString file = path(QStringLiteral("b.png"));
    EXPECT_EQ(savedAs(written(QStringLiteral("a.png")), file, look), "");
    QByteArray contents = contentsOf(file);
    writeFile(file, contents.replace(contents.indexOf("IDAT") + 4, 40, QByteArray(40, '\xee')));
    LumioImage image;
    EXPECT_FALSE(image.read(file));
    EXPECT_EQ(readLook(file).text, look);
}

} // namespace
