// SPDX-License-Identifier: MIT
#include "ui/panels/Curves.h"

#include "graphics/look/CurveFilterParameters.h"
#include "ui/frames/CurveFrameEventFilter.h"
#include "ui_Curves.h"

#include <QButtonGroup>
#include <QCoreApplication>

namespace
{

constexpr int histogramSize = 256;

} // namespace

Curves::Curves(QWidget *parent) : QWidget(parent), m_form(std::make_unique<Ui::Curves>())
{
    m_form->setupUi(this);
    auto *types = new QButtonGroup(this);
    types->addButton(m_form->radioLinear);
    types->addButton(m_form->radioBSpline);
    // The Tab key goes to the checked button of the group. Qt ensures this only after one of them has had the focus.
    m_form->radioLinear->setFocusPolicy(Qt::ClickFocus);
    connect(m_form->frameCurve, &CurveFrame::signalMoved, this, &Curves::emitAll);
    m_deleteKey = std::make_unique<CurveFrameEventFilter>(m_form->frameCurve);
    QCoreApplication::instance()->installEventFilter(m_deleteKey.get());
}

Curves::~Curves()
{
    QCoreApplication::instance()->removeEventFilter(m_deleteKey.get());
}

void Curves::slotSetHistogram(QVector<float> histo)
{
    if (histo.size() != histogramSize) {
        qWarning("Histogramm has the wrong size");
    }
    m_form->frameCurve->setHistogram(histo);
}

void Curves::emitAll()
{
    const QVector<float> samples = m_form->frameCurve->sample(grisal::graphics::curveSamples);
    const QVector<float> histogram = m_form->frameCurve->outputHistogram();
    m_curve = m_form->frameCurve->curve();
    emit signalCurves(samples);
    emit signalOutHistogram(histogram);
}

void Curves::on_buttonReset_clicked()
{
    const auto [xs, ys] = grisal::graphics::CurveFilterParameters::defaultCurve().points;
    m_form->frameCurve->setPoints(xs, ys);
    emitAll();
}

void Curves::on_radioBSpline_clicked()
{
    m_form->frameCurve->slotSetInterpolation(CurveFrame::BSpline);
    emitAll();
}

void Curves::on_radioLinear_clicked()
{
    m_form->frameCurve->slotSetInterpolation(CurveFrame::Linear);
    emitAll();
}
