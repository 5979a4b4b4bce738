// SPDX-License-Identifier: MIT
#include "graphics/files/PngChunks.h"

#include "graphics/files/ImageFormat.h"

#include <QtEndian>

#include <zlib.h>

#include <algorithm>

namespace grisal::graphics
{

namespace
{

constexpr int headSize = 8;
constexpr int startSize = 20;
constexpr int maxChunks = 500'000;

bool isKind(QByteArrayView kind)
{
    return kind.size() == 4 && std::all_of(kind.begin(), kind.end(),
                                           [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); });
}

QByteArray bigEndian(std::uint32_t number)
{
    QByteArray bytes(sizeof number, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

} // namespace

bool visitPngChunks(const OpenFile &file, const std::function<bool(const PngChunk &)> &visit)
{
    std::uint64_t offset = signatureLength;
    for (int i = 0; i < maxChunks; ++i) {
        const QByteArray head = file.bytesAt(offset, headSize + startSize);
        const QByteArray kind = head.mid(4, 4);
        if (!isKind(kind) || kind == "IEND") {
            return true;
        }
        const PngChunk chunk{offset, qFromBigEndian<std::uint32_t>(head.constData()), kind, head.mid(headSize)};
        if (!visit(chunk)) {
            return false;
        }
        offset += chunk.size();
    }
    return false;
}

QByteArray pngChunk(QByteArrayView kind, QByteArrayView contents)
{
    QByteArray checked = kind.toByteArray();
    checked += contents;
    const auto sum =
        crc32_z(0, reinterpret_cast<const Bytef *>(checked.constData()), static_cast<z_size_t>(checked.size()));
    return bigEndian(static_cast<std::uint32_t>(contents.size())) + checked +
           bigEndian(static_cast<std::uint32_t>(sum));
}

} // namespace grisal::graphics
