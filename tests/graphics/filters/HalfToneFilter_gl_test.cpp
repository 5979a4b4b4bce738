// SPDX-License-Identifier: MIT
#include "graphics/filters/HalfToneFilter.h"

#include "tests/support/FilterRun.h"
#include "tests/support/GlState.h"
#include "tests/support/GlTest.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/ReferencePictures.h"
#include "tests/support/UniformRecorder.h"

namespace grisal::test
{

namespace
{

using graphics::ColorRGB;
using graphics::HalfToneFilter;
using reference::Rgb;

class HalfToneFilterTest : public GlTest
{
};

constexpr ColorRGB<float> sand{190 / 255.0F, 156 / 255.0F, 54 / 255.0F};
constexpr ColorRGB<float> slate{110 / 255.0F, 148 / 255.0F, 198 / 255.0F};

FloatPixels grey(float value)
{
    return {1, 1, 3, {value, value, value}};
}

void expectColour(const FloatPixels &pixel, float r, float g, float b)
{
    EXPECT_NEAR(pixel.at(0, 0, 0), r, 1e-6);
    EXPECT_NEAR(pixel.at(0, 0, 1), g, 1e-6);
    EXPECT_NEAR(pixel.at(0, 0, 2), b, 1e-6);
}

template <typename Picture>
FloatPixels expectedOf(const Picture &picture, float weight)
{
    return reference::eachPixel(picture, [=](int, int, Rgb colour) {
        return reference::splitTone(colour, weight, {sand.r, sand.g, sand.b}, {slate.r, slate.g, slate.b});
    });
}

} // namespace

TEST_F(HalfToneFilterTest, IsDisabledWithoutTintAndSizeInitially)
{
    const HalfToneFilter filter;

    EXPECT_EQ(filter.getName(), "HalfToneFilter");
    EXPECT_EQ(filter.firstColor, (ColorRGB<float>{0, 0, 0}));
    EXPECT_EQ(filter.secondColor, (ColorRGB<float>{0, 0, 0}));
    EXPECT_EQ(filter.width, 0);
    EXPECT_EQ(filter.height, 0);
    EXPECT_FALSE(filter.enabled);
}

TEST_F(HalfToneFilterTest, ProgramIsNamedHalfTone)
{
    const HalfToneFilter filter;

    EXPECT_EQ(filter.program().name, "HalfTone");
}

// The program has no MaxPixel.
TEST_F(HalfToneFilterTest, SendsItsUniformsInOrder)
{
    HalfToneFilter filter;
    filter.weight = 0.75F;
    filter.firstColor = {0.1F, 0.2F, 0.3F};
    filter.secondColor = {0.4F, 0.5F, 0.6F};
    const UniformRecorder recorder;

    runFilter(filter, FloatPixels(5, 3));

    EXPECT_EQ(recorder.sent(), (std::vector<SentUniform>{{"Width", {5}},
                                                         {"Height", {3}},
                                                         {"Weight", {0.75F}},
                                                         {"MaxPixel", {1}},
                                                         {"FirstColor", {0.1F, 0.2F, 0.3F}},
                                                         {"SecondColor", {0.4F, 0.5F, 0.6F}},
                                                         {"MainTexture", {0}}}));
    EXPECT_EQ(recorder.programs(), std::vector<GLuint>{filter.program().program});
}

// h = 0, s = 1, o = 0: 0.49725 * (127.5 + 2 * tint * 0.9945 * 127.5) * 0.0039 for a middle grey.
TEST_F(HalfToneFilterTest, WeightOfZeroTintsWithTheSecondColourOnly)
{
    HalfToneFilter filter;
    filter.weight = 0;
    filter.firstColor = {0, 1, 0};
    filter.secondColor = {1, 0.5F, 0};

    expectColour(runFilter(filter, grey(0.5F)), 0.7390529F, 0.4931552F, 0.2472576F);
}

// h = 0.5, s = 0.25, o = 0.25: overlay(first) * 0.5 + overlay(second) * 0.25 + 0.125, the overlays as above.
TEST_F(HalfToneFilterTest, MiddleGreyMixesBothColoursAndItself)
{
    HalfToneFilter filter;
    filter.weight = 1;
    filter.firstColor = {1, 0.5F, 0};
    filter.secondColor = {0, 0.5F, 1};

    expectColour(runFilter(filter, grey(0.5F)), 0.5563408F, 0.4948664F, 0.4333920F);
}

// h = 1, s = 0, o = 0: 0.9945 * 255 * 0.0039, whatever the tint.
TEST_F(HalfToneFilterTest, WhiteIsDarkenedByTheConstantOnly)
{
    HalfToneFilter filter;
    filter.weight = 1;
    filter.firstColor = sand;
    filter.secondColor = slate;

    expectColour(runFilter(filter, grey(1)), 0.9890302F, 0.9890302F, 0.9890302F);
}

TEST_F(HalfToneFilterTest, BlackStaysBlack)
{
    HalfToneFilter filter;
    filter.weight = 1;
    filter.firstColor = {1, 1, 1};
    filter.secondColor = {1, 1, 1};

    expectColour(runFilter(filter, grey(0)), 0, 0, 0);
}

// No tint is neutral. The nearest one, 1 / (2 * 0.9945), multiplies every grey by 0.9945 * 0.9945.
TEST_F(HalfToneFilterTest, GreyTintMultipliesTheTonesByAConstant)
{
    HalfToneFilter filter;
    filter.weight = 0;
    const float middle = 1 / (2 * 0.9945F);
    filter.secondColor = {middle, middle, middle};
    const FloatPixels greys = reference::asFloats(reference::greyRamp());

    const FloatPixels result = reference::withoutAlpha(runFilter(filter, greys));

    const FloatPixels expected =
        reference::eachPixel(greys, [](int, int, Rgb colour) { return colour * (0.9945F * 0.9945F); });
    EXPECT_TRUE(picturesNear("split-factor", result, expected, {1e-6, 0}));
}

TEST_F(HalfToneFilterTest, FloatsFollowTheFormula)
{
    HalfToneFilter filter;
    filter.weight = 0.7F;
    filter.firstColor = sand;
    filter.secondColor = slate;
    const FloatPixels ramp = reference::asFloats(rampPicture<std::uint8_t>(67, 41));

    const FloatPixels result = reference::withoutAlpha(runFilter(filter, ramp));

    EXPECT_TRUE(picturesNear("split-floats", result, expectedOf(ramp, 0.7F), {1e-6, 0}));
}

// Results half way between two levels may differ by one level; none does with llvmpipe.
TEST_F(HalfToneFilterTest, BytesFollowTheFormula)
{
    HalfToneFilter filter;
    filter.weight = 1.4F;
    filter.firstColor = sand;
    filter.secondColor = slate;
    const BytePixels ramp = reference::greyRamp();

    const BytePixels result = runFilter(filter, ramp);

    EXPECT_TRUE(picturesNear("split-bytes", result, reference::asBytes(expectedOf(ramp, 1.4F)), {1, 0.001}));
}

TEST_F(HalfToneFilterTest, LeavesNothingBound)
{
    HalfToneFilter filter;

    runFilter(filter, grey(0.5F));

    EXPECT_EQ(activeUnit(), 0);
    expectStateAfterPass();
}

} // namespace grisal::test
