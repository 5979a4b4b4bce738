// SPDX-License-Identifier: MIT
#pragma once

#include <QDoubleSpinBox>

/// A spin box for numbers with a fraction that takes both the point and the comma as decimal separator. In most
/// languages only one of them is, and the other one may be the one on the keyboard's number pad. It shows the locale's.
class DecimalSpinBox : public QDoubleSpinBox
{
public:
    using QDoubleSpinBox::QDoubleSpinBox;

protected:
    QValidator::State validate(QString &text, int &position) const override;
};
