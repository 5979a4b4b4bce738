// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QString>

class QProgressBar;
class QStatusBar;

/// Shows, while it lives, that the program is at work: the wait cursor, a text in the status bar, a progress bar. All
/// of it is painted at once and no event is processed, so that nobody can reach into the work.
class BusyNotice
{
public:
    /// Both have to outlive it. The progress bar lies in the status bar, hidden while there is no work.
    BusyNotice(QStatusBar &statusBar, QProgressBar &progressBar);
    BusyNotice(const BusyNotice &) = delete;
    BusyNotice &operator=(const BusyNotice &) = delete;
    ~BusyNotice();

    /// Tells what is being done; how much of it there is, nobody knows.
    void show(const QString &text);

    /// Tells what is being done, of which `done` of `all` parts are over. Texts that follow each other faster than
    /// anybody reads are left out.
    void show(const QString &text, int done, int all);

    /// Ends the notice before its time: something has to be asked or told.
    void end();

private:
    void paint(const QString &text);

    QStatusBar &m_statusBar;
    QProgressBar &m_progressBar;
    QElapsedTimer m_sincePainted;
    QString m_text;
    bool m_ended = false;
};
