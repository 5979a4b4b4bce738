// SPDX-License-Identifier: MIT
#include "ui/panels/SplitTone.h"

#include "graphics/filters/FilterParameters.h"
#include "ui_SplitTone.h"

SplitTone::SplitTone(QWidget *parent) : QWidget(parent), m_form(std::make_unique<Ui::SplitTone>())
{
    m_form->setupUi(this);
}

SplitTone::~SplitTone() = default;

void SplitTone::on_buttonReset_clicked()
{
    const grisal::graphics::FilterParameters initial;
    const auto &[r1, g1, b1] = initial.highlightTint;
    const auto &[r2, g2, b2] = initial.shadowTint;
    emit signalSplit(initial.splitWeight, r1, g1, b1, r2, g2, b2);
}
