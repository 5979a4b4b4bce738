// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QString>

/// What a custom control reports to screen readers in addition to the name and the description of every widget: its
/// role and its value as text.
///
/// To be used as second base class of a widget. The description starts with the value, too, because the screen readers
/// of some desktops request values only from numeric controls and progress bars.
class AccessibleControl
{
public:
    AccessibleControl();
    AccessibleControl(const AccessibleControl &) = delete;
    AccessibleControl &operator=(const AccessibleControl &) = delete;
    AccessibleControl(AccessibleControl &&) = delete;
    AccessibleControl &operator=(AccessibleControl &&) = delete;

    virtual QAccessible::Role accessibleRole() const = 0;
    virtual QString accessibleValue() const = 0;

protected:
    ~AccessibleControl() = default;

    /// To be called when the value may have changed: notifies screen readers if it has changed and the widget is
    /// visible.
    void notifyValueChanged();

private:
    QString m_reported;
};
