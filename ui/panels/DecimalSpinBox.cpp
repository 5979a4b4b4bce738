// SPDX-License-Identifier: MIT
#include "ui/panels/DecimalSpinBox.h"

QValidator::State DecimalSpinBox::validate(QString &text, int &position) const
{
    const QString separator = locale().decimalPoint();
    text.replace(QLatin1Char('.'), separator).replace(QLatin1Char(','), separator);
    return QDoubleSpinBox::validate(text, position);
}
