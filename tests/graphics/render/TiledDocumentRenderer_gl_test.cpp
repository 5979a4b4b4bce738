// SPDX-License-Identifier: MIT
#include "graphics/render/TiledDocumentRenderer.h"

#include "graphics/document/Document.h"
#include "graphics/document/FlexibleDocumentView.h"
#include "graphics/filters/CurveFilter.h"
#include "graphics/filters/MixerFilter.h"
#include "graphics/filters/VignetteFilter.h"
#include "tests/support/GlTest.h"
#include "tests/support/HalfFloats.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PictureCompare.h"

#include <QRegularExpression>

#include <cmath>

namespace
{

using namespace grisal::graphics;
using namespace grisal::test;

constexpr TileFormats byteFormats{GL_RGB, GL_UNSIGNED_BYTE, GL_RGB8};
constexpr TileFormats sixteenBitFormats{GL_RGB, GL_UNSIGNED_SHORT, GL_RGB16F};

/// Counts its passes and renders the source at half its brightness.
class DarkeningFilter : public MixerFilter
{
public:
    DarkeningFilter() { weights = {0.5F, 0, 0}; }

    void apply(GLuint source, const FramebufferObject &target) override
    {
        ++passes;
        MixerFilter::apply(source, target);
    }

    int passes = 0;
};

class TiledDocumentRendererTest : public GlTest
{
protected:
    void SetUp() override
    {
        GlTest::SetUp();
        if (!IsSkipped() && !HasFatalFailure()) {
            view = std::make_unique<FlexibleDocumentView>(8, 8, 8, 8, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE);
        }
    }

    void TearDown() override
    {
        view.reset();
        GlTest::TearDown();
    }

    template <typename T>
    Pixels<T> render(const Pixels<T> &source, const std::vector<IFilter *> &filters, const TileFormats &formats)
    {
        DocumentFilterQueue queue;
        for (IFilter *filter : filters) {
            queue.add(filter);
        }
        Document document(0, &queue);
        document.setView(view.get());

        Pixels<T> pixels = source;
        const ImageBuffer buffer{pixels.values.data(), static_cast<std::uint32_t>(source.width),
                                 static_cast<std::uint32_t>(source.height), 1, 1};
        const TileSide horizontal = planTileSide(buffer.width);
        const TileSide vertical = planTileSide(buffer.height);
        for (IFilter *filter : filters) {
            filter->width = static_cast<int>(horizontal.tile);
            filter->height = static_cast<int>(vertical.tile);
        }
        TiledDocumentRenderer renderer(source.components == 4, horizontal, vertical, formats, buffer);
        EXPECT_TRUE(renderer.render(document));
        EXPECT_EQ(queue.filters(), filters) << "the queue was changed";
        const ImageBuffer *output = renderer.output();
        if (output == nullptr) {
            return {};
        }
        EXPECT_EQ(output->width, buffer.width);
        EXPECT_EQ(output->height, buffer.height);
        const auto *values = static_cast<const T *>(output->pixels);
        return {source.width, source.height, source.components, {values, values + source.values.size()}};
    }

    std::unique_ptr<FlexibleDocumentView> view;
};

/// The result of a mixer with the weight of red only.
template <typename T>
Pixels<T> redAsGrey(Pixels<T> picture)
{
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            picture.at(x, y, 1) = picture.at(x, y, 0);
            picture.at(x, y, 2) = picture.at(x, y, 0);
        }
    }
    return picture;
}

struct Size {
    int width;
    int height;
};

class TiledSizes : public TiledDocumentRendererTest, public testing::WithParamInterface<Size>
{
};

// One tile, four side by side, four one above the other, sixteen; with and without padding.
INSTANTIATE_TEST_SUITE_P(Pictures, TiledSizes,
                         testing::Values(Size{1, 1}, Size{3, 2}, Size{2, 3}, Size{5, 1}, Size{1, 5}, Size{1001, 3},
                                         Size{3, 1003}, Size{1003, 2}, Size{2047, 2}, Size{2048, 3}, Size{2049, 5},
                                         Size{3, 2049}, Size{2054, 1}, Size{7, 2055}, Size{2055, 2049}),
                         [](const auto &test) {
                             return std::to_string(test.param.width) + "x" + std::to_string(test.param.height);
                         });

