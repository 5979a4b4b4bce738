// SPDX-License-Identifier: MIT
// Whenever the program is killed, a file that it was saving over is the whole old picture or the whole new one. A few
// moments by default; as many as GRISAL_KILLED_SAVES says.
#include "tests/graphics/files/PictureFiles.h"
#include "tests/support/GlPresence.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <random>

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

    /// What the target is after that many saves that nobody disturbs.
    QByteArray savedAfter(const QString &target, int saves) const
    {
        QProcess process;
        start(process, target, saves);
        const bool ended = process.waitForFinished(patience) && process.exitCode() == 0;
        return ended ? contentsOf(target) : QByteArray();
    }

    /// Kills the program at random moments of its first save or the one after it.
    void expectWholeFiles(const QString &name)
    {
        const QString target = QDir(m_folder.path()).filePath(name);
        const QByteArray grainy = savedAfter(target, 1);
        const QByteArray smooth = savedAfter(target, 2);
        ASSERT_FALSE(grainy.isEmpty() || smooth.isEmpty());
        ASSERT_NE(grainy, smooth);
        const int duration = twoSaves(target);
        const int rounds = std::max(qEnvironmentVariableIntValue("GRISAL_KILLED_SAVES"), 5);
        int grainyOnes = 0;
        for (int round = 0; round < rounds; ++round) {
            writeFile(target, smooth);
            const int delay = std::uniform_int_distribution(0, duration)(m_random);
            killAfter(target, delay);
            const QByteArray now = contentsOf(target);
            ASSERT_TRUE(now == grainy || now == smooth) << "round " << round << ", killed after " << delay << " ms";
            grainyOnes += now == grainy ? 1 : 0;
        }
        expectWholeLeftovers(name, grainy, smooth);
        std::printf("%s: %d moments of %d ms, the new picture %d times\n", qPrintable(name), rounds, duration,
                    grainyOnes);
    }

private:
    static void waitForSave(QProcess &process)
    {
        while (process.state() != QProcess::NotRunning && !process.canReadLine()) {
            process.waitForReadyRead(patience);
        }
        ASSERT_EQ(process.readLine(), "saving\n");
    }

    /// How long two saves take, in milliseconds.
    int twoSaves(const QString &target) const
    {
        QProcess process;
        start(process, target, 2);
        waitForSave(process);
        QElapsedTimer timer;
        timer.start();
        process.waitForFinished(patience);
        return static_cast<int>(timer.elapsed());
    }

    void killAfter(const QString &target, int milliseconds) const
    {
        QProcess process;
        start(process, target, 1000);
        waitForSave(process);
        QThread::msleep(static_cast<unsigned long>(milliseconds));
        process.kill();
        process.waitForFinished(patience);
    }

    /// A program that dies just before it renames a new file cannot take it away.
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

TEST_F(KilledSave, LeavesAWholeJpeg)
{
    expectWholeFiles(QStringLiteral("a.jpg"));
}

TEST_F(KilledSave, LeavesAWholePng)
{
    expectWholeFiles(QStringLiteral("a.png"));
}

} // namespace
