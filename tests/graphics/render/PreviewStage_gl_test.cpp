// SPDX-License-Identifier: MIT
#include "graphics/render/PreviewStage.h"

#include "graphics/filters/FilterSet.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlTest.h"
#include "tests/support/Images.h"
#include "tests/support/PictureCompare.h"

#include <algorithm>
#include <memory>

namespace
{

using namespace grisal::graphics;
using namespace grisal::test;

class PreviewStageTest : public GlTest
{
protected:
    void SetUp() override
    {
        GlTest::SetUp();
        if (!IsSkipped() && !HasFatalFailure()) {
            stage = std::make_unique<PreviewStage>();
        }
    }

    void TearDown() override
    {
        stage.reset();
        GlTest::TearDown();
    }

    void load(const BytePixels &picture)
    {
        const Image image = imageOf(picture);
        stage->load(image, pixelFormatsFor(image), 100, 100);
    }

    bool renderFinal(BytePixels &picture)
    {
        return changeInPlace(picture, [this](Image &image) { return stage->renderFinal(image); });
    }

    BytePixels shown(int width, int height)
    {
        stage->preview()->render();
        return readTexture(stage->preview()->output(), width, height);
    }

    std::unique_ptr<PreviewStage> stage;
};

TEST_F(PreviewStageTest, HasNoPreviewAndNoFiltersBeforeTheFirstLoad)
{
    EXPECT_EQ(stage->preview(), nullptr);
    EXPECT_EQ(stage->filters(), nullptr);
    BytePixels pixel(1, 1, 3, {1, 2, 3});
    EXPECT_FALSE(renderFinal(pixel));
    EXPECT_EQ(pixel.values, (std::vector<std::uint8_t>{1, 2, 3}));
}

TEST_F(PreviewStageTest, FinalRenderFailsWithoutPixels)
{
    load(rampPicture<std::uint8_t>(4, 4));
    Image empty;
    EXPECT_FALSE(stage->renderFinal(empty));
    Image withoutWidth = Image16(0, 4);
    EXPECT_FALSE(stage->renderFinal(withoutWidth));
}

TEST_F(PreviewStageTest, LoadEnablesOnlyTheMixer)
{
    load(rampPicture<std::uint8_t>(4, 4));
    const FilterSet &filters = *stage->filters();
    stage->filters()->get<CurveFilter>().enabled = true;
    stage->filters()->get<MixerFilter>().enabled = false;
    load(rampPicture<std::uint8_t>(8, 4));
    EXPECT_TRUE(filters.get<MixerFilter>().enabled);
    EXPECT_FALSE(filters.get<CurveFilter>().enabled);
    EXPECT_FALSE(filters.get<HalfToneFilter>().enabled);
    EXPECT_FALSE(filters.get<GrainFilter>().enabled);
    EXPECT_FALSE(filters.get<VignetteFilter>().enabled);
    EXPECT_EQ(filters.get<CurveFilter>().width, 8);
    EXPECT_EQ(filters.get<VignetteFilter>().maxWidth, 8);
}

TEST_F(PreviewStageTest, ParametersSetBeforeTheFirstLoadAreApplied)
{
    stage->set<MixerFilter>({{0.1F, 0.2F, 0.3F}});
    stage->set<VignetteFilter>({{{10, 20, 0}, 40, 30}, true});
    stage->set<HalfToneFilter>({0.8F, {1, 0, 0}, {0, 1, 0}});
    load(rampPicture<std::uint8_t>(4, 4));
    const FilterSet &filters = *stage->filters();
    EXPECT_EQ(filters.get<MixerFilter>().weights, (ColorRGB<float>{0.1F, 0.2F, 0.3F}));
    EXPECT_EQ(filters.get<VignetteFilter>().parameters.center.y, 20);
    EXPECT_EQ(filters.get<VignetteFilter>().parameters.radius, 30);
    EXPECT_EQ(filters.get<VignetteFilter>().parameters.strength, 40);
    EXPECT_EQ(filters.get<HalfToneFilter>().weight, 0.8F);
    EXPECT_EQ(filters.get<HalfToneFilter>().secondColor, (ColorRGB<float>{0, 1, 0}));
}

TEST_F(PreviewStageTest, LoadBlursTheNoiseAtThreeAndSetGrainAtItsRadius)
{
    load(rampPicture<std::uint8_t>(4, 4));
    EXPECT_EQ(stage->filters()->get<GrainFilter>().sigma(), 3.0F);
    stage->setGrain({QVector<float>(256, 1.0F), 0.5F});
    EXPECT_EQ(stage->filters()->get<GrainFilter>().sigma(), 0.5F);
}

// An enabled mixer runs on the source and again on its own result. This is invisible for weights with sum 1; with
// others the preview is brighter or darker than the file, as it has always been.
TEST_F(PreviewStageTest, MixerRunsTwiceInThePreviewAndOnceInTheFile)
{
    BytePixels white(4, 4, 3, std::vector<std::uint8_t>(48, 255));
    load(white);
    stage->set<MixerFilter>({{0.5F, 0, 0}});
    EXPECT_EQ(shown(4, 4).at(0, 0, 0), 64);
    EXPECT_TRUE(renderFinal(white));
    EXPECT_EQ(white.at(0, 0, 0), 128);
}

TEST_F(PreviewStageTest, PreviewOf2250PixelsIsExact)
{
    const auto picture = rampPicture<std::uint8_t>(2250, 3);
    load(picture);
    stage->set<MixerFilter>({{1, 0, 0}});
    BytePixels expected = picture;
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 2250; ++x) {
            expected.at(x, y, 1) = expected.at(x, y, 2) = picture.at(x, y, 0);
        }
    }
    EXPECT_TRUE(picturesNear("2250 wide", shown(2250, 3), expected));
}

