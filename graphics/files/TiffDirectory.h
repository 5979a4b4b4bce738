// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QtEndian>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace grisal::graphics
{

/// What the tags of TIFF directories are called that somebody has to know here.
enum class TiffTag : std::uint16_t {
    Orientation = 274,
    StripOffsets = 273,
    ExifDirectory = 34665,
    GpsDirectory = 34853,
    MakerNote = 37500,
    InteroperabilityDirectory = 40965,
};

/// Whether a tag of a picture's own directory tells how its pixels are kept, or where, in the very file: of no use in
/// another one.
bool describesPixels(std::uint16_t tag);

/// The bytes of numbers in a TIFF file, whose first two letters tell their order.
class TiffOrder
{
public:
    explicit TiffOrder(bool bigEndian) : m_bigEndian(bigEndian) {}

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

/// A line of a directory: the tag, the type of its values, how many there are, and then the values, or their place in
/// the file where four bytes do not hold them.
struct TiffEntry {
    std::uint16_t tag = 0;
    std::uint16_t type = 0;
    std::uint32_t count = 0;
    QByteArray content;     ///< four bytes
    std::uint32_t line = 0; ///< where it was found, from the start of the directory

    /// The size of the values in bytes; 0 where the type is none that is known.
    std::uint64_t size() const;
    bool isInPlace() const { return size() <= 4; }
};

constexpr int tiffHeaderSize = 8;

/// The order of a TIFF file that starts like this; none where it is no TIFF file, or one of the big kind.
std::optional<TiffOrder> tiffOrderOf(QByteArrayView start);

/// Directories of more entries are absurd.
constexpr int mostTiffEntries = 256;
constexpr int tiffEntrySize = 12;
constexpr int largestTiffDirectory = 2 + mostTiffEntries * tiffEntrySize;

/// The entries of the directory that some bytes of a file start with, without those of unknown types; empty where it is
/// absurd.
std::vector<TiffEntry> tiffDirectory(const QByteArray &bytes, TiffOrder order);

QByteArray tiffLine(const TiffEntry &entry, TiffOrder order);

/// The bytes of a directory that no other one follows.
QByteArray tiffBytes(const std::vector<TiffEntry> &directory, TiffOrder order);

} // namespace grisal::graphics
