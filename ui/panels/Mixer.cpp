// SPDX-License-Identifier: MIT
#include "ui/panels/Mixer.h"

#include "graphics/look/FilmPresets.h"
#include "math/OpponentColour.h"
#include "ui/StatusTip.h"
#include "ui_Mixer.h"

#include <QSignalBlocker>

#include <utility>

using grisal::graphics::ColorRGB;
using grisal::graphics::FilmPreset;
using grisal::graphics::filmPresets;

namespace
{

constexpr float fullWeight = 255.0F;
constexpr int neutralWeight = 85;
constexpr int neutralSum = 255;

} // namespace

Mixer::Mixer(QWidget *parent) : QWidget(parent), m_form(std::make_unique<Ui::Mixer>())
{
    m_form->setupUi(this);
    connect(m_form->frameYUV, &YUVFrame::signalWeights, this, &Mixer::slotSetRGB);
    fillPresets();
}

Mixer::~Mixer() = default;

void Mixer::fillPresets()
{
    int index = 0;
    for (const FilmPreset &preset : filmPresets) {
        m_form->comboPresets->insertItem(index++, QIcon(), tr(preset.name), QVariantList{preset.r, preset.g, preset.b});
    }
}

void Mixer::slotSetRGB(float r, float g, float b)
{
    const int wholeR = static_cast<int>(r);
    const int wholeG = static_cast<int>(g);
    const int wholeB = static_cast<int>(b);
    const int sum = static_cast<int>(static_cast<float>(wholeG + wholeR + wholeB) + 0.5F);
    {
        const QSignalBlocker blockR(m_form->sliderR);
        const QSignalBlocker blockG(m_form->sliderG);
        const QSignalBlocker blockB(m_form->sliderB);
        const QSignalBlocker blockLuma(m_form->sliderLuma);
        m_form->sliderR->setValue(wholeR);
        m_form->sliderG->setValue(wholeG);
        m_form->sliderB->setValue(wholeB);
        m_form->sliderLuma->setValue(sum);
        m_form->spinBoxR->setValue(wholeR);
        m_form->spinBoxG->setValue(wholeG);
        m_form->spinBoxB->setValue(wholeB);
        m_form->spinBoxLuma->setValue(sum);
    }
    showWeightsArePending(false);
    emit signalMixer(r / fullWeight, g / fullWeight, b / fullWeight);
}

void Mixer::showWeightsArePending(bool pending)
{
    const bool changed = std::exchange(m_weightsArePending, pending) != pending;
    if (pending) {
        showStatusTip(*this,
                      tr("Takes effect with the next change of Luma, which shifts all three by the same amount"));
    } else if (changed) {
        showStatusTip(*this, {});
    }
}

ColorRGB<float> Mixer::channels() const
{
    return {static_cast<float>(m_form->sliderR->value()), static_cast<float>(m_form->sliderG->value()),
            static_cast<float>(m_form->sliderB->value())};
}

void Mixer::refreshFromSliders()
{
    const ColorRGB<float> weights = channels();
    {
        const QSignalBlocker blockLuma(m_form->sliderLuma);
        m_form->sliderLuma->setValue(static_cast<int>(weights.g + weights.r + weights.b));
    }
    showOnWheel(weights);
}

void Mixer::showOnWheel(const ColorRGB<float> &weights)
{
    const QSignalBlocker blockWheel(m_form->frameYUV);
    m_form->frameYUV->slotSetRGB(weights);
}

void Mixer::on_sliderLuma_valueChanged(int value)
{
    m_form->spinBoxLuma->setValue(value);
    const ColorRGB<float> shifted = grisal::math::shiftedToSum(channels(), static_cast<float>(value));
    showOnWheel(shifted);
    slotSetRGB(shifted.r, shifted.g, shifted.b);
}

void Mixer::on_sliderR_valueChanged(int value)
{
    m_form->spinBoxR->setValue(value);
    refreshFromSliders();
    showWeightsArePending(true);
}

void Mixer::on_sliderG_valueChanged(int value)
{
    m_form->spinBoxG->setValue(value);
    refreshFromSliders();
    showWeightsArePending(true);
}

void Mixer::on_sliderB_valueChanged(int value)
{
    m_form->spinBoxB->setValue(value);
    refreshFromSliders();
    showWeightsArePending(true);
}

void Mixer::on_spinBoxLuma_valueChanged(int value)
{
    m_form->sliderLuma->setValue(value);
}

void Mixer::on_spinBoxR_valueChanged(int value)
{
    m_form->sliderR->setValue(value);
}

void Mixer::on_spinBoxG_valueChanged(int value)
{
    m_form->sliderG->setValue(value);
}

void Mixer::on_spinBoxB_valueChanged(int value)
{
    m_form->sliderB->setValue(value);
}

void Mixer::on_buttonReset_clicked()
{
    {
        const QSignalBlocker blockPanel(this);
        {
            const QSignalBlocker blockSliderR(m_form->sliderR);
            const QSignalBlocker blockSliderG(m_form->sliderG);
            const QSignalBlocker blockSliderB(m_form->sliderB);
            const QSignalBlocker blockSpinR(m_form->spinBoxR);
            const QSignalBlocker blockSpinG(m_form->spinBoxG);
            const QSignalBlocker blockSpinB(m_form->spinBoxB);
            m_form->sliderR->setValue(neutralWeight);
            m_form->sliderG->setValue(neutralWeight);
            m_form->sliderB->setValue(neutralWeight);
            m_form->spinBoxR->setValue(neutralWeight);
            m_form->spinBoxG->setValue(neutralWeight);
            m_form->spinBoxB->setValue(neutralWeight);
        }
        constexpr float neutral = neutralWeight;
        showOnWheel({neutral, neutral, neutral});
        m_form->sliderLuma->setValue(neutralSum);
        m_form->spinBoxLuma->setValue(neutralSum);
    }
    showWeightsArePending(false);
    constexpr float third = 1.0F / 3;
    emit signalMixer(third, third, third);
}

void Mixer::on_comboPresets_currentIndexChanged(int index)
{
    applyPreset(index);
}

// Moving through the list does not apply a preset.
void Mixer::on_comboPresets_highlighted(int) {}

void Mixer::applyPreset(int index)
{
    const QVariantList weights = m_form->comboPresets->itemData(index).toList();
    if (weights.size() < 3) {
        qWarning("mixer: color list too small");
        return;
    }
    // Each conversion overwrites the flag, so only the failure of the last one is reported.
    bool converted = false;
    const auto r = static_cast<float>(weights[0].toInt(&converted));
    const auto g = static_cast<float>(weights[1].toInt(&converted));
    const auto b = static_cast<float>(weights[2].toInt(&converted));
    m_preset = {r, g, b};
    if (!converted) {
        qWarning("mixer: could not get all rgb values");
        return;
    }
    slotSetRGB(r, g, b);
    refreshFromSliders();
}
