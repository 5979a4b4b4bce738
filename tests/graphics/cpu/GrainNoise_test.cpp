// SPDX-License-Identifier: MIT
#include "graphics/cpu/GrainNoise.h"

#include "tests/support/ReferenceFilters.h"
#include "tests/support/ReferenceRenderer.h"

#include <gtest/gtest.h>

namespace grisal::graphics::cpu
{

TEST(GrainNoiseTest, TexelsAreTheFactorsOfTheBlurredNoiseOfTheReference)
{
    const test::BytePixels map = test::reference::noiseMap();
    for (const float radius : {-1.0F, 0.0F, 0.3F, 1.0F, 1.5F, 3.0F}) {
        const test::BytePixels expected = test::reference::blurredNoise(map, radius);
        const GrainNoise noise(radius);
        for (int y = 0; y < expected.height; ++y) {
            for (int x = 0; x < expected.width; ++x) {
                const float texel = test::reference::fromByte(expected.at(x, y, 0)) * 255.0F;
                ASSERT_EQ(noise.row(y)[x], texel * 2.0F * 0.0039F) << radius << ": " << x << ", " << y;
            }
        }
    }
}

TEST(GrainNoiseTest, TexelsOfAllPositionsAreThoseOfTheReference)
{
    for (int p = 0; p < 100000; ++p) {
        ASSERT_EQ(GrainNoise::texelFor(p), test::reference::noiseTexel(p)) << p;
    }
}

} // namespace grisal::graphics::cpu
