// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/VignetteParameters.h"
#include "ui/accessible/AccessibleControl.h"
#include "ui/accessible/FocusMark.h"

#include <QFrame>

/// The values of a vignette as displayed numbers: whole percents.
struct VignettePercents {
    int x = 50;
    int y = 50;
    int radius = 50;
    int strength = 50;
};

/// A preview of the vignette: a grey image with the vignette applied and marks for its centre and radius. A press or a
/// drag moves the centre, also beyond the edge of the image; the mouse wheel changes the radius, or with the Control
/// key the strength. The arrow keys and Page Up and Page Down do the same.
///
/// Its values are fractions: the centre of the width and height of the contents, from the top left corner; radius and
/// strength 0..1 of their maximum.
class VFrame : public QFrame, public AccessibleControl
{
    Q_OBJECT

public:
    explicit VFrame(QWidget *parent = nullptr);

    double posX() const { return m_posX; }
    double posY() const { return m_posY; }
    float radius() const { return m_radius; }
    float strength() const { return m_strength; }

    QAccessible::Role accessibleRole() const override { return QAccessible::Canvas; }
    QString accessibleValue() const override;

    /// The proportions of the photograph, 3:2 until they are known, if the layout has enough space; at most square.
    int heightForWidth(int width) const override;

    /// Sets the size of the photograph. Only its proportions are used; an empty size means that they are unknown.
    void setImageSize(QSize size);

    /// Limits the width so that no side of the frame is longer than `side`.
    void limitTo(int side);

    /// Sets the numbers that are displayed beside the frame. Screen readers read them, and keyboard steps start from
    /// them. They cannot be derived from the fractions: 0.29 is displayed as 28 if it was set by the mouse, and as 29
    /// if it was set by a slider.
    void setPercents(const VignettePercents &percents);

signals:
    /// The centre that the user selected; below 0 or above 1 beyond the edge.
    void signalPosition(QPointF position);
    void signalRadius(float radius);
    void signalStrength(float strength);

public slots:
    /// Moves the centre. Emits nothing.
    void slotSetX(float x);
    void slotSetY(float y);

    /// Sets and emits the value. A value outside of 0..1 or nearly equal to the current one is ignored.
    void slotSetRadius(float radius);
    void slotSetStrength(float strength);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void pick(const QMouseEvent *event);
    void choose(double x, double y);
    void turnWheel(int delta, bool strength);
    grisal::graphics::VignetteParameters shownVignette() const;
    QSize proportions() const;
    QSize sizeWithin(int side) const;
    QPainterPath marks() const;

    QSize m_imageSize;
    bool m_pressed = false;
    double m_posX = 0.5;
    double m_posY = 0.5;
    float m_radius = 0.5F;
    float m_strength = 0.5F;
    VignettePercents m_percents;
    FocusMark m_focusMark{this};
};
