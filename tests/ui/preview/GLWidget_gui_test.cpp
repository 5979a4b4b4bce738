// SPDX-License-Identifier: MIT
#include "tests/ui/preview/GLWidgetTest.h"

#include "graphics/filters/IFilter.h"
#include "tests/support/LogCapture.h"

#include <cmath>

#include <array>

namespace
{

using namespace grisal::test;
using grisal::graphics::CurveFilter;
using grisal::graphics::GrainFilter;
using grisal::graphics::VignetteFilter;

/// The painted pixel at a position measured from the lower left. Makes the context of the widget current.
std::array<GLubyte, 4> paintedAt(GLWidget &widget, int x, int y)
{
    widget.makeCurrent();
    glBindFramebuffer(GL_FRAMEBUFFER, widget.defaultFramebufferObject());
    std::array<GLubyte, 4> pixel{1, 1, 1, 1};
    glReadPixels(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel.data());
    return pixel;
}

TEST_F(GLWidgetTest, ScreenShowsTheOutputOfTheRenderer)
{
    showPictureAtOneToOne();
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
}

TEST_F(GLWidgetTest, ImageLoadedBeforeTheContextExistsIsShownLater)
{
    load(picture);
    EXPECT_EQ(widget.previewWidth(), 0);
    show();
    widget.slotActualPixels();
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
}

TEST_F(GLWidgetTest, ChangedParametersAreShownImmediately)
{
    showPictureAtOneToOne();
    widget.slotChangeMixer(0, 0, 0);
    EXPECT_TRUE(screenShows(centred(BytePixels(pictureWidth, pictureHeight))));
}

TEST_F(GLWidgetTest, ResizedWidgetShowsTheImage)
{
    showPictureAtOneToOne();
    widget.setGeometry(0, 0, 300, 260);
    EXPECT_TRUE(QTest::qWaitFor([this] { return qFuzzyCompare(widget.offset().x(), pixelSize().width() / 2.0); }));
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
}

// The pass of the grain leaves another texture unit active.

TEST_F(GLWidgetTest, PreviewIsShownAfterAGrainPass)
{
    showPictureAtOneToOne();
    widget.filter<GrainFilter>()->enabled = true;
    widget.renderImage();
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
    BytePixels full = rampPicture<std::uint8_t>(9, 7);
    EXPECT_TRUE(renderFinal(full));
    ASSERT_TRUE(repaintAndWait(widget));
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
}

// On Wayland a transparent margin would show the desktop behind it.
TEST_F(GLWidgetTest, MarginIsBlackAndOpaque)
{
    showPictureAtOneToOne();
    ASSERT_TRUE(screenShows(centred(redAsGrey(picture))));
    EXPECT_EQ(paintedAt(widget, 0, 0), (std::array<GLubyte, 4>{0, 0, 0, 255}));
}

// A tone curve also writes its values to the alpha channel.
TEST_F(GLWidgetTest, ImageWithAlphaIsOpaque)
{
    show();
    load(rampPicture<std::uint8_t>(pictureWidth, pictureHeight, 4));
    widget.slotActualPixels();
    widget.slotChangeCurves(QVector<float>(256, 0.6F));
    widget.filter<CurveFilter>()->enabled = true;
    widget.grabFramebuffer();
    const QSize middle = pixelSize() / 2;
    EXPECT_EQ(paintedAt(widget, middle.width(), middle.height()), (std::array<GLubyte, 4>{153, 153, 153, 255}));

    std::array<GLboolean, 4> written{};
    glGetBooleanv(GL_COLOR_WRITEMASK, written.data());
    EXPECT_EQ(written, (std::array<GLboolean, 4>{GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE}));
}

TEST_F(GLWidgetTest, SixteenBitImagesLogOtherFormats)
{
    show();
    const LogCapture log;
    widget.loadImage(grisal::graphics::Image16(8, 4, 4));
    EXPECT_EQ(log.debugs().mid(5, 3).join('\n').toStdString(), "Format Type(GL_RGB8):  false\n"
                                                               "Image Format(GL_RGB):  false\n"
                                                               "Element Type(GLUB):    false");
}

// A drag moves the view, so the image moves against the mouse; it does not show the source.

TEST_F(GLWidgetTest, PreviewSidesAreRoundedDownAndLargeImagesDownscaled)
{
    show();
    load(BytePixels(1001, 6));
    EXPECT_EQ(widget.previewWidth(), 1000);
    EXPECT_EQ(widget.previewHeight(), 4);
    load(BytePixels(9000, 6000));
    EXPECT_EQ(widget.previewWidth(), 2250);
    EXPECT_EQ(widget.previewHeight(), 1500);
}

TEST_F(GLWidgetTest, ImagesOfOneToThreePixelsAreShown)
{
    show(200, 160);
    for (int side = 1; side <= 3; ++side) {
        const BytePixels white(side, side, 3,
                               std::vector<std::uint8_t>(static_cast<std::size_t>(side * side * 3), 255));
        load(white);
        widget.slotFitTo(GLWidget::FitSmaller);
        ASSERT_TRUE(std::isfinite(widget.scale()));
        BytePixels shown;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            shown = grabScreen(widget);
            return shown.at(shown.width / 2, shown.height / 2, 0) == 255;
        })) << side;
    }
}

