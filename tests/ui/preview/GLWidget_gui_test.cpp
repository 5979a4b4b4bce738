// SPDX-License-Identifier: MIT
#include "ui/preview/GLWidget.h"

#include "graphics/filters/IFilter.h"
#include "tests/support/GlPresence.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/Screen.h"

#include <gtest/gtest.h>

#include <cmath>

#include <QTest>
#include <QWheelEvent>

namespace
{

using namespace grisal::test;
using grisal::ui::GLWidget;

constexpr int pictureWidth = 120;
constexpr int pictureHeight = 80;

BytePixels redAsGrey(BytePixels picture)
{
    for (std::size_t i = 0; i < picture.values.size(); i += 3) {
        picture.values[i + 1] = picture.values[i + 2] = picture.values[i];
    }
    return picture;
}

class GLWidgetTest : public testing::Test
{
protected:
    GLWidgetTest() : picture(rampPicture<std::uint8_t>(pictureWidth, pictureHeight))
    {
        widget.setWindowFlag(Qt::FramelessWindowHint);
        widget.slotChangeMixer(1, 0, 0);
    }

    void SetUp() override { GRISAL_SKIP_WITHOUT_GL(); }

    void show(int width = 200, int height = 160)
    {
        widget.setGeometry(0, 0, width, height);
        widget.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
        ASSERT_TRUE(widget.isValid()) << "no OpenGL on this display";
        // The fit that follows a resize would come in between.
        QTest::qWait(150);
    }

    void load(const BytePixels &pixels)
    {
        widget.loadImage(pixels.values.data(), pixels.width, pixels.height, false, pixels.components == 4);
    }

    void showPictureAtOneToOne()
    {
        show();
        load(picture);
        widget.slotActualPixels();
    }

    /// Device pixels per unit of the toolkit.
    double ratio() const { return widget.devicePixelRatioF(); }

    QSize pixelSize() const { return (QSizeF(widget.size()) * ratio()).toSize(); }

    /// The widget's area with a picture in it at the given place, all else black.
    BytePixels placed(const BytePixels &pixels, int left, int top) const
    {
        BytePixels area(pixelSize().width(), pixelSize().height());
        for (int y = 0; y < pixels.height; ++y) {
            for (int x = 0; x < pixels.width; ++x) {
                for (int c = 0; c < 3; ++c) {
                    area.at(left + x, top + y, c) = pixels.at(x, y, c);
                }
            }
        }
        return area;
    }

    BytePixels centred(const BytePixels &pixels) const
    {
        return placed(pixels, (pixelSize().width() - pixels.width) / 2, (pixelSize().height() - pixels.height) / 2);
    }

    testing::AssertionResult screenShows(const BytePixels &expected) const
    {
        return picturesNear("screen", onScreenOnceLike(widget, expected), expected);
    }

    void wheel(int delta)
    {
        const QPointF middle(widget.width() / 2.0, widget.height() / 2.0);
        QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&widget, &event);
    }

    GLWidget widget;
    BytePixels picture;
};

TEST_F(GLWidgetTest, TheScreenShowsWhatTheRendererComputed)
{
    showPictureAtOneToOne();
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
}

TEST_F(GLWidgetTest, APictureLoadedBeforeTheContextIsThereIsShownLater)
{
    load(picture);
    EXPECT_EQ(widget.previewWidth(), 0);
    show();
    widget.slotActualPixels();
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
}

TEST_F(GLWidgetTest, ChangedParametersAreSeenAtOnce)
{
    showPictureAtOneToOne();
    widget.slotChangeMixer(0, 0, 0);
    EXPECT_TRUE(screenShows(centred(BytePixels(pictureWidth, pictureHeight))));
}

TEST_F(GLWidgetTest, HoldingTheButtonComparesWithTheSource)
{
    showPictureAtOneToOne();
    QTest::mousePress(&widget, Qt::LeftButton, {}, {20, 20});
    EXPECT_TRUE(screenShows(centred(picture)));
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {20, 20});
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
}

