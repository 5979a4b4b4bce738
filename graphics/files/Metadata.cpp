// SPDX-License-Identifier: MIT
#include "graphics/files/Metadata.h"

#include "graphics/files/EmbeddedImages.h"
#include "graphics/files/ExivData.h"
#include "graphics/files/LookProperty.h"
#include "graphics/files/MetadataBlocks.h"
#include "graphics/files/PngChunks.h"
#include "graphics/files/TiffDirectory.h"
#include "graphics/files/XmpNamespaces.h"

#include <QByteArray>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <stdexcept>
#include <string>

namespace grisal::graphics
{

struct Metadata::Contents {
    Exiv2::ExifData exif;
    Exiv2::IptcData iptc;
    QByteArray xmp; ///< the packet, since properties can be encoded only with the name spaces of their own packet
    QByteArray profile;

    bool isEmpty() const { return exif.empty() && iptc.empty() && xmp.isEmpty() && profile.isEmpty(); }
};

namespace
{

// By default Exiv2 writes its warnings to standard error.
void discardMessage(int /*level*/, const char * /*message*/) {}

Exiv2::Image::AutoPtr imageOn(Exiv2::BasicIo::AutoPtr io, ImageFormat format, bool create = false)
{
    switch (format) {
    case ImageFormat::Jpeg:
        return Exiv2::Image::AutoPtr(new Exiv2::JpegImage(io, create));
    case ImageFormat::Png:
        return Exiv2::Image::AutoPtr(new Exiv2::PngImage(io, create));
    case ImageFormat::Tiff:
        return Exiv2::Image::AutoPtr(new Exiv2::TiffImage(io, create));
    }
    throw std::invalid_argument("No such format");
}

/// A small file in memory, which is not copied and has to live as long.
Exiv2::Image::AutoPtr imageIn(const QByteArray &file, ImageFormat format)
{
    return imageOn(Exiv2::BasicIo::AutoPtr(new Exiv2::MemIo(exivBytes(file), static_cast<long>(file.size()))), format);
}

bool isOneOf(const std::string &text, std::initializer_list<const char *> others)
{
    return std::any_of(others.begin(), others.end(), [&](const char *other) { return text == other; });
}

bool describesFile(const Exiv2::Exifdatum &datum)
{
    return datum.groupName() == "Image" &&
           (describesPixels(datum.tag()) || isOneOf(datum.tagName(), {"XMLPacket", "IPTCNAA", "InterColorProfile"}));
}

/// Extension segments of JPEG files are not kept, so nothing may refer to them.
bool describesFile(const Exiv2::Xmpdatum &datum)
{
    return isOneOf(datum.key(),
                   {"Xmp.tiff.BitsPerSample", "Xmp.tiff.Compression", "Xmp.tiff.PhotometricInterpretation",
                    "Xmp.tiff.SamplesPerPixel", "Xmp.tiff.PlanarConfiguration", "Xmp.tiff.YCbCrSubSampling",
                    "Xmp.tiff.YCbCrPositioning", "Xmp.photoshop.ColorMode", "Xmp.xmpNote.HasExtendedXMP"});
}

/// Removes the orientation and returns it.
int extractOrientation(Exiv2::ExifData &exif)
{
    const auto found = exif.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
    if (found == exif.end()) {
        return 1;
    }
    const long orientation = found->count() == 1 ? found->toLong() : 1;
    eraseIf(exif, [](const Exiv2::Exifdatum &datum) { return datum.key() == "Exif.Image.Orientation"; });
    return orientation >= 1 && orientation <= 8 ? static_cast<int>(orientation) : 1;
}

/// Whether a colour profile is for RGB colours and no device link.
bool isRgbProfile(const QByteArray &profile)
{
    constexpr qsizetype headSize = 128;
    return profile.size() >= headSize && profile.mid(36, 4) == "acsp" && profile.mid(16, 4) == "RGB " &&
           profile.mid(12, 4) != "link";
}

/// A profile without padding; empty if it is cut short.
QByteArray completeProfile(const QByteArray &bytes)
{
    const qsizetype size = bytes.size() < 4 ? 0 : qsizetype{qFromBigEndian<std::uint32_t>(bytes.constData())};
    return size <= bytes.size() ? bytes.first(size) : QByteArray();
}

template <typename Data, typename Value>
void correct(Data &data, const char *key, const Value &value)
{
    using Key = std::conditional_t<std::is_same_v<Data, Exiv2::XmpData>, Exiv2::XmpKey, Exiv2::ExifKey>;
    if (data.findKey(Key(key)) != data.end()) {
        data[key] = value;
    }
}

void setSize(Exiv2::ExifData &exif, int width, int height)
{
    if (exif.empty()) {
        return;
    }
    exif["Exif.Image.Orientation"] = std::uint16_t{1};
    exif["Exif.Photo.PixelXDimension"] = static_cast<std::uint32_t>(width);
    exif["Exif.Photo.PixelYDimension"] = static_cast<std::uint32_t>(height);
    correct(exif, "Exif.Iop.RelatedImageWidth", static_cast<std::uint32_t>(width));
    correct(exif, "Exif.Iop.RelatedImageLength", static_cast<std::uint32_t>(height));
}

void setSize(Exiv2::XmpData &xmp, int width, int height)
{
    correct(xmp, "Xmp.tiff.Orientation", std::string("1"));
    for (const char *key : {"Xmp.tiff.ImageWidth", "Xmp.exif.PixelXDimension"}) {
        correct(xmp, key, std::to_string(width));
    }
    for (const char *key : {"Xmp.tiff.ImageLength", "Xmp.exif.PixelYDimension"}) {
        correct(xmp, key, std::to_string(height));
    }
}

/// Whether Exiv2 can encode XMP, which it cannot do for every structure that it decodes. In a JPEG file, XMP has to fit
/// into a single segment.
bool canBeWritten(const Exiv2::XmpData &xmp, ImageFormat format)
{
    constexpr std::size_t maxSegmentSize = 65'000;
    try {
        std::string text;
        return Exiv2::XmpParser::encode(text, xmp) == 0 &&
               (format != ImageFormat::Jpeg || text.size() <= maxSegmentSize);
    } catch (const std::exception &) {
        return false;
    }
}

/// Adds a look to XMP, and leaves out whatever cannot be written, preferably the look. Returns whether nothing was left
/// out.
bool addLook(Exiv2::XmpData &xmp, const QByteArray &look, ImageFormat format)
{
    const std::array candidates{withLook(xmp, look), xmp, withLook({}, look), Exiv2::XmpData()};
    const auto *const best = std::find_if(candidates.begin(), candidates.end() - 1,
                                          [&](const auto &candidate) { return canBeWritten(candidate, format); });
    xmp = *best;
    return best == candidates.begin();
}

/// `file` is what emptyImageFile() returns, and has to live as long.
Exiv2::Image::AutoPtr emptyImage(const QByteArray &file, ImageFormat format)
{
    Exiv2::Image::AutoPtr image = format == ImageFormat::Tiff
                                      ? imageOn(Exiv2::BasicIo::AutoPtr(new Exiv2::MemIo), format, true)
                                      : imageIn(file, format);
    image->setByteOrder(Exiv2::littleEndian);
    return image;
}

QByteArray writtenBy(Exiv2::Image &image)
{
    image.writeMetadata();
    Exiv2::BasicIo &io = image.io();
    return {reinterpret_cast<const char *>(io.mmap()), static_cast<qsizetype>(io.size())};
}

// ExifParser::encode() would leave out what exceeds the segment of a JPEG file.
QByteArray exifBlock(const Exiv2::ExifData &exif)
{
    const Exiv2::Image::AutoPtr image = emptyImage({}, ImageFormat::Tiff);
    image->setExifData(exif);
    return writtenBy(*image);
}

/// Whether Exif fits into the single segment of a JPEG file that it may occupy. Exiv2 leaves out large values
/// otherwise.
bool fitsSegment(const Exiv2::ExifData &exif)
{
    constexpr qsizetype maxSize = 65'527;
    return exif.empty() || exifBlock(exif).size() <= maxSize;
}

QByteArray profileChunk(const QByteArray &profile)
{
    constexpr int lengthSize = 4; // which Qt puts before a compressed stream
    return pngChunk("iCCP", QByteArray("ICC profile\0\0", 13) + qCompress(profile).mid(lengthSize));
}

/// Passes a block to a decoder of Exiv2. Returns whether the block is absent or could be decoded.
template <typename Decoder>
bool decode(const QByteArray &block, Decoder decoder)
{
    try {
        return block.isEmpty() || decoder(exivBytes(block), static_cast<std::uint32_t>(block.size()));
    } catch (const std::exception &) {
        return false;
    }
}

bool decode(const MetadataBlocks &blocks, Exiv2::ExifData &exif, Exiv2::IptcData &iptc)
{
    const bool hasExif = decode(blocks.exif, [&](const Exiv2::byte *bytes, std::uint32_t size) {
        return Exiv2::ExifParser::decode(exif, bytes, size) != Exiv2::invalidByteOrder;
    });
    const bool hasIptc = decode(blocks.iptc, [&](const Exiv2::byte *bytes, std::uint32_t size) {
        return Exiv2::IptcParser::decode(iptc, bytes, size) == 0;
    });
    return hasExif && hasIptc;
}

struct DecodedXmp {
    Exiv2::XmpData properties; ///< those to be kept, without the look
    QByteArray look;
    bool complete = true; ///< whether all properties could be decoded
};

/// The properties can be encoded until another packet is decoded.
DecodedXmp decodeXmp(const QByteArray &packet)
{
    resetXmpNamespaces();
    DecodedXmp xmp;
    const bool isDecoded = decode(packet, [&](const Exiv2::byte * /*bytes*/, std::uint32_t /*size*/) {
        return Exiv2::XmpParser::decode(xmp.properties, packet.toStdString()) == 0 && !xmp.properties.empty();
    });
    xmp.complete = removeForeignLooks(xmp.properties) && isDecoded;
    xmp.look = extractLook(xmp.properties);
    eraseIf(xmp.properties, [](const auto &datum) { return describesFile(datum); });
    removeEmbeddedImages(xmp.properties);
    return xmp;
}

} // namespace

Metadata::Metadata(const OpenFile &file, ImageFormat format)
{
    try {
        Exiv2::LogMsg::setHandler(discardMessage);
        const MetadataBlocks blocks = extractMetadata(file, format);
        auto contents = std::make_shared<Contents>();
        const bool isDecoded = decode(blocks, contents->exif, contents->iptc);
        const DecodedXmp xmp = decodeXmp(blocks.xmp);
        contents->xmp = xmp.properties.empty() ? QByteArray() : blocks.xmp;
        const QByteArray profile = completeProfile(blocks.profile);
        m_complete = blocks.complete && isDecoded && xmp.complete && profile.isEmpty() == blocks.profile.isEmpty();
        contents->profile = isRgbProfile(profile) ? profile : QByteArray();
        m_orientation = extractOrientation(contents->exif);
        m_sourceLook = xmp.look;
        eraseIf(contents->exif, [](const auto &datum) { return describesFile(datum); });
        removeEmbeddedImages(contents->exif);
        removeEmbeddedImages(contents->iptc);
        if (!contents->isEmpty()) {
            m_contents = std::move(contents);
        }
    } catch (const std::exception &) {
        m_complete = false;
    }
}

// Exiv2 would write Exif as a text chunk, which few programs read, and the profile into a chunk without a name, which
// many programs reject.
QByteArray Metadata::pngOf(const Contents &contents, const Exiv2::XmpData &xmp)
{
    const QByteArray empty = emptyImageFile(ImageFormat::Png);
    const Exiv2::Image::AutoPtr image = emptyImage(empty, ImageFormat::Png);
    image->setIptcData(contents.iptc);
    image->setXmpData(xmp);
    const QByteArray end = pngChunk("IEND", {});
    QByteArray file = writtenBy(*image).chopped(end.size());
    file += contents.exif.empty() ? QByteArray() : pngChunk("eXIf", exifBlock(contents.exif));
    file += contents.profile.isEmpty() ? QByteArray() : profileChunk(contents.profile);
    return file + end;
}

QByteArray Metadata::fileOf(const Contents &contents, const Exiv2::XmpData &xmp, ImageFormat format)
{
    if (format == ImageFormat::Png) {
        return pngOf(contents, xmp);
    }
    const QByteArray empty = emptyImageFile(format);
    const Exiv2::Image::AutoPtr image = emptyImage(empty, format);
    image->setExifData(contents.exif);
    image->setIptcData(contents.iptc);
    image->setXmpData(xmp);
    if (!contents.profile.isEmpty()) {
        Exiv2::DataBuf profile(exivBytes(contents.profile), static_cast<long>(contents.profile.size()));
        image->setIccProfile(profile, false);
    }
    return writtenBy(*image);
}

void Metadata::setLook(const QByteArray &text)
{
    m_look = isLookText(text) ? text : QByteArray();
}

bool Metadata::writeInto(const OpenFile &file, ImageFormat format, int width, int height) const
{
    if (isEmpty()) {
        return true;
    }
    QByteArray metadata;
    bool complete = true;
    try {
        Exiv2::LogMsg::setHandler(discardMessage);
        Contents contents = m_contents ? *m_contents : Contents();
        Exiv2::XmpData xmp = decodeXmp(contents.xmp).properties;
        setSize(contents.exif, width, height);
        setSize(xmp, width, height);
        complete = addLook(xmp, m_look, format) && (format != ImageFormat::Jpeg || fitsSegment(contents.exif));
        metadata = fileOf(contents, xmp, format);
    } catch (const std::exception &) {
        return false;
    }
    return insertMetadata(file, format, metadata) && complete;
}

} // namespace grisal::graphics
