// SPDX-License-Identifier: MIT
// The name spaces of XMP in a saved file are those of its source, whatever other files are read.
#include "graphics/files/LookInFile.h"
#include "graphics/files/LumioImage.h"
#include "tests/graphics/files/MetadataFiles.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <map>
#include <string>

using namespace grisal::test;
using grisal::graphics::LumioImage;
using grisal::graphics::readLook;

namespace
{

constexpr int quality = 90;

const std::string rdf = "http://www.w3.org/1999/02/22-rdf-syntax-ns#";
const std::string dublinCore = "http://purl.org/dc/elements/1.1/";
const std::string foreign = "http://foreign.example/";
const std::string shared = "http://shared.example/";
const std::string looks = "https://grisal.example/look/1.0/";

const QByteArray look = R"({"mixer":[1,0,0]})";

/// The texts of the elements and attributes of XMP, by the URI of the name space and the name; those of structures are
/// empty.
using Texts = std::map<std::string, std::string>;

/// Properties in several name spaces, each a prefix and a URI.
QByteArray packetOf(const std::map<std::string, std::string> &namespaces, const QByteArray &elements)
{
    std::string declarations;
    for (const auto &[prefix, uri] : namespaces) {
        declarations.append(" xmlns:").append(prefix).append("='").append(uri).append("'");
    }
    return QByteArray::fromStdString("<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='" + rdf +
                                     "'><rdf:Description rdf:about=''" + declarations + ">") +
           elements + "</rdf:Description></rdf:RDF></x:xmpmeta>";
}

template <typename Node>
std::string nameOf(const Node &node)
{
    return (node.namespaceUri().toString() + node.name().toString()).toStdString();
}

/// Reads the packet of a saved file without Exiv2, which has the name spaces of all files that were read.
Texts textsIn(const QString &path)
{
    const QByteArray contents = contentsOf(path);
    const QByteArray end = "</x:xmpmeta>";
    const qsizetype start = contents.indexOf("<x:xmpmeta");
    QXmlStreamReader reader(contents.mid(start, contents.indexOf(end) + end.size() - start));
    Texts texts;
    std::string name;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            name = nameOf(reader);
            texts[name] = "";
            for (const QXmlStreamAttribute &attribute : reader.attributes()) {
                texts[nameOf(attribute)] = attribute.value().toString().toStdString();
            }
        } else if (reader.isCharacters() && !reader.isWhitespace()) {
            texts[name] = reader.text().toString().toStdString();
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    std::erase_if(texts,
                  [](const auto &text) { return text.first.starts_with(rdf) || text.first.starts_with("adobe:"); });
    return texts;
}

class MetadataNamespaces : public testing::TestWithParam<const char *>
{
protected:
    QString path(const QString &stem) const
    {
        return directory.filePath(stem + QLatin1Char('.') + QString::fromLatin1(GetParam()));
    }

    /// A file with XMP.
    QString written(const QString &stem, const QByteArray &packet) const
    {
        painted(24, 16, 8, [](int, int) { return Samples{0x1010, 0x2020, 0x3030}; }).write(path(stem).toStdString());
        addXmp(path(stem), packet);
        return path(stem);
    }

    static LumioImage opened(const QString &file)
    {
        LumioImage image;
        EXPECT_TRUE(image.read(file)) << image.problem().english().toStdString();
        EXPECT_EQ(image.warning().english().toStdString(), "") << file.toStdString();
        return image;
    }

    /// Saves with the look. Returns the XMP of the saved file without it.
    Texts savedTexts(LumioImage image) const
    {
        auto metadata = image.metadata();
        metadata.setLook(look);
        image.setMetadata(metadata);
        const QString target = path(QStringLiteral("target"));
        EXPECT_TRUE(image.save(target, quality)) << image.problem().english().toStdString();
        EXPECT_EQ(image.warning().english().toStdString(), "");
        Texts texts = textsIn(target);
        EXPECT_EQ(texts[looks + "Look"], look.toStdString());
        texts.erase(looks + "Look");
        EXPECT_EQ(readLook(target).text, look);
        return texts;
    }

