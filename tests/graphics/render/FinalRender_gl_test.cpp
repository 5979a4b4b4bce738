// SPDX-License-Identifier: MIT
#include "graphics/render/FinalRender.h"

#include "graphics/document/FlexibleDocumentView.h"
#include "graphics/filters/FilterSet.h"
#include "graphics/filters/NoiseMap.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlTest.h"
#include "tests/support/Images.h"
#include "tests/support/InvalidParameters.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/QueueOrder.h"

#include <memory>

namespace
{

using namespace grisal::graphics;
using namespace grisal::test;

class FinalRenderTest : public GlTest
{
protected:
    void SetUp() override
    {
        GlTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        view = std::make_unique<FlexibleDocumentView>(8, 8, 8, 8, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE);
        filters = std::make_unique<FilterSet>();
        filters->get<MixerFilter>().enabled = true;
    }

    void TearDown() override
    {
        view.reset();
        filters.reset();
        GlTest::TearDown();
    }

    static BytePixels noiseOf(const GrainFilter &grain)
    {
        return readBytes(grain.blurredNoise()->record(), noiseMapSide, noiseMapSide);
    }

    template <typename T>
    bool render(Pixels<T> &image, const FilterParameters &with)
    {
        return changeInPlace(image, [&](Image &full) { return renderFinalImage(full, with, *filters, *view); });
    }

    template <typename T>
    Pixels<T> rendered(Pixels<T> image, const FilterParameters &with)
    {
        EXPECT_TRUE(render(image, with));
        return image;
    }

    /// Renders an image of four tiles with invalid parameters, and with valid ones before and after.
    template <typename T>
    void expectInvalidParametersToLeaveAlphaAndTheNextRender()
    {
        filters->get<CurveFilter>().enabled = filters->get<HalfToneFilter>().enabled = true;
        filters->get<GrainFilter>().enabled = filters->get<VignetteFilter>().enabled = true;
        parameters.get<GrainFilter>().weights = QVector<float>(256, 0.5F);
        const auto source = rampPicture<T>(2055, 6, 4);
        const Pixels<T> before = rendered(source, parameters);
        for (const FilterParameters &invalid : invalidParameters()) {
            const Pixels<T> result = rendered(source, invalid);
            for (std::size_t i = 3; i < source.values.size(); i += 4) {
                ASSERT_EQ(result.values[i], source.values[i]) << "alpha " << i;
            }
            EXPECT_TRUE(picturesNear("after invalid parameters", rendered(source, parameters), before));
        }
    }

