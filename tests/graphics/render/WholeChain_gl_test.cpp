// SPDX-License-Identifier: MIT
//
// Complete previews and final renders, compared with an independent CPU implementation.
#include "graphics/filters/FilterSet.h"
#include "graphics/render/PreviewStage.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlTest.h"
#include "tests/support/Images.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/ReferenceRenderer.h"
#include "tests/support/SyntheticPhoto.h"

#include <cmath>
#include <memory>

namespace
{

using namespace grisal::graphics;
using namespace grisal::test;
using reference::Look;

constexpr double oneInTenThousand = 0.0001;

/// Limit for 16-bit files, in levels; below 0.0015 with Mesa's software drivers.
constexpr double meanLimitOf16Bits = 0.005;

struct Case {
    const char *name;
    Look look;
};

QVector<float> sCurve()
{
    QVector<float> curve(256);
    for (int i = 0; i < 256; ++i) {
        const float x = static_cast<float>(i) / 256;
        curve[i] = x * x * (3 - 2 * x);
    }
    return curve;
}

/// A triangle: 0 for black and white, 0.5 for the middle grey.
QVector<float> strongestInTheMiddle()
{
    QVector<float> weights(256);
    for (int i = 0; i < 256; ++i) {
        weights[i] = 0.5F - std::abs(static_cast<float>(i) / 256 - 0.5F);
    }
    return weights;
}

grisal::graphics::FilterParameters strongParameters()
{
    grisal::graphics::FilterParameters parameters;
    // The weights of a look: as multiples of 1/255, no sum of bytes is exactly half way between two levels.
    parameters.get<MixerFilter>().weights = {64 / 255.0F, 89 / 255.0F, 102 / 255.0F};
    parameters.get<CurveFilter>().curve = sCurve();
    parameters.get<GrainFilter>().weights = strongestInTheMiddle();
    parameters.get<GrainFilter>().radius = 1.5F;
    parameters.get<VignetteFilter>().shape.center.x = 35;
    parameters.get<VignetteFilter>().shape.center.y = 60;
    parameters.get<VignetteFilter>().shape.radius = 80;
    parameters.get<VignetteFilter>().shape.strength = 55;
    parameters.get<HalfToneFilter>().weight = 0.9F;
    return parameters;
}

Case named(const char *name, bool curve, bool splitTone, bool grain, bool vignette)
{
    return {name, {strongParameters(), true, curve, splitTone, grain, vignette}};
}

std::vector<Case> everyFilterAloneAndAllTogether()
{
    return {named("mixer", false, false, false, false),     named("curve", true, false, false, false),
            named("split tone", false, true, false, false), named("grain", false, false, true, false),
            named("vignette", false, false, false, true),   named("all", true, true, true, true)};
}

/// Five filters and four, so that the last pass of a tile uses each of its two targets.
std::vector<Case> allFiltersAndAllButTheGrain()
{
    return {named("all", true, true, true, true), named("all but grain", true, true, false, true)};
}

const BytePixels &blurredNoiseMap()
{
    static const BytePixels blurred =
        reference::blurredNoise(reference::noiseMap(), strongParameters().get<GrainFilter>().radius);
    return blurred;
}

struct Size {
    int width;
    int height;
};

class WholeChain : public GlTest, public testing::WithParamInterface<Size>
{
protected:
    void SetUp() override
    {
        GlTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        stage = std::make_unique<PreviewStage>();
    }

    void TearDown() override
    {
        stage.reset();
        GlTest::TearDown();
    }

    int width() const { return GetParam().width; }
    int height() const { return GetParam().height; }

    Samples16Image photo() const { return syntheticPhoto(width(), height()); }

    void apply(const Look &look)
    {
        const grisal::graphics::FilterParameters &p = look.parameters;
        stage->set<MixerFilter>(p.get<MixerFilter>());
        stage->set<CurveFilter>(p.get<CurveFilter>());
        stage->set<HalfToneFilter>(p.get<HalfToneFilter>());
        stage->setGrain(p.get<GrainFilter>());
        stage->set<VignetteFilter>(p.get<VignetteFilter>());
        FilterSet &filters = *stage->filters();
        filters.get<MixerFilter>().enabled = look.mixer;
        filters.get<CurveFilter>().enabled = look.curve;
        filters.get<HalfToneFilter>().enabled = look.splitTone;
        filters.get<GrainFilter>().enabled = look.grain;
        filters.get<VignetteFilter>().enabled = look.vignette;
    }

    void load(const BytePixels &picture)
    {
        const Image image = imageOf(picture);
        stage->load(image, pixelFormatsFor(image), 100, 100);
    }