    /// Expects that the XMP of two files is kept, if each is saved before the other one is read, and if both are read
    /// before.
    void expectKept(const QByteArray &first, const Texts &firstTexts, const QByteArray &second,
                    const Texts &secondTexts) const
    {
        const QString a = written(QStringLiteral("a"), first);
        const QString b = written(QStringLiteral("b"), second);
        EXPECT_EQ(savedTexts(opened(a)), firstTexts);
        EXPECT_EQ(savedTexts(opened(b)), secondTexts);
        EXPECT_EQ(savedTexts(opened(a)), firstTexts);
        const LumioImage imageOfA = opened(a);
        const LumioImage imageOfB = opened(b);
        EXPECT_EQ(savedTexts(imageOfA), firstTexts);
        EXPECT_EQ(savedTexts(imageOfB), secondTexts);
        EXPECT_EQ(savedTexts(imageOfA), firstTexts);
    }

    QTemporaryDir directory;
};

QByteArray structureOf(const QByteArray &property, const QByteArray &field)
{
    return "<" + property + " rdf:parseType='Resource'><" + field + ">1</" + field + "></" + property + ">";
}

TEST_P(MetadataNamespaces, AreKeptIfAnotherFileHasAKnownPrefixForAnotherUri)
{
    const QByteArray source = "<dc:source>roll 7</dc:source>";
    expectKept(packetOf({{"dc", foreign}}, source), {{foreign + "source", "roll 7"}},
               packetOf({{"dc", dublinCore}}, source), {{dublinCore + "source", "roll 7"}});
}

TEST_P(MetadataNamespaces, AreKeptIfAnotherFileHasTheSamePrefixForAnotherUri)
{
    expectKept(packetOf({{"q", foreign}}, "<q:a>1</q:a>"), {{foreign + "a", "1"}},
               packetOf({{"q", shared}}, "<q:a>1</q:a>"), {{shared + "a", "1"}});
}

TEST_P(MetadataNamespaces, AreKeptIfAnotherFileHasAnotherPrefixForTheUriOfAStructure)
{
    expectKept(packetOf({{"a", shared}}, "<a:b>1</a:b>"), {{shared + "b", "1"}},
               packetOf({{"b", shared}}, structureOf("b:c", "b:d")), {{shared + "c", ""}, {shared + "d", "1"}});
}

// Exiv2 itself does not know a name space that only fields of structures have: the XMP toolkit within it does.
TEST_P(MetadataNamespaces, OfFieldsAloneAreKeptIfAnotherFileHasOthers)
{
    const QByteArray a = structureOf("q:c", "a:d");
    const QByteArray b = structureOf("q:c", "b:d");
    const Texts texts{{foreign + "c", ""}, {shared + "d", "1"}};
    expectKept(packetOf({{"q", foreign}, {"a", shared}}, a), texts, packetOf({{"q", foreign}, {"b", shared}}, b),
               texts);
    expectKept(packetOf({{"q", foreign}, {"a", shared}}, a), texts, packetOf({{"q", shared}, {"a", foreign}}, a),
               {{shared + "c", ""}, {foreign + "d", "1"}});
}

TEST_P(MetadataNamespaces, OfLooksIsKnownIfAnotherFileHasItsPrefixForAnotherUri)
{
    const QString hostile =
        written(QStringLiteral("hostile"), packetOf({{"grisal", foreign}}, "<grisal:Look>{}</grisal:Look>"));
    const QString file = written(QStringLiteral("a"), packetOf({{"q", looks}}, "<q:Look>{}</q:Look>"));
    EXPECT_EQ(readLook(hostile).text, "");
    EXPECT_EQ(readLook(file).text, "{}");
    const LumioImage image = opened(file);
    EXPECT_EQ(readLook(hostile).text, "");
    EXPECT_EQ(image.metadata().sourceLook(), "{}");
    EXPECT_EQ(savedTexts(image), Texts());
}

TEST_P(MetadataNamespaces, OfImagesIsKnownIfAnotherFileHasItsPrefixForAnotherUri)
{
    written(QStringLiteral("hostile"), packetOf({{"GImage", foreign}}, "<GImage:a>1</GImage:a>"));
    const QByteArray elements = "<q:Mime>image/jpeg</q:Mime><dc:source>roll 7</dc:source>";
    const QString file = written(
        QStringLiteral("a"), packetOf({{"q", "http://ns.google.com/photos/1.0/image/"}, {"dc", dublinCore}}, elements));
    readLook(path(QStringLiteral("hostile")));
    EXPECT_EQ(savedTexts(opened(file)), (Texts{{dublinCore + "source", "roll 7"}}));
}

INSTANTIATE_TEST_SUITE_P(Formats, MetadataNamespaces, testing::Values("jpg", "png", "tif"),
                         [](const auto &test) { return std::string(test.param); });

} // namespace
