// SPDX-License-Identifier: MIT
#include "graphics/files/EmbeddedImages.h"

#include "graphics/files/ExivData.h"
#include "graphics/files/JpegSegments.h"
#include "graphics/files/XmpNamespaces.h"

#include <QByteArray>
#include <QByteArrayView>

#include <algorithm>
#include <set>
#include <string>

namespace grisal::graphics
{

namespace
{

constexpr QByteArrayView jpegStart{"\xff\xd8\xff"};
constexpr QByteArrayView pngStart{"\x89PNG"};

bool contains(const std::string &text, const char *part)
{
    return text.find(part) != std::string::npos;
}

/// Whether it describes another image than the main one, such as a thumbnail; groups not named here are maker's notes.
bool describesOtherImages(const Exiv2::Exifdatum &datum)
{
    const std::string group = datum.groupName();
    return group == "Thumbnail" || group == "MpfInfo" || (group.starts_with("Image") && group != "Image") ||
           group.starts_with("SubImage") || contains(group, "Preview") || contains(datum.tagName(), "Thumbnail") ||
           contains(datum.tagName(), "PreviewImage");
}

/// The preview, and the record that contains the object described by IPTC.
bool describesOtherImages(const Exiv2::Iptcdatum &datum)
{
    constexpr std::uint16_t objectRecord = 8;
    return contains(datum.tagName(), "Preview") || datum.record() == objectRecord;
}

/// Thumbnails, pages, and all of the name spaces of images. `property` is a key without its parts.
bool describesOtherImages(const std::string &key, const std::string &property)
{
    return property == "Xmp.xmp.Thumbnails" || property == "Xmp.xmp.PageInfo" || contains(key, "xmpGImg:") ||
           std::any_of(imageNamespaces.begin(), imageNamespaces.end(), [&](const XmpNamespace &space) {
               return key.starts_with(std::string("Xmp.") + space.prefix + '.') ||
                      contains(key, (std::string(space.prefix) + ':').c_str());
           });
}

std::uint8_t byteAt(QByteArrayView bytes, qsizetype offset)
{
    return static_cast<std::uint8_t>(bytes[offset]);
}

bool hasLength(std::uint8_t marker)
{
    return marker >= 0xc0 && (marker < 0xd0 || marker > 0xd9);
}

/// Whether the bytes are the segments at the start of a JPEG image, up to the one with the size of the image.
bool areJpegSegments(QByteArrayView bytes)
{
    constexpr int maxSegments = 100;
    constexpr int headSize = 4;
    qsizetype at = 0;
    for (int i = 0; i < maxSegments && at + headSize <= bytes.size(); ++i) {
        const std::uint8_t marker = byteAt(bytes, at + 1);
        const int length = byteAt(bytes, at + 2) * 256 + byteAt(bytes, at + 3);
        if (byteAt(bytes, at) != 0xff || !hasLength(marker) || length < 2) {
            return false;
        }
        at += 2 + length;
        if (JpegSegment{marker}.isStartOfFrame()) {
            return at <= bytes.size();
        }
    }
    return false;
}

/// Whether a value as it is written into files contains a JPEG image. Its first three bytes alone are common in tables
/// of negative numbers.
template <typename Datum>
bool containsJpeg(const Datum &datum)
{
    constexpr qsizetype startOfImageSize = 2;
    QByteArray value(static_cast<qsizetype>(datum.size()), '\0');
    datum.copy(reinterpret_cast<Exiv2::byte *>(value.data()), Exiv2::littleEndian);
    const QByteArrayView view(value);
    for (qsizetype start = view.indexOf(jpegStart); start >= 0; start = view.indexOf(jpegStart, start + 1)) {
        if (areJpegSegments(view.sliced(start + startOfImageSize))) {
            return true;
        }
    }
    return false;
}

bool isEncodedImage(const std::string &text)
{
    constexpr std::size_t smallestText = 200;
    if (text.size() < smallestText) {
        return false;
    }
    constexpr QByteArrayView dataUri{";base64,"};
    const QByteArrayView view(text.data(), static_cast<qsizetype>(text.size()));
    const qsizetype marker = view.first(100).indexOf(dataUri);
    const QByteArray encoded = view.sliced(marker < 0 ? 0 : marker + dataUri.size()).toByteArray();
    const QByteArray start = QByteArray::fromBase64(encoded.first(std::min<qsizetype>(encoded.size(), 1'000)));
    const bool isWebp = start.startsWith("RIFF") && start.mid(8, 4) == "WEBP";
    return start.startsWith(jpegStart) || start.startsWith(pngStart) || isWebp;
}

bool containsEncodedImage(const Exiv2::Xmpdatum &datum)
{
    if (const auto *texts = dynamic_cast<const Exiv2::LangAltValue *>(&datum.value())) {
        return std::any_of(texts->value_.begin(), texts->value_.end(),
                           [](const auto &entry) { return isEncodedImage(entry.second); });
    }
    if (const auto *items = dynamic_cast<const Exiv2::XmpArrayValue *>(&datum.value())) {
        for (long i = 0; i < items->count(); ++i) {
            if (isEncodedImage(items->toString(i))) {
                return true;
            }
        }
        return false;
    }
    return isEncodedImage(datum.toString());
}

} // namespace

void removeEmbeddedImages(Exiv2::ExifData &exif)
{
    eraseIf(exif, [](const auto &datum) { return describesOtherImages(datum) || containsJpeg(datum); });
}

void removeEmbeddedImages(Exiv2::IptcData &iptc)
{
    eraseIf(iptc, [](const auto &datum) { return describesOtherImages(datum) || containsJpeg(datum); });
}

// Without its images a property might be invalid, such as an array without its second item.
void removeEmbeddedImages(Exiv2::XmpData &xmp)
{
    std::set<std::string> properties;
    for (const Exiv2::Xmpdatum &datum : xmp) {
        const std::string key = datum.key();
        const std::string property = propertyOf(key);
        if (describesOtherImages(key, property) || containsEncodedImage(datum)) {
            properties.insert(property);
        }
    }
    eraseIf(xmp, [&](const auto &datum) { return properties.contains(propertyOf(datum.key())); });
}

} // namespace grisal::graphics
