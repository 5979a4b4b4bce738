// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/ColorRGB.h"

#include <QWidget>

#include <memory>

namespace Ui
{
class Mixer;
}

/// The channel mixer: the weights with which red, green and blue add up to grey, as a colour wheel, as sliders, as
/// their sum and as looks named after film stocks.
///
/// Weights count 0..255 here and are emitted divided by 255; 85 each is the plain average. The channel sliders hold
/// them. Moving one of these alone emits nothing: what they try out counts with the next change of the sum, or of the
/// level by the mouse wheel. A pick on the wheel, a preset and the reset put other weights in their place.
class Mixer : public QWidget
{
    Q_OBJECT

public:
    explicit Mixer(QWidget *parent = nullptr);
    ~Mixer() override;

    /// The weights of the preset that was chosen last, 0..255, whether or not they could be applied.
    grisal::graphics::ColorRGB<float> presetWeights() const { return m_preset; }

signals:
    /// The weights as multipliers, 1 for 255.
    void signalMixer(float r, float g, float b);

public slots:
    /// Shows the weights, 0..255 and beyond, and emits them. The controls show whole numbers within their ranges, the
    /// signal carries the weights as they are.
    void slotSetRGB(float r, float g, float b);
    void on_sliderLuma_valueChanged(int value);
    void on_sliderR_valueChanged(int value);
    void on_sliderG_valueChanged(int value);
    void on_sliderB_valueChanged(int value);
    void on_spinBoxLuma_valueChanged(int value);
    void on_spinBoxR_valueChanged(int value);
    void on_spinBoxG_valueChanged(int value);
    void on_spinBoxB_valueChanged(int value);
    void on_buttonReset_clicked();
    void on_comboPresets_currentIndexChanged(int index);
    void on_comboPresets_highlighted(int index);

private:
    void fillPresets();
    void applyPreset(int index);
    void refreshFromSliders();
    void showOnWheel(const grisal::graphics::ColorRGB<float> &weights);
    grisal::graphics::ColorRGB<float> channels() const;

    std::unique_ptr<Ui::Mixer> m_form;
    grisal::graphics::ColorRGB<float> m_preset;
};
