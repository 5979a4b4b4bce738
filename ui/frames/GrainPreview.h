// SPDX-License-Identifier: MIT
#pragma once

#include "ui/accessible/AccessibleControl.h"

#include <QFrame>
#include <QImage>
#include <QVector>

/// The strip below the grain curve: a ramp from black to white with film grain over it, whose strength at each grey is
/// given by the curve. The grain comes from prerendered tiles, one for every half pixel of blur radius. The tiles are
/// 400 x 60 pixels, so the strip must be narrower than 400 pixels.
class GrainPreview : public QFrame, public AccessibleControl
{
    Q_OBJECT
    Q_PROPERTY(float radius READ radius WRITE slotSetRadius)
    Q_PROPERTY(QVector<float> fulcrums READ fulcrums WRITE slotAdjustWeights)

public:
    explicit GrainPreview(QWidget *parent = nullptr);

    float radius() const { return m_radius; }
    const QVector<float> &fulcrums() const { return m_fulcrums; }

    QAccessible::Role accessibleRole() const override { return QAccessible::Graphic; }
    QString accessibleValue() const override;

    /// The grain: the colours of the tile, with the strength of the grain as opacity.
    const QImage &map() const { return m_map; }

public slots:
    /// Shows the grain for a blur radius of 0..3 pixels, rounded down to a multiple of 0.5. If there is no tile for the
    /// radius, a warning is logged and the grain stays as it is.
    void slotSetRadius(float radius);

    /// Sets the strengths 0..1 for the greys from black to white; the grain panel passes 256. An empty vector keeps the
    /// previous strengths. If the strip is 400 pixels wide or more, a warning is logged and the strip does not show
    /// them.
    void slotAdjustWeights(const QVector<float> &weights);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void applyWeights();

    float m_radius = 0;
    QVector<float> m_fulcrums;
    QRect m_painted; // empty before the first paint
    QImage m_map;
};

/// The path of the tile for a blur radius in pixels.
QString grainTileFile(float radius);
