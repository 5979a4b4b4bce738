// SPDX-License-Identifier: MIT
#pragma once

#include <QDoubleSpinBox>

/// A spin box for decimal numbers that accepts the point and the comma as decimal separator: most locales accept only
/// one of them, and the number pad may have the other one. It displays the separator of the locale.
class DecimalSpinBox : public QDoubleSpinBox
{
public:
    using QDoubleSpinBox::QDoubleSpinBox;

protected:
    QValidator::State validate(QString &text, int &position) const override;
};