    BytePixels preview(const BytePixels &picture, const Look &look)
    {
        load(picture);
        apply(look);
        stage->preview()->render();
        return readTexture(stage->preview()->output(), picture.width, picture.height);
    }

    template <typename T>
    Pixels<T> file(Pixels<T> picture, const Look &look)
    {
        const LogCapture quiet;
        load(BytePixels(4, 4));
        apply(look);
        EXPECT_TRUE(changeInPlace(picture, [this](Image &image) { return stage->renderFinal(image); }));
        return picture;
    }

    /// At most two levels, or one after a single pass, and very few components that differ.
    void expectAlike(const std::string &name, const Look &look, const BytePixels &actual, const BytePixels &expected,
                     bool tiled)
    {
        const bool onePass = tiled && !look.curve && !look.splitTone && !look.grain && !look.vignette;
        EXPECT_TRUE(picturesNear(name, actual, expected, {onePass ? 1.0 : 2.0, 0}));
        const auto unequal = static_cast<double>(difference(actual, expected).unequal);
        EXPECT_LE(unequal, oneInTenThousand * static_cast<double>(actual.values.size())) << name;
    }

    void expectPreviewAlike(const std::string &picture, const BytePixels &pixels)
    {
        for (const auto &[name, look] : everyFilterAloneAndAllTogether()) {
            const BytePixels expected = reference::previewOf(pixels, look, noise);
            BytePixels actual = preview(pixels, look);
            if (look.grain) {
                reference::leaveOutNoiseBoundaries(actual, expected, false);
            }
            expectAlike(picture + ", preview, " + name, look, actual, expected, false);
        }
    }

    template <typename T>
    void expectFileAlike(const std::string &picture, const Pixels<T> &pixels,
                         const std::vector<Case> &cases = everyFilterAloneAndAllTogether())
    {
        for (const auto &[name, look] : cases) {
            const Pixels<T> expected = reference::fileOf(pixels, look, noise);
            Pixels<T> actual = file(pixels, look);
            if (look.grain) {
                reference::leaveOutNoiseBoundaries(actual, expected, true);
            }
            const std::string title = picture + ", file, " + name;
            if constexpr (sizeof(T) == 1) {
                expectAlike(title, look, actual, expected, true);
            } else {
                // A texel of the blurred noise may be rounded to another level, which adds half a level of grain.
                const bool exact = !look.grain && !look.vignette && isLlvmpipe();
                EXPECT_TRUE(picturesNear(title, actual, expected, {exact ? 0.0 : 100.0, meanLimitOf16Bits}));
            }
        }
    }

    std::unique_ptr<PreviewStage> stage;
    const BytePixels &noise = blurredNoiseMap();
};

INSTANTIATE_TEST_SUITE_P(Pictures, WholeChain,
                         testing::Values(Size{3, 2}, Size{300, 200}, Size{1001, 997}, Size{2049, 1500},
                                         Size{2055, 2049}),
                         [](const auto &test) {
                             return std::to_string(test.param.width) + "x" + std::to_string(test.param.height);
                         });

TEST_P(WholeChain, PreviewOfARampMatchesTheReference)
{
    expectPreviewAlike("ramp", rampPicture<std::uint8_t>(width(), height()));
}

TEST_P(WholeChain, PreviewOfAPhotoMatchesTheReference)
{
    expectPreviewAlike("photo", asBytes(photo()));
}

TEST_P(WholeChain, EightBitFileOfARampMatchesTheReference)
{
    expectFileAlike("ramp", rampPicture<std::uint8_t>(width(), height()));
}

TEST_P(WholeChain, EightBitFileOfAPhotoMatchesTheReference)
{
    expectFileAlike("photo", asBytes(photo()));
}

TEST_P(WholeChain, SixteenBitFileOfARampMatchesTheReference)
{
    expectFileAlike("ramp", rampPicture<std::uint16_t>(width(), height()));
}

TEST_P(WholeChain, SixteenBitFileOfAPhotoMatchesTheReference)
{
    expectFileAlike("photo", photo());
}

// One tile of 2.25 million pixels: more than the filters process at once.
class LargeTile : public WholeChain
{
};

INSTANTIATE_TEST_SUITE_P(Pictures, LargeTile, testing::Values(Size{2048, 1100}),
                         [](const auto &) { return "2048x1100"; });

TEST_P(LargeTile, EightBitFileMatchesTheReference)
{
    expectFileAlike("large tile", rampPicture<std::uint8_t>(width(), height()), allFiltersAndAllButTheGrain());
}

TEST_P(LargeTile, SixteenBitFileMatchesTheReference)
{
    expectFileAlike("large tile", rampPicture<std::uint16_t>(width(), height()), allFiltersAndAllButTheGrain());
}

} // namespace
