// SPDX-License-Identifier: MIT
#pragma once

#include <exiv2/exiv2.hpp>

namespace grisal::graphics
{

/// Remove the images and depth maps in metadata, which would show the colours of the original: those that are known by
/// name, such as thumbnails and previews, and those that are recognised by their contents.
///
/// Exif and IPTC values, and maker's notes that Exiv2 does not decode, are removed where they contain a JPEG image: its
/// segments up to the one with the size of the image. An XMP property is removed with all its parts where a value of at
/// least 200 characters is a JPEG, PNG or WebP image in Base64.
void removeEmbeddedImages(Exiv2::ExifData &exif);
void removeEmbeddedImages(Exiv2::IptcData &iptc);
void removeEmbeddedImages(Exiv2::XmpData &xmp);

} // namespace grisal::graphics
