// SPDX-License-Identifier: MIT
#include "graphics/files/XmpLimits.h"

#include <gtest/gtest.h>
#include <QString>
#include <QStringEncoder>

#include <functional>

using grisal::graphics::isWithinXmpLimits;

namespace
{

QByteArray packetOf(const QByteArray &elements, const QByteArray &attributes = {})
{
    return "<?xpacket begin='\xef\xbb\xbf' id='W5M0MpCehiHzreSzNTczkc9d'?><x:xmpmeta xmlns:x='adobe:ns:meta/'>"
           "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
           "<rdf:Description rdf:about='' xmlns:q='http://q/'" +
           attributes + ">" + elements + "</rdf:Description></rdf:RDF></x:xmpmeta>\n<?xpacket end='w'?>";
}

/// The results of `part` for each number up to `count`.
QByteArray repeated(int count, const std::function<QByteArray(const QByteArray &)> &part)
{
    QByteArray all;
    for (int i = 0; i < count; ++i) {
        all += part(QByteArray::number(i));
    }
    return all;
}

QByteArray attributes(int count)
{
    return repeated(count, [](const QByteArray &i) { return " q:a" + i + "='1'"; });
}

TEST(XmpLimits, AllowOrdinaryPackets)
{
    EXPECT_TRUE(isWithinXmpLimits(packetOf("<q:a>1</q:a>", " q:b='2'")));
    EXPECT_TRUE(isWithinXmpLimits(packetOf("<q:a>a &lt;b c=\"d\"&gt; &#65;</q:a>")));
}

TEST(XmpLimits, AllowPaddingInvalidBytesAndUtf16)
{
    const QByteArray packet = packetOf("<q:a>1</q:a>");
    EXPECT_TRUE(isWithinXmpLimits(packet + QByteArray(100, '\0')));
    EXPECT_TRUE(isWithinXmpLimits(packet + QByteArray(100, ' ')));
    EXPECT_TRUE(isWithinXmpLimits(packetOf("<q:a>caf\xe9 \x01</q:a>")));
    QStringEncoder utf16(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    EXPECT_TRUE(isWithinXmpLimits(QByteArray(utf16(QString::fromUtf8(packet)))));
}

TEST(XmpLimits, LimitElementsAndAttributes)
{
    const auto elements = [](int count) {
        return repeated(count, [](const QByteArray &i) { return "<q:a" + i + "/>"; });
    };
    EXPECT_TRUE(isWithinXmpLimits(packetOf(elements(3'900))));
    EXPECT_FALSE(isWithinXmpLimits(packetOf(elements(4'001))));
    EXPECT_TRUE(isWithinXmpLimits(packetOf({}, attributes(3'900))));
    EXPECT_FALSE(isWithinXmpLimits(packetOf({}, attributes(4'001))));
    EXPECT_FALSE(isWithinXmpLimits(packetOf(elements(2'000), attributes(2'000))));
}

TEST(XmpLimits, RejectTooManyAttributesOfOneElement)
{
    EXPECT_FALSE(isWithinXmpLimits(packetOf({}, attributes(120'000))));
}

TEST(XmpLimits, AllowMoreItemsThanProperties)
{
    const auto items = [](int count) {
        return "<q:a><rdf:Bag>" + QByteArray("<rdf:li>1</rdf:li>").repeated(count) + "</rdf:Bag></q:a>";
    };
    EXPECT_TRUE(isWithinXmpLimits(packetOf(items(50'000))));
    EXPECT_FALSE(isWithinXmpLimits(packetOf(items(50'001))));
    EXPECT_FALSE(isWithinXmpLimits(packetOf(items(50'000).replace("rdf:li", "q:li"))));
}

QByteArray history(int count)
{
    const QByteArray entry = "<rdf:li q:action='saved' q:instanceID='1' q:when='2020' q:agent='Acme' q:changed='/'"
                             " q:parameters='none'/>";
    const QByteArray longEntry = "<rdf:li rdf:parseType='Resource'><q:action>saved</q:action><q:when>2020</q:when>"
                                 "<q:agent>Acme</q:agent><q:changed>/</q:changed></rdf:li>";
    return "<q:History><rdf:Seq>" + (entry + longEntry).repeated(count / 2) + "</rdf:Seq></q:History>";
}

TEST(XmpLimits, AllowLongHistories)
{
    EXPECT_TRUE(isWithinXmpLimits(packetOf(history(3'000))));
    EXPECT_FALSE(isWithinXmpLimits(packetOf(history(10'000))));
}

TEST(XmpLimits, LimitTheFieldsOfOneItem)
{
    const auto item = [](int count) { return "<q:a><rdf:Seq><rdf:li" + attributes(count) + "/></rdf:Seq></q:a>"; };
    EXPECT_TRUE(isWithinXmpLimits(packetOf(item(3'900))));
    EXPECT_FALSE(isWithinXmpLimits(packetOf(item(4'001))));
}

TEST(XmpLimits, LimitNamespaces)
{
    const auto declarations = [](int count) {
        return repeated(count, [](const QByteArray &i) { return " xmlns:n" + i + "='http://n" + i + "/'"; });
    };
    EXPECT_TRUE(isWithinXmpLimits(packetOf("<q:a/>", declarations(90))));
    EXPECT_FALSE(isWithinXmpLimits(packetOf("<q:a/>", declarations(101))));
    const auto inner = [](const QByteArray &i) { return "<q:a" + i + " xmlns:n='http://n/'/>"; };
    EXPECT_TRUE(isWithinXmpLimits(packetOf(repeated(1'000, inner))));
}

TEST(XmpLimits, LimitDepthAndLengthsOfKeys)
{
    const auto nested = [](int depth, const QByteArray &name, const QByteArray &innermost) {
        return ("<" + name + " rdf:parseType='Resource'>").repeated(depth) + innermost +
               ("</" + name + ">").repeated(depth);
    };
    EXPECT_TRUE(isWithinXmpLimits(packetOf(nested(30, "q:a", "<q:b/>"))));
    EXPECT_FALSE(isWithinXmpLimits(packetOf(nested(40, "q:a", "<q:b/>"))));
    EXPECT_FALSE(isWithinXmpLimits(packetOf(nested(1, "q:" + QByteArray(300, 'a'), {}))));
    const QByteArray longName = "q:" + QByteArray(200, 'a');
    const QByteArray many = repeated(1'000, [](const QByteArray &i) { return "<q:a" + i + "/>"; });
    EXPECT_TRUE(isWithinXmpLimits(packetOf(nested(5, longName, many))));
    EXPECT_FALSE(isWithinXmpLimits(packetOf(nested(30, longName, many))));
}

TEST(XmpLimits, RejectDocumentTypesAndPacketsThatAreNotWellFormed)
{
    const QByteArray packet = packetOf("<q:a>1</q:a>");
    EXPECT_FALSE(isWithinXmpLimits("<!DOCTYPE x [<!ENTITY e '<q:a/>'>]>" + packet));
    EXPECT_FALSE(isWithinXmpLimits("<!DOCTYPE x>" + packet));
    EXPECT_FALSE(isWithinXmpLimits(packet.chopped(40)));
    EXPECT_FALSE(isWithinXmpLimits(packetOf("<p:a/>")));
    EXPECT_FALSE(isWithinXmpLimits(packetOf("<q:a>&e;</q:a>")));
    EXPECT_FALSE(isWithinXmpLimits(packet + packet));
    EXPECT_FALSE(isWithinXmpLimits("rubbish"));
}

TEST(XmpLimits, LimitTheSize)
{
    EXPECT_TRUE(isWithinXmpLimits(packetOf("<q:a>" + QByteArray(2'000'000, 'x') + "</q:a>")));
    EXPECT_FALSE(isWithinXmpLimits(packetOf("<q:a>" + QByteArray(2'100'000, 'x') + "</q:a>")));
}

} // namespace
