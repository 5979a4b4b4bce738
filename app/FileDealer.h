// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

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

    /// What is remembered: the directory of the last opened image, empty where there is none, and the recent images,
    /// latest first, missing files and empty paths among them.
    QString lastDirectory() const;
    QStringList recentImages() const;

    /// Removes what is remembered from the settings. The current path stays, and with it the place that Save writes to.
    void forgetDirectory();
    void forgetRecent();

    /// Path of the file that the settings are in, whether it is there yet or not.
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
