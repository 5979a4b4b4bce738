// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/VignetteParameters.h"
#include "ui/accessible/FocusMark.h"
#include "ui/accessible/Spoken.h"

#include <QFrame>

/// The values of a vignette as numbers to be read: whole percents.
struct VignettePercents {
    int x = 50;
    int y = 50;
    int radius = 50;
    int strength = 50;
};

/// The vignette at a glance: a grey picture of 3:2 under the vignette, with marks at its centre and at its radius. A
/// press or a drag moves the centre, also beyond the frame's edge; the mouse wheel changes the radius, with the Control
/// key the strength. The arrow keys and Page Up and Page Down do the same.
///
/// Its values are fractions: the centre of the contents' width and height, from the top left corner; radius and
/// strength of their fullest, 0..1.
class VFrame : public QFrame, public Spoken
{
    Q_OBJECT

public:
    explicit VFrame(QWidget *parent = nullptr);

    double posX() const { return m_posX; }
    double posY() const { return m_posY; }
    float radius() const { return m_radius; }
    float strength() const { return m_strength; }

    QAccessible::Role spokenRole() const override { return QAccessible::Canvas; }
    QString spokenValue() const override;

    /// 3:2, where there is room.
    int heightForWidth(int width) const override { return width * 2 / 3; }

    /// Takes the numbers that are shown beside the frame. They are what is spoken and where steps by key start: the
    /// fractions do not tell them, since 0.29 shows as 28 where the mouse chose it and as 29 where a slider did.
    void setPercents(const VignettePercents &percents);

signals:
    /// The centre that the user chose, below 0 or above 1 beyond the edge.
    void signalPosition(QPointF position);
    void signalRadius(float radius);
    void signalStrength(float strength);

public slots:
    /// Shows the centre there. Emits nothing.
    void slotSetX(float x);
    void slotSetY(float y);

    /// Takes the value and emits it; not one beyond 0..1 and not one that is nearly the current.
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
    QPainterPath marks() const;

    bool m_pressed = false;
    double m_posX = 0.5;
    double m_posY = 0.5;
    float m_radius = 0.5F;
    float m_strength = 0.5F;
    VignettePercents m_percents;
    FocusMark m_focusMark{this};
};
