// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/ReplacementFile.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QByteArray>
#include <QDir>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <unistd.h>

#include <cstddef>

namespace grisal::test
{

/// Writes to the file of a replacement.
inline void put(const graphics::ReplacementFile &file, const QByteArray &contents)
{
    ASSERT_EQ(write(file.file().descriptor(), contents.constData(), static_cast<std::size_t>(contents.size())),
              contents.size());
}

/// Replaces the file with this path; returns whether that succeeded.
inline bool replace(const QString &path, const QByteArray &contents)
{
    graphics::ReplacementFile file(path);
    if (!file.problem().isEmpty()) {
        return false;
    }
    put(file, contents);
    return file.commit();
}

/// A folder to save in.
class ReplacementFileTest : public testing::Test
{
protected:
    QString path(const QString &name) const { return directory.filePath(name); }

    /// The names of everything in the folder.
    QStringList names() const
    {
        return QDir(directory.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QTemporaryDir directory;
};

} // namespace grisal::test
