// SPDX-License-Identifier: MIT
#include "app/FileDealer.h"

#include "app/Settings.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>

#include <algorithm>

namespace
{

constexpr int recentCount = 5;

QString filter()
{
    return FileDealer::tr("Images") + QStringLiteral(" (*.jpg *.jpeg *.JPG *.JPEG *.png *.PNG *.tif *.TIF)");
}

QString lastDirectoryKey()
{
    return QStringLiteral("lastDirectory");
}

QString recentImagesKey()
{
    return QStringLiteral("recentImages");
}

/// In a menu, an ampersand marks the shortcut letter; "&&" is shown as one ampersand.
QString menuText(QString name)
{
    return name.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

FileDealer::FileDealer(QObject *parent) : QObject(parent) {}

QString FileDealer::lastDirectory() const
{
    return Settings().value(lastDirectoryKey()).toString();
}

QStringList FileDealer::recentImages() const
{
    return Settings().value(recentImagesKey()).toStringList();
}

bool FileDealer::forgetDirectory()
{
    return Settings().remove(lastDirectoryKey());
}

bool FileDealer::forgetRecent()
{
    const bool forgotten = Settings().remove(recentImagesKey());
    refreshRecentMenu();
    return forgotten;
}

QString FileDealer::settingsFile()
{
    return Settings::fileName();
}

QString FileDealer::startDirectory() const
{
    const QString last = lastDirectory();
    return last.isEmpty() ? QDir::homePath() : last;
}

void FileDealer::setUpRecentMenu(QMenu *menu)
{
    for (int i = 0; i < recentCount; ++i) {
        auto *action = new QAction(this);
        action->setVisible(false);
        connect(action, &QAction::triggered, this, &FileDealer::openRecent);
        m_recentActions << action;
    }
    refreshRecentMenu();
    menu->addActions(m_recentActions);
}

QString FileDealer::openDialog()
{
    m_currentPath = QFileDialog::getOpenFileName(nullptr, tr("Open Image"), startDirectory(), filter());
    return m_currentPath;
}

QString FileDealer::saveDialog(const QString &proposedName) const
{
    const QString proposed = QDir(startDirectory()).filePath(proposedName);
    return QFileDialog::getSaveFileName(nullptr, tr("Save image"), proposed, filter());
}

// Records the path of the last open dialog, even if the image came from the Recent menu: Save writes to this path, and
// the menu shows where Save would write.
void FileDealer::addToRecent()
{
    Settings settings;
    if (QFileInfo::exists(m_currentPath)) {
        settings.setValue(lastDirectoryKey(), QFileInfo(m_currentPath).absolutePath());
    }
    QStringList recent = settings.value(recentImagesKey()).toStringList();
    recent.removeAll(m_currentPath);
    recent.prepend(m_currentPath);
    while (recent.size() > recentCount) {
        recent.removeLast();
    }
    settings.setValue(recentImagesKey(), recent);
    refreshRecentMenu();
}

void FileDealer::refreshRecentMenu()
{
    const QStringList recent = recentImages();
    const int shown = std::min<int>(static_cast<int>(recent.size()), static_cast<int>(m_recentActions.size()));
    int digit = 1;
    for (int i = 0; i < shown; ++i) {
        // An entry whose file is missing keeps its action, because a removable drive may be connected again.
        if (!QFileInfo::exists(recent[i])) {
            continue;
        }
        QAction *action = m_recentActions[i];
        action->setText(menuText(QFileInfo(recent[i]).fileName()));
        action->setData(recent[i]);
        action->setVisible(true);
        action->setShortcut(QKeySequence(QStringLiteral("Alt+%1").arg(digit++)));
    }
    for (int i = shown; i < m_recentActions.size(); ++i) {
        m_recentActions[i]->setVisible(false);
    }
}

void FileDealer::openRecent()
{
    if (const auto *action = qobject_cast<QAction *>(sender())) {
        emit signalOpenImage(action->data().toString());
    }
}
