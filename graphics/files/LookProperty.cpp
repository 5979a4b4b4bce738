// SPDX-License-Identifier: MIT
#include "graphics/files/LookProperty.h"

#include "graphics/files/ExivData.h"
#include "graphics/files/XmpNamespaces.h"

#include <QString>
#include <QUtf8StringView>

#include <algorithm>
#include <string>

namespace grisal::graphics
{

namespace
{

constexpr const char *lookKey = "Xmp.grisal.Look";

constexpr qsizetype maxLookSize = 1 << 16;

// XML excludes the last two code units. Exiv2 replaces control characters by spaces.
bool isAllowed(QChar c)
{
    const bool isControl = (c < u' ' && c != u'\t' && c != u'\n' && c != u'\r') || c == u'\x7f';
    return !isControl && c < u'\xfffe';
}

/// The text of a value; empty if it is an array or a structure.
QByteArray plainText(const Exiv2::Xmpdatum &datum)
{
    const auto *value = dynamic_cast<const Exiv2::XmpTextValue *>(&datum.value());
    const bool isPlain = value != nullptr && value->xmpArrayType() == Exiv2::XmpValue::xaNone &&
                         value->xmpStruct() == Exiv2::XmpValue::xsNone;
    return isPlain ? QByteArray::fromStdString(value->value_) : QByteArray();
}

} // namespace

bool removeForeignLooks(Exiv2::XmpData &xmp)
{
    if (Exiv2::XmpProperties::ns(lookNamespace.prefix) == lookNamespace.uri) {
        return true;
    }
    eraseIf(xmp, [](const Exiv2::Xmpdatum &datum) { return datum.groupName() == lookNamespace.prefix; });
    Exiv2::XmpProperties::registerNs(lookNamespace.uri, lookNamespace.prefix);
    return false;
}

// A structure or a text with qualifiers consists of several values.
QByteArray extractLook(Exiv2::XmpData &xmp)
{
    const auto isLook = [](const Exiv2::Xmpdatum &datum) { return propertyOf(datum.key()) == lookKey; };
    const auto found = std::find_if(xmp.begin(), xmp.end(), isLook);
    if (found == xmp.end()) {
        return {};
    }
    const bool isSingle = std::none_of(found + 1, xmp.end(), isLook);
    const QByteArray text = isSingle ? plainText(*found) : QByteArray();
    eraseIf(xmp, isLook);
    return isLookText(text) ? text : QByteArray();
}

Exiv2::XmpData withLook(Exiv2::XmpData xmp, const QByteArray &text)
{
    if (!text.isEmpty()) {
        const Exiv2::XmpTextValue value(text.toStdString());
        xmp.add(Exiv2::XmpKey(lookKey), &value);
    }
    return xmp;
}

bool isLookText(const QByteArray &text)
{
    if (text.size() > maxLookSize || !QUtf8StringView(text).isValidUtf8()) {
        return false;
    }
    const QString characters = QString::fromUtf8(text);
    return std::all_of(characters.begin(), characters.end(), isAllowed);
}

} // namespace grisal::graphics
