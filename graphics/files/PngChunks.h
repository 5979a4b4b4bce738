// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/OpenFile.h"

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <functional>

namespace grisal::graphics
{

/// Bytes of a PNG chunk besides its contents: their length, the four letters of its kind, the checksum.
constexpr int pngChunkFrameSize = 12;

/// A chunk of a PNG file.
struct PngChunk {
    std::uint64_t offset = 0; ///< from the start of the file
    std::uint32_t length = 0; ///< of the contents, as declared in the file
    QByteArray kind;          ///< four letters
    QByteArray start;         ///< the first bytes of the contents, enough for the keywords of metadata

    std::uint64_t size() const { return pngChunkFrameSize + std::uint64_t{length}; }
};

/// Calls `visit` with each chunk of a PNG file before the closing one, or before bytes that are no chunk, until it
/// returns false. Returns whether all of them were visited; a file of more than 500,000 chunks never is.
bool visitPngChunks(const OpenFile &file, const std::function<bool(const PngChunk &)> &visit);

/// A chunk with its checksum. `kind` has four letters.
QByteArray pngChunk(QByteArrayView kind, QByteArrayView contents);

} // namespace grisal::graphics
