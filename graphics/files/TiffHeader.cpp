// SPDX-License-Identifier: MIT
#include "graphics/files/TiffHeader.h"

#include "graphics/files/TiffDirectory.h"

#include <algorithm>
#include <limits>

namespace grisal::graphics
{

namespace
{

constexpr std::uint64_t paletteImage = 3;
constexpr std::uint64_t oldJpegCompression = 6;
constexpr std::uint64_t jpegCompression = 7;

/// The bytes of the first value of an entry: `value` contains the values, or the offset of longer ones in the file.
struct HeaderEntry {
    std::uint16_t tag = 0;
    TiffType type = TiffType::Byte;
    bool isInline = true;
    QByteArray value;
};

/// An entry of a BigTIFF directory, 20 bytes: tag, type, number of values, values.
HeaderEntry decodeBigEntry(const char *bytes, TiffByteOrder order)
{
    constexpr std::uint64_t inlineSize = 8;
    const auto type = static_cast<TiffType>(order.get<std::uint16_t>(bytes + 2));
    const auto count = order.get<std::uint64_t>(bytes + 4);
    const std::uint64_t valueSize = type == TiffType::Byte    ? 1
                                    : type == TiffType::Short ? 2
                                    : type == TiffType::Long  ? 4
                                                              : inlineSize;
    return {order.get<std::uint16_t>(bytes), type, count <= inlineSize / valueSize, QByteArray(bytes + 12, inlineSize)};
}

/// Header of a BigTIFF file: byte order, 43, the size of offsets, zero, the offset of the first directory.
std::vector<HeaderEntry> bigDirectory(const OpenFile &file, TiffByteOrder order)
{
    constexpr qsizetype headerSize = 16;
    constexpr qsizetype countSize = 8;
    constexpr qsizetype entrySize = 20;
    const QByteArray header = file.bytesAt(0, headerSize);
    if (header.size() < headerSize) {
        return {};
    }
    const auto start = order.get<std::uint64_t>(header.constData() + 8);
    const QByteArray bytes = file.bytesAt(start, countSize + maxTiffEntries * entrySize);
    const std::uint64_t count = bytes.size() < countSize ? 0 : order.get<std::uint64_t>(bytes.constData());
    std::vector<HeaderEntry> entries;
    for (qsizetype at = countSize; at + entrySize <= bytes.size() && entries.size() < count; at += entrySize) {
        entries.push_back(decodeBigEntry(bytes.constData() + at, order));
    }
    return entries;
}

std::vector<HeaderEntry> headerEntries(const std::vector<TiffEntry> &directory)
{
    std::vector<HeaderEntry> entries;
    entries.reserve(directory.size());
    for (const TiffEntry &entry : directory) {
        entries.push_back({entry.tag, static_cast<TiffType>(entry.type), entry.isInline(), entry.content});
    }
    return entries;
}

/// Reads numbers from the first directory of a file.
class TiffValues
{
public:
    explicit TiffValues(const OpenFile &file) : m_file(file)
    {
        if (const std::optional<TiffFirstDirectory> directory = readFirstDirectory(file)) {
            m_order = directory->header.order;
            m_entries = headerEntries(directory->entries);
        } else {
            m_order = TiffByteOrder(file.bytesAt(0, 1) == "M");
            m_entries = bigDirectory(file, m_order);
        }
    }

    /// The first value of a tag; none where the tag is missing or is no unsigned integer.
    std::optional<std::uint64_t> first(TiffTag tag) const
    {
        for (const HeaderEntry &entry : m_entries) {
            if (entry.tag == static_cast<std::uint16_t>(tag)) {
                return decode(entry.type, entry.isInline ? entry.value : valueAt(entry.value));
            }
        }
        return std::nullopt;
    }

private:
    QByteArray valueAt(const QByteArray &offset) const
    {
        const bool isLong = offset.size() == sizeof(std::uint32_t);
        return m_file.bytesAt(isLong ? m_order.get<std::uint32_t>(offset.constData())
                                     : m_order.get<std::uint64_t>(offset.constData()),
                              sizeof(std::uint64_t));
    }

    std::optional<std::uint64_t> decode(TiffType type, QByteArray bytes) const
    {
        bytes.resize(sizeof(std::uint64_t), '\0');
        switch (type) {
        case TiffType::Byte:
            return static_cast<std::uint8_t>(bytes[0]);
        case TiffType::Short:
            return m_order.get<std::uint16_t>(bytes.constData());
        case TiffType::Long:
            return m_order.get<std::uint32_t>(bytes.constData());
        case TiffType::Long8:
            return m_order.get<std::uint64_t>(bytes.constData());
        default:
            return std::nullopt;
        }
    }

    const OpenFile &m_file;
    TiffByteOrder m_order{false};
    std::vector<HeaderEntry> m_entries;
};

std::uint32_t bytesPerPixel(int bitsPerSample, int samplesPerPixel)
{
    constexpr std::uint64_t bitsPerByte = 8;
    const std::uint64_t bits = static_cast<std::uint64_t>(bitsPerSample) * static_cast<std::uint64_t>(samplesPerPixel);
    return static_cast<std::uint32_t>((bits + bitsPerByte - 1) / bitsPerByte);
}

constexpr std::uint64_t maxShort = std::numeric_limits<std::uint16_t>::max();

int shortOf(std::optional<std::uint64_t> value)
{
    return static_cast<int>(std::min(value.value_or(1), maxShort));
}

} // namespace

std::optional<ImageHeader> readTiffHeader(const OpenFile &file)
{
    constexpr std::uint64_t maxSide = std::numeric_limits<std::uint32_t>::max();
    const TiffValues values(file);
    const std::optional<std::uint64_t> width = values.first(TiffTag::ImageWidth);
    const std::optional<std::uint64_t> height = values.first(TiffTag::ImageLength);
    if (!width || !height) {
        return std::nullopt;
    }
    const auto compression = values.first(TiffTag::Compression).value_or(1);
    ImageHeader header;
    header.width = static_cast<std::uint32_t>(std::min(*width, maxSide));
    header.height = static_cast<std::uint32_t>(std::min(*height, maxSide));
    header.bitsPerSample = shortOf(values.first(TiffTag::BitsPerSample));
    header.samplesPerPixel = shortOf(values.first(TiffTag::SamplesPerPixel));
    header.isJpeg = compression == oldJpegCompression || compression == jpegCompression;
    const int decodedBits = header.bitsPerSample * (header.isJpeg ? 2 : 1);
    header.decoderBytesPerPixel = bytesPerPixel(decodedBits, header.samplesPerPixel);
    if (values.first(TiffTag::Photometric) == paletteImage) {
        header.bitsPerSample = 16;
    }
    return header;
}

} // namespace grisal::graphics
