// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/PngChunks.h"

#include <QByteArray>

namespace grisal::graphics
{

/// Whether a chunk is a text or a colour profile, which is stored like a compressed text.
bool isPngText(const PngChunk &chunk);

/// The text in the contents of such a chunk, or the profile. Empty if it is invalid or expands to more than `most`
/// bytes.
QByteArray pngText(const QByteArray &kind, const QByteArray &contents, qsizetype most);

/// Whether the texts and profiles of a file are checked and read in less than a second and with less than 100
/// megabytes: compressed ones expand about a thousandfold, GraphicsMagick reads up to a thousand of them, and it copies
/// them. They may expand to 32 megabytes in all; metadata that is read or written here has less than half of that.
bool arePngTextsWithinLimits(const OpenFile &file);

} // namespace grisal::graphics
