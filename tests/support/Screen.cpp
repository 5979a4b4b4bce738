// SPDX-License-Identifier: MIT
#include "tests/support/Screen.h"

#include <QGuiApplication>
#include <QOpenGLWidget>
#include <QPixmap>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

namespace grisal::test
{

namespace
{

constexpr int limit = 20000; // milliseconds

} // namespace

BytePixels grabScreen(const QWidget &widget)
{
    const QImage screen = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
    const double ratio = widget.devicePixelRatioF();
    const QPoint corner = (QPointF(widget.mapToGlobal(QPoint(0, 0))) * ratio).toPoint();
    const QSize size = (QSizeF(widget.size()) * ratio).toSize();
    BytePixels pixels(size.width(), size.height());
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgb pixel = screen.pixel(corner.x() + x, corner.y() + y);
            pixels.at(x, y, 0) = static_cast<std::uint8_t>(qRed(pixel));
            pixels.at(x, y, 1) = static_cast<std::uint8_t>(qGreen(pixel));
            pixels.at(x, y, 2) = static_cast<std::uint8_t>(qBlue(pixel));
        }
    }
    return pixels;
}

BytePixels grabScreenOnceEqual(const QWidget &widget, const BytePixels &expected)
{
    BytePixels shown;
    const auto isLikeExpected = [&] {
        shown = grabScreen(widget);
        return shown.values == expected.values;
    };
    static_cast<void>(QTest::qWaitFor(isLikeExpected, limit));
    return shown;
}

bool repaintAndWait(QOpenGLWidget &widget)
{
    QSignalSpy frames(&widget, &QOpenGLWidget::frameSwapped);
    widget.update();
    return frames.wait(limit);
}

} // namespace grisal::test