// A drag moves the window over the picture: the picture goes against the mouse, and a drag does not compare.
TEST_F(GLWidgetTest, DraggingPansAgainstTheMouse)
{
    showPictureAtOneToOne();
    QTest::mousePress(&widget, Qt::LeftButton, {}, {100, 80});
    QTest::mouseMove(&widget, {112, 74});
    QTest::qWait(300);
    const int dx = static_cast<int>(12 * ratio());
    const int dy = static_cast<int>(-6 * ratio());
    const BytePixels expected = placed(redAsGrey(picture), (pixelSize().width() - pictureWidth) / 2 - dx,
                                       (pixelSize().height() - pictureHeight) / 2 - dy);
    EXPECT_TRUE(screenShows(expected));
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {112, 74});
    EXPECT_TRUE(screenShows(expected));
}

TEST_F(GLWidgetTest, MovingWithoutAButtonDoesNothing)
{
    showPictureAtOneToOne();
    const QPointF before = widget.offset();
    QTest::mouseMove(&widget, {10, 10});
    QTest::mouseMove(&widget, {60, 60});
    EXPECT_EQ(widget.offset(), before);
}

TEST_F(GLWidgetTest, ThePictureIsPutBackWhereItWasAtTwiceTheSize)
{
    show(400, 320);
    load(picture);
    widget.slotActualPixels();
    for (int i = 0; i < 25; ++i) {
        widget.slotZoomIn();
    }
    EXPECT_NEAR(widget.scale(), 2, 1e-5);
    BytePixels doubled(2 * pictureWidth, 2 * pictureHeight);
    for (int y = 0; y < doubled.height; ++y) {
        for (int x = 0; x < doubled.width; ++x) {
            for (int c = 0; c < 3; ++c) {
                doubled.at(x, y, c) = picture.at(x / 2, y / 2, 0);
            }
        }
    }
    EXPECT_TRUE(screenShows(centred(doubled)));
}

TEST_F(GLWidgetTest, TheWheelZoomsInWholeNotches)
{
    show();
    load(picture);
    const float fitted = widget.scale();
    wheel(120);
    EXPECT_NEAR(widget.scale(), fitted + 0.04F, 1e-5);
    wheel(-240);
    EXPECT_NEAR(widget.scale(), fitted - 0.04F, 1e-5);
    wheel(60);
    EXPECT_NEAR(widget.scale(), fitted - 0.04F, 1e-5);
}

TEST_F(GLWidgetTest, ZoomingDoesNotCentreThePicture)
{
    showPictureAtOneToOne();
    QTest::mousePress(&widget, Qt::LeftButton, {}, {100, 80});
    QTest::mouseMove(&widget, {110, 80});
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {110, 80});
    const QPointF before = widget.offset();
    widget.slotZoomIn();
    EXPECT_EQ(widget.offset(), before);
}

TEST_F(GLWidgetTest, LandscapesStartWholeAndPortraitsFillTheWidget)
{
    show();
    load(picture);
    EXPECT_EQ(widget.fitMode(), GLWidget::FitSmaller);
    EXPECT_FLOAT_EQ(widget.scale(), 0.99F * static_cast<float>(pixelSize().width()) / pictureWidth);
    load(rampPicture<std::uint8_t>(80, 80));
    EXPECT_EQ(widget.fitMode(), GLWidget::FitLarger);
    EXPECT_FLOAT_EQ(widget.scale(), 0.99F * static_cast<float>(pixelSize().width()) / 80);
}

TEST_F(GLWidgetTest, DoubleClicksFit)
{
    showPictureAtOneToOne();
    QTest::mouseDClick(&widget, Qt::LeftButton, {}, {50, 50});
    EXPECT_EQ(widget.fitMode(), GLWidget::FitSmaller);
    QTest::mouseDClick(&widget, Qt::RightButton, {}, {50, 50});
    EXPECT_EQ(widget.fitMode(), GLWidget::FitLarger);
}

