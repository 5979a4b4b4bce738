// SPDX-License-Identifier: MIT
#include "ui/panels/Grain.h"

#include "graphics/look/GrainFilterParameters.h"
#include "ui/frames/CurveFrameEventFilter.h"
#include "ui_Grain.h"

#include <QCoreApplication>

using grisal::graphics::GrainFilterParameters;

namespace
{

constexpr double tenthsOfAPixel = 10.0;

} // namespace

Grain::Grain(QWidget *parent) : QWidget(parent), m_form(std::make_unique<Ui::Grain>())
{
    m_form->setupUi(this);
    m_form->frameCurve->slotSetInterpolation(CurveFrame::Linear);
    m_form->frameCurve->setOutputIsStrength(true);
    connect(m_form->frameCurve, &CurveFrame::signalMoved, this, &Grain::emitAll);
    m_deleteKey = std::make_unique<CurveFrameEventFilter>(m_form->frameCurve);
    QCoreApplication::instance()->installEventFilter(m_deleteKey.get());
    m_form->frameCurve->installEventFilter(m_deleteKey.get());
    emitAll();
}

Grain::~Grain()
{
    QCoreApplication::instance()->removeEventFilter(m_deleteKey.get());
}

void Grain::slotSetHistogram(QVector<float> histogram)
{
    m_form->frameCurve->setHistogram(histogram);
}

void Grain::on_sliderBlur_valueChanged(int tenths)
{
    m_form->doubleSpinBoxBlur->setValue(tenths / tenthsOfAPixel);
}

void Grain::on_doubleSpinBoxBlur_valueChanged(double blur)
{
    m_form->sliderBlur->setValue(static_cast<int>(blur * tenthsOfAPixel));
    emitAll();
}

void Grain::emitAll()
{
    const QVector<float> weights = m_form->frameCurve->sample(grisal::graphics::curveSamples);
    const auto blur = static_cast<float>(m_form->doubleSpinBoxBlur->value());
    m_curve = m_form->frameCurve->curve();
    emit signalGrain(weights, blur);
    m_form->framePreview->slotAdjustWeights(weights);
    m_form->framePreview->slotSetRadius(blur);
}

void Grain::on_buttonReset_clicked()
{
    const auto [xs, ys] = GrainFilterParameters::defaultStrength().points;
    m_form->frameCurve->setPoints(xs, ys);
    m_form->doubleSpinBoxBlur->setValue(double{GrainFilterParameters().radius});
    emitAll();
}
