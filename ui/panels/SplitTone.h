// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class SplitTone;
}

/// Split toning: a tint for the highlights, a tint for the shadows, and the weight between them. Each tint is shown as
/// a colour wheel, as the level of the wheel (its luma, the mean of red, green and blue) and as three numbers, 0..255.
///
/// The spin boxes with the numbers store the tints. Typing a number emits nothing: it takes effect with the next change
/// of the weight, a wheel or a luma, or with the reset.
class SplitTone : public QWidget
{
    Q_OBJECT

public:
    explicit SplitTone(QWidget *parent = nullptr);
    ~SplitTone() override;

signals:
    /// The weight, 0.75..1.25 with 1 as neutral value, then the tints of highlights and shadows, 0..1.
    void signalSplit(float weight, float r1, float g1, float b1, float r2, float g2, float b2);

public slots:
    void on_spinBoxHR_valueChanged(int value);
    void on_spinBoxWeight_valueChanged(int value);
    void on_spinBoxHG_valueChanged(int value);
    void on_spinBoxHB_valueChanged(int value);
    void on_spinBoxSR_valueChanged(int value);
    void on_spinBoxSG_valueChanged(int value);
    void on_spinBoxSB_valueChanged(int value);
    void on_sliderWeight_valueChanged(int value);
    void on_sliderHLuma_valueChanged(int value);

    /// Sets a tint on the scale 0..255, truncated to integers and clamped, and emits it. The wheel stays as it is,
    /// because the tint comes from the wheel.
    void slotSetShadows(float r, float g, float b);
    void slotSetHighlights(float r, float g, float b);

    void on_sliderSLuma_valueChanged(int value);

    /// Emits the values of the controls.
    void emitAll();

    void on_buttonReset_clicked();

private:
    std::unique_ptr<Ui::SplitTone> m_form;
};
