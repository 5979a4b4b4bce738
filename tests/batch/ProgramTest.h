// SPDX-License-Identifier: MIT
#pragma once

#include "tests/graphics/files/PictureFiles.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace grisal::batch
{

constexpr int patience = 60'000; ///< milliseconds

/// How a process ended; the status is -1 after a crash.
struct Ended {
    int status;
    QString output;
    QString errors;
};

/// Runs grisal-batch, as users do, in a temporary folder.
class ProgramTest : public testing::Test
{
protected:
    void start(QProcess &process, const QStringList &arguments) const
    {
        process.setWorkingDirectory(directory.path());
        process.start(QStringLiteral(GRISAL_BATCH_PROGRAM), arguments);
        ASSERT_TRUE(process.waitForStarted(patience));
    }

    Ended run(const QStringList &arguments, const QByteArray &input = {}) const
    {
        QProcess process;
        start(process, arguments);
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(patience));
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
    }

    QString path(const QString &name) const { return directory.path() + "/" + name; }
    QByteArray contents(const QString &name) const { return test::contentsOf(path(name)); }
    QStringList filesIn(const QString &folder) const
    {
        return QDir(path(folder)).entryList(QDir::Files | QDir::Hidden);
    }

    const QTemporaryDir directory;
};

const QStringList film{QStringLiteral("--film"), QStringLiteral("Rochester Tri-X")};

} // namespace grisal::batch
