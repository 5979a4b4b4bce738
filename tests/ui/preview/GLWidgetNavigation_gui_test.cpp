// SPDX-License-Identifier: MIT
#include "tests/ui/preview/GLWidgetTest.h"

#include "tests/support/LogCapture.h"

namespace
{

using namespace grisal::test;

/// Whether a paint at this moment shows the source; through the red mixer every pixel is grey.
bool paintsSource(GLWidget &widget)
{
    const QImage frame = widget.grabFramebuffer();
    const QColor middle = frame.pixelColor(frame.rect().center());
    return middle.red() != middle.green();
}

TEST_F(GLWidgetTest, HoldingTheButtonForAQuarterOfASecondShowsTheSource)
{
    showPictureAtOneToOne();
    EXPECT_FALSE(clickTimer().isActive());
    QTest::mousePress(&widget, Qt::LeftButton, {}, {20, 20});
    EXPECT_TRUE(clickTimer().isActive());
    EXPECT_EQ(clickTimer().interval(), 250);
    EXPECT_FALSE(paintsSource(widget));
    timeOutNow(clickTimer());
    EXPECT_TRUE(paintsSource(widget));
    EXPECT_FALSE(clickTimer().isActive());
    EXPECT_TRUE(screenShows(centred(picture)));
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {20, 20});
    EXPECT_FALSE(paintsSource(widget));
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
}

TEST_F(GLWidgetTest, ReleaseWithinAQuarterOfASecondDoesNotShowTheSource)
{
    showPictureAtOneToOne();
    QTest::mousePress(&widget, Qt::LeftButton, {}, {20, 20});
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {20, 20});
    EXPECT_FALSE(clickTimer().isActive());
    EXPECT_FALSE(paintsSource(widget));
}

TEST_F(GLWidgetTest, AcceptsTheKeyboardFocus)
{
    EXPECT_EQ(widget.focusPolicy(), Qt::StrongFocus);
}

TEST_F(GLWidgetTest, DraggingMovesTheViewWithTheMouse)
{
    showPictureAtOneToOne();
    QTest::mousePress(&widget, Qt::LeftButton, {}, {100, 80});
    QTest::mouseMove(&widget, {112, 74});
    EXPECT_FALSE(clickTimer().isActive());
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

TEST_F(GLWidgetTest, ZoomedImageIsShownAtTwiceTheSize)
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

TEST_F(GLWidgetTest, WheelZoomsInWholeNotches)
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

TEST_F(GLWidgetTest, ZoomingDoesNotCentreTheImage)
{
    showPictureAtOneToOne();
    QTest::mousePress(&widget, Qt::LeftButton, {}, {100, 80});
    QTest::mouseMove(&widget, {110, 80});
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {110, 80});
    const QPointF before = widget.offset();
    widget.slotZoomIn();
    EXPECT_EQ(widget.offset(), before);
}

TEST_F(GLWidgetTest, LandscapesFitTheWidgetAndPortraitsFillIt)
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

TEST_F(GLWidgetTest, FitOnWidthAndHeightDependOnTheLargerSide)
{
    show(200, 100);
    load(rampPicture<std::uint8_t>(80, 80));
    EXPECT_EQ(widget.fitOnWidth(), GLWidget::FitLarger);
    EXPECT_EQ(widget.fitOnHeight(), GLWidget::FitSmaller);
    load(rampPicture<std::uint8_t>(400, 80));
    EXPECT_EQ(widget.fitOnWidth(), GLWidget::FitSmaller);
    EXPECT_EQ(widget.fitOnHeight(), GLWidget::FitLarger);
}

TEST_F(GLWidgetTest, UnknownFitIsLoggedAndSetsScaleOne)
{
    showPictureAtOneToOne();
    const LogCapture log;
    widget.slotFitTo(static_cast<GLWidget::enumFitTo>(7));
    EXPECT_EQ(log.warnings(), QStringList(QStringLiteral("Wrong zoom mode selected")));
    EXPECT_FLOAT_EQ(widget.scale(), 1);
}

TEST_F(GLWidgetTest, ResizeFitsAgainAfterATenthOfASecond)
{
    show();
    load(picture);
    widget.slotZoomIn();
    const float zoomed = widget.scale();
    widget.setGeometry(0, 0, 300, 160);
    EXPECT_TRUE(resizeTimer().isActive());
    EXPECT_EQ(resizeTimer().interval(), 100);
    EXPECT_EQ(widget.scale(), zoomed);
    timeOutNow(resizeTimer());
    EXPECT_FALSE(resizeTimer().isActive());
    EXPECT_FLOAT_EQ(widget.scale(), 0.99F * static_cast<float>(pixelSize().height()) / pictureHeight);
    EXPECT_EQ(widget.offset(), QPointF(pixelSize().width() / 2.0, pixelSize().height() / 2.0));
}

} // namespace
