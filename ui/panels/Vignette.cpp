// SPDX-License-Identifier: MIT
#include "ui/panels/Vignette.h"

#include "ui/frames/VignetteShape.h"
#include "ui_Vignette.h"

#include <QPointF>
#include <QSignalBlocker>

namespace
{

constexpr float hundred = 100;
constexpr int half = 50;

float fractionOf(int percent)
{
    return static_cast<float>(percent) / hundred;
}

void setPercent(QSpinBox &spinBox, double percent)
{
    spinBox.setValue(wholePercent(percent, spinBox.minimum(), spinBox.maximum()));
}

} // namespace

Vignette::Vignette(QWidget *parent) : QWidget(parent), m_form(std::make_unique<Ui::Vignette>())
{
    m_form->setupUi(this);
    connect(m_form->frame, &VFrame::signalPosition, this, &Vignette::slotSetPosition);
    connect(m_form->frame, &VFrame::signalRadius, this, &Vignette::slotSetRadius);
    connect(m_form->frame, &VFrame::signalStrength, this, &Vignette::slotSetStrength);
    emitVignette();
}

Vignette::~Vignette() = default;

void Vignette::setImageSize(QSize size)
{
    m_form->frame->setImageSize(size);
    limitFrame();
}

void Vignette::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    limitFrame();
}

// Otherwise an upright photograph would be higher than the panel.
void Vignette::limitFrame()
{
    const QMargins margins = layout()->contentsMargins();
    m_form->frame->limitTo(width() - margins.left() - margins.right());
    layout()->activate();
}

void Vignette::emitVignette()
{
    const VignettePercents shown{m_form->spinBoxX->value(), m_form->spinBoxY->value(), m_form->spinBoxRadius->value(),
                                 m_form->spinBoxStrength->value()};
    m_form->frame->setPercents(shown);
    emit signalVignette(static_cast<float>(shown.x), static_cast<float>(shown.y), static_cast<float>(shown.radius),
                        static_cast<float>(shown.strength), m_form->checkBoxBlur->isChecked());
}

void Vignette::on_sliderX_valueChanged(int value)
{
    m_form->spinBoxX->setValue(value);
    m_form->frame->slotSetX(fractionOf(value));
    emitVignette();
}

void Vignette::on_sliderY_valueChanged(int value)
{
    m_form->spinBoxY->setValue(value);
    m_form->frame->slotSetY(fractionOf(value));
    emitVignette();
}

void Vignette::on_sliderRadius_valueChanged(int value)
{
    m_form->spinBoxRadius->setValue(value);
    showRadius(fractionOf(value));
    emitVignette();
}

void Vignette::on_sliderStrength_valueChanged(int value)
{
    m_form->spinBoxStrength->setValue(value);
    showStrength(fractionOf(value));
    emitVignette();
}

// The frame emits the value that it accepts. It is blocked here: truncated to whole percents again, 0.53 would become
// 52 while the slider shows 53.
void Vignette::showRadius(float radius)
{
    const QSignalBlocker blockFrame(m_form->frame);
    m_form->frame->slotSetRadius(radius);
}

void Vignette::showStrength(float strength)
{
    const QSignalBlocker blockFrame(m_form->frame);
    m_form->frame->slotSetStrength(strength);
}

void Vignette::on_spinBoxX_valueChanged(int value)
{
    m_form->sliderX->setValue(value);
}

void Vignette::on_spinBoxY_valueChanged(int value)
{
    m_form->sliderY->setValue(value);
}

void Vignette::on_spinBoxRadius_valueChanged(int value)
{
    m_form->sliderRadius->setValue(value);
}

void Vignette::on_spinBoxStrength_valueChanged(int value)
{
    m_form->sliderStrength->setValue(value);
}

// The sliders truncate the position to whole percents, so the exact fraction is set on the frame again: wheel steps of
// less than a percent add up, and the centre stays under the mouse pointer.
void Vignette::slotSetPosition(QPointF position)
{
    const QSignalBlocker blockFrame(m_form->frame);
    setPercent(*m_form->spinBoxX, position.x() * hundred);
    setPercent(*m_form->spinBoxY, position.y() * hundred);
    m_form->frame->slotSetX(static_cast<float>(position.x()));
    m_form->frame->slotSetY(static_cast<float>(position.y()));
}

void Vignette::slotSetRadius(float radius)
{
    setPercent(*m_form->spinBoxRadius, radius * hundred);
    showRadius(radius);
}

void Vignette::slotSetStrength(float strength)
{
    setPercent(*m_form->spinBoxStrength, strength * hundred);
    showStrength(strength);
}

void Vignette::on_checkBoxBlur_clicked()
{
    emitVignette();
}

void Vignette::on_buttonReset_clicked()
{
    {
        const QSignalBlocker blockPanel(this);
        m_form->spinBoxX->setValue(half);
        m_form->spinBoxY->setValue(half);
        m_form->spinBoxRadius->setValue(half);
        m_form->spinBoxStrength->setValue(half);
        // After the mouse has set a fraction slightly above 50 %, the spin boxes already show 50 and emit nothing.
        m_form->frame->slotSetX(fractionOf(half));
        m_form->frame->slotSetY(fractionOf(half));
        showRadius(fractionOf(half));
        showStrength(fractionOf(half));
    }
    m_form->checkBoxBlur->hide();
    emitVignette();
}
