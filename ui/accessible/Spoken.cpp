// SPDX-License-Identifier: MIT
#include "ui/accessible/Spoken.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace
{

/// Qt queries it on behalf of the widget. It may outlive the Spoken part of the widget.
class SpokenInterface final : public QAccessibleWidget
{
public:
    SpokenInterface(QWidget *widget, QAccessible::Role role) : QAccessibleWidget(widget, role) {}

    QString text(QAccessible::Text kind) const override
    {
        const auto *spoken = dynamic_cast<const Spoken *>(object());
        QString text = QAccessibleWidget::text(kind);
        if (spoken == nullptr) {
            return text;
        }
        switch (kind) {
        case QAccessible::Value:
            return spoken->spokenValue();
        case QAccessible::Description:
            return text.isEmpty() ? spoken->spokenValue() : spoken->spokenValue() + QStringLiteral(". ") + text;
        default:
            return text;
        }
    }
};

QAccessibleInterface *newSpokenInterface(const QString &, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    const auto *spoken = dynamic_cast<const Spoken *>(object);
    return widget != nullptr && spoken != nullptr ? new SpokenInterface(widget, spoken->spokenRole()) : nullptr;
}

} // namespace

// Qt stores the factory only once, even if it is installed repeatedly.
Spoken::Spoken()
{
    QAccessible::installFactory(newSpokenInterface);
}

void Spoken::sayValue()
{
    auto *widget = dynamic_cast<QWidget *>(this);
    const QString value = spokenValue();
    if (value == m_said) {
        return;
    }
    m_said = value;
    if (!widget->isVisible()) {
        return;
    }
    QAccessibleValueChangeEvent valueChange(widget, value);
    QAccessible::updateAccessibility(&valueChange);
    QAccessibleEvent descriptionChange(widget, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&descriptionChange);
}
