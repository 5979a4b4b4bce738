// SPDX-License-Identifier: MIT
#include "graphics/files/PngTexts.h"

#include <zlib.h>

#include <algorithm>

namespace grisal::graphics
{

namespace
{

/// Of a chunk as stored and of one text when it is expanded; GraphicsMagick does not expand texts beyond this size.
constexpr qsizetype maxTextSize = 8'000'000;
/// Of all texts when they are expanded.
constexpr qsizetype maxTextsSize = 4 * maxTextSize;

/// The most that deflate expands to, with some reserve.
constexpr qsizetype maxExpansion = 1'100;

constexpr std::uint64_t chunkHeadSize = 8;

struct StoredText {
    QByteArray bytes;
    bool isCompressed = false;
};

/// What follows the next zero byte.
QByteArray behindZero(const QByteArray &bytes)
{
    const qsizetype zero = bytes.indexOf('\0');
    return zero < 0 ? QByteArray() : bytes.mid(zero + 1);
}

// The keyword; in iTXt the flag and the method of compression, the language and the translated keyword; in zTXt and
// iCCP the method of compression.
StoredText storedText(const QByteArray &kind, const QByteArray &contents)
{
    const QByteArray value = behindZero(contents);
    if (kind == "tEXt") {
        return {value, false};
    }
    if (kind == "iTXt") {
        return {behindZero(behindZero(value.mid(2))), value.startsWith('\1')};
    }
    return {value.mid(1), true};
}

/// Expands a text into a buffer. Returns whether it fits; the buffer contains its start otherwise.
bool expand(const QByteArray &compressed, QByteArray &buffer)
{
    auto size = static_cast<uLongf>(buffer.size());
    const int status =
        uncompress(reinterpret_cast<Bytef *>(buffer.data()), &size,
                   reinterpret_cast<const Bytef *>(compressed.constData()), static_cast<uLong>(compressed.size()));
    buffer.truncate(static_cast<qsizetype>(size));
    return status == Z_OK;
}

qsizetype expandedSize(const StoredText &text)
{
    if (!text.isCompressed) {
        return text.bytes.size();
    }
    QByteArray buffer(std::min(maxTextSize, text.bytes.size() * maxExpansion), Qt::Uninitialized);
    expand(text.bytes, buffer);
    return buffer.size();
}

} // namespace

bool isPngText(const PngChunk &chunk)
{
    return chunk.kind == "tEXt" || chunk.kind == "zTXt" || chunk.kind == "iTXt" || chunk.kind == "iCCP";
}

QByteArray pngText(const QByteArray &kind, const QByteArray &contents, qsizetype most)
{
    const StoredText text = storedText(kind, contents);
    if (!text.isCompressed) {
        return text.bytes;
    }
    QByteArray buffer(most, Qt::Uninitialized);
    return expand(text.bytes, buffer) ? buffer : QByteArray();
}

// Whatever follows the closing chunk, or bytes that are no chunk, is not read by GraphicsMagick.
bool arePngTextsWithinLimits(const OpenFile &file)
{
    qsizetype size = 0;
    return visitPngChunks(file, [&](const PngChunk &chunk) {
        if (!isPngText(chunk)) {
            return true;
        }
        if (chunk.length > maxTextSize) {
            return false;
        }
        size += expandedSize(storedText(chunk.kind, file.bytesAt(chunk.offset + chunkHeadSize, chunk.length)));
        return size <= maxTextsSize;
    });
}

} // namespace grisal::graphics
