// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/FilterParameters.h"
#include "tests/support/Pictures.h"

namespace grisal::test::reference
{

/// The parameters of all filters, and which filters are on.
struct Look {
    graphics::FilterParameters parameters;
    bool mixer = true;
    bool curve = false;
    bool splitTone = false;
    bool grain = false;
    bool vignette = false;
};

/// The noise map that is compiled into the program.
BytePixels noiseMap();

/// A noise map of noiseSide x noiseSide pixels, blurred for a grain radius in two passes that round to bytes.
BytePixels blurredNoise(const BytePixels &noise, float radius);

/// The preview of an image: the mixer applied to the source and, if it is on, once more to its own result; then curve,
/// grain, split tone and vignette, rounded to bytes after each pass. `noise` is the blurred noise map.
BytePixels previewOf(const BytePixels &picture, const Look &look, const BytePixels &noise);

/// The final render of an image: the mixer once, then curve, split tone, grain, whose noise starts again in each tile,
/// and the vignette as a mask over the padded image. Bytes are rounded after each pass; 16-bit samples are processed as
/// half floats, rounded at the upload and truncated when a pass stores them.
BytePixels fileOf(const BytePixels &picture, const Look &look, const BytePixels &noise);
Samples16Image fileOf(const Samples16Image &picture, const Look &look, const BytePixels &noise);

/// Sets the components that lie exactly between two texels of the noise map to the expected values: the last bit of the
/// OpenGL driver's arithmetic decides which texel is read. `tiled` for final renders, where every tile contains such
/// rows and columns.
template <typename T>
void leaveOutNoiseBoundaries(Pixels<T> &actual, const Pixels<T> &expected, bool tiled);

} // namespace grisal::test::reference
