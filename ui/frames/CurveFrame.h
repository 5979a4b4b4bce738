// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/Curve.h"
#include "ui/accessible/AccessibleControl.h"
#include "ui/accessible/FocusMark.h"

#include <QFrame>
#include <QVector>

/// Edits a curve in the unit square over a tone histogram. A mouse press selects the point at that x position or adds a
/// point there; a drag moves the selected point. signalMoved() is emitted when the mouse button is released.
///
/// While the mouse is over the frame, the status bar of the window shows its position as input and output value.
///
/// Page Up and Page Down select the previous and the next point, the arrow keys move the selected point, and Insert
/// adds a point between it and its right neighbour. Each key acts like a mouse press followed by a release.
class CurveFrame : public QFrame, public AccessibleControl
{
    Q_OBJECT

public:
    enum interpolationType { Linear = 0, BSpline = 1 };
    Q_ENUM(interpolationType)

    explicit CurveFrame(QWidget *parent = nullptr);

    /// Sets the points: x from left to right, clamped to 0..1, and y measured from the top. If the numbers of x and y
    /// values differ, a warning is logged and y is truncated or padded with zeros. Clears the selection.
    void setPoints(QVector<float> xs, const QVector<float> &ys);

    /// Returns the curve as it is now, also while a point is being dragged.
    grisal::graphics::Curve curve() const;

    /// Returns `count` values of the curve, 0..1 from bottom to top: value i is the curve at i / count. They are stored
    /// for outputHistogram().
    QVector<float> sample(int count);

    /// The histogram that results from the values sampled last: see histogramBehind().
    QVector<float> outputHistogram() const;

    /// Sets whether the status bar shows the output as a strength in percent instead of as a tone 0..255.
    void setOutputIsStrength(bool isStrength) { m_outputIsStrength = isStrength; }

    /// Sets the histogram to 256 bins, where 1 fills the height of the frame. Any other number of bins is rejected and
    /// logged.
    void setHistogram(const QVector<float> &histogram);

    /// Removes the selected point and selects its left neighbour. The first and the last point cannot be removed.
    void deleteSelected();

    const grisal::graphics::CurvePoints &points() const { return m_points; }
    const QVector<float> &histogram() const { return m_histogram; }
    interpolationType interpolation() const { return m_interpolation; }

    /// Index of the selected point, -1 if no point is selected.
    int selected() const { return m_selected; }

    QAccessible::Role accessibleRole() const override { return QAccessible::Canvas; }
    QString accessibleValue() const override;

    /// Square if the layout has enough space.
    int heightForWidth(int width) const override { return width; }

signals:
    /// A point was selected or added.
    void signalPressed();
    /// The new position of the selected point, y measured from the top.
    void signalMoved(float x, float y);

public slots:
    void slotSetInterpolation(CurveFrame::interpolationType interpolation);
    /// Moves the selected point with the same limits as a drag, except that y may leave 0..1.
    void slotSetActiveTo(float x, float y);
    void slotSetInactive();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    void drawHistogram(QPainter &painter, const QVector<float> &histogram) const;

private:
    QString valuesAt(QPointF place) const;
    QPointF placeOf(const QMouseEvent &event) const;
    QPointF onFrame(double x, double y) const;
    void emitMoved();
    void showChange();
    bool edit(const QKeyEvent &event);
    void take(int index);
    void step(QPoint arrow);
    void addBehindSelected();
    void drawBackground(QPainter &painter) const;
    void drawCurve(QPainter &painter) const;
    void drawPoints(QPainter &painter) const;

    grisal::graphics::CurvePoints m_points;
    QVector<float> m_histogram;
    QVector<float> m_samples;
    int m_selected = -1;
    bool m_pressed = false;
    interpolationType m_interpolation = BSpline;
    bool m_outputIsStrength = false;
    FocusMark m_focusMark{this};
};
