// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QString>

namespace grisal::ui
{
class StatusBar;
} // namespace grisal::ui

/// Shows during its lifetime that the program is busy: wait cursor, a text in the status bar, a progress bar.
/// Everything is painted immediately and no event is processed, so that user input cannot interfere with the work.
class BusyNotice
{
public:
    /// The status bar must outlive the object.
    explicit BusyNotice(grisal::ui::StatusBar &statusBar);
    BusyNotice(const BusyNotice &) = delete;
    BusyNotice &operator=(const BusyNotice &) = delete;
    ~BusyNotice();

    /// Shows a text for work of unknown duration.
    void show(const QString &text);

    /// Shows a text for work of which `done` of `all` parts are complete. Texts that follow each other too fast to be
    /// read are skipped.
    void show(const QString &text, int done, int all);

    /// Ends the notice before the destructor, so that a dialog can be shown.
    void end();

private:
    void paint(const QString &text);

    grisal::ui::StatusBar &m_statusBar;
    QElapsedTimer m_sincePainted;
    QString m_text;
    bool m_ended = false;
};
