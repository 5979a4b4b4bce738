// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/Message.h"

#include <QSettings>
#include <QString>
#include <QVariant>

#include <optional>

/// The stored settings of the program. Unlike QSettings, it neither waits for a pipe in place of a settings file, nor
/// reads a file of more than 1 MiB, nor waits for more than a second for a lock of another program or machine.
class Settings
{
public:
    /// Reads the settings, if that is possible.
    Settings();

    /// The stored value; invalid if there is none or if the settings cannot be read.
    QVariant value(const QString &key) const;

    /// Store and remove a value. If that is not possible, the stored settings stay as they are, the log contains the
    /// reason, and the result is false.
    bool setValue(const QString &key, const QVariant &value);
    bool remove(const QString &key);

    /// Path of the settings file, which may not exist yet.
    static QString fileName();

    /// Why the settings cannot be read; empty if they can.
    static grisal::graphics::Message problem();

private:
    bool canStore();
    bool store();

    std::optional<QSettings> m_stored;
    std::optional<bool> m_canStore; ///< empty before the first change
};
