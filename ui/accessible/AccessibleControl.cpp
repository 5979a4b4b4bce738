// SPDX-License-Identifier: MIT
#include "ui/accessible/AccessibleControl.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace
{

/// Qt queries it on behalf of the widget. It may outlive the AccessibleControl part of the widget.
class AccessibleInterface final : public QAccessibleWidget
{
public:
    AccessibleInterface(QWidget *widget, QAccessible::Role role) : QAccessibleWidget(widget, role) {}

    QString text(QAccessible::Text kind) const override
    {
        const auto *control = dynamic_cast<const AccessibleControl *>(object());
        QString text = QAccessibleWidget::text(kind);
        if (control == nullptr) {
            return text;
        }
        switch (kind) {
        case QAccessible::Value:
            return control->accessibleValue();
        case QAccessible::Description:
            return text.isEmpty() ? control->accessibleValue()
                                  : control->accessibleValue() + QStringLiteral(". ") + text;
        default:
            return text;
        }
    }
};

QAccessibleInterface *newAccessibleInterface(const QString &, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    const auto *control = dynamic_cast<const AccessibleControl *>(object);
    return widget != nullptr && control != nullptr ? new AccessibleInterface(widget, control->accessibleRole())
                                                   : nullptr;
}

} // namespace

// Qt stores the factory only once, even if it is installed repeatedly.
AccessibleControl::AccessibleControl()
{
    QAccessible::installFactory(newAccessibleInterface);
}

void AccessibleControl::notifyValueChanged()
{
    auto *widget = dynamic_cast<QWidget *>(this);
    const QString value = accessibleValue();
    if (value == m_reported) {
        return;
    }
    m_reported = value;
    if (!widget->isVisible()) {
        return;
    }
    QAccessibleValueChangeEvent valueChange(widget, value);
    QAccessible::updateAccessibility(&valueChange);
    QAccessibleEvent descriptionChange(widget, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&descriptionChange);
}
