// SPDX-License-Identifier: MIT
#include "ui/panels/Vignette.h"

#include "ui_Vignette.h"

Vignette::Vignette(QWidget *parent) : QWidget(parent), m_form(std::make_unique<Ui::Vignette>())
{
    m_form->setupUi(this);
}

Vignette::~Vignette() = default;

void Vignette::on_buttonReset_clicked()
{
    constexpr float half = 50;
    emit signalVignette(half, half, half, half, false);
}
