// SPDX-License-Identifier: MIT
#include "graphics/files/Metadata.h"

#include "graphics/files/MetadataBlocks.h"
#include "graphics/files/PngChunks.h"
#include "graphics/files/TiffDirectory.h"

#include <QByteArray>

#include <exiv2/exiv2.hpp>

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
    Exiv2::XmpData xmp;
    QByteArray profile;

    bool isEmpty() const { return exif.empty() && iptc.empty() && xmp.empty() && profile.isEmpty(); }
};

namespace
{

// The library tells standard error all that it finds odd.
void keepQuiet(int /*level*/, const char * /*message*/) {}

void initializeMetadataLibrary()
{
    static const bool initialized = [] {
        Exiv2::LogMsg::setHandler(keepQuiet);
        return Exiv2::XmpParser::initialize();
    }();
    if (!initialized) {
        throw std::runtime_error("XMP cannot be had");
    }
}

const Exiv2::byte *exivBytes(const QByteArray &bytes)
{
    return reinterpret_cast<const Exiv2::byte *>(bytes.constData());
}

Exiv2::Image::AutoPtr imageOn(Exiv2::BasicIo::AutoPtr io, PictureFormat format, bool create = false)
{
    switch (format) {
    case PictureFormat::Jpeg:
        return Exiv2::Image::AutoPtr(new Exiv2::JpegImage(io, create));
    case PictureFormat::Png:
        return Exiv2::Image::AutoPtr(new Exiv2::PngImage(io, create));
    case PictureFormat::Tiff:
        return Exiv2::Image::AutoPtr(new Exiv2::TiffImage(io, create));
    }
    throw std::invalid_argument("No such format");
}

/// A small file in memory, which is not copied and has to live as long.
Exiv2::Image::AutoPtr imageIn(const QByteArray &file, PictureFormat format)
{
    return imageOn(Exiv2::BasicIo::AutoPtr(new Exiv2::MemIo(exivBytes(file), static_cast<long>(file.size()))), format);
}

/// The file itself; Exiv2 reads no more of a JPEG file than its metadata, and not all at once.
Exiv2::Image::AutoPtr imageIn(const OpenFile &file, PictureFormat format)
{
    return imageOn(Exiv2::BasicIo::AutoPtr(new Exiv2::FileIo(nameOfOpenFile(file.descriptor()))), format);
}

template <typename Data, typename Predicate>
void eraseIf(Data &data, Predicate predicate)
{
    for (auto datum = data.begin(); datum != data.end();) {
        datum = predicate(*datum) ? data.erase(datum) : std::next(datum);
    }
}

bool isOneOf(const std::string &text, std::initializer_list<const char *> others)
{
    return std::any_of(others.begin(), others.end(), [&](const char *other) { return text == other; });
}

bool holds(const std::string &text, const char *part)
{
    return text.find(part) != std::string::npos;
}

/// Whether it is about other pictures than the one, smaller ones mostly: groups besides these are of makers.
bool isOfOtherPictures(const Exiv2::Exifdatum &datum)
{
    const std::string group = datum.groupName();
    return group == "Thumbnail" || group == "MpfInfo" || (group.starts_with("Image") && group != "Image") ||
           group.starts_with("SubImage") || holds(group, "Preview") || holds(datum.tagName(), "Thumbnail") ||
           holds(datum.tagName(), "PreviewImage");
}

bool isOfFile(const Exiv2::Exifdatum &datum)
{
    return datum.groupName() == "Image" &&
           (describesPixels(datum.tag()) || isOneOf(datum.tagName(), {"XMLPacket", "IPTCNAA", "InterColorProfile"}));
}

bool isOfFile(const Exiv2::Xmpdatum &datum)
{
    const std::string key = datum.key();
    return key.starts_with("Xmp.xmp.Thumbnails") ||
           isOneOf(key, {"Xmp.tiff.BitsPerSample", "Xmp.tiff.Compression", "Xmp.tiff.PhotometricInterpretation",
                         "Xmp.tiff.SamplesPerPixel", "Xmp.tiff.PlanarConfiguration", "Xmp.tiff.YCbCrSubSampling",
                         "Xmp.tiff.YCbCrPositioning", "Xmp.photoshop.ColorMode"});
}

/// Takes the orientation out.
int takeOrientation(Exiv2::ExifData &exif)
{
    const auto found = exif.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
    if (found == exif.end()) {
        return 1;
    }
    const long orientation = found->count() == 1 ? found->toLong() : 1;
    eraseIf(exif, [](const Exiv2::Exifdatum &datum) { return datum.key() == "Exif.Image.Orientation"; });
    return orientation >= 1 && orientation <= 8 ? static_cast<int>(orientation) : 1;
}

/// Whether a colour profile is one for red, green and blue, and not for a device pair.
bool fitsColours(const QByteArray &profile)
{
    constexpr qsizetype headSize = 128;
    return profile.size() >= headSize && profile.mid(36, 4) == "acsp" && profile.mid(16, 4) == "RGB " &&
           profile.mid(12, 4) != "link";
}

QByteArray profileOf(Exiv2::Image &image)
{
    const Exiv2::DataBuf *profile = image.iccProfile();
    QByteArray bytes(reinterpret_cast<const char *>(profile->pData_), profile->size_);
    return fitsColours(bytes) ? bytes : QByteArray();
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

/// Whether a text of XMP fits into the one segment of a JPEG file that it may take.
bool fitsSegment(const Exiv2::XmpData &xmp)
{
    constexpr std::size_t most = 65'000;
    std::string text;
    return Exiv2::XmpParser::encode(text, xmp) == 0 && text.size() <= most;
}

/// `file` is what emptyPicture() returns, and has to live as long.
Exiv2::Image::AutoPtr emptyImage(const QByteArray &file, PictureFormat format)
{
    Exiv2::Image::AutoPtr image = format == PictureFormat::Tiff
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

QByteArray exifChunk(const Exiv2::ExifData &exif)
{
    Exiv2::Blob blob;
    Exiv2::ExifParser::encode(blob, Exiv2::littleEndian, exif);
    return pngChunk("eXIf", {blob.data(), static_cast<qsizetype>(blob.size())});
}

QByteArray profileChunk(const QByteArray &profile)
{
    constexpr int lengthSize = 4; // which Qt puts before a compressed stream
    return pngChunk("iCCP", QByteArray("ICC profile\0\0", 13) + qCompress(profile).mid(lengthSize));
}

} // namespace

Metadata::Metadata(const OpenFile &file, PictureFormat format)
{
    try {
        initializeMetadataLibrary();
        MetadataBlocks blocks;
        Exiv2::Image::AutoPtr image;
        if (format == PictureFormat::Jpeg) {
            image = imageIn(file, format);
        } else {
            blocks = extractMetadata(file, format);
            m_complete = blocks.complete;
            if (blocks.file.isEmpty()) {
                return;
            }
            image = imageIn(blocks.file, format);
        }
        image->readMetadata();
        m_complete = m_complete && (image->xmpPacket().empty() || !image->xmpData().empty());
        auto contents = std::make_shared<Contents>();
        contents->exif = image->exifData();
        contents->iptc = image->iptcData();
        contents->xmp = image->xmpData();
        contents->profile = profileOf(*image);
        m_orientation = takeOrientation(contents->exif);
        eraseIf(contents->exif, [](const auto &datum) { return isOfFile(datum) || isOfOtherPictures(datum); });
        eraseIf(contents->xmp, [](const auto &datum) { return isOfFile(datum); });
        if (!contents->isEmpty()) {
            m_contents = std::move(contents);
        }
    } catch (const std::exception &) {
        m_complete = false;
    }
}

// The library would put Exif into a text, where few look for it, and a profile into a chunk without a name, which many
// refuse.
QByteArray Metadata::pngOf(const Contents &contents)
{
    const QByteArray empty = emptyPicture(PictureFormat::Png);
    const Exiv2::Image::AutoPtr image = emptyImage(empty, PictureFormat::Png);
    image->setIptcData(contents.iptc);
    image->setXmpData(contents.xmp);
    const QByteArray end = pngChunk("IEND", {});
    QByteArray file = writtenBy(*image).chopped(end.size());
    file += contents.exif.empty() ? QByteArray() : exifChunk(contents.exif);
    file += contents.profile.isEmpty() ? QByteArray() : profileChunk(contents.profile);
    return file + end;
}

QByteArray Metadata::fileOf(const Contents &contents, PictureFormat format)
{
    if (format == PictureFormat::Png) {
        return pngOf(contents);
    }
    const QByteArray empty = emptyPicture(format);
    const Exiv2::Image::AutoPtr image = emptyImage(empty, format);
    image->setExifData(contents.exif);
    image->setIptcData(contents.iptc);
    image->setXmpData(contents.xmp);
    if (!contents.profile.isEmpty()) {
        Exiv2::DataBuf profile(exivBytes(contents.profile), static_cast<long>(contents.profile.size()));
        image->setIccProfile(profile, false);
    }
    return writtenBy(*image);
}

bool Metadata::writeInto(const OpenFile &file, PictureFormat format, int width, int height) const
{
    if (!m_contents) {
        return true;
    }
    QByteArray metadata;
    bool complete = true;
    try {
        Contents contents = *m_contents;
        setSize(contents.exif, width, height);
        setSize(contents.xmp, width, height);
        if (format == PictureFormat::Jpeg && !fitsSegment(contents.xmp)) {
            contents.xmp.clear();
            complete = false;
        }
        metadata = fileOf(contents, format);
    } catch (const std::exception &) {
        return false;
    }
    return insertMetadata(file, format, metadata) && complete;
}

} // namespace grisal::graphics
