// SPDX-License-Identifier: MIT
//
// Hundreds of real and hostile files, each read in a process of its own.
#include "graphics/files/ImageLibrary.h"
#include "graphics/files/LumioImage.h"
#include "tests/graphics/files/Corpus.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace
{

const char *connectionLog = nullptr;

} // namespace

/// Replaces the system's function and records each attempt to connect to another program or machine.
extern "C" int connect(int, const sockaddr *, socklen_t) noexcept
{
    if (connectionLog != nullptr) {
        if (FILE *log = std::fopen(connectionLog, "a")) {
            std::fputs("a connection\n", log);
            std::fclose(log);
        }
    }
    return -1;
}

namespace
{

using namespace grisal::test;
using grisal::graphics::LumioImage;

enum Outcome { Refused = 0, Opened = 10, Incomplete = 11 };

/// The result of a process that read one file.
struct Reading {
    int status = 0; ///< as returned by wait()
    qint64 milliseconds = 0;
    long kilobytes = 0; ///< peak memory

    bool ended() const { return WIFEXITED(status); }
    bool opened() const { return ended() && WEXITSTATUS(status) == Opened; }
    bool refused() const { return ended() && WEXITSTATUS(status) == Refused; }
};

/// Reads a file and calls every function that reads the image.
Outcome look(const QString &path)
{
    LumioImage image;
    if (!image.read(path)) {
        return image.problem().isEmpty() || !image.isNull() ? Incomplete : Refused;
    }
    const std::size_t count = static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height()) * 3;
    Bytes bytes(count);
    const bool whole = !image.info().empty() && image.getPixels(bytes.data(), false, false);
    return whole ? Opened : Incomplete;
}

template <typename Step>
Reading inAProcess(Step step)
{
    QElapsedTimer timer;
    timer.start();
    const pid_t process = fork();
    if (process == 0) {
        _exit(step());
    }
    Reading reading;
    rusage usage{};
    wait4(process, &reading.status, 0, &usage);
    reading.milliseconds = timer.elapsed();
    reading.kilobytes = usage.ru_maxrss;
    return reading;
}

class Corpus : public testing::Test
{
protected:
    void SetUp() override
    {
        if (corpusFolder().isEmpty()) {
            GTEST_SKIP() << "GRISAL_CORPUS, the folder of the pictures, is not set";
        }
        grisal::graphics::initializeImageLibrary(nullptr);
        m_folderBefore = QDir::currentPath();
        QDir::setCurrent(elsewhere.path());
        m_temporaryBefore = qgetenv("TMPDIR");
        qputenv("TMPDIR", QFile::encodeName(elsewhere.path()));
        qputenv("MAGICK_TMPDIR", QFile::encodeName(elsewhere.path()));
        putStubsOnPath();
        m_connections = QFile::encodeName(stubs.filePath("connections"));
        connectionLog = m_connections.constData();
    }

    void TearDown() override
    {
        connectionLog = nullptr;
        if (!m_folderBefore.isEmpty()) {
            QDir::setCurrent(m_folderBefore);
            qputenv("PATH", m_pathBefore);
            // The next test makes its folders there.
            qputenv("TMPDIR", m_temporaryBefore);
            qunsetenv("MAGICK_TMPDIR");
        }
    }

    /// Puts stubs of the programs that GraphicsMagick may start in front of the path; they record that they were
    /// started.
    void putStubsOnPath()
    {
        m_pathBefore = qgetenv("PATH");
        for (const char *name :
             {"dcraw",    "dot",      "dvips",     "fig2dev",     "gimp",        "gm",       "gs",
              "hp2xx",    "html2ps",  "ilbmtoppm", "mpeg2decode", "mpeg2encode", "pdftoppm", "ppmtoilbm",
              "ralcgm",   "xdg-open", "xterm",     "convert",     "curl",        "wget",     "ffmpeg",
              "inkscape", "povray",   "lp",        "lpr"}) {
            const QString stub = stubs.filePath(QLatin1String(name));
            writeFile(stub, "#!/bin/sh\necho \"$0\" \"$@\" >> " + QFile::encodeName(stubs.filePath("programs")) + "\n");
            QFile::setPermissions(stub, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
        qputenv("PATH", QFile::encodeName(stubs.path()) + ':' + m_pathBefore);
    }

    QByteArray startedPrograms() const
    {
        const QString path = stubs.filePath("programs");
        return QFile::exists(path) ? contentsOf(path) : QByteArray();
    }

    bool connectionsWereMade() const { return QFile::exists(stubs.filePath("connections")); }

    QStringList filesWritten() const
    {
        return QDir(elsewhere.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir hostile;
    QTemporaryDir stubs;
    QTemporaryDir elsewhere;

private:
    QByteArray m_pathBefore;
    QByteArray m_temporaryBefore;
    QByteArray m_connections;
    QString m_folderBefore;
};

TEST_F(Corpus, StubsRecordCallsAndConnections)
{
    EXPECT_EQ(inAProcess([] { return std::system("gs -dSAFER"); }).status, 0);
    EXPECT_TRUE(startedPrograms().contains("gs -dSAFER"));
    inAProcess([] { return connect(0, nullptr, 0) == 0; });
    EXPECT_TRUE(connectionsWereMade());
}

TEST_F(Corpus, HostileFilesAreReadOrRejectedQuicklyWithoutSideEffects)
{
    constexpr int mostSeconds = 10;
    constexpr long mostKilobytes = 1024 * 1024;
    const long idle = inAProcess([] { return LumioImage().isNull() ? 0 : 1; }).kilobytes;
    const QStringList files = hostileFiles(hostile.path());
    ASSERT_GT(files.size(), 300);
    qint64 slowest = 0;
    long largest = 0;
    for (const QString &path : files) {
        const Reading reading = inAProcess([&] { return look(path); });
        EXPECT_TRUE(reading.opened() || reading.refused()) << path.toStdString() << ": " << reading.status;
        EXPECT_LE(reading.milliseconds, mostSeconds * 1000) << path.toStdString();
        EXPECT_LE(reading.kilobytes - idle, mostKilobytes) << path.toStdString();
        slowest = std::max(slowest, reading.milliseconds);
        largest = std::max(largest, reading.kilobytes - idle);
    }
    EXPECT_EQ(startedPrograms(), QByteArray());
    EXPECT_FALSE(connectionsWereMade());
    EXPECT_EQ(filesWritten(), QStringList());
    std::cout << files.size() << " files, the slowest " << slowest << " ms, the largest " << largest / 1024 << " MiB\n";
}

TEST_F(Corpus, FilesWithUnusualNamesOpen)
{
    int odd = 0;
    for (const QString &path : hostileFiles(hostile.path())) {
        if (path.contains(QStringLiteral("/files/names/")) && QFileInfo(path).isFile()) {
            ++odd;
            EXPECT_TRUE(inAProcess([&] { return look(path); }).opened()) << path.toStdString();
        }
    }
    EXPECT_GT(odd, 20);
}

TEST_F(Corpus, RealImagesOpen)
{
    const QStringList files = realPictures();
    ASSERT_GT(files.size(), 100);
    for (const QString &path : files) {
        EXPECT_TRUE(inAProcess([&] { return look(path); }).opened()) << path.toStdString();
    }
}

} // namespace
