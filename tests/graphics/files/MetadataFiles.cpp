// SPDX-License-Identifier: MIT
#include "tests/graphics/files/MetadataFiles.h"

#include "graphics/files/PngChunks.h"
#include "graphics/files/TiffDirectory.h"
#include "tests/graphics/files/PictureFiles.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <vector>

namespace grisal::test
{

namespace
{

Exiv2::Image::AutoPtr opened(const QString &path)
{
    Exiv2::XmpParser::initialize();
    return Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
}

const Exiv2::byte *exivBytes(const QByteArray &bytes)
{
    return reinterpret_cast<const Exiv2::byte *>(bytes.constData());
}

template <typename Data, typename Key>
std::string textOf(const Data &data, const Key &key)
{
    const auto found = data.findKey(key);
    return found == data.end() ? std::string() : found->toString();
}

/// Adds an entry with a packet of XMP to a little-endian TIFF file, whose directory moves to the end.
void addTiffXmp(const QString &file, const QByteArray &packet)
{
    using namespace grisal::graphics;
    const TiffByteOrder order(false);
    QByteArray contents = contentsOf(file);
    std::vector<TiffEntry> entries = decodeDirectory(contents.mid(order.get<quint32>(contents.constData() + 4)), order);
    contents += QByteArray(contents.size() % 2, '\0');
    entries.push_back({static_cast<std::uint16_t>(TiffTag::Xmp), 1, static_cast<std::uint32_t>(packet.size()),
                       order.bytesOf(static_cast<std::uint32_t>(contents.size()))});
    std::sort(entries.begin(), entries.end(), [](const auto &a, const auto &b) { return a.tag < b.tag; });
    contents += packet + QByteArray(packet.size() % 2, '\0');
    order.put(static_cast<std::uint32_t>(contents.size()), contents.data() + 4);
    writeFile(file, contents + encodeDirectory(entries, order));
}

} // namespace

std::string Metadata::operator[](const char *key) const
{
    const std::string name(key);
    return name.starts_with("Exif.")   ? textOf(exif, Exiv2::ExifKey(name))
           : name.starts_with("Iptc.") ? textOf(iptc, Exiv2::IptcKey(name))
                                       : textOf(xmp, Exiv2::XmpKey(name));
}

Metadata metadataIn(const QString &path)
{
    const Exiv2::Image::AutoPtr image = opened(path);
    image->readMetadata();
    const Exiv2::DataBuf *profile = image->iccProfile();
    return {image->exifData(), image->iptcData(), image->xmpData(),
            QByteArray(reinterpret_cast<const char *>(profile->pData_), profile->size_)};
}

void setMetadata(const QString &path, const Metadata &metadata)
{
    const Exiv2::Image::AutoPtr image = opened(path);
    image->readMetadata(); // in a TIFF file the metadata include the entries that describe the pixels
    for (const Exiv2::Exifdatum &datum : metadata.exif) {
        image->exifData()[datum.key()] = datum;
    }
    image->setIptcData(metadata.iptc);
    image->setXmpData(metadata.xmp);
    if (!metadata.profile.isEmpty()) {
        Exiv2::DataBuf profile(exivBytes(metadata.profile), static_cast<long>(metadata.profile.size()));
        image->setIccProfile(profile);
    }
    image->writeMetadata();
}

QByteArray profileFor(const char *colours, int size)
{
    QByteArray profile(size, '\0');
    qToBigEndian(static_cast<quint32>(size), profile.data());
    profile[8] = 2; // the version
    profile.replace(12, 4, "mntr").replace(16, 4, colours).replace(20, 4, "XYZ ").replace(36, 4, "acsp");
    profile.replace(68, 12, QByteArray::fromHex("0000f6d6000100000000d32d")); // daylight
    for (int i = 132; i < size; ++i) {                                        // after an empty list of tags
        profile[i] = static_cast<char>(i * 37 + i / 5);
    }
    return profile;
}

Metadata fullMetadata()
{
    Metadata all;
    all.exif["Exif.Image.Make"] = "Acme";
    all.exif["Exif.Image.Orientation"] = std::uint16_t{6};
    all.exif["Exif.Image.Artist"] = "Ansel";
    all.exif["Exif.Photo.ExposureTime"] = Exiv2::Rational(1, 60);
    all.exif["Exif.Photo.DateTimeOriginal"] = "2024:05:06 07:08:09";
    all.exif["Exif.Photo.PixelXDimension"] = std::uint32_t{4000};
    all.exif["Exif.Photo.PixelYDimension"] = std::uint32_t{3000};
    all.exif["Exif.Iop.RelatedImageWidth"] = std::uint32_t{4000};
    all.exif["Exif.Iop.RelatedImageLength"] = std::uint32_t{3000};
    all.exif["Exif.GPSInfo.GPSLatitudeRef"] = "N";
    all.exif["Exif.GPSInfo.GPSLatitude"] = "47/1 30/1 0/1";
    const QByteArray thumbnail = "\xff\xd8 a small picture \xff\xd9";
    Exiv2::ExifThumb(all.exif).setJpegThumbnail(exivBytes(thumbnail), static_cast<long>(thumbnail.size()));
    all.iptc["Iptc.Application2.Caption"] = "A valley";
    all.iptc["Iptc.Application2.City"] = "Chur";
    all.xmp["Xmp.dc.title"] = "lang=x-default Morning";
    all.xmp["Xmp.xmp.Rating"] = "4";
    all.xmp["Xmp.tiff.Orientation"] = "6";
    all.xmp["Xmp.tiff.ImageWidth"] = "4000";
    all.profile = profileFor("RGB ");
    return all;
}

void addSegment(const QString &path, char marker, const QByteArray &contents)
{
    QByteArray segment = QByteArray("\xff") + marker + QByteArray(2, '\0') + contents;
    qToBigEndian(static_cast<quint16>(contents.size() + 2), segment.data() + 2);
    QByteArray file = contentsOf(path);
    writeFile(path, file.insert(2, segment));
}

void addChunk(const QString &path, const char *kind, const QByteArray &contents)
{
    constexpr int behindFirst = 33;
    QByteArray file = contentsOf(path);
    writeFile(path, file.insert(behindFirst, graphics::pngChunk(kind, contents)));
}

void addXmp(const QString &path, const QByteArray &packet)
{
    if (path.endsWith("jpg")) {
        addSegment(path, '\xe1', QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + packet);
    } else if (path.endsWith("png")) {
        addChunk(path, "iTXt", QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22) + packet);
    } else {
        addTiffXmp(path, packet);
    }
}

QByteArray exifBlock(const Exiv2::ExifData &exif)
{
    Exiv2::Blob blob;
    Exiv2::ExifParser::encode(blob, Exiv2::bigEndian, exif);
    return {reinterpret_cast<const char *>(blob.data()), static_cast<qsizetype>(blob.size())};
}

} // namespace grisal::test
