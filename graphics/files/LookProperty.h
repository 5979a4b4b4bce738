// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <exiv2/exiv2.hpp>

namespace grisal::graphics
{

// The text of a look is the property `Look` of XMP in the name space "https://grisal.example/look/1.0/".

/// Removes properties of another name space with the same prefix from XMP that was just decoded, since Exiv2 does not
/// distinguish them from a look, and registers the name space of looks again. Returns whether there were none.
bool removeForeignLooks(Exiv2::XmpData &xmp);

/// Removes the property from XMP and returns its text. The text is empty if there is no such property, or if it is not
/// a plain text or no text of a look, see isLookText().
QByteArray extractLook(Exiv2::XmpData &xmp);

/// XMP with a look; unchanged where the text is empty. `xmp` has none yet, and `text` is that of a look.
Exiv2::XmpData withLook(Exiv2::XmpData xmp, const QByteArray &text);

/// Whether a text may be stored as a look: UTF-8 of at most 64 KiB, with those characters only that XMP can contain.
bool isLookText(const QByteArray &text);

} // namespace grisal::graphics
