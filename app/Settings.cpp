// SPDX-License-Identifier: MIT
#include "app/Settings.h"

#include "app/Product.h"

#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <QStringList>

#include <algorithm>

namespace
{

constexpr int lockTimeout = 1000; // milliseconds
constexpr qint64 maxSize = 1 << 20;

QString folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QLatin1Char('/') +
           QString::fromLatin1(product::organisation);
}

/// The user's files that QSettings reads: that of the program and that of the organisation.
QStringList userFiles()
{
    return {Settings::fileName(), folder() + QStringLiteral(".conf")};
}

bool isUnusable(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() && (!file.isFile() || file.size() > maxSize);
}

/// Whether QSettings would get its lock without waiting.
bool canLock(const QString &path)
{
    const QFileInfo file(path);
    if (file.exists() && !file.isFile()) {
        return false;
    }
    QLockFile lock(path);
    return lock.tryLock(lockTimeout) || lock.error() != QLockFile::LockFailedError;
}

} // namespace

Settings::Settings()
{
    if (problem().isEmpty()) {
        m_stored.emplace(QString::fromLatin1(product::organisation), QString::fromLatin1(product::settingsName));
    }
}

QVariant Settings::value(const QString &key) const
{
    return m_stored ? m_stored->value(key) : QVariant();
}

bool Settings::setValue(const QString &key, const QVariant &value)
{
    if (!canStore()) {
        return false;
    }
    m_stored->setValue(key, value);
    return store();
}

bool Settings::remove(const QString &key)
{
    if (!canStore()) {
        return false;
    }
    m_stored->remove(key);
    return store();
}

bool Settings::canStore()
{
    if (!m_canStore) {
        const QString lock = fileName() + QStringLiteral(".lock");
        m_canStore = m_stored && canLock(lock);
        if (!m_stored) {
            qWarning("The settings cannot be stored: %s", qPrintable(problem().english()));
        } else if (!*m_canStore) {
            qWarning("The settings cannot be stored: another program holds %s", qPrintable(lock));
        }
    }
    return *m_canStore;
}

bool Settings::store()
{
    m_stored->sync();
    const bool stored = m_stored->status() == QSettings::NoError;
    if (!stored) {
        qWarning("The settings cannot be stored: %s cannot be written", qPrintable(fileName()));
    }
    return stored;
}

QString Settings::fileName()
{
    return folder() + QStringLiteral("/%1.conf").arg(QString::fromLatin1(product::settingsName));
}

grisal::graphics::Message Settings::problem()
{
    const QStringList files = userFiles();
    const auto unusable = std::find_if(files.begin(), files.end(), isUnusable);
    if (unusable == files.end()) {
        return {};
    }
    return grisal::graphics::Message(
        QT_TRANSLATE_NOOP("Message", "The settings cannot be used, because %1 is too large or is not a regular file."),
        *unusable);
}