TEST_P(TiledSizes, EightBitImagesAreExact)
{
    const auto source = rampPicture<std::uint8_t>(GetParam().width, GetParam().height);
    MixerFilter mixer;
    mixer.weights = {1, 0, 0};
    mixer.enabled = true;
    EXPECT_TRUE(picturesNear("8 bits", render(source, {&mixer}, byteFormats), redAsGrey(source)));
}

TEST_P(TiledSizes, SixteenBitImagesAreRoundedToHalfFloats)
{
    const auto source = rampPicture<std::uint16_t>(GetParam().width, GetParam().height);
    MixerFilter mixer;
    mixer.weights = {1, 0, 0};
    mixer.enabled = true;
    Samples16Image expected = redAsGrey(source);
    for (std::uint16_t &value : expected.values) {
        value = throughHalfFloat(value);
    }
    // At the upload llvmpipe rounds to the nearest half float; another driver may be one half float away, half of one
    // on average.
    const double limit = isLlvmpipe() ? 0 : halfFloatStep;
    EXPECT_TRUE(picturesNear("16 bits", render(source, {&mixer}, sixteenBitFormats), expected, {limit, limit / 2}));
}

TEST_F(TiledDocumentRendererTest, AlphaOfTheSourceIsKept)
{
    const auto source = rampPicture<std::uint8_t>(2049, 3, 4);
    MixerFilter mixer;
    mixer.weights = {1, 0, 0};
    mixer.enabled = true;
    EXPECT_TRUE(picturesNear("alpha", render(source, {&mixer}, byteFormats), redAsGrey(source)));
}

TEST_F(TiledDocumentRendererTest, ResultIsTheSourceWithoutEnabledFilters)
{
    const auto source = rampPicture<std::uint16_t>(5, 3, 4);
    DarkeningFilter filter;
    EXPECT_TRUE(picturesNear("no filter", render(source, {&filter}, sixteenBitFormats), source));
    EXPECT_EQ(filter.passes, 0);
}

TEST_F(TiledDocumentRendererTest, ResultIsTheSourceForAnEmptyQueue)
{
    const auto source = rampPicture<std::uint8_t>(5, 3);
    EXPECT_TRUE(picturesNear("empty queue", render(source, {}, byteFormats), source));
}

// If one filter is enabled, the first of the queue runs, whichever is enabled. In the program this is the mixer, which
// is always enabled.
TEST_F(TiledDocumentRendererTest, WithOneEnabledFilterTheFirstOfTheQueueRuns)
{
    DarkeningFilter first;
    DarkeningFilter second;
    second.enabled = true;
    render(rampPicture<std::uint8_t>(4, 4), {&first, &second}, byteFormats);
    EXPECT_EQ(first.passes, 1);
    EXPECT_EQ(second.passes, 0);
}

// An enabled first filter runs twice in the preview but once in the final render: saved images depend on it.
TEST_F(TiledDocumentRendererTest, FirstFilterRunsOncePerTile)
{
    DarkeningFilter first;
    DarkeningFilter second;
    first.enabled = true;
    second.enabled = true;
    const BytePixels white(4, 4, 3, std::vector<std::uint8_t>(48, 255));
    const BytePixels result = render(white, {&first, &second}, byteFormats);
    EXPECT_EQ(first.passes, 1);
    EXPECT_EQ(second.passes, 1);
    EXPECT_EQ(result.at(0, 0, 0), 64);
}

TEST_F(TiledDocumentRendererTest, FirstFilterRunsEvenIfDisabled)
{
    DarkeningFilter first;
    DarkeningFilter second;
    DarkeningFilter third;
    second.enabled = true;
    third.enabled = true;
    render(rampPicture<std::uint8_t>(4, 4), {&first, &second, &third}, byteFormats);
    EXPECT_EQ(first.passes, 1);
    EXPECT_EQ(second.passes, 1);
    EXPECT_EQ(third.passes, 1);
}

