// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/Curve.h"

#include <QVector>
#include <QWidget>

#include <memory>

class CurveFrameEventFilter;

namespace Ui
{
class Grain;
}

/// Film grain: its strength at each grey, as a curve over the tones after the tone curve, and its coarseness. A strip
/// shows both on a ramp from black to white.
class Grain : public QWidget
{
    Q_OBJECT

public:
    explicit Grain(QWidget *parent = nullptr);
    ~Grain() override;

    /// The curve whose samples were emitted last.
    const grisal::graphics::Curve &curve() const { return m_curve; }

signals:
    /// 256 strengths 0..1 for the greys 0..1, and the blur of the noise in pixels, 0..3.
    void signalGrain(QVector<float> weights, float radius);

public slots:
    /// Sets the 256 bins of the tone histogram behind the strength curve.
    void slotSetHistogram(QVector<float> histogram);
    void on_doubleSpinBoxBlur_valueChanged(double blur);
    void on_sliderBlur_valueChanged(int tenths);
    void emitAll();
    void on_buttonReset_clicked();

private:
    std::unique_ptr<Ui::Grain> m_form;
    grisal::graphics::Curve m_curve;
    std::unique_ptr<CurveFrameEventFilter> m_deleteKey;
};