TEST_F(PreviewStageTest, SixteenBitPreviewAcceptsSixteenBitSamples)
{
    Image16 image(2, 1);
    image.samples = {65535, 0, 0, 32896, 0, 0};
    stage->load(image, pixelFormatsFor(image), 10, 10);
    stage->set<MixerFilter>({{1, 0, 0}});
    EXPECT_EQ(shown(2, 1).values, (std::vector<std::uint8_t>{255, 255, 255, 128, 128, 128}));
}

/// The number of existing textures, framebuffers, renderbuffers and programs. Names are assigned in ascending order, so
/// a new one limits the search.
int liveObjects()
{
    const RenderTarget newest(1, 1, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    const GLuint program = glCreateProgram();
    const FramebufferObject &names = newest.record();
    int count = 0;
    for (GLuint name = 1; name <= std::max({names.texture, names.framebuffer, names.renderbuffer, program}); ++name) {
        count += glIsTexture(name) + glIsFramebuffer(name) + glIsRenderbuffer(name) + glIsProgram(name);
    }
    glDeleteProgram(program);
    constexpr int madeToCount = 4;
    return count - madeToCount;
}

TEST_F(PreviewStageTest, ThousandSliderMovesLeakNoGlObjects)
{
    load(rampPicture<std::uint8_t>(4, 4));
    stage->setGrain({QVector<float>(256, 0.5F), 0.1F});
    const int before = liveObjects();
    const QVector<float> values(256, 0.5F);
    for (int i = 0; i < 1000; ++i) {
        stage->filters()->get<CurveFilter>().setCurve(values);
        stage->filters()->get<GrainFilter>().setWeights(values);
    }
    EXPECT_EQ(liveObjects(), before);
}

TEST_F(PreviewStageTest, FiftyImagesLeakNoGlObjects)
{
    const auto picture = rampPicture<std::uint8_t>(64, 64);
    load(picture);
    const int before = liveObjects();
    for (int i = 0; i < 50; ++i) {
        load(picture);
    }
    EXPECT_EQ(liveObjects(), before);
}

TEST_F(PreviewStageTest, SavingLeaksNoGlObjects)
{
    load(rampPicture<std::uint8_t>(8, 8));
    stage->filters()->get<VignetteFilter>().enabled = true;
    auto picture = rampPicture<std::uint8_t>(9, 7);
    // The first save creates the objects that the filters keep.
    EXPECT_TRUE(renderFinal(picture));
    const int before = liveObjects();
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(renderFinal(picture));
    }
    EXPECT_EQ(liveObjects(), before);
}

TEST_F(PreviewStageTest, ReleaseDeletesAllGlObjects)
{
    const int before = liveObjects();
    load(rampPicture<std::uint8_t>(8, 8));
    stage->release();
    EXPECT_EQ(liveObjects(), before);
}

} // namespace
