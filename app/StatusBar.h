// SPDX-License-Identifier: MIT
#pragma once

#include <QStatusBar>

class QLabel;
class QProgressBar;

namespace grisal::ui
{

/// The status bar of the window: messages and, where there is none, a hint at the left; the progress of a job and the
/// scale of the preview at the right.
class StatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusBar(QWidget *parent = nullptr);

    /// Shows a message for two seconds. The last one stays as the tool tip of the status bar.
    void showBriefly(const QString &message);
    bool isShowingBriefly() const;

    /// Shows a text whenever there is no message.
    void setHint(const QString &hint);

    /// Shows the size of the image on the screen, in percent of its size in the file, and by how much the preview is
    /// downscaled: 1 if it is not, otherwise 2, 4 and so on.
    void setScale(int percent, int downscaling);

    /// Hidden while there is no job; its space stays reserved.
    QProgressBar &progressBar() { return *m_progressBar; }

private:
    void addProgressBar();
    QLabel *makeLabel(const char *name);

    QString m_brief;
    QLabel *m_hint;
    QProgressBar *m_progressBar;
    QLabel *m_downscaling;
    QLabel *m_scale;
};

} // namespace grisal::ui
