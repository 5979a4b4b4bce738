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

/// Whether GraphicsMagick reads the texts and profiles of a file in about a second and with less than 300 megabytes:
/// compressed ones expand about a thousandfold, it reads up to a thousand of them, and it copies them. No metadata that
/// is read or written here comes near the limits.
bool arePngTextsWithinLimits(const OpenFile &file);

} // namespace grisal::graphics
