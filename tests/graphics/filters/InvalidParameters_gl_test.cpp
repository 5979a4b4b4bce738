// SPDX-License-Identifier: MIT
//
// Parameters that are negative, infinite or NaN; no panel emits them. In OpenGL the value that a target stores for NaN
// is undefined: such pixels are not compared.
#include "graphics/filters/FilterSet.h"
#include "graphics/filters/FinalVignetteFilter.h"
#include "graphics/filters/OverlayFilter.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlState.h"
#include "tests/support/GlTest.h"
#include "tests/support/InvalidParameters.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/ReferencePictures.h"
#include "tests/support/ReferenceRenderer.h"

namespace grisal::test
{

namespace
{

using namespace graphics;
using reference::Rgb;

constexpr int width = 67;
constexpr int height = 41;

class InvalidParametersTest : public GlTest
{
protected:
    const BytePixels greys = reference::greyRamp(width, height);
    const FloatPixels floatGreys = reference::asFloats(greys);
    const BytePixels colours = rampPicture<std::uint8_t>(width, height);
};

/// The actual image with the expected values wherever `isAffected(x, y, component)`.
template <typename T, typename Condition>
Pixels<T> apartFrom(Pixels<T> actual, const Pixels<T> &expected, Condition isAffected)
{
    for (int y = 0; y < actual.height; ++y) {
        for (int x = 0; x < actual.width; ++x) {
            for (int c = 0; c < actual.components; ++c) {
                if (isAffected(x, y, c)) {
                    actual.at(x, y, c) = expected.at(x, y, c);
                }
            }
        }
    }
    return actual;
}

QVector<float> straight()
{
    QVector<float> samples(256);
    for (int i = 0; i < 256; ++i) {
        samples[i] = static_cast<float>(i) / 256;
    }
    return samples;
}

FilterParameters usualParameters()
{
    FilterParameters parameters;
    parameters.get<MixerFilter>().weights = {0.3F, 0.5F, 0.2F};
    parameters.get<GrainFilter>().weights = straight();
    return parameters;
}

/// The results of the five filters, each applied alone.
std::vector<BytePixels> resultsOf(FilterSet &filters, const FilterParameters &parameters, const BytePixels &image)
{
    filters.setParameters(parameters);
    filters.get<GrainFilter>().setSigma(parameters.get<GrainFilter>().radius);
    filters.setImageSize(image.width, image.height);
    std::vector<BytePixels> results;
    for (IFilter *filter : std::initializer_list<IFilter *>{
             &filters.get<MixerFilter>(), &filters.get<CurveFilter>(), &filters.get<VignetteFilter>(),
             &filters.get<HalfToneFilter>(), &filters.get<GrainFilter>()}) {
        results.push_back(runFilter(*filter, image));
        expectStateAfterPass();
    }
    return results;
}

} // namespace

TEST_F(InvalidParametersTest, NextPassIsUnaffected)
{
    FilterSet filters;
    const std::vector<BytePixels> before = resultsOf(filters, usualParameters(), colours);
    for (const FilterParameters &parameters : invalidParameters()) {
        resultsOf(filters, parameters, colours);
        const std::vector<BytePixels> after = resultsOf(filters, usualParameters(), colours);
        for (std::size_t i = 0; i < before.size(); ++i) {
            EXPECT_TRUE(picturesNear("after-invalid", after[i], before[i])) << "filter " << i;
        }
    }
}

TEST_F(InvalidParametersTest, NegativeMixerWeightsGiveBlack)
{
    MixerFilter filter;
    filter.weights = {-1, -0.5F, -0.01F};
    EXPECT_TRUE(picturesNear("mixer-negative", runFilter(filter, colours), BytePixels(width, height)));
}

TEST_F(InvalidParametersTest, InfiniteMixerWeightsGiveWhiteOrBlack)
{
    const BytePixels reds(2, 1, 3, {255, 0, 0, 1, 7, 9});
    MixerFilter filter;
    filter.weights = {infinity, 0.5F, -0.5F};
    EXPECT_EQ(runFilter(filter, reds).values, std::vector<std::uint8_t>(6, 255));
    filter.weights = {-infinity, 0.5F, -0.5F};
    EXPECT_EQ(runFilter(filter, reds).values, std::vector<std::uint8_t>(6, 0));
}

TEST_F(InvalidParametersTest, CurveSamplesBeyondTheScaleAreClampedByTheTarget)
{
    const QVector<float> curve{-1, 2, infinity, -infinity};
    CurveFilter filter;
    filter.setCurve(curve);
    const BytePixels image(4, 1, 3, {32, 32, 32, 96, 96, 96, 160, 160, 160, 224, 224, 224});
    EXPECT_EQ(runFilter(filter, image).values,
              (std::vector<std::uint8_t>{0, 0, 0, 255, 255, 255, 255, 255, 255, 0, 0, 0}));
    const FloatPixels unclamped = runFilter(filter, reference::asFloats(image));
    for (int x = 0; x < 4; ++x) {
        EXPECT_EQ(unclamped.at(x, 0, 0), curve[x]) << x;
    }
}

TEST_F(InvalidParametersTest, NaNCurveSampleAffectsItsOwnGreyOnly)
{
    CurveFilter filter;
    filter.setCurve(straight());
    const BytePixels expected = runFilter(filter, greys);
    QVector<float> curve = straight();
    curve[100] = notANumber;
    filter.setCurve(curve);
    const BytePixels actual = runFilter(filter, greys);
    const auto isOfThisSample = [&](int x, int y, int) { return greys.at(x, y, 0) == 100; };
    EXPECT_TRUE(picturesNear("curve-nan", apartFrom(actual, expected, isOfThisSample), expected));
}

TEST_F(InvalidParametersTest, NegativeSplitToneFollowsTheFormula)
{
    HalfToneFilter filter;
    filter.weight = -0.6F;
    filter.firstColor = {-1, 0.5F, -0.2F};
    filter.secondColor = {0.3F, -0.7F, -2};
    const FloatPixels expected = reference::eachPixel(greys, [](int, int, Rgb colour) {
        return reference::splitTone(colour, -0.6F, {-1, 0.5F, -0.2F}, {0.3F, -0.7F, -2});
    });
    EXPECT_TRUE(picturesNear("split-negative-floats", reference::withoutAlpha(runFilter(filter, floatGreys)), expected,
                             {3e-6, 0}));
    EXPECT_TRUE(
        picturesNear("split-negative-bytes", runFilter(filter, greys), reference::asBytes(expected), {1, 0.001}));
}

TEST_F(InvalidParametersTest, NaNTintAffectsItsOwnChannelOnly)
{
    HalfToneFilter filter;
    filter.firstColor = {0.7F, 0.6F, 0.2F};
    filter.secondColor = {0.4F, 0.5F, 0.8F};
    const BytePixels expected = runFilter(filter, greys);
    for (const float value : {notANumber, infinity, -infinity}) {
        filter.firstColor.r = filter.secondColor.r = value;
        const BytePixels actual = runFilter(filter, greys);
        const auto isRed = [](int, int, int component) { return component == 0; };
        EXPECT_TRUE(picturesNear("split-nan", apartFrom(actual, expected, isRed), expected));
    }
}

TEST_F(InvalidParametersTest, NegativeGrainWeightsFollowTheFormula)
{
    GrainFilter filter;
    filter.setSigma(0);
    filter.setWeights(QVector<float>(256, -0.8F));
    const BytePixels noise = reference::noiseMap();
    const std::vector<float> weights(256, -0.8F);
    const FloatPixels expected = reference::eachPixel(greys, [&](int x, int y, Rgb colour) {
        return reference::grain(colour, reference::noiseAt(noise, x, y), weights);
    });
    EXPECT_TRUE(picturesNear("grain-negative-floats", reference::withoutAlpha(runFilter(filter, floatGreys)), expected,
                             {1e-6, 0}));
    EXPECT_TRUE(
        picturesNear("grain-negative-bytes", runFilter(filter, greys), reference::asBytes(expected), {1, 0.001}));
}

TEST_F(InvalidParametersTest, NaNGrainWeightAffectsItsOwnGreyOnly)
{
    GrainFilter filter;
    filter.setSigma(1.5F);
    filter.setWeights(straight());
    const BytePixels expected = runFilter(filter, greys);
    for (const float value : {notANumber, infinity, -infinity}) {
        QVector<float> weights = straight();
        weights[100] = value;
        filter.setWeights(weights);
        const BytePixels actual = runFilter(filter, greys);
        const auto isOfThisWeight = [&](int x, int y, int) { return greys.at(x, y, 0) == 100; };
        EXPECT_TRUE(picturesNear("grain-nan", apartFrom(actual, expected, isOfThisWeight), expected));
    }
}

TEST_F(InvalidParametersTest, InvalidSigmaLeavesTheNoiseUnblurred)
{
    const BytePixels noise = reference::noiseMap();
    for (const float sigma : {notANumber, -infinity, -1.0F}) {
        GrainFilter filter;
        filter.setSigma(sigma);
        const BytePixels actual = readBytes(filter.blurredNoise()->record(), noise.width, noise.height);
        EXPECT_TRUE(picturesNear("noise-unblurred", actual, noise)) << sigma;
    }
}

TEST_F(InvalidParametersTest, InvalidBlurRadiusCopies)
{
    GaussianBlurFilter filter(notANumber, notANumber, width, height, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE);
    for (const float radius : {notANumber, -infinity, -0.5F}) {
        filter.radius = radius;
        EXPECT_TRUE(picturesNear("blur-copy", runFilter(filter, colours), colours)) << radius;
    }
}

TEST_F(InvalidParametersTest, InvalidSigmaDoesNotChangeTheBlur)
{
    GaussianBlurFilter filter(1, 1, width, height, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE);
    filter.radius = 1.5F;
    const BytePixels expected = runFilter(filter, colours);
    for (const float sigma : {notANumber, infinity, -1.0F}) {
        filter.sigma = filter.scale = sigma;
        EXPECT_TRUE(picturesNear("blur-sigma-nan", runFilter(filter, colours), expected)) << sigma;
    }
}

TEST_F(InvalidParametersTest, InvalidStrengthLeavesTheImageAndAnEmptyMask)
{
    for (const float strength : {notANumber, -infinity, -50.0F}) {
        for (const float radius : {50.0F, 0.0F, -50.0F, notANumber}) {
            VignetteFilter filter;
            filter.parameters = {{50, 50, 0}, strength, radius};
            filter.maxWidth = width;
            filter.maxHeight = height;
            EXPECT_TRUE(picturesNear("vignette-none", runFilter(filter, colours), colours)) << strength;

            FinalVignetteFilter mask;
            mask.parameters = filter.parameters;
            EXPECT_TRUE(picturesNear("mask-none", runFilter(mask, floatGreys), FloatPixels(width, height, 4)))
                << strength;
        }
    }
}

// The darkening is infinite and its overlay NaN, which Mesa's drivers store as 0: black, as in the panel.
TEST_F(InvalidParametersTest, VignetteWithoutRadiusIsBlack)
{
    VignetteFilter filter;
    filter.parameters = {{50, 50, 0}, 50, 0};
    filter.maxWidth = width;
    filter.maxHeight = height;
    EXPECT_TRUE(picturesNear("vignette-no-radius", runFilter(filter, colours), BytePixels(width, height)));
}

TEST_F(InvalidParametersTest, NegativeVignetteRadiusFollowsTheFormula)
{
    const reference::Vignette vignette{30, 80, 70, -40};
    VignetteFilter filter;
    filter.parameters = {{30, 80, 0}, 70, -40};
    filter.maxWidth = width;
    filter.maxHeight = height;
    const FloatPixels expected = reference::eachPixel(
        greys, [=](int x, int y, Rgb colour) { return reference::vignetted(colour, vignette, width, height, x, y); });
    EXPECT_TRUE(
        picturesNear("vignette-brighter", reference::withoutAlpha(runFilter(filter, floatGreys)), expected, {2e-6, 0}));

    FinalVignetteFilter mask;
    mask.parameters = filter.parameters;
    const FloatPixels expectedMask = reference::eachPixel(greys, [=](int x, int y, Rgb) {
        const float value = reference::vignetteAt(vignette, width, height, x, y);
        return Rgb{value, value, value};
    });
    EXPECT_TRUE(
        picturesNear("mask-negative", reference::withoutAlpha(runFilter(mask, floatGreys)), expectedMask, {2e-6, 0}));
}

TEST_F(InvalidParametersTest, NegativeMaskFollowsTheFormula)
{
    FloatPixels mask(width, height, 1);
    std::fill(mask.values.begin(), mask.values.end(), -0.7F);
    const Texture texture(createTexture(width, height, GL_R32F, GL_RED, GL_FLOAT, mask.values.data()));
    OverlayFilter filter;
    filter.overlayTexture = texture.name();
    const FloatPixels expected =
        reference::eachPixel(greys, [](int, int, Rgb colour) { return reference::darkened(colour, -0.7F); });
    EXPECT_TRUE(
        picturesNear("overlay-negative", reference::withoutAlpha(runFilter(filter, floatGreys)), expected, {2e-6, 0}));
}

TEST_F(InvalidParametersTest, NaNMaskValueAffectsItsOwnPixelOnly)
{
    OverlayFilter filter;
    const FloatPixels expected =
        reference::eachPixel(greys, [](int, int, Rgb colour) { return reference::darkened(colour, 0); });
    for (const float value : {notANumber, infinity, -infinity}) {
        FloatPixels mask(width, height, 1);
        mask.at(30, 20, 0) = value;
        const Texture texture(createTexture(width, height, GL_R32F, GL_RED, GL_FLOAT, mask.values.data()));
        filter.overlayTexture = texture.name();
        const FloatPixels actual = reference::withoutAlpha(runFilter(filter, floatGreys));
        const auto isUnderIt = [](int x, int y, int) { return x == 30 && y == 20; };
        EXPECT_TRUE(picturesNear("overlay-nan", apartFrom(actual, expected, isUnderIt), expected, {1e-6, 0}));
    }
}

} // namespace grisal::test