TEST_F(GLWidgetTest, FitOnWidthAndHeightFollowTheLargerSide)
{
    show(200, 100);
    load(rampPicture<std::uint8_t>(80, 80));
    EXPECT_EQ(widget.fitOnWidth(), GLWidget::FitLarger);
    EXPECT_EQ(widget.fitOnHeight(), GLWidget::FitSmaller);
    load(rampPicture<std::uint8_t>(400, 80));
    EXPECT_EQ(widget.fitOnWidth(), GLWidget::FitSmaller);
    EXPECT_EQ(widget.fitOnHeight(), GLWidget::FitLarger);
}

TEST_F(GLWidgetTest, AnUnknownFitIsToldAndShowsOneToOne)
{
    showPictureAtOneToOne();
    const LogCapture log;
    widget.slotFitTo(static_cast<GLWidget::enumFitTo>(7));
    EXPECT_EQ(log.warnings(), QStringList(QStringLiteral("Wrong zoom mode selected")));
    EXPECT_FLOAT_EQ(widget.scale(), 1);
}

TEST_F(GLWidgetTest, AResizeFitsAgainAfterAMoment)
{
    show();
    load(picture);
    widget.slotZoomIn();
    widget.setGeometry(0, 0, 300, 160);
    EXPECT_TRUE(QTest::qWaitFor([this] {
        return qFuzzyCompare(widget.scale(), 0.99F * static_cast<float>(pixelSize().height()) / pictureHeight);
    }));
    EXPECT_EQ(widget.offset(), QPointF(pixelSize().width() / 2.0, pixelSize().height() / 2.0));
}

TEST_F(GLWidgetTest, PreviewSidesAreRoundedDownAndLargePicturesHalved)
{
    show();
    load(BytePixels(1001, 6));
    EXPECT_EQ(widget.previewWidth(), 1000);
    EXPECT_EQ(widget.previewHeight(), 4);
    load(BytePixels(9000, 6000));
    EXPECT_EQ(widget.previewWidth(), 2250);
    EXPECT_EQ(widget.previewHeight(), 1500);
}

TEST_F(GLWidgetTest, PicturesOfOneToThreePixelsAreShown)
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
            shown = onScreen(widget);
            return shown.at(shown.width / 2, shown.height / 2, 0) == 255;
        })) << side;
    }
}

TEST_F(GLWidgetTest, ANullBufferChangesNothing)
{
    showPictureAtOneToOne();
    widget.loadImage(nullptr, 10, 10, false, false);
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

TEST_F(GLWidgetTest, WithoutAContextThereIsNoFinalRender)
{
    load(picture);
    std::uint8_t pixel[3] = {1, 2, 3};
    EXPECT_FALSE(widget.renderFinal(pixel, 1, 1, false, false));
    EXPECT_EQ(pixel[1], 2);
    EXPECT_EQ(widget.vignetteFilter(), nullptr);
}

TEST_F(GLWidgetTest, AFinalRenderLeavesThePreviewAsItWas)
{
    showPictureAtOneToOne();
    BytePixels full = rampPicture<std::uint8_t>(301, 7);
    const BytePixels expected = redAsGrey(full);
    EXPECT_TRUE(widget.renderFinal(full.values.data(), 301, 7, false, false));
    EXPECT_TRUE(picturesNear("final", full, expected));
    widget.renderImage();
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
}

TEST_F(GLWidgetTest, EnabledFiltersAreSeen)
{
    showPictureAtOneToOne();
    ASSERT_NE(widget.curveFilter(), nullptr);
    widget.curveFilter()->enabled = true;
    widget.slotChangeCurves(QVector<float>(256, 0.6F));
    const BytePixels expected(pictureWidth, pictureHeight, 3,
                              std::vector<std::uint8_t>(std::size_t{3} * pictureWidth * pictureHeight, 153));
    EXPECT_TRUE(screenShows(centred(expected)));
}

TEST_F(GLWidgetTest, InitialisingAgainIsHarmless)
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
