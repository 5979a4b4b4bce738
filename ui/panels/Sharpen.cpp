// SPDX-License-Identifier: MIT
#include "ui/panels/Sharpen.h"

#include "ui_Sharpen.h"

Sharpen::Sharpen(QWidget *parent) : QWidget(parent), m_form(std::make_unique<Ui::Sharpen>())
{
    m_form->setupUi(this);
}

Sharpen::~Sharpen() = default;
