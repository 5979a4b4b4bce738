// SPDX-License-Identifier: MIT
#include "graphics/files/PngMetadata.h"

#include "graphics/files/PhotoshopBlocks.h"
#include "graphics/files/PngTexts.h"
#include "graphics/files/TiffMetadata.h"

#include <QByteArrayView>

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
            setBlock(m_blocks.profile, textOf(chunk, maxProfileSize));
        } else if (isPngText(chunk) && chunk.kind != "iCCP") {
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

    QByteArray textOf(const PngChunk &chunk, qsizetype most)
    {
        // Incompressible bytes take somewhat more when they are compressed.
        return pngText(chunk.kind, contentsOf(chunk, most + most / 64), most);
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
            const QByteArray text = textOf(chunk, maxText);
            setBlock(m_blocks.xmp, isXmp ? text : decodedProfile(text));
        } else if (type == "ipt" && m_blocks.iptc.isEmpty()) {
            const QByteArray profile = decodedProfile(textOf(chunk, maxText));
            const QByteArray iptc = iptcInPhotoshopBlocks(profile);
            setBlock(m_blocks.iptc, iptc.isEmpty() ? profile : iptc);
        } else if ((type == "exi" || type == "APP") && m_blocks.exif.isEmpty()) {
            const QByteArray profile = decodedProfile(textOf(chunk, maxText));
            const qsizetype at = profile.indexOf(exifSignature);
            if (at >= 0) {
                addExif(profile.mid(at + exifSignature.size()));
            } else {
                m_blocks.complete = false;
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
