// SPDX-License-Identifier: MIT
#include "graphics/files/PngMetadata.h"

#include "graphics/files/PhotoshopBlocks.h"
#include "graphics/files/PngChunks.h"
#include "graphics/files/TiffMetadata.h"

#include <QByteArrayView>

#include <zlib.h>

namespace grisal::graphics
{

namespace
{

/// The signature and the first chunk, which contains the size of the image.
constexpr qsizetype pngStartSize = signatureLength + pngChunkFrameSize + 13;

/// Of a text that contains a block in hexadecimal digits.
constexpr qsizetype maxText = 2 * maxXmpSize + (1 << 20);
/// Of all chunks with metadata.
constexpr std::uint64_t maxChunks = 1 << 24;

constexpr QByteArrayView rawProfile{"Raw profile type "};
constexpr QByteArrayView xmpKeyword{"XML:com.adobe.xmp"};

/// Empty if the bytes are invalid or expand to more than `most`.
QByteArray inflated(const QByteArray &bytes, qsizetype most)
{
    QByteArray text(most, Qt::Uninitialized);
    auto size = static_cast<uLongf>(most);
    const int status = uncompress(reinterpret_cast<Bytef *>(text.data()), &size,
                                  reinterpret_cast<const Bytef *>(bytes.constData()), static_cast<uLong>(bytes.size()));
    return status == Z_OK ? text.first(static_cast<qsizetype>(size)) : QByteArray();
}

/// What follows the next zero byte.
QByteArray behindZero(const QByteArray &bytes)
{
    const qsizetype zero = bytes.indexOf('\0');
    return zero < 0 ? QByteArray() : bytes.mid(zero + 1);
}

/// The text of a chunk; empty if it is invalid or too long.
QByteArray textIn(const PngChunk &chunk, const QByteArray &contents)
{
    const QByteArray value = behindZero(contents);
    if (chunk.kind == "tEXt") {
        return value;
    }
    if (chunk.kind == "zTXt") {
        return inflated(value.mid(1), maxText);
    }
    // Flag and method of compression, language, translated keyword.
    const QByteArray text = behindZero(behindZero(value.mid(2)));
    return value.startsWith('\1') ? inflated(text, maxText) : text;
}

/// Decodes a line with a name, a line with the number of bytes, and the bytes in hexadecimal digits.
QByteArray decodedProfile(const QByteArray &text)
{
    const QByteArray trimmed = text.trimmed();
    const qsizetype sizeAt = trimmed.indexOf('\n') + 1;
    const qsizetype digitsAt = trimmed.indexOf('\n', sizeAt) + 1;
    const QByteArray bytes = QByteArray::fromHex(trimmed.mid(digitsAt));
    const int size = trimmed.mid(sizeAt, digitsAt - sizeAt).trimmed().toInt();
    return size > 0 && size <= bytes.size() ? bytes.first(size) : QByteArray();
}

/// Collects the metadata of chunks. Of several blocks of a kind the first one counts.
class PngBlocks
{
public:
    explicit PngBlocks(const OpenFile &file) : m_file(file) {}

    void add(const PngChunk &chunk)
    {
        if (chunk.kind == "eXIf" && m_blocks.exif.isEmpty()) {
            addExif(contentsOf(chunk, maxExifSize));
        } else if (chunk.kind == "iCCP" && m_blocks.profile.isEmpty()) {
            setBlock(m_blocks.profile, inflated(behindZero(contentsOf(chunk, maxProfileSize)).mid(1), maxProfileSize));
        } else if (chunk.kind == "tEXt" || chunk.kind == "zTXt" || chunk.kind == "iTXt") {
            addText(chunk);
        }
    }

    const MetadataBlocks &result() const { return m_blocks; }

private:
    QByteArray contentsOf(const PngChunk &chunk, qsizetype most)
    {
        constexpr std::uint64_t headSize = 8;
        if (chunk.length > most || m_read + chunk.length > maxChunks) {
            m_blocks.complete = false;
            return {};
        }
        m_read += chunk.length;
        return m_file.bytesAt(chunk.offset + headSize, chunk.length);
    }

    /// An empty block is one that could not be read.
    void setBlock(QByteArray &block, const QByteArray &contents)
    {
        block = contents;
        m_blocks.complete = m_blocks.complete && !contents.isEmpty();
    }

    void addExif(const QByteArray &contents)
    {
        const MetadataBlocks inner = extractExif(contents);
        m_blocks.exif = inner.exif;
        m_blocks.complete = m_blocks.complete && inner.complete;
    }

    void addText(const PngChunk &chunk)
    {
        const bool isXmp = chunk.start.startsWith(xmpKeyword);
        if (!isXmp && !chunk.start.startsWith(rawProfile)) {
            return;
        }
        // "exif", "APP1", "iptc" or "xmp"; the start of the chunk ends within it.
        const QByteArray type = isXmp ? QByteArray("xmp") : chunk.start.mid(rawProfile.size());
        if (type == "xmp" && m_blocks.xmp.isEmpty()) {
            const QByteArray text = textIn(chunk, contentsOf(chunk, maxText));
            setBlock(m_blocks.xmp, isXmp ? text : decodedProfile(text));
        } else if (type == "ipt" && m_blocks.iptc.isEmpty()) {
            const QByteArray profile = decodedProfile(textIn(chunk, contentsOf(chunk, maxText)));
            const QByteArray iptc = iptcInPhotoshopBlocks(profile);
            setBlock(m_blocks.iptc, iptc.isEmpty() ? profile : iptc);
        } else if ((type == "exi" || type == "APP") && m_blocks.exif.isEmpty()) {
            const QByteArray profile = decodedProfile(textIn(chunk, contentsOf(chunk, maxText)));
            constexpr QByteArrayView start{"Exif\0\0", 6};
            const qsizetype at = profile.indexOf(start);
            if (at >= 0) {
                addExif(profile.mid(at + start.size()));
            }
        }
    }

    const OpenFile &m_file;
    MetadataBlocks m_blocks;
    std::uint64_t m_read = 0;
};

} // namespace

MetadataBlocks extractPngMetadata(const OpenFile &file)
{
    PngBlocks blocks(file);
    visitPngChunks(file, [&](const PngChunk &chunk) {
        blocks.add(chunk);
        return true;
    });
    return blocks.result();
}

bool insertPngMetadata(const OpenFile &file, const QByteArray &metadata)
{
    const qsizetype frame = pngStartSize + pngChunkFrameSize;
    return metadata.size() >= frame && file.size() >= pngStartSize &&
           file.insert(pngStartSize, QByteArrayView(metadata).sliced(pngStartSize, metadata.size() - frame));
}

} // namespace grisal::graphics
