// SPDX-License-Identifier: MIT
#include "graphics/files/PhotoshopBlocks.h"

#include <exiv2/exiv2.hpp>

namespace grisal::graphics
{

namespace
{

const Exiv2::byte *exivBytes(const QByteArray &bytes)
{
    return reinterpret_cast<const Exiv2::byte *>(bytes.constData());
}

} // namespace

QByteArray iptcInPhotoshopBlocks(const QByteArray &blocks)
{
    QByteArray iptc;
    const Exiv2::byte *block = nullptr;
    std::uint32_t headSize = 0;
    std::uint32_t size = 0;
    qsizetype at = 0;
    while (at < blocks.size() &&
           Exiv2::Photoshop::locateIptcIrb(exivBytes(blocks) + at, static_cast<long>(blocks.size() - at), &block,
                                           &headSize, &size) == 0) {
        const qsizetype start = block - exivBytes(blocks) + qsizetype{headSize};
        iptc += blocks.mid(start, size);
        at = start + size + size % 2;
    }
    return iptc;
}

bool arePhotoshopBlocksComplete(const QByteArray &blocks)
{
    return Exiv2::Photoshop::valid(exivBytes(blocks), static_cast<long>(blocks.size()));
}

} // namespace grisal::graphics