    std::unique_ptr<FlexibleDocumentView> view;
    std::unique_ptr<FilterSet> filters;
    FilterParameters parameters;
};

// Saved images have always been rendered in this order; the preview has the opposite one.
TEST_F(FinalRenderTest, QueueHasSplitToningBeforeTheGrain)
{
    expectInOrder(filters->finalOrder(),
                  {"MixerFilter", "CurveFilter", "HalfToneFilter", "GrainFilter", "VignetteFilter"});
}

TEST_F(FinalRenderTest, RendersInPlaceWithTheParameters)
{
    BytePixels picture(2, 1, 3, {200, 0, 0, 0, 100, 0});
    parameters.get<MixerFilter>().weights = {0.5F, 1, 0};
    EXPECT_TRUE(render(picture, parameters));
    EXPECT_EQ(picture.values, (std::vector<std::uint8_t>{100, 100, 100, 100, 100, 100}));
}

TEST_F(FinalRenderTest, KeepsTheFourthComponent)
{
    Samples16Image picture(1, 2, 4, {65535, 0, 0, 7, 0, 65535, 0, 60000});
    parameters.get<MixerFilter>().weights = {1, 0, 0};
    EXPECT_TRUE(render(picture, parameters));
    EXPECT_EQ(picture.values, (std::vector<std::uint16_t>{65535, 65535, 65535, 7, 0, 0, 0, 60000}));
}

TEST_F(FinalRenderTest, KeepsThePixelsWithoutEnabledFilters)
{
    filters->get<MixerFilter>().enabled = false;
    BytePixels picture(2, 1, 3, {1, 2, 3, 4, 5, 6});
    EXPECT_TRUE(render(picture, parameters));
    EXPECT_EQ(picture.values, (std::vector<std::uint8_t>{1, 2, 3, 4, 5, 6}));
}

TEST_F(FinalRenderTest, RestoresTheSizesOfTheFilters)
{
    filters->setSize(12, 8);
    filters->setImageSize(12, 8);
    BytePixels picture = rampPicture<std::uint8_t>(2049, 5);
    EXPECT_TRUE(render(picture, parameters));
    EXPECT_EQ(filters->get<MixerFilter>().width, 12);
    EXPECT_EQ(filters->get<GrainFilter>().height, 8);
    EXPECT_EQ(filters->get<VignetteFilter>().maxWidth, 12);
    EXPECT_EQ(filters->get<VignetteFilter>().maxHeight, 8);
}

TEST_F(FinalRenderTest, LogsSizesPlanAndValueRange)
{
    const LogCapture log;
    BytePixels picture(2, 1, 3, {200, 200, 200, 40, 40, 40});
    parameters.get<MixerFilter>().weights = {1, 0, 0};
    render(picture, parameters);
    const QStringList lines = log.debugs();
    EXPECT_EQ(lines.mid(0, 7).join('\n').toStdString(), "X:  2\n"
                                                        "Y:  1\n"
                                                        "(INFO) Calculated Width:  4\n"
                                                        "(INFO) Calculated Height:  4\n"
                                                        "(INFO) Tile Width:  4\n"
                                                        "(INFO) Tile Height:  4\n"
                                                        "HalfTone Weight:  1");
    EXPECT_EQ(lines.mid(lines.size() - 2).join('\n').toStdString(), "Final vmin:  40\nFinal vmax:  200");
}

// The weight is logged before the parameters are set on the filters, so it is that of the previous image.
TEST_F(FinalRenderTest, LogsTheFormerWeightOfTheSplitTone)
{
    filters->get<HalfToneFilter>().weight = 0.75F;
    parameters.get<HalfToneFilter>().weight = 1.25F;
    const LogCapture log;
    BytePixels picture(1, 1, 3, {1, 2, 3});

    render(picture, parameters);

    EXPECT_EQ(log.debugs().filter("HalfTone"), QStringList{"HalfTone Weight:  0.75"});
    EXPECT_EQ(filters->get<HalfToneFilter>().weight, 1.25F);
}

TEST_F(FinalRenderTest, BlursTheNoiseWithTheRadiusOfThePanel)
{
    GrainFilter expected;
    expected.setSigma(2.5F);
    filters->get<GrainFilter>().setSigma(1);
    BytePixels picture(1, 1, 3, {1, 2, 3});
    parameters.get<GrainFilter>().radius = 2.5F;
    render(picture, parameters);
    EXPECT_EQ(filters->get<GrainFilter>().sigma(), 2.5F);
    EXPECT_EQ(noiseOf(filters->get<GrainFilter>()).values, noiseOf(expected).values);
}

TEST_F(FinalRenderTest, InvalidParametersAffectNeitherAlphaNorTheNext8BitRender)
{
    expectInvalidParametersToLeaveAlphaAndTheNextRender<std::uint8_t>();
}

TEST_F(FinalRenderTest, InvalidParametersAffectNeitherAlphaNorTheNext16BitRender)
{
    expectInvalidParametersToLeaveAlphaAndTheNextRender<std::uint16_t>();
}

TEST_F(FinalRenderTest, NegativeMixerWeightsGiveBlack)
{
    parameters.get<MixerFilter>().weights = {-1, -0.5F, -0.01F};
    EXPECT_TRUE(
        picturesNear("negative bytes", rendered(rampPicture<std::uint8_t>(12, 8), parameters), BytePixels(12, 8)));
    EXPECT_TRUE(picturesNear("negative 16 bits", rendered(rampPicture<std::uint16_t>(12, 8), parameters),
                             Samples16Image(12, 8)));
}

TEST_F(FinalRenderTest, VignetteWithoutRadiusIsBlack)
{
    filters->get<VignetteFilter>().enabled = true;
    parameters.get<VignetteFilter>().shape.radius = 0;
    EXPECT_TRUE(picturesNear("bytes", rendered(rampPicture<std::uint8_t>(12, 8), parameters), BytePixels(12, 8)));
    EXPECT_TRUE(
        picturesNear("16 bits", rendered(rampPicture<std::uint16_t>(12, 8), parameters), Samples16Image(12, 8)));
}

// Half floats can represent values above 1 and infinity.
TEST_F(FinalRenderTest, CurveSamplesBeyondTheScaleAreClampedIn16Bits)
{
    filters->get<CurveFilter>().enabled = true;
    parameters.get<MixerFilter>().weights = {1, 0, 0};
    parameters.get<CurveFilter>().curve = {-1, 2, infinity, -infinity};
    const Samples16Image reds(4, 1, 3, {8000, 0, 0, 24000, 0, 0, 40000, 0, 0, 56000, 0, 0});
    EXPECT_EQ(rendered(reds, parameters).values,
              (std::vector<std::uint16_t>{0, 0, 0, 65535, 65535, 65535, 65535, 65535, 65535, 0, 0, 0}));
}

} // namespace
