// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class QAction;
class QMenu;

/// Runs the open and save dialogs, stores the last directory and the five most recent images across runs, and fills the
/// Recent menu.
class FileDealer : public QObject
{
    Q_OBJECT

public:
    explicit FileDealer(QObject *parent = nullptr);

    /// Adds the five actions of the recent images to the menu. To be called once.
    void setUpRecentMenu(QMenu *menu);

    /// Asks for an image to open. The result, empty if the user cancels, becomes the current path.
    QString openDialog();

    /// Asks for a path to save to and proposes a file name in the last directory. Empty if the user cancels. The path
    /// is not stored.
    QString saveDialog(const QString &proposedName = {}) const;

    /// The result of the last open dialog; empty before.
    QString currentPath() const { return m_currentPath; }

    /// Puts the current path at the front of the recent images and stores its directory.
    void addToRecent();

    /// The stored values: the directory of the last opened image, empty if there is none, and the recent images, latest
    /// first, including missing files and empty paths.
    QString lastDirectory() const;
    QStringList recentImages() const;

    /// Removes the stored values from the settings. The current path, which Save writes to, stays. False if the
    /// settings cannot be changed.
    bool forgetDirectory();
    bool forgetRecent();

    /// Path of the settings file, which may not exist yet.
    static QString settingsFile();

public slots:
    /// Emits signalOpenImage() with the path of the action that sent the signal.
    void openRecent();

signals:
    void signalOpenImage(QString path);

private:
    QString startDirectory() const;
    void refreshRecentMenu();

    QString m_currentPath;
    QList<QAction *> m_recentActions;
};
