// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/ImageHeader.h"

#include <cstdint>

namespace grisal::graphics
{

/// The most memory, in bytes, that GraphicsMagick takes for an image: ten bytes a pixel, while reading those of its
/// decoder in addition, and while rotating to normalised orientation a second copy. Copying the pixels into an Image is
/// included when reading, because it takes less than the second copy.
std::uint64_t memoryToRead(const ImageHeader &header);
std::uint64_t memoryToWrite(const ImageHeader &header);

/// Images that take no more than this are read from files of any size.
constexpr std::uint64_t maxUncheckedMemory = std::uint64_t{1} << 30;

/// Whether a file may contain the image that it declares. A file made to exhaust the memory is small: a deflated byte
/// can stand for 8,256 pixels of one bit, and a JPEG that ends early is filled up. Genuine pictures have more bytes:
///
/// - An image that takes up to maxUncheckedMemory to read, some 50 megapixels, is not checked.
/// - Up to 100 megapixels need a byte for 512 pixels, one bit for a block of a JPEG. Files of a single colour pass.
/// - More pixels need a byte for 100 pixels as baseline JPEG, where an even grey takes one for 85, and a byte for 40
///   pixels otherwise. Photographs, scans and drawings in colours have more; large sheets in black and white may have
///   less.
///
/// Therefore a file of 11 kilobytes takes up to maxUncheckedMemory, and one of 2.5 megabytes up to that of 100
/// megapixels, or 250 as baseline JPEG. `storedBytes` is the size of the file without holes. The memory that is free is
/// for the caller to compare: a plausible image may be too large for the machine.
bool isPlausible(const ImageHeader &header, std::uint64_t storedBytes);

/// Whether a file may be copied in memory for reading: the copy, of so many bytes, takes no more than
/// maxUncheckedMemory together with the image, or no more than 64 bytes per pixel, which is sufficient for layers and
/// further pages.
bool isPlausibleCopy(const ImageHeader &header, std::uint64_t copiedBytes);

} // namespace grisal::graphics
