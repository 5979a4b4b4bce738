// SPDX-License-Identifier: MIT
#pragma once

#include "ui/preview/GLWidget.h"

#include "tests/support/GlPresence.h"
#include "tests/support/GuiTest.h"
#include "tests/support/Images.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/Screen.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QWheelEvent>

namespace grisal::test
{

using ui::GLWidget;

constexpr int pictureWidth = 120;
constexpr int pictureHeight = 80;

/// The result of a mixer with the weight of red only.
inline BytePixels redAsGrey(BytePixels picture)
{
    for (std::size_t i = 0; i < picture.values.size(); i += 3) {
        picture.values[i + 1] = picture.values[i + 2] = picture.values[i];
    }
    return picture;
}

/// A test of the preview widget: frameless at the corner of the screen, with a mixer that uses red only.
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
        // Otherwise the delayed fit after the resize would change the scale later.
        timeOutNow(resizeTimer());
    }

    void load(const BytePixels &pixels) { widget.loadImage(imageOf(pixels)); }

    bool renderFinal(BytePixels &pixels)
    {
        return changeInPlace(pixels, [this](graphics::Image &image) { return widget.renderFinal(image); });
    }

    void showPictureAtOneToOne()
    {
        show();
        load(picture);
        widget.slotActualPixels();
    }

    QTimer &clickTimer() { return child<QTimer>(widget, "clickTimer"); }
    QTimer &resizeTimer() { return child<QTimer>(widget, "resizeTimer"); }

    /// Device pixels per logical pixel.
    double ratio() const { return widget.devicePixelRatioF(); }

    QSize pixelSize() const { return (QSizeF(widget.size()) * ratio()).toSize(); }

    /// The area of the widget with an image at the given position, black elsewhere.
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
        return picturesNear("screen", grabScreenOnceEqual(widget, expected), expected);
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

} // namespace grisal::test
