// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QString>

class QAction;
class QMenu;

/// Runs the open and save dialogs, remembers the last directory and the five most recent images across runs, and
/// fills the Recent menu.
class FileDealer : public QObject
{
    Q_OBJECT

public:
    explicit FileDealer(QObject *parent = nullptr);

    /// Adds the five actions of the recent images to the menu. Called once.
    void setUpRecentMenu(QMenu *menu);

    /// Asks for an image to open. The answer, empty if the user cancelled, becomes the current path.
    QString openDialog();

    /// Asks for a path to save to; empty if the user cancelled. Nothing is remembered of it.
    QString saveDialog() const;

    /// What the last open dialog gave; empty before.
    QString currentPath() const { return m_currentPath; }

    /// Puts the current path at the front of the recent images and remembers its directory.
    void addToRecent();

public slots:
    /// Emits signalOpenImage() with the path of the action that sent the signal.
    void openRecent();

signals:
    void signalOpenImage(QString path);

private:
    void refreshRecentMenu();

    QString m_currentPath;
    QList<QAction *> m_recentActions;
};
