// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace grisal
{

namespace graphics
{
class ImageFile;
}

/// The most memory that opening a picture, showing it, rendering and saving it take, in bytes: while it is read, that
/// of ImageFile::memoryToRead(); while it is saved, the samples of the picture and of its result and those of
/// GraphicsMagick; the preview and the tiles in addition, because a software renderer for OpenGL keeps them in memory.
/// The picture that is open before is no part of it: its memory is in use already.
std::uint64_t memoryForPicture(const graphics::ImageFile &file);

} // namespace grisal
