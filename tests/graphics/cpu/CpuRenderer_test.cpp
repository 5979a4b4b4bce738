// SPDX-License-Identifier: MIT
//
// Renders without OpenGL, compared with the independent implementation of the final render: every sample must be equal.
#include "graphics/cpu/CpuRenderer.h"

#include "tests/graphics/cpu/CpuLooks.h"
#include "tests/support/InvalidParameters.h"
#include "tests/support/PictureCompare.h"

#include <gtest/gtest.h>

#include <array>
#include <thread>
#include <vector>

namespace grisal::test
{

namespace
{

using namespace graphics;

template <typename T>
class CpuRendererTest : public testing::Test
{
protected:
    static void expectEqual(const std::string &title, const Pixels<T> &picture, const reference::Look &look)
    {
        EXPECT_TRUE(picturesNear(title, cpuRender(picture, look), referenceRender(picture, look))) << title;
    }

    /// Renders with all filters and the parameters at each end of its range, one after the other.
    template <typename Filter>
    static void expectEqualAtTheEndsOfRanges()
    {
        const Pixels<T> picture = randomPicture<T>(67, 41);
        for (const auto &parameter : ParametersOf<Filter>::declaration().parameters) {
            for (const float value : {parameter.lowest, parameter.highest}) {
                reference::Look look{strongParameters(), true, true, true, true, true};
                const auto values = parameter.values(look.parameters.get<Filter>());
                std::fill(values.begin(), values.end(), value);
                expectEqual(std::string(parameter.name) + " " + std::to_string(value), picture, look);
            }
        }
    }
};

using Depths = testing::Types<std::uint8_t, std::uint16_t>;
class DepthNames
{
public:
    template <typename T>
    static std::string GetName(int)
    {
        return sizeof(T) == 1 ? "Bytes" : "Samples16";
    }
};
TYPED_TEST_SUITE(CpuRendererTest, Depths, DepthNames);

} // namespace

TYPED_TEST(CpuRendererTest, EveryFilterMatchesTheReferenceInOneTile)
{
    for (const auto &[width, height] : {std::pair{1, 1}, {3, 2}, {301, 203}, {1001, 37}, {2048, 9}}) {
        const auto picture = randomPicture<TypeParam>(width, height);
        for (const auto &[name, look] : everyFilterAloneAndAllTogether()) {
            this->expectEqual(name + std::to_string(width), picture, look);
        }
    }
}

TYPED_TEST(CpuRendererTest, EveryFilterMatchesTheReferenceInFourTiles)
{
    for (const auto &[width, height] : {std::pair{2055, 40}, {39, 2053}}) {
        const auto picture = randomPicture<TypeParam>(width, height);
        for (const auto &[name, look] : everyFilterAloneAndAllTogether()) {
            this->expectEqual(name + std::to_string(width), picture, look);
        }
    }
}

TYPED_TEST(CpuRendererTest, AllFiltersMatchTheReferenceInSixteenTiles)
{
    this->expectEqual("sixteen tiles", randomPicture<TypeParam>(2049, 2055),
                      {strongParameters(), true, true, true, true, true});
}

TYPED_TEST(CpuRendererTest, EveryGreyMatchesTheReference)
{
    Pixels<TypeParam> picture(256, sizeof(TypeParam) == 1 ? 1 : 256);
    for (std::size_t i = 0; i < picture.values.size(); ++i) {
        picture.values[i] = static_cast<TypeParam>(i / 3);
    }
    for (auto [name, look] : everyFilterAloneAndAllTogether()) {
        look.parameters.template get<MixerFilter>().weights = {0.25F, 0.5F, 0.25F};
        this->expectEqual(name, picture, look);
    }
}

TYPED_TEST(CpuRendererTest, ParametersAtTheEndsOfTheirRangesMatchTheReference)
{
    this->template expectEqualAtTheEndsOfRanges<MixerFilter>();
    this->template expectEqualAtTheEndsOfRanges<CurveFilter>();
    this->template expectEqualAtTheEndsOfRanges<HalfToneFilter>();
    this->template expectEqualAtTheEndsOfRanges<GrainFilter>();
    this->template expectEqualAtTheEndsOfRanges<VignetteFilter>();
}

TYPED_TEST(CpuRendererTest, BlocksOfRowsGiveTheSameAsTheWholeImage)
{
    constexpr int rowsPerBlock = 50;
    const auto look = everyFilterAloneAndAllTogether().back().look;
    const graphics::CpuRenderer renderer(look.parameters, enabledIn(look));
    for (const auto &[width, height] : {std::pair{67, 41}, {39, 2053}, {2055, 120}}) {
        graphics::Image whole = imageOf(randomPicture<TypeParam>(width, height));
        using Raster = graphics::Raster<TypeParam>;
        Raster joined(width, 0);
        for (int first = 0; first < height; first += rowsPerBlock) {
            Raster block(width, std::min(rowsPerBlock, height - first));
            const auto start = std::get<Raster>(whole).samples.begin() + std::ptrdiff_t{first} * width * 3;
            std::copy_n(start, block.samples.size(), block.samples.begin());
            graphics::Image rows = block;
            renderer.renderRows(rows, first, height);
            const auto &rendered = std::get<Raster>(rows).samples;
            joined.samples.insert(joined.samples.end(), rendered.begin(), rendered.end());
        }
        renderer.render(whole);
        EXPECT_EQ(joined.samples, std::get<Raster>(whole).samples) << width << " x " << height;
    }
}

TYPED_TEST(CpuRendererTest, ThreadsRenderDifferentImagesWithTheSameRenderer)
{
    const auto look = everyFilterAloneAndAllTogether().back().look;
    const graphics::CpuRenderer renderer(look.parameters, enabledIn(look));
    const graphics::Image source = imageOf(randomPicture<TypeParam>(67, 41));
    std::array<graphics::Image, 4> images{source, source, source, source};
    {
        std::vector<std::jthread> threads;
        for (graphics::Image &image : images) {
            threads.emplace_back([&] { renderer.render(image); });
        }
    }
    graphics::Image expected = source;
    renderer.render(expected);
    for (const graphics::Image &image : images) {
        using Raster = graphics::Raster<TypeParam>;
        EXPECT_EQ(std::get<Raster>(image).samples, std::get<Raster>(expected).samples);
    }
}

// With half floats, greys below 0 and above 1 stay until the last pass.
TYPED_TEST(CpuRendererTest, WeightsBeyondOneAndBelowZeroMatchTheReference)
{
    const auto picture = randomPicture<TypeParam>(67, 41);
    for (const ColorRGB<float> &weights :
         {ColorRGB<float>{2, 2, 2}, {-2, -2, -2}, {2, -2, 0.5F}, {-0.3F, 1.7F, -0.4F}, {-1e-6F, 1e-6F, 1e-6F}}) {
        for (auto [name, look] : everyFilterAloneAndAllTogether()) {
            look.parameters.template get<MixerFilter>().weights = weights;
            this->expectEqual(name + std::to_string(weights.r), picture, look);
            look.curve = false;
            this->expectEqual(name + std::to_string(weights.r) + " without curve", picture, look);
        }
    }
}

TYPED_TEST(CpuRendererTest, VignetteWithoutRadiusIsBlackAlsoAtItsCentre)
{
    reference::Look look{strongParameters(), true, false, false, false, true};
    look.parameters.get<VignetteFilter>().shape = {{50.5F, 50.5F, 0}, 50, 0};
    EXPECT_EQ(cpuRender(randomPicture<TypeParam>(100, 100), look).values, Pixels<TypeParam>(100, 100).values);
}

TYPED_TEST(CpuRendererTest, CurveAndWeightsOfAnySizeMatchTheReference)
{
    reference::Look look{strongParameters(), true, true, true, true, true};
    look.parameters.get<CurveFilter>().curve = {0.9F, 0.1F, 0.7F};
    look.parameters.get<GrainFilter>().weights = {0.4F};
    this->expectEqual("short curve", randomPicture<TypeParam>(67, 41), look);
}

TYPED_TEST(CpuRendererTest, EmptyCurveIsBlack)
{
    reference::Look look{strongParameters(), true, true, false, false, false};
    look.parameters.get<CurveFilter>().curve.clear();
    EXPECT_EQ(cpuRender(randomPicture<TypeParam>(5, 4), look).values, Pixels<TypeParam>(5, 4).values);
}

TYPED_TEST(CpuRendererTest, AlphaIsUnchangedAndDoesNotAffectTheColours)
{
    const auto withAlpha = randomPicture<TypeParam>(521, 33, 4);
    Pixels<TypeParam> colours(521, 33);
    for (std::size_t i = 0; i < colours.values.size(); ++i) {
        colours.values[i] = withAlpha.values[i / 3 * 4 + i % 3];
    }
    for (const auto &[name, look] : everyFilterAloneAndAllTogether()) {
        const auto actual = cpuRender(withAlpha, look);
        const auto expected = referenceRender(colours, look);
        for (int y = 0; y < actual.height; ++y) {
            for (int x = 0; x < actual.width; ++x) {
                for (int c = 0; c < 3; ++c) {
                    ASSERT_EQ(actual.at(x, y, c), expected.at(x, y, c)) << name << ' ' << x << ' ' << y;
                }
                ASSERT_EQ(actual.at(x, y, 3), withAlpha.at(x, y, 3)) << name << ' ' << x << ' ' << y;
            }
        }
    }
}

TYPED_TEST(CpuRendererTest, OneEnabledFilterRunsTheMixerInstead)
{
    const auto picture = randomPicture<TypeParam>(67, 41);
    const auto mixed = referenceRender(picture, {strongParameters(), true, false, false, false, false});
    EXPECT_EQ(cpuRender(picture, {strongParameters(), false, true, false, false, false}).values, mixed.values);
    EXPECT_EQ(cpuRender(picture, {strongParameters(), false, false, false, false, true}).values, mixed.values);
}

TYPED_TEST(CpuRendererTest, MixerRunsBeforeOtherFiltersEvenIfDisabled)
{
    this->expectEqual("mixer off", randomPicture<TypeParam>(67, 41),
                      {strongParameters(), false, true, false, true, false});
}

TYPED_TEST(CpuRendererTest, ImageIsUnchangedIfNoFilterIsEnabled)
{
    const auto picture = randomPicture<TypeParam>(5, 4);
    EXPECT_EQ(cpuRender(picture, {strongParameters(), false, false, false, false, false}).values, picture.values);
}

TYPED_TEST(CpuRendererTest, EmptyImageStaysEmpty)
{
    const reference::Look look{strongParameters(), true, true, true, true, true};
    EXPECT_TRUE(cpuRender(Pixels<TypeParam>(0, 0), look).values.empty());
    EXPECT_TRUE(cpuRender(Pixels<TypeParam>(5, 0), look).values.empty());
    EXPECT_TRUE(cpuRender(Pixels<TypeParam>(0, 5), look).values.empty());
}

TYPED_TEST(CpuRendererTest, InvalidParametersLeaveAlphaUnchanged)
{
    const auto picture = randomPicture<TypeParam>(67, 41, 4);
    for (const FilterParameters &parameters : invalidParameters()) {
        for (const auto &[name, look] : everyFilterAloneAndAllTogether()) {
            reference::Look invalid = look;
            invalid.parameters = parameters;
            const auto actual = cpuRender(picture, invalid);
            for (std::size_t i = 3; i < actual.values.size(); i += 4) {
                ASSERT_EQ(actual.values[i], picture.values[i]) << name;
            }
        }
    }
}

} // namespace grisal::test