TEST_F(TiledDocumentRendererTest, DisabledFiltersInBetweenDoNotRun)
{
    DarkeningFilter first;
    DarkeningFilter second;
    DarkeningFilter third;
    first.enabled = true;
    third.enabled = true;
    render(rampPicture<std::uint8_t>(4, 4), {&first, &second, &third}, byteFormats);
    EXPECT_EQ(second.passes, 0);
}

TEST_F(TiledDocumentRendererTest, UnknownPixelTypeGivesNoResult)
{
    DarkeningFilter filter;
    filter.enabled = true;
    const auto source = rampPicture<std::uint8_t>(4, 4);
    EXPECT_TRUE(render(source, {&filter}, {GL_RGB, GL_FLOAT, GL_RGB32F}).values.empty());
    EXPECT_EQ(filter.passes, 0);
}

/// Independent computation of the vignette: a mask over the padded size, the overlay on a scale of 0..255.
float darkened(float value, int x, int y, int width, int height)
{
    const TileSide horizontal = planTileSide(static_cast<std::uint32_t>(width));
    const TileSide vertical = planTileSide(static_cast<std::uint32_t>(height));
    const auto w = static_cast<float>(horizontal.padded);
    const auto h = static_cast<float>(vertical.padded);
    const float distance =
        std::hypot(w * 0.3F - (static_cast<float>(x) + 0.5F), h * 0.2F - (static_cast<float>(y) + 0.5F));
    const float mask = 0.6F * distance / (0.9F * (w + h) * 0.5F);
    const float scaled = value * 255.0F;
    return ((1 - mask) * scaled + mask * scaled * scaled * 0.0039F) * 0.0039F;
}

TEST_P(TiledSizes, VignetteSpansAllTiles)
{
    const auto source = rampPicture<std::uint8_t>(GetParam().width, GetParam().height);
    MixerFilter mixer;
    mixer.weights = {1, 0, 0};
    mixer.enabled = true;
    VignetteFilter vignette;
    vignette.enabled = true;
    vignette.parameters.center = {30, 20, 0};
    vignette.parameters.strength = 60;
    vignette.parameters.radius = 90;

    BytePixels expected = redAsGrey(source);
    for (int y = 0; y < source.height; ++y) {
        for (int x = 0; x < source.width; ++x) {
            const float grey = static_cast<float>(source.at(x, y, 0)) / 255.0F;
            const float dark = darkened(grey, x, y, source.width, source.height);
            for (int c = 0; c < 3; ++c) {
                expected.at(x, y, c) = static_cast<std::uint8_t>(std::lround(dark * 255.0F));
            }
        }
    }
    EXPECT_TRUE(picturesNear("vignette", render(source, {&mixer, &vignette}, byteFormats), expected, {1, 0}));
}

TEST_F(TiledDocumentRendererTest, DisabledVignetteStaysInTheQueueWithoutEffect)
{
    const LogCapture log;
    const auto source = rampPicture<std::uint8_t>(5, 4);
    MixerFilter mixer;
    mixer.weights = {1, 0, 0};
    mixer.enabled = true;
    VignetteFilter vignette;
    EXPECT_TRUE(picturesNear("disabled", render(source, {&mixer, &vignette}, byteFormats), redAsGrey(source)));
    EXPECT_TRUE(log.contains("(INFO) Active Filters:  1"));
    EXPECT_TRUE(log.contains("(INFO) Total Filters:   2"));
}

// The first vignette of the queue is replaced by the overlay, enabled or not; the program has only one.
TEST_F(TiledDocumentRendererTest, OverlayReplacesTheFirstVignetteOnly)
{
    const LogCapture log;
    MixerFilter mixer;
    mixer.enabled = true;
    VignetteFilter first;
    VignetteFilter second;
    second.enabled = true;
    render(rampPicture<std::uint8_t>(4, 4), {&mixer, &first, &second}, byteFormats);
    EXPECT_TRUE(log.contains("(INFO) Active Filters:  3")) << "mixer, overlay and the second vignette";
}

