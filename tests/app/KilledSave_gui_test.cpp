// SPDX-License-Identifier: MIT
// If the program is killed while it replaces a file, the file contains the complete old or the complete new image.
// GRISAL_KILLED_SAVES sets the number of kills, which is small by default.
#include "tests/graphics/files/PictureFiles.h"
#include "tests/support/GlPresence.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <random>
#include <string>
#include <system_error>

namespace
{

using namespace grisal::test;

constexpr unsigned seed = 4;
constexpr int patience = 60000;

class KilledSave : public testing::Test
{
protected:
    void SetUp() override
    {
        GRISAL_SKIP_WITHOUT_GL();
        ASSERT_TRUE(m_home.isValid() && m_folder.isValid());
        painted(500, 340, 8, [](int x, int y) {
            return Samples{static_cast<std::uint16_t>(x * 70), static_cast<std::uint16_t>(y * 109),
                           static_cast<std::uint16_t>((x ^ y) * 64)};
        }).write(m_source.toStdString());
    }

    void start(QProcess &process, const QString &target, int saves) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), m_home.path());
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(GRISAL_SAVING_PROGRAM), {m_source, target, QString::number(saves)});
    }

    /// The contents of the target after this number of undisturbed saves.
    QByteArray savedAfter(const QString &target, int saves) const
    {
        QProcess process;
        start(process, target, saves);
        const bool ended = process.waitForFinished(patience) && process.exitCode() == 0;
        return ended ? contentsOf(target) : QByteArray();
    }

    /// Kills the program during its first or second save after a random part of the new file is written.
    void expectWholeFiles(const QString &name)
    {
        const QString target = QDir(m_folder.path()).filePath(name);
        const QByteArray grainy = savedAfter(target, 1);
        const QByteArray smooth = savedAfter(target, 2);
        ASSERT_FALSE(grainy.isEmpty() || smooth.isEmpty());
        ASSERT_NE(grainy, smooth);
        const int rounds = std::max(qEnvironmentVariableIntValue("GRISAL_KILLED_SAVES"), 6);
        int grainyOnes = 0;
        for (int round = 0; round < rounds; ++round) {
            writeFile(target, smooth);
            const int save = 1 + round % 2;
            const qint64 whole = (save == 1 ? grainy : smooth).size();
            const qint64 bytes = std::uniform_int_distribution(qint64{0}, whole)(m_random);
            ASSERT_TRUE(killIn(target, save, bytes)) << "round " << round << ", save " << save;
            const QByteArray now = contentsOf(target);
            ASSERT_TRUE(now == grainy || now == smooth)
                << "round " << round << ", killed in save " << save << " at " << bytes << " of " << whole << " bytes";
            grainyOnes += now == grainy ? 1 : 0;
        }
        expectWholeLeftovers(name, grainy, smooth);
        std::printf("%s: killed %d times, left the grainy picture %d times\n", qPrintable(name), rounds, grainyOnes);
    }

private:
    static void waitForSave(QProcess &process)
    {
        while (process.state() != QProcess::NotRunning && !process.canReadLine()) {
            process.waitForReadyRead(patience);
        }
        ASSERT_EQ(process.readLine(), "saving\n");
    }

    /// The size of the file in the folder that the process has open, with or without a name; -1 if there is none.
    qint64 openFileSize(qint64 process) const
    {
        std::error_code error;
        for (const auto &file :
             std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/fd", error)) {
            const std::string path = std::filesystem::read_symlink(file, error).string();
            if (!error && path.starts_with(m_folder.path().toStdString())) {
                const auto size = std::filesystem::file_size(file, error);
                return error ? -1 : static_cast<qint64>(size);
            }
        }
        return -1;
    }

    /// Kills the program during the save with this number when the written file has this number of bytes; returns
    /// false if it never has.
    bool killIn(const QString &target, int save, qint64 bytes) const
    {
        QProcess process;
        start(process, target, 1000);
        for (int begun = 0; begun < save; ++begun) {
            waitForSave(process);
        }
        const QDeadlineTimer deadline(patience);
        bool reached = false;
        while (!reached && !deadline.hasExpired()) {
            reached = openFileSize(process.processId()) >= bytes;
        }
        process.kill();
        process.waitForFinished(patience);
        return reached;
    }

    /// A program that is killed just before it renames the new file cannot remove it.
    void expectWholeLeftovers(const QString &name, const QByteArray &grainy, const QByteArray &smooth) const
    {
        const QDir folder(m_folder.path());
        for (const QString &left : folder.entryList(QDir::Files | QDir::Hidden)) {
            const QByteArray contents = contentsOf(folder.filePath(left));
            EXPECT_TRUE(left == name || contents == grainy || contents == smooth) << left.toStdString();
        }
    }

    const QTemporaryDir m_home;
    const QTemporaryDir m_folder;
    const QString m_source = m_home.filePath(QStringLiteral("source.png"));
    std::mt19937 m_random{seed};
};

TEST_F(KilledSave, LeavesACompleteJpeg)
{
    expectWholeFiles(QStringLiteral("a.jpg"));
}

TEST_F(KilledSave, LeavesACompletePng)
{
    expectWholeFiles(QStringLiteral("a.png"));
}

} // namespace
