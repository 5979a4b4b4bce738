// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/ColorRGB.h"

#include <QWidget>

#include <memory>

namespace Ui
{
class Mixer;
}

/// The channel mixer: the weights with which red, green and blue are added to give grey, set with a colour wheel,
/// sliders for the channels and for their sum, and presets named after film stocks.
///
/// Weights are on the scale 0..255 and are emitted divided by 255; 85 each is the plain average. The channel sliders
/// store them. Moving a single channel slider emits nothing: its value takes effect when the sum changes or when the
/// mouse wheel changes the level. Selecting a colour on the wheel, a preset and the reset replace all weights.
class Mixer : public QWidget
{
    Q_OBJECT

public:
    explicit Mixer(QWidget *parent = nullptr);
    ~Mixer() override;

    /// The weights of the preset that was selected last, 0..255, even if they could not be applied.
    grisal::graphics::ColorRGB<float> presetWeights() const { return m_preset; }

signals:
    /// The weights as multipliers, 1 for 255.
    void signalMixer(float r, float g, float b);

public slots:
    /// Shows the weights, which may be outside of 0..255, and emits them. The controls show integers within their
    /// ranges; the signal contains the weights unchanged.
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
    void showWeightsArePending(bool pending);
    void showOnWheel(const grisal::graphics::ColorRGB<float> &weights);
    grisal::graphics::ColorRGB<float> channels() const;

    std::unique_ptr<Ui::Mixer> m_form;
    grisal::graphics::ColorRGB<float> m_preset;
    bool m_weightsArePending = false;
};
