// SPDX-License-Identifier: MIT
#include "ui/panels/Grain.h"

#include "graphics/filters/FilterParameters.h"
#include "ui_Grain.h"

Grain::Grain(QWidget *parent) : QWidget(parent), m_form(std::make_unique<Ui::Grain>())
{
    m_form->setupUi(this);
}

Grain::~Grain() = default;

// Nothing shows the histogram yet.
void Grain::slotSetHistogram(QVector<float>) {}

void Grain::on_buttonReset_clicked()
{
    const grisal::graphics::FilterParameters initial;
    emit signalGrain(initial.grainWeights, initial.grainRadius);
}
