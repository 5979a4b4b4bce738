// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QString>

/// What a control of our own tells a screen reader besides the name and the description that every widget has: its
/// kind, and its value in words.
///
/// The second base of a widget. The value leads the description too, because the screen readers of some desktops ask
/// nothing but numbers and bars for their values.
class Spoken
{
public:
    Spoken();
    Spoken(const Spoken &) = delete;
    Spoken &operator=(const Spoken &) = delete;
    Spoken(Spoken &&) = delete;
    Spoken &operator=(Spoken &&) = delete;

    virtual QAccessible::Role spokenRole() const = 0;
    virtual QString spokenValue() const = 0;

protected:
    ~Spoken() = default;

    /// To be called where the value may have changed: tells it to those who listen, if it has and if the widget is
    /// shown.
    void sayValue();

private:
    QString m_said;
};
