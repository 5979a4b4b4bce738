// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/Curve.h"

#include <QVector>
#include <QWidget>

#include <memory>

class CurveFrameEventFilter;

namespace Ui
{
class Curves;
}

/// The tone curve, drawn over the tone histogram of the image.
class Curves : public QWidget
{
    Q_OBJECT

public:
    explicit Curves(QWidget *parent = nullptr);
    ~Curves() override;

    /// The curve whose samples were emitted last.
    const grisal::graphics::Curve &curve() const { return m_curve; }

signals:
    /// 256 outputs 0..1 for the greys 0..1.
    void signalCurves(QVector<float> curve);
    /// The tone histogram after the curve is applied: 256 bins.
    void signalOutHistogram(QVector<float> histogram);

public slots:
    /// Sets the 256 bins of the image's tone histogram. Any other number of bins is rejected and logged.
    void slotSetHistogram(QVector<float> histo);
    void emitAll();
    void on_buttonReset_clicked();
    void on_radioBSpline_clicked();
    void on_radioLinear_clicked();

private:
    std::unique_ptr<Ui::Curves> m_form;
    grisal::graphics::Curve m_curve;
    std::unique_ptr<CurveFrameEventFilter> m_deleteKey;
};
