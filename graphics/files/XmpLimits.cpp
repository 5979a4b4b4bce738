// SPDX-License-Identifier: MIT
#include "graphics/files/XmpLimits.h"

#include "graphics/files/MetadataBlocks.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringConverter>
#include <QXmlStreamReader>

#include <algorithm>

namespace grisal::graphics
{

namespace
{

/// Elements and attributes, except items of arrays. Exiv2 compares each one with those before it that have the same
/// parent; those within an item of an array are compared among themselves only, as the entries of a history.
constexpr qsizetype maxSiblings = 4'000;
constexpr qsizetype maxComparisons = maxSiblings * (maxSiblings + 1) / 2;
constexpr int maxProperties = 25'000;
/// Items of arrays, which Exiv2 reads in linear time.
constexpr int maxItems = 50'000;
constexpr int maxNamespaces = 100;
constexpr int maxDepth = 40;
/// Characters of a name, with those of name spaces.
constexpr qsizetype maxName = 256;
/// Characters of all keys: Exiv2's key of a value consists of the names of all elements around it.
constexpr qsizetype maxKeys = 3'000'000;
/// Of an element: QXmlStreamReader compares every attribute with every other one.
constexpr qsizetype maxEqualSigns = 5'000;

constexpr QStringView rdf = u"http://www.w3.org/1999/02/22-rdf-syntax-ns#";

/// The text of a packet as Exiv2 decodes it: control characters are spaces, and padding may follow the last element.
QString textOf(const QByteArray &packet)
{
    const auto encoding = QStringConverter::encodingForData(packet, u'<').value_or(QStringConverter::Utf8);
    QString text = QStringDecoder(encoding)(packet);
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return c < u' ' && c != u'\n'; }, QChar(u' '));
    text.truncate(text.lastIndexOf(u'>') + 1);
    return text.mid(std::max<qsizetype>(text.indexOf(u'<'), 0));
}

/// Whether no element can have too many attributes: none of them contains the start of another element.
bool hasFewAttributes(const QString &text)
{
    qsizetype equalSigns = 0;
    return std::none_of(text.begin(), text.end(), [&](QChar c) {
        equalSigns = c == u'<' ? 0 : equalSigns + (c == u'=' ? 1 : 0);
        return equalSigns > maxEqualSigns;
    });
}

/// Counts the elements of a packet.
class XmpCount
{
public:
    void addElement(const QXmlStreamReader &reader)
    {
        const bool isItem = reader.name() == u"li" && reader.namespaceUri() == rdf;
        const QXmlStreamAttributes attributes = reader.attributes();
        if (isItem) {
            m_items += 1;
            m_siblings.push_back(0);
        } else {
            addProperties(1);
        }
        addProperties(attributes.size());
        m_isItem.push_back(isItem);
        m_path.push_back(lengthOf(reader.qualifiedName()) + (m_path.isEmpty() ? 0 : m_path.back()));
        m_keys += m_path.back() * (1 + attributes.size());
        for (const QXmlStreamAttribute &attribute : attributes) {
            m_keys += lengthOf(attribute.qualifiedName());
        }
        for (const QXmlStreamNamespaceDeclaration &declaration : reader.namespaceDeclarations()) {
            m_keys += lengthOf(declaration.prefix()) + lengthOf(declaration.namespaceUri());
            m_namespaces.insert(declaration.namespaceUri().toString());
        }
    }
    void endElement()
    {
        m_path.pop_back();
        if (m_isItem.takeLast()) {
            m_siblings.pop_back();
        }
    }

    bool isWithinLimits() const
    {
        return m_path.size() <= maxDepth && m_items <= maxItems && m_properties <= maxProperties &&
               m_comparisons <= maxComparisons && m_namespaces.size() <= maxNamespaces && m_longestName <= maxName &&
               m_keys <= maxKeys;
    }

private:
    void addProperties(qsizetype count)
    {
        m_properties += count;
        for (qsizetype i = 0; i < count; ++i) {
            m_comparisons += ++m_siblings.back();
        }
    }
    qsizetype lengthOf(QStringView name)
    {
        m_longestName = std::max(m_longestName, name.size());
        return name.size();
    }

    QList<qsizetype> m_path; ///< for each element around the current position, the length of the key so far
    QList<bool> m_isItem;
    QList<qsizetype> m_siblings{0}; ///< the properties of the packet, and of each item around the current position
    qsizetype m_comparisons = 0;
    qsizetype m_items = 0;
    qsizetype m_properties = 0;
    qsizetype m_keys = 0;
    qsizetype m_longestName = 0;
    QSet<QString> m_namespaces;
};

} // namespace

bool isWithinXmpLimits(const QByteArray &packet)
{
    if (packet.size() > maxXmpSize) {
        return false;
    }
    const QString text = textOf(packet);
    if (!hasFewAttributes(text)) {
        return false;
    }
    QXmlStreamReader reader(text);
    XmpCount count;
    while (!reader.atEnd() && count.isWithinLimits()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::DTD:
            return false;
        case QXmlStreamReader::StartElement:
            count.addElement(reader);
            break;
        case QXmlStreamReader::EndElement:
            count.endElement();
            break;
        default:
            break;
        }
    }
    return count.isWithinLimits() && !reader.hasError();
}

} // namespace grisal::graphics