TEST_F(GLWidgetTest, NullBufferChangesNothing)
{
    showPictureAtOneToOne();
    widget.loadImage(grisal::graphics::Image8());
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
}

TEST_F(GLWidgetTest, AlphaIsDropped)
{
    show();
    const auto source = rampPicture<std::uint8_t>(pictureWidth, pictureHeight, 4);
    load(source);
    widget.slotActualPixels();
    BytePixels expected(pictureWidth, pictureHeight);
    for (int y = 0; y < pictureHeight; ++y) {
        for (int x = 0; x < pictureWidth; ++x) {
            for (int c = 0; c < 3; ++c) {
                expected.at(x, y, c) = source.at(x, y, 0);
            }
        }
    }
    EXPECT_TRUE(screenShows(centred(expected)));
}

TEST_F(GLWidgetTest, FinalRenderFailsWithoutAContext)
{
    load(picture);
    BytePixels pixel(1, 1, 3, {1, 2, 3});
    EXPECT_FALSE(renderFinal(pixel));
    EXPECT_EQ(pixel.values, (std::vector<std::uint8_t>{1, 2, 3}));
    EXPECT_EQ(widget.filter<VignetteFilter>(), nullptr);
}

// If there is a context, curve and grain are stored in textures immediately.
TEST_F(GLWidgetTest, ParametersSetWithoutAContextAreKept)
{
    load(picture);

    widget.slotChangeCurves(QVector<float>(256, 0.25F));
    widget.slotChangeGrain(QVector<float>(256, 0.75F), 2.5F);

    EXPECT_EQ(widget.filter<GrainFilter>(), nullptr);
    EXPECT_EQ(widget.parameters().get<CurveFilter>().curve.first(), 0.25F);
    EXPECT_EQ(widget.parameters().get<GrainFilter>().weights.first(), 0.75F);
    EXPECT_EQ(widget.parameters().get<GrainFilter>().radius, 2.5F);

    show();
    const auto *grain = dynamic_cast<GrainFilter *>(widget.filter<GrainFilter>());
    ASSERT_NE(grain, nullptr);
    EXPECT_EQ(grain->sigma(), 2.5F);
}

TEST_F(GLWidgetTest, FinalRenderLeavesThePreviewUnchanged)
{
    showPictureAtOneToOne();
    BytePixels full = rampPicture<std::uint8_t>(301, 7);
    const BytePixels expected = redAsGrey(full);
    EXPECT_TRUE(renderFinal(full));
    EXPECT_TRUE(picturesNear("final", full, expected));
    widget.renderImage();
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
}

TEST_F(GLWidgetTest, EnabledFiltersAreShown)
{
    showPictureAtOneToOne();
    ASSERT_NE(widget.filter<CurveFilter>(), nullptr);
    widget.filter<CurveFilter>()->enabled = true;
    widget.slotChangeCurves(QVector<float>(256, 0.6F));
    const BytePixels expected(pictureWidth, pictureHeight, 3,
                              std::vector<std::uint8_t>(std::size_t{3} * pictureWidth * pictureHeight, 153));
    EXPECT_TRUE(screenShows(centred(expected)));
}

TEST_F(GLWidgetTest, InitialisingAgainKeepsTheImage)
{
    showPictureAtOneToOne();
    const LogCapture log;
    widget.makeCurrent();
    widget.initializeGL();
    EXPECT_EQ(log.debugs(), (QStringList{QString(61, QLatin1Char('#')), QStringLiteral("INITIALIZE GL"),
                                         QString(61, QLatin1Char('#'))}));
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
    EXPECT_TRUE(widget.graphicsProblem().isEmpty());
}

TEST_F(GLWidgetTest, LoadingLogsSizesAndFormats)
{
    show();
    const LogCapture log;
    load(BytePixels(6, 5));
    EXPECT_EQ(log.debugs().mid(0, 10).join('\n').toStdString(), "Preview Width:  6\n"
                                                                "Preview Height:  5\n"
                                                                "Buffer:  true\n"
                                                                "Image Width:  4\n"
                                                                "Image Height:  4\n"
                                                                "Format Type(GL_RGB8):  true\n"
                                                                "Image Format(GL_RGB):  true\n"
                                                                "Element Type(GLUB):    true\n"
                                                                "Buffer:  true\n"
                                                                "(INFO) Max Texture Size:  4096");
}

} // namespace
