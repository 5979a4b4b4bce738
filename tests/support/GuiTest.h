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

/// A test of windows and dialogs. It starts from empty settings in an empty home of its own, dialogs are the toolkit's,
/// and a warning that the test did not announce makes it fail, as does an expected one that does not come.
class GuiTest : public testing::Test
{
protected:
    GuiTest();
    ~GuiTest() override;

    void TearDown() override;

    /// Announces a warning by a part of its text, which must not be empty. Any number of warnings may have this part.
    void expectWarning(const QString &part);

    /// Announces a warning that may come but need not.
    void allowWarning(const QString &part);

    QString homePath() const { return m_home.path(); }

    /// Path of a file in the home.
    QString inHome(const QString &name) const { return m_home.filePath(name); }

    LogCapture log;

private:
    QTemporaryDir m_home;
    QByteArray m_homeBefore;
    QStringList m_expectedWarnings;
    QStringList m_allowedWarnings;
};

/// The child of that type and object name; the test ends where there is none.
template <typename T>
T &child(const QObject &parent, const char *name)
{
    auto *found = parent.findChild<T *>(QString::fromLatin1(name));
    if (found == nullptr) {
        throw std::runtime_error(std::string("nothing of the wanted type is named ") + name);
    }
    return *found;
}

/// The signatures of a class's own signals and slots, in their order, with `between` between them.
std::string methodsOf(const QMetaObject &meta, char between = ' ');

/// Ends the interval of a running timer now; a timer that does not run is left as it is.
void timeOutNow(QTimer &timer);

/// Triggers an action as a user does; the test ends where it is missing, disabled or hidden.
void trigger(const QObject &window, const char *name);

} // namespace grisal::test
