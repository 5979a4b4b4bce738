// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/OpenFile.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QtEndian>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace grisal::graphics
{

/// Tags of TIFF directories that are handled here.
enum class TiffTag : std::uint16_t {
    ImageWidth = 256,
    ImageLength = 257,
    BitsPerSample = 258,
    Compression = 259,
    Photometric = 262,
    DocumentName = 269,
    StripOffsets = 273,
    Orientation = 274,
    SamplesPerPixel = 277,
    Xmp = 700,
    Iptc = 33723,
    ExifDirectory = 34665,
    Profile = 34675,
    GpsDirectory = 34853,
    MakerNote = 37500,
    InteroperabilityDirectory = 40965,
};

/// Types of values that are handled here; Long8 occurs in BigTIFF files only.
enum class TiffType : std::uint16_t { Byte = 1, Short = 3, Long = 4, Long8 = 16 };

/// Whether a tag of the first directory describes the encoding or the location of the pixels in the file itself, and
/// therefore is no metadata.
bool describesPixels(std::uint16_t tag);

/// Decodes and encodes numbers in the byte order of a TIFF file, which its first two letters define.
class TiffByteOrder
{
public:
    explicit TiffByteOrder(bool bigEndian) : m_bigEndian(bigEndian) {}

    template <typename Number>
    Number get(const char *bytes) const
    {
        return m_bigEndian ? qFromBigEndian<Number>(bytes) : qFromLittleEndian<Number>(bytes);
    }
    template <typename Number>
    void put(Number number, char *bytes) const
    {
        m_bigEndian ? qToBigEndian(number, bytes) : qToLittleEndian(number, bytes);
    }
    template <typename Number>
    QByteArray bytesOf(Number number) const
    {
        QByteArray bytes(sizeof(Number), '\0');
        put(number, bytes.data());
        return bytes;
    }

private:
    bool m_bigEndian;
};

/// An entry of a directory: the tag, the type and the number of its values, and the values themselves or, where they
/// take more than four bytes, their offset in the file.
struct TiffEntry {
    std::uint16_t tag = 0;
    std::uint16_t type = 0;
    std::uint32_t count = 0;
    QByteArray content;       ///< four bytes
    std::uint32_t offset = 0; ///< of the entry, from the start of the directory

    bool has(TiffTag wanted) const { return tag == static_cast<std::uint16_t>(wanted); }
    bool has(TiffType wanted) const { return type == static_cast<std::uint16_t>(wanted); }

    /// The size of the values in bytes; 0 for an unknown type.
    std::uint64_t size() const;
    bool isInline() const { return size() <= 4; }
};

constexpr int tiffHeaderSize = 8;

/// The byte order of a file that starts like this; none if it is no TIFF file, or a BigTIFF file.
std::optional<TiffByteOrder> tiffByteOrderOf(QByteArrayView start);

/// The header of a TIFF file.
struct TiffFileHeader {
    TiffByteOrder order;
    std::uint32_t directoryOffset; ///< of the first directory
};

/// None if the bytes are not the start of a TIFF file, or are cut short.
std::optional<TiffFileHeader> decodeTiffFileHeader(QByteArrayView start);

/// Directories of more entries are invalid.
constexpr int maxTiffEntries = 256;
constexpr int tiffEntrySize = 12;
constexpr int maxTiffDirectorySize = 2 + maxTiffEntries * tiffEntrySize;

/// The entries of the directory at the start of `bytes`, without those of unknown types; those that are complete where
/// `bytes` are cut short, none where the directory is invalid.
std::vector<TiffEntry> decodeDirectory(const QByteArray &bytes, TiffByteOrder order);

/// The header and the first directory of a TIFF file.
struct TiffFirstDirectory {
    TiffFileHeader header;
    std::vector<TiffEntry> entries;
};

/// None if it is no TIFF file, or a BigTIFF file.
std::optional<TiffFirstDirectory> readFirstDirectory(const OpenFile &file);

QByteArray encodeEntry(const TiffEntry &entry, TiffByteOrder order);

/// A directory without a next one.
QByteArray encodeDirectory(const std::vector<TiffEntry> &directory, TiffByteOrder order);

} // namespace grisal::graphics
