// SPDX-License-Identifier: MIT
#include "ui/panels/Curves.h"

#include "graphics/filters/FilterParameters.h"
#include "ui_Curves.h"

Curves::Curves(QWidget *parent) : QWidget(parent), m_form(std::make_unique<Ui::Curves>())
{
    m_form->setupUi(this);
}

Curves::~Curves() = default;

void Curves::slotSetHistogram(QVector<float> histogram)
{
    m_histogram = std::move(histogram);
}

void Curves::on_buttonReset_clicked()
{
    emit signalCurves(grisal::graphics::FilterParameters().curve);
    // A straight curve leaves the tones where they are.
    emit signalOutHistogram(m_histogram);
}
