// SPDX-License-Identifier: MIT
#pragma once

#include "ui/accessible/FocusMark.h"
#include "ui/accessible/Spoken.h"
#include "ui/frames/CurvePoints.h"

#include <QFrame>
#include <QVector>

/// An editor of a curve in the unit square, over a tone histogram. A press takes the point in whose column it falls, or
/// adds one; a drag moves it. The curve has changed, signalMoved(), once the button is released.
///
/// Page Up and Page Down take the point to the left and to the right, the arrow keys move it, Insert adds one between
/// it and its right neighbour. A key is a press of the mouse and its release in one.
class CurveFrame : public QFrame, public Spoken
{
    Q_OBJECT

public:
    enum interpolationType { Linear = 0, BSpline = 1 };
    Q_ENUM(interpolationType)

    explicit CurveFrame(QWidget *parent = nullptr);

    /// Takes the points' x, from the left to the right, kept within 0..1, and their y, counted from the top. There must
    /// be as many y as x: otherwise this is told in the log, and y are cut or zeros added. Nothing is selected
    /// afterwards.
    void setPoints(QVector<float> xs, const QVector<float> &ys);

    /// `count` values of the curve, 0..1 and counted upwards: value i is the curve at i / count. Kept for
    /// outputHistogram().
    QVector<float> sample(int count);

    /// The histogram behind the values that were sampled last: see histogramBehind().
    QVector<float> outputHistogram() const;

    /// Takes the 256 bins of a tone histogram, 1 for a bin that fills the frame's height. Another number is told in the
    /// log and refused.
    void setHistogram(const QVector<float> &histogram);

    /// Removes the selected point and selects the one to its left. The points at both ends stay.
    void deleteSelected();

    const CurvePoints &points() const { return m_points; }
    const QVector<float> &histogram() const { return m_histogram; }
    interpolationType interpolation() const { return m_interpolation; }

    /// Index of the selected point, -1 for none.
    int selected() const { return m_selected; }

    QAccessible::Role spokenRole() const override { return QAccessible::Canvas; }
    QString spokenValue() const override;

    /// As high as wide, where there is room.
    int heightForWidth(int width) const override { return width; }

signals:
    /// A point was taken or added.
    void signalPressed();
    /// The selected point has come to this place, y counted from the top.
    void signalMoved(float x, float y);

public slots:
    void slotSetInterpolation(CurveFrame::interpolationType interpolation);
    /// Moves the selected point, within the limits of a drag but for y, which may leave 0..1.
    void slotSetActiveTo(float x, float y);
    void slotSetInactive();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    void drawHistogram(QPainter &painter, const QVector<float> &histogram) const;

private:
    QVector<float> curve(int count) const;
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

    CurvePoints m_points;
    QVector<float> m_histogram;
    QVector<float> m_samples;
    int m_selected = -1;
    bool m_pressed = false;
    interpolationType m_interpolation = BSpline;
    FocusMark m_focusMark{this};
};
