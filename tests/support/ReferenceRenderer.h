// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/Look.h"
#include "tests/support/Pictures.h"

namespace grisal::test::reference
{

/// What is done to a picture: the settings and which filters are on.
struct Look {
    graphics::Look parameters;
    bool mixer = true;
    bool curve = false;
    bool splitTone = false;
    bool grain = false;
    bool vignette = false;
};

/// The noise that the program carries.
BytePixels noiseMap();

/// The noise of a raw file of noiseSide x noiseSide x 3 bytes, blurred as for a grain of the given radius, in two
/// passes that round to bytes.
BytePixels blurredNoise(const BytePixels &noise, float radius);

/// The preview of a picture: the mixer over the source and, being on, once more over its own result; then curve, grain,
/// split tone and vignette, rounded to bytes after each. `noise` is the blurred one.
BytePixels previewOf(const BytePixels &picture, const Look &look, const BytePixels &noise);

/// The file that is made of a picture: the mixer once, then curve, split tone, grain, whose noise starts afresh with
/// each tile, and the vignette as a mask over the padded picture. Bytes are rounded after each pass; words travel as
/// half floats, rounded when they are uploaded and cut off when a pass stores them.
BytePixels fileOf(const BytePixels &picture, const Look &look, const BytePixels &noise);
WordPixels fileOf(const WordPixels &picture, const Look &look, const BytePixels &noise);

/// Gives the components that lie exactly between two texels of the noise the expected values: which texel they get is
/// decided by the last bit of the driver's arithmetic. `tiled` for files, where every tile has such rows and columns.
template <typename T>
void leaveOutNoiseBoundaries(Pixels<T> &actual, const Pixels<T> &expected, bool tiled);

} // namespace grisal::test::reference
