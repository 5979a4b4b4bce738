// SPDX-License-Identifier: MIT
#include "ui/panels/SplitTone.h"

#include "graphics/filters/HalfToneFilter.h"
#include "math/OpponentColour.h"
#include "ui_SplitTone.h"

#include <QSignalBlocker>

#include <cmath>

using grisal::graphics::ColorRGB;
using grisal::graphics::HalfToneFilter;

namespace
{

constexpr int evenWeight = 50;

/// The controls of one tone.
struct Tone {
    YUVFrame *wheel;
    QSlider *luma;
    QSpinBox *r;
    QSpinBox *g;
    QSpinBox *b;
};

Tone highlightsOf(const Ui::SplitTone &form)
{
    return {form.frameHighlights, form.sliderHLuma, form.spinBoxHR, form.spinBoxHG, form.spinBoxHB};
}

Tone shadowsOf(const Ui::SplitTone &form)
{
    return {form.frameShadows, form.sliderSLuma, form.spinBoxSR, form.spinBoxSG, form.spinBoxSB};
}

ColorRGB<float> tintOf(const Tone &tone)
{
    return {static_cast<float>(tone.r->value()), static_cast<float>(tone.g->value()),
            static_cast<float>(tone.b->value())};
}

void setTint(const Tone &tone, int r, int g, int b)
{
    const QSignalBlocker blockR(tone.r);
    const QSignalBlocker blockG(tone.g);
    const QSignalBlocker blockB(tone.b);
    tone.r->setValue(r);
    tone.g->setValue(g);
    tone.b->setValue(b);
}

// The mean stays in double precision until it is truncated: 110, 148 and 198 are shown as 151, because the weights of
// the channels are not exactly a third each and the mean is slightly below 152.
void showLuma(const Tone &tone, const ColorRGB<float> &tint)
{
    using namespace grisal::math;
    const QSignalBlocker blockLuma(tone.luma);
    tone.luma->setValue(static_cast<int>(tint.r * third + tint.g * greenThird + tint.b * third));
}

void showOnWheel(const Tone &tone)
{
    const QSignalBlocker blockWheel(tone.wheel);
    tone.wheel->slotSetRGB(tintOf(tone));
}

void refreshFromTint(const Tone &tone)
{
    showLuma(tone, tintOf(tone));
    showOnWheel(tone);
}

void takeTint(const Tone &tone, float r, float g, float b)
{
    const int wholeR = static_cast<int>(r);
    const int wholeG = static_cast<int>(g);
    const int wholeB = static_cast<int>(b);
    showLuma(tone, {static_cast<float>(wholeR), static_cast<float>(wholeG), static_cast<float>(wholeB)});
    setTint(tone, wholeR, wholeG, wholeB);
}

/// Sets the level of the wheel, whose marker stays, and returns the tint at that level.
ColorRGB<float> shiftToLuma(const Tone &tone, int luma)
{
    const ColorRGB<float> shifted = grisal::math::shiftedToMean(tintOf(tone), luma);
    const QSignalBlocker blockWheel(tone.wheel);
    tone.wheel->slotSetLuma(static_cast<float>(luma));
    return shifted;
}

int byteOf(float share)
{
    return static_cast<int>(std::lround(share * 255.0F));
}

float shareOf(const QSpinBox *channel)
{
    return static_cast<float>(channel->value() / 255.0);
}

} // namespace

SplitTone::SplitTone(QWidget *parent) : QWidget(parent), m_form(std::make_unique<Ui::SplitTone>())
{
    m_form->setupUi(this);
    m_form->frameShadows->setColorSpace(0);
    m_form->frameHighlights->setColorSpace(0);
    connect(m_form->frameHighlights, &YUVFrame::signalWeights, this, &SplitTone::slotSetHighlights);
    connect(m_form->frameShadows, &YUVFrame::signalWeights, this, &SplitTone::slotSetShadows);
}

SplitTone::~SplitTone() = default;

void SplitTone::on_spinBoxHR_valueChanged(int)
{
    refreshFromTint(highlightsOf(*m_form));
}

void SplitTone::on_spinBoxHG_valueChanged(int)
{
    refreshFromTint(highlightsOf(*m_form));
}

void SplitTone::on_spinBoxHB_valueChanged(int)
{
    refreshFromTint(highlightsOf(*m_form));
}

void SplitTone::on_spinBoxSR_valueChanged(int)
{
    refreshFromTint(shadowsOf(*m_form));
}

void SplitTone::on_spinBoxSG_valueChanged(int)
{
    refreshFromTint(shadowsOf(*m_form));
}

void SplitTone::on_spinBoxSB_valueChanged(int)
{
    refreshFromTint(shadowsOf(*m_form));
}

void SplitTone::on_spinBoxWeight_valueChanged(int value)
{
    m_form->sliderWeight->setValue(value);
    emitAll();
}

// Only the spin box emits, and only if its value changes: one emission, whether the slider or the spin box is moved.
void SplitTone::on_sliderWeight_valueChanged(int value)
{
    m_form->spinBoxWeight->setValue(value);
}

void SplitTone::on_sliderHLuma_valueChanged(int value)
{
    const ColorRGB<float> tint = shiftToLuma(highlightsOf(*m_form), value);
    slotSetHighlights(tint.r, tint.g, tint.b);
}

void SplitTone::on_sliderSLuma_valueChanged(int value)
{
    const ColorRGB<float> tint = shiftToLuma(shadowsOf(*m_form), value);
    slotSetShadows(tint.r, tint.g, tint.b);
}

void SplitTone::slotSetHighlights(float r, float g, float b)
{
    takeTint(highlightsOf(*m_form), r, g, b);
    emitAll();
}

void SplitTone::slotSetShadows(float r, float g, float b)
{
    takeTint(shadowsOf(*m_form), r, g, b);
    emitAll();
}

void SplitTone::emitAll()
{
    const auto weight = static_cast<float>((m_form->sliderWeight->value() * 0.5 + 75.0) / 100.0);
    const Tone highlights = highlightsOf(*m_form);
    const Tone shadows = shadowsOf(*m_form);
    emit signalSplit(weight, shareOf(highlights.r), shareOf(highlights.g), shareOf(highlights.b), shareOf(shadows.r),
                     shareOf(shadows.g), shareOf(shadows.b));
}

void SplitTone::on_buttonReset_clicked()
{
    m_form->sliderWeight->setValue(evenWeight);
    const Tone shadows = shadowsOf(*m_form);
    const Tone highlights = highlightsOf(*m_form);
    const HalfToneFilter::Parameters defaults;
    setTint(shadows, byteOf(defaults.shadows.r), byteOf(defaults.shadows.g), byteOf(defaults.shadows.b));
    setTint(highlights, byteOf(defaults.highlights.r), byteOf(defaults.highlights.g), byteOf(defaults.highlights.b));
    refreshFromTint(shadows);
    refreshFromTint(highlights);
    emitAll();
}
