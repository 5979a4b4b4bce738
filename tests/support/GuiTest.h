// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>

#include <stdexcept>
#include <string>

namespace grisal::test
{

/// A test of windows and dialogs. It starts with empty settings in an empty home directory and uses Qt's dialogs
/// instead of native ones. It fails on an unexpected warning and when an expected warning is missing, unless it is
/// skipped.
class GuiTest : public testing::Test
{
protected:
    GuiTest();
    ~GuiTest() override;

    void TearDown() override;

    /// Expects a warning that contains `part`, which must not be empty. Several warnings may match.
    void expectWarning(const QString &part);

    /// Allows a warning that contains `part`.
    void allowWarning(const QString &part);

    QString homePath() const { return m_home.path(); }

    /// Path of a file in the home directory.
    QString inHome(const QString &name) const { return m_home.filePath(name); }

    LogCapture log;

private:
    QTemporaryDir m_home;
    QByteArray m_homeBefore;
    QByteArray m_configBefore;
    QStringList m_expectedWarnings;
    QStringList m_allowedWarnings;
};

/// The child with this type and object name; throws if there is none, which ends the test.
template <typename T>
T &child(const QObject &parent, const char *name)
{
    auto *found = parent.findChild<T *>(QString::fromLatin1(name));
    if (found == nullptr) {
        throw std::runtime_error(std::string("nothing of the wanted type is named ") + name);
    }
    return *found;
}

/// The signatures of the signals and slots declared by the class itself, in order, separated by `between`.
std::string methodsOf(const QMetaObject &meta, char between = ' ');

/// Makes a running timer time out now; does nothing if the timer is inactive.
void timeOutNow(QTimer &timer);

/// Triggers an action as a user does; throws if it is missing, disabled or hidden, which ends the test.
void trigger(const QObject &window, const char *name);

} // namespace grisal::test