TEST_F(TiledDocumentRendererTest, TilesAreRenderedColumnByColumn)
{
    const LogCapture log;
    MixerFilter mixer;
    mixer.enabled = true;
    render(rampPicture<std::uint8_t>(2049, 2049), {&mixer}, byteFormats);
    QStringList expected;
    for (int h = 0; h < 4; ++h) {
        for (int v = 0; v < 4; ++v) {
            expected << QStringLiteral("(INFO) iX:  %1").arg(v) << QStringLiteral("(INFO) iY:  %1").arg(h);
        }
    }
    EXPECT_EQ(log.debugs().filter(QRegularExpression(QStringLiteral("i[XY]: "))), expected);
}

TEST_F(TiledDocumentRendererTest, TooLargeTilesGiveNoResult)
{
    const LogCapture log;
    MixerFilter mixer;
    mixer.enabled = true;
    DocumentFilterQueue queue;
    queue.add(&mixer);
    Document document(0, &queue);
    document.setView(view.get());
    auto source = rampPicture<std::uint8_t>(4, 4);
    constexpr std::uint32_t tooLong = 1U << 20U;
    TiledDocumentRenderer renderer(false, {tooLong, tooLong}, {4, 4}, byteFormats, {source.values.data(), 4, 4, 1, 1});
    renderer.render(document);
    EXPECT_EQ(renderer.output(), nullptr);
    EXPECT_FALSE(log.warnings().isEmpty());
    clearGlErrors();
}

TEST_F(TiledDocumentRendererTest, LogsEveryStepOfAnEightBitTile)
{
    const LogCapture log;
    MixerFilter mixer;
    mixer.enabled = true;
    render(rampPicture<std::uint8_t>(5, 3), {&mixer}, byteFormats);
    EXPECT_EQ(log.debugs().join('\n').toStdString(), "(INFO) Raw Image Width:  5\n"
                                                     "(INFO) Raw Image Height:  3\n"
                                                     "(INFO) Max Texture Width:  8\n"
                                                     "(INFO) Max Texture Height:  8\n"
                                                     "(INFO) Tile Width:  8\n"
                                                     "(INFO) Tile Height:  8\n"
                                                     "(INFO) Begin tiled rendering\n"
                                                     "(INFO) GL_RGB8 output image requested\n"
                                                     "(INFO) Copied original image to intermediate buffer\n"
                                                     "(INFO) Finished tile generation\n"
                                                     "(INFO) Buffers requested\n"
                                                     "(INFO) Buffers initialized\n"
                                                     "\"(INFO) Finished all preprocesses\"\n"
                                                     "(INFO) Start rendering\n"
                                                     "(INFO) Number of tiles:  1\n"
                                                     "(INFO) H Tiles:  1\n"
                                                     "(INFO) V Tiles:  1\n"
                                                     "(INFO) Begin Rendering Loop\n"
                                                     "(INFO) iX:  0\n"
                                                     "(INFO) iY:  0\n"
                                                     "(INFO) Data:  true\n"
                                                     "(INFO) Tile Texture initialized\n"
                                                     "(INFO) Active Filters:  1\n"
                                                     "(INFO) Total Filters:   1\n"
                                                     "(INFO) Now rendering\n"
                                                     "(INFO) Copy Tile\n"
                                                     "Rendering...\n"
                                                     "(INFO) Copy to final image\n"
                                                     "Finishing\n"
                                                     "Finished");
}

TEST_F(TiledDocumentRendererTest, LogsFewerStepsOfSixteenBitTiles)
{
    const LogCapture log;
    MixerFilter mixer;
    mixer.enabled = true;
    render(rampPicture<std::uint16_t>(5, 2049), {&mixer}, sixteenBitFormats);
    EXPECT_TRUE(log.contains("(INFO) GL_RGB16 output image requested"));
    EXPECT_TRUE(log.contains("(INFO) Tiles requested"));
    EXPECT_TRUE(log.contains("(INFO) V Tiles:  4"));
    EXPECT_TRUE(log.contains("(INFO) iX:  3")) << "the label names the other axis";
    EXPECT_FALSE(log.contains("(INFO) Now rendering"));
    EXPECT_FALSE(log.contains("(INFO) Copy Tile"));
    EXPECT_FALSE(log.contains("Rendering..."));
}

} // namespace
