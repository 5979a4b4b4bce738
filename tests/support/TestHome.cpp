// SPDX-License-Identifier: MIT
#include "tests/support/TestHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <cstdio>
#include <stdexcept>

namespace grisal::test
{

namespace
{

/// The template of the folder's name.
QString folderTemplate()
{
    const QString folder = QDir::tempPath();
    if (!QFileInfo(folder).isDir()) {
        throw std::runtime_error("TMPDIR is not a folder");
    }
    return folder + QStringLiteral("/grisal-test-XXXXXX");
}

QString temporaryFolder(const QTemporaryDir &directory)
{
    return directory.filePath(QStringLiteral("tmp"));
}

} // namespace

TestHome::TestHome() : m_directory(folderTemplate())
{
    // For tests that run as another user.
    QFile::setPermissions(m_directory.path(),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
    QDir().mkpath(temporaryFolder(m_directory));
    const QByteArray home = m_directory.filePath(QStringLiteral("home")).toLocal8Bit();
    QDir().mkpath(QString::fromLocal8Bit(home));
    qputenv("HOME", home);
    qputenv("XDG_CONFIG_HOME", home + "/.config");
    qputenv("XDG_CACHE_HOME", home + "/.cache");
    qputenv("XDG_DATA_HOME", home + "/.local/share");
    qputenv("TMPDIR", temporaryFolder(m_directory).toLocal8Bit());
}

bool TestHome::isCleanAtEnd()
{
    const QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    const QStringList left = QDir(temporaryFolder(m_directory)).entryList(everything);
    if (!left.isEmpty()) {
        std::fprintf(stderr, "The tests left in TMPDIR: %s\n", qPrintable(left.join(QStringLiteral(", "))));
    }
    // QDir::tempPath() is empty, like the canonical path, if the folder is gone; a file in it would go to the root.
    const bool sameFolder = QFileInfo(temporaryFolder(m_directory)).isDir() &&
                            QDir::tempPath() == QDir(temporaryFolder(m_directory)).canonicalPath();
    if (!sameFolder) {
        std::fprintf(stderr, "The tests changed TMPDIR\n");
    }
    // The OpenGL driver may still be writing to its cache in the home directory.
    constexpr int attempts = 20;
    constexpr unsigned long pause = 100; // milliseconds
    bool removed = m_directory.remove();
    for (int i = 1; i < attempts && !removed; ++i) {
        QThread::msleep(pause);
        removed = m_directory.remove();
    }
    if (!removed) {
        std::fprintf(stderr, "The tests' folder cannot be removed: %s\n", qPrintable(m_directory.path()));
    }
    return left.isEmpty() && sameFolder && removed;
}

} // namespace grisal::test
