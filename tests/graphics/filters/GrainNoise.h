// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/GrainFilter.h"
#include "graphics/filters/NoiseMap.h"
#include "tests/support/FilterRun.h"

namespace grisal::test
{

/// The noise of a filter as it is blurred.
inline BytePixels noiseOf(const graphics::GrainFilter &filter)
{
    return readBytes(filter.blurredNoise()->record(), graphics::noiseMapSide, graphics::noiseMapSide);
}

/// The noise before it is blurred.
inline BytePixels bareNoise()
{
    const graphics::Texture texture(graphics::loadNoiseMap());
    return readTexture(texture.name(), graphics::noiseMapSide, graphics::noiseMapSide);
}

} // namespace grisal::test
