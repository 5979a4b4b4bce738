// SPDX-License-Identifier: MIT
#include "graphics/filters/OverlayFilter.h"

#include "graphics/gl/Textures.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlState.h"
#include "tests/support/GlTest.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/ReferencePictures.h"
#include "tests/support/UniformRecorder.h"

#include <memory>

namespace grisal::test
{

namespace
{

using graphics::OverlayFilter;
using graphics::Texture;
using reference::Rgb;

class OverlayFilterTest : public GlTest
{
};

Texture maskTexture(const FloatPixels &mask)
{
    return Texture(graphics::createTexture(mask.width, mask.height, GL_R32F, GL_RED, GL_FLOAT, mask.values.data()));
}

/// One pixel of the given grey, filtered with one value of the mask.
float darkened(float grey, float maskValue)
{
    const Texture mask = maskTexture(FloatPixels(1, 1, 1, {maskValue}));
    OverlayFilter filter;
    filter.overlayTexture = mask.name();
    return runFilter(filter, FloatPixels(1, 1, 3, {grey, grey, grey})).at(0, 0, 0);
}

/// An asymmetric mask that differs in every pixel, from 0 to more than 1.
FloatPixels slantedMask(int width, int height)
{
    FloatPixels mask(width, height, 1);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            mask.at(x, y, 0) =
                0.8F * static_cast<float>(x) / static_cast<float>(width) + 0.5F * static_cast<float>(y * y) / 1000;
        }
    }
    return mask;
}

template <typename Picture>
FloatPixels expectedOf(const Picture &picture, const FloatPixels &mask)
{
    return reference::eachPixel(
        picture, [&](int x, int y, Rgb colour) { return reference::darkened(colour, mask.at(x, y, 0)); });
}

} // namespace

TEST_F(OverlayFilterTest, IsDisabledWithoutMaskAndSizeInitially)
{
    const OverlayFilter filter;

    EXPECT_EQ(filter.getName(), "OverlayFilter");
    EXPECT_EQ(filter.overlayTexture, 0U);
    EXPECT_EQ(filter.width, 0);
    EXPECT_EQ(filter.height, 0);
    EXPECT_FALSE(filter.enabled);
}

// The name is that of the mixer on purpose: both programs are listed under it.
TEST_F(OverlayFilterTest, ProgramHasTheNameOfTheMixerProgram)
{
    const OverlayFilter filter;

    EXPECT_EQ(filter.program().name, "BWConversionMixer");
}

TEST_F(OverlayFilterTest, SendsItsUniformsInOrder)
{
    const Texture mask = maskTexture(FloatPixels(5, 3, 1));
    OverlayFilter filter;
    filter.overlayTexture = mask.name();
    const UniformRecorder recorder;

    runFilter(filter, FloatPixels(5, 3));

    EXPECT_EQ(recorder.sent(), (std::vector<SentUniform>{
                                   {"Width", {5}}, {"Height", {3}}, {"OverlayTexture", {1}}, {"MainTexture", {0}}}));
    EXPECT_EQ(recorder.programs(), std::vector<GLuint>{filter.program().program});
}

// A middle grey is I = 127.5: I * 0.0039 = 0.49725 for a mask of 0, I * I * 0.0039 * 0.0039 = 0.2472576 for 1.
TEST_F(OverlayFilterTest, MaskBlendsThePixelWithItsSquare)
{
    EXPECT_NEAR(darkened(0.5F, 0), 0.49725, 1e-6);
    EXPECT_NEAR(darkened(0.5F, 0.25F), 0.4347519, 1e-6);
    EXPECT_NEAR(darkened(0.5F, 0.5F), 0.3722538, 1e-6);
    EXPECT_NEAR(darkened(0.5F, 1), 0.2472576, 1e-6);
}

TEST_F(OverlayFilterTest, MaskAboveOneDarkensFurther)
{
    EXPECT_NEAR(darkened(0.5F, 1.5F), 0.1222613, 1e-6);
}

TEST_F(OverlayFilterTest, MaskOfZeroDarkensByTheConstantOnly)
{
    const FloatPixels ramp = reference::asFloats(rampPicture<std::uint8_t>(67, 41));
    const Texture mask = maskTexture(FloatPixels(67, 41, 1));
    OverlayFilter filter;
    filter.overlayTexture = mask.name();

    const FloatPixels result = reference::withoutAlpha(runFilter(filter, ramp));

    const FloatPixels expected = reference::eachPixel(ramp, [](int, int, Rgb colour) { return colour * 0.9945F; });
    EXPECT_TRUE(picturesNear("overlay-empty", result, expected, {1e-6, 0}));
}

TEST_F(OverlayFilterTest, FloatsFollowTheFormula)
{
    const FloatPixels ramp = reference::asFloats(rampPicture<std::uint8_t>(67, 41));
    const FloatPixels values = slantedMask(67, 41);
    const Texture mask = maskTexture(values);
    OverlayFilter filter;
    filter.overlayTexture = mask.name();

    const FloatPixels result = reference::withoutAlpha(runFilter(filter, ramp));

    EXPECT_TRUE(picturesNear("overlay-floats", result, expectedOf(ramp, values), {1e-6, 0}));
}

// Results half way between two levels may differ by one level; none does with llvmpipe.
TEST_F(OverlayFilterTest, BytesFollowTheFormula)
{
    const BytePixels ramp = reference::greyRamp();
    const FloatPixels values = slantedMask(67, 41);
    const Texture mask = maskTexture(values);
    OverlayFilter filter;
    filter.overlayTexture = mask.name();

    EXPECT_TRUE(picturesNear("overlay-bytes", runFilter(filter, ramp), reference::asBytes(expectedOf(ramp, values)),
                             {1, 0.001}));
}

TEST_F(OverlayFilterTest, DestructorKeepsTheMask)
{
    const Texture mask = maskTexture(FloatPixels(1, 1, 1));
    {
        OverlayFilter filter;
        filter.overlayTexture = mask.name();
    }
    EXPECT_TRUE(glIsTexture(mask.name()));
}

TEST_F(OverlayFilterTest, LeavesUnitZeroActiveAndNo2DTextureBound)
{
    darkened(0.5F, 0.5F);

    EXPECT_EQ(activeUnit(), 0);
    expectStateAfterPass();
}

} // namespace grisal::test
