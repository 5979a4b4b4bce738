// SPDX-License-Identifier: MIT
#pragma once

#include "ui/accessible/Spoken.h"

#include <QFrame>
#include <QImage>
#include <QVector>

/// The strip under the grain curve: a ramp from black to white with the film grain over it, as strong at each grey as
/// the curve says. The grain comes from tiles that were made beforehand, one for each half pixel of blur radius; they
/// are 400 x 60 pixels, so that the strip has to be narrower than 400.
class GrainPreview : public QFrame, public Spoken
{
    Q_OBJECT
    Q_PROPERTY(float radius READ radius WRITE slotSetRadius)
    Q_PROPERTY(QVector<float> fulcrums READ fulcrums WRITE slotAdjustWeights)

public:
    explicit GrainPreview(QWidget *parent = nullptr);

    float radius() const { return m_radius; }
    const QVector<float> &fulcrums() const { return m_fulcrums; }

    QAccessible::Role spokenRole() const override { return QAccessible::Graphic; }
    QString spokenValue() const override;

    /// The grain: its colours are those of the tiles, its opacity is the strength of the grain.
    const QImage &map() const { return m_map; }

public slots:
    /// Shows the grain of another blur radius, 0..3 pixels, rounded down to a half. A radius without a tile is told in
    /// the log, and the grain stays.
    void slotSetRadius(float radius);

    /// Shows the grain in the strengths 0..1 for the greys from black to white, 256 of them from the grain panel. None
    /// means those of the last time. A strip of 400 pixels and more is told in the log, and shows them no more.
    void slotAdjustWeights(const QVector<float> &weights);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void applyWeights();

    float m_radius = 0;
    QVector<float> m_fulcrums;
    QRect m_painted; // nothing before the first paint
    QImage m_map;
};

/// The file of the tile for a blur radius in pixels.
QString grainTileFile(float radius);
