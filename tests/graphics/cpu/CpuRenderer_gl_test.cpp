// SPDX-License-Identifier: MIT
//
// Renders without OpenGL, compared with the final render of OpenGL.
#include "graphics/render/PreviewStage.h"
#include "tests/graphics/cpu/CpuLooks.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlTest.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PictureCompare.h"

namespace grisal::test
{

namespace
{

using namespace graphics;

class CpuRendererGlTest : public GlTest
{
protected:
    template <typename T>
    static Pixels<T> glRender(Pixels<T> picture, const reference::Look &look)
    {
        const LogCapture quiet;
        PreviewStage stage;
        const Image preview = Image8(4, 4);
        stage.load(preview, pixelFormatsFor(preview), 100, 100);
        stage.set<MixerFilter>(look.parameters.get<MixerFilter>());
        stage.set<CurveFilter>(look.parameters.get<CurveFilter>());
        stage.set<HalfToneFilter>(look.parameters.get<HalfToneFilter>());
        stage.setGrain(look.parameters.get<GrainFilter>());
        stage.set<VignetteFilter>(look.parameters.get<VignetteFilter>());
        const EnabledFilters enabled = enabledIn(look);
        stage.filters()->forEach([&](auto &filter) { filter.enabled = enabled.get<std::decay_t<decltype(filter)>>(); });
        EXPECT_TRUE(changeInPlace(picture, [&](Image &image) { return stage.renderFinal(image); }));
        return picture;
    }

    /// Compares within the limits that hold between OpenGL and the reference. A texel of the blurred noise may be
    /// rounded to another level, which adds half a level of grain.
    template <typename T>
    static void expectAlike(const std::string &title, const Pixels<T> &picture, const reference::Look &look)
    {
        const Pixels<T> expected = glRender(picture, look);
        Pixels<T> actual = cpuRender(picture, look);
        if (look.grain) {
            reference::leaveOutNoiseBoundaries(actual, expected, true);
        }
        if constexpr (sizeof(T) == 1) {
            EXPECT_TRUE(picturesNear(title, actual, expected, {2, 0}));
            EXPECT_LE(difference(actual, expected).unequal, actual.values.size() / 10000) << title;
        } else {
            const bool exact = !look.grain && !look.vignette && isLlvmpipe();
            EXPECT_TRUE(picturesNear(title, actual, expected, {exact ? 0.0 : 100.0, 0.005}));
        }
    }

    template <typename T>
    static void expectEveryFilterAlike(int width, int height)
    {
        const Pixels<T> picture = rampPicture<T>(width, height);
        for (const auto &[name, look] : everyFilterAloneAndAllTogether()) {
            expectAlike("cpu and gl, " + std::string(name), picture, look);
        }
    }
};

} // namespace

TEST_F(CpuRendererGlTest, EightBitRenderMatchesOpenGL)
{
    expectEveryFilterAlike<std::uint8_t>(301, 203);
    expectEveryFilterAlike<std::uint8_t>(2055, 41);
    expectEveryFilterAlike<std::uint8_t>(2051, 2053);
}

TEST_F(CpuRendererGlTest, SixteenBitRenderMatchesOpenGL)
{
    expectEveryFilterAlike<std::uint16_t>(301, 203);
    expectEveryFilterAlike<std::uint16_t>(2055, 41);
    expectEveryFilterAlike<std::uint16_t>(2051, 2053);
}

TEST_F(CpuRendererGlTest, SameFiltersRunIfOneOrNoneIsEnabled)
{
    const BytePixels picture = rampPicture<std::uint8_t>(67, 41);
    expectAlike("only the curve", picture, {strongParameters(), false, true, false, false, false});
    expectAlike("curve and split tone", picture, {strongParameters(), false, true, true, false, false});
    expectAlike("none", picture, {strongParameters(), false, false, false, false, false});
}

} // namespace grisal::test
