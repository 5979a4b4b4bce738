// SPDX-License-Identifier: MIT
// Runs grisal-batch as users do.
#include "graphics/files/LookInFile.h"
#include "graphics/files/LumioImage.h"
#include "graphics/look/LookText.h"
#include "tests/batch/ProgramTest.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <csignal>
#include <map>

namespace grisal::batch
{

namespace
{

class BatchProgram : public ProgramTest
{
protected:
    /// Makes pictures with the names 0.png, 1.png and so on, each with another size.
    QStringList makePictures(int count, int side = 40) const
    {
        QStringList names;
        for (int i = 0; i < count; ++i) {
            names << QStringLiteral("%1.png").arg(i);
            test::painted(side + i, side, 8, [i](int x, int y) {
                return test::Samples{static_cast<std::uint16_t>(x * 157), static_cast<std::uint16_t>(y * 211),
                                     static_cast<std::uint16_t>((x * y + i) * 99)};
            }).write(path(names.last()).toStdString());
        }
        return names;
    }

    std::map<QString, QByteArray> allFilesIn(const QString &folder) const
    {
        std::map<QString, QByteArray> files;
        for (const QString &name : filesIn(folder)) {
            files[name] = contents(folder + '/' + name);
        }
        return files;
    }
};

} // namespace

TEST_F(BatchProgram, ConvertsPicturesIntoAFolder)
{
    const Ended ended = run(film + QStringList{"-o", "bw"} + makePictures(3));

    EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
    EXPECT_EQ(filesIn("bw"), (QStringList{"0.png", "1.png", "2.png"}));
    EXPECT_TRUE(ended.output.contains("1.png -> bw/1.png\n")) << ended.output.toStdString();
    EXPECT_TRUE(ended.output.contains("3 pictures: 3 done, in ")) << ended.output.toStdString();
    EXPECT_EQ(ended.errors, QString());
}

TEST_F(BatchProgram, WithoutFolderOutputsLieBesideTheSources)
{
    EXPECT_EQ(run(film + QStringList{"-q"} + makePictures(1)).status, 0);

    EXPECT_EQ(filesIn("."), (QStringList{"0-bw.png", "0.png"}));
}

// Qt would take such a name for that of a resource, which never exists.
TEST_F(BatchProgram, NameThatStartsWithAColonIsNotOverwritten)
{
    makePictures(1);
    ASSERT_TRUE(QFile::rename(path("0.png"), path(":0.png")));
    test::writeFile(path(":0-bw.png"), "mine");

    EXPECT_EQ(run(film + QStringList{":0.png"}).status, 1);
    EXPECT_EQ(contents(":0-bw.png"), "mine");
    EXPECT_EQ(run(film + QStringList{"--if-exists", "overwrite", ":0.png"}).status, 0);
    EXPECT_NE(contents(":0-bw.png"), "mine");
}

TEST_F(BatchProgram, OutputDoesNotDependOnTheNumberOfProcesses)
{
    const QStringList names = makePictures(8);

    EXPECT_EQ(run(film + QStringList{"-o", "one", "-j", "1"} + names).status, 0);
    EXPECT_EQ(run(film + QStringList{"-o", "four", "-j", "4"} + names).status, 0);

    EXPECT_EQ(allFilesIn("one").size(), 8U);
    EXPECT_EQ(allFilesIn("one"), allFilesIn("four"));
}

TEST_F(BatchProgram, FailureOfAPictureDoesNotAffectTheOthers)
{
    const QStringList names = makePictures(3);
    test::writeFile(path("1.png"), "no picture");

    const Ended ended = run(film + QStringList{"-o", "bw", "--report", "report.jsonl"} + names);

    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(filesIn("bw"), (QStringList{"0.png", "2.png"}));
    EXPECT_TRUE(ended.errors.startsWith("1.png: ")) << ended.errors.toStdString();
    std::map<QString, QString> results;
    for (const QByteArray &line : contents("report.jsonl").split('\n').mid(0, 3)) {
        const QJsonObject entry = QJsonDocument::fromJson(line).object();
        results[entry["source"].toString()] = entry["result"].toString();
    }
    EXPECT_EQ(results, (std::map<QString, QString>{{"0.png", "done"}, {"1.png", "failed"}, {"2.png", "done"}}));
}

TEST_F(BatchProgram, WrongUsageDoesNothing)
{
    const QStringList names = makePictures(2);
    const std::pair<QStringList, const char *> cases[] = {
        {names, "--look"},
        {film + QStringList{"--jpeg"} + names, "--jpeg"},
        {QStringList{"--film", "Tri-X", "-o", "bw"} + names, "there is no film"},
        {QStringList{"--look", "0.png", "-o", "bw"} + names, "0.png has no look"},
        {film + QStringList{"-o", "bw", "--report", "no/report"} + names, "no/report"},
        {film + QStringList{"--name", "x{name}x", "-o", "bw", "0.png",
                            "../" + QDir(directory.path()).dirName() + "/./0.png", "sub/0.png"},
         "0.png"},
    };
    for (const auto &[arguments, text] : cases) {
        const Ended ended = run(arguments);
        EXPECT_EQ(ended.status, 2) << text;
        EXPECT_TRUE(ended.errors.contains(QString::fromLatin1(text))) << ended.errors.toStdString();
    }
    EXPECT_EQ(filesIn("."), names);
    EXPECT_FALSE(QDir(path("bw")).exists());
}

TEST_F(BatchProgram, LookOfAPictureIsShownAndApplied)
{
    graphics::Look look;
    look.enabled.get<graphics::VignetteFilter>() = true;
    look.mixer.weights = {0.2F, 0.3F, 0.5F};
    test::writeFile(path("look.json"), graphics::lookText(look));
    makePictures(2);
    ASSERT_EQ(run({"--look", "look.json", "-o", "bw", "0.png"}).status, 0);

    const Ended shown = run({"--show-look", "bw/0.png"});
    EXPECT_EQ(shown.status, 0);
    EXPECT_EQ(shown.output.toUtf8(), graphics::lookText(look, graphics::LookFormat::Indented));

    ASSERT_EQ(run({"--look", "bw/0.png", "-o", "bw", "1.png"}).status, 0);
    EXPECT_EQ(graphics::readLook(path("bw/1.png")).text, graphics::lookText(look));
}

TEST_F(BatchProgram, ListsTheFilms)
{
    const Ended ended = run({"--list-films"});

    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.output.count('\n'), 17);
    EXPECT_TRUE(ended.output.contains("Rochester Tri-X\n"));
}

TEST_F(BatchProgram, ReportsThatStandardOutputIsIncomplete)
{
    makePictures(1);
    for (const char *options : {"--list-films", "--film Luma --dry-run 0.png"}) {
        QProcess process;
        process.setWorkingDirectory(directory.path());
        process.start("sh", {"-c", QStringLiteral("exec %1 %2 > /dev/full").arg(GRISAL_BATCH_PROGRAM, options)});
        ASSERT_TRUE(process.waitForFinished(patience));
        EXPECT_EQ(process.exitCode(), 1) << options;
        EXPECT_TRUE(process.readAllStandardError().contains("standard output cannot be written")) << options;
    }
}

TEST_F(BatchProgram, ReadsNamesFromStandardInput)
{
    makePictures(2);

    const Ended ended = run(film + QStringList{"-o", "bw", "--files-from", "-", "-0"}, QByteArray("0.png\0"
                                                                                                  "1.png\0",
                                                                                                  12));

    EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
    EXPECT_EQ(filesIn("bw"), (QStringList{"0.png", "1.png"}));
}

TEST_F(BatchProgram, DryRunPrintsThePlan)
{
    const Ended ended = run(film + QStringList{"-o", "bw", "--dry-run"} + makePictures(2));

    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.output, QString("0.png -> bw/0.png\n1.png -> bw/1.png\n"));
    EXPECT_FALSE(QDir(path("bw")).exists());
}

TEST_F(BatchProgram, SignalFinishesWholePicturesAndASecondRunTheRest)
{
    for (const int signal : {SIGINT, SIGTERM}) {
        const QStringList names = makePictures(30, 160);
        const QStringList arguments = film + QStringList{"-o", "bw", "-j", "2", "--report", "report.jsonl"} + names;
        QProcess process;
        start(process, arguments);
        ASSERT_TRUE(process.waitForReadyRead(patience));
        kill(static_cast<pid_t>(process.processId()), signal);
        ASSERT_TRUE(process.waitForFinished(patience));

        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 130);
        const QStringList done = filesIn("bw");
        EXPECT_LT(done.size(), 30);
        EXPECT_EQ(contents("report.jsonl").count('\n'), done.size());
        for (const QString &name : done) {
            EXPECT_TRUE(graphics::LumioImage().read(path("bw/" + name))) << name.toStdString();
        }
        const Ended second = run(arguments + QStringList{"--if-exists", "update"});
        EXPECT_EQ(second.status, 0);
        EXPECT_TRUE(second.output.contains(QString("%1 done, %2 skipped").arg(30 - done.size()).arg(done.size())))
            << second.output.toStdString();
        EXPECT_EQ(filesIn("bw").size(), 30);
        ASSERT_TRUE(QDir(path("bw")).removeRecursively());
    }
}

TEST_F(BatchProgram, SecondSignalEndsThePicturesInWork)
{
    const QStringList names = makePictures(6, 1200);
    QProcess process;
    start(process, film + QStringList{"-o", "bw", "-j", "1"} + names);
    ASSERT_TRUE(process.waitForReadyRead(patience));
    kill(static_cast<pid_t>(process.processId()), SIGINT);
    QByteArray errors;
    while (!errors.contains("interrupt once more")) {
        process.setReadChannel(QProcess::StandardError);
        ASSERT_TRUE(process.waitForReadyRead(patience));
        errors += process.readAllStandardError();
    }
    kill(static_cast<pid_t>(process.processId()), SIGINT);
    ASSERT_TRUE(process.waitForFinished(patience));

    EXPECT_EQ(process.exitCode(), 130);
    EXPECT_EQ(filesIn("bw").size(), 1);
    EXPECT_TRUE(graphics::LumioImage().read(path("bw/0.png")));
}

TEST_F(BatchProgram, IgnoredSignalStaysIgnored)
{
    QProcess process;
    process.setWorkingDirectory(directory.path());
    const QString command = QStringLiteral("trap '' HUP; exec %1 --film Luma -o bw -j 1 %2")
                                .arg(QStringLiteral(GRISAL_BATCH_PROGRAM), makePictures(10, 160).join(' '));
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), command});
    ASSERT_TRUE(process.waitForReadyRead(patience));
    kill(static_cast<pid_t>(process.processId()), SIGHUP);
    ASSERT_TRUE(process.waitForFinished(patience));

    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_EQ(filesIn("bw").size(), 10);
}

// Messages would otherwise go into the report or to the processes that convert.
TEST_F(BatchProgram, WorksWithoutStandardStreams)
{
    const QStringList names = makePictures(4);
    test::writeFile(path("1.png"), "no picture");
    QProcess process;
    process.setWorkingDirectory(directory.path());
    const QString command = QStringLiteral("exec %1 --film Luma -o bw --report report.jsonl %2 <&- >&- 2>&-")
                                .arg(QStringLiteral(GRISAL_BATCH_PROGRAM), names.join(' '));
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), command});
    ASSERT_TRUE(process.waitForFinished(patience));

    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_EQ(filesIn("bw"), (QStringList{"0.png", "2.png", "3.png"}));
    const QList<QByteArray> lines = contents("report.jsonl").split('\n');
    ASSERT_EQ(lines.size(), 5);
    for (const QByteArray &line : lines.first(4)) {
        EXPECT_TRUE(QJsonDocument::fromJson(line).isObject()) << line.toStdString();
    }
}

// Until the signal arrives, a different number of pictures is finished, or a different part of one is written.
TEST_F(BatchProgram, KilledProgramLeavesOnlyWholePictures)
{
    const QStringList names = makePictures(12, 160);
    const QStringList arguments = film + QStringList{"-o", "bw", "-j", "2", "--if-exists", "update"} + names;
    ASSERT_EQ(run(film + QStringList{"-o", "whole"} + names).status, 0);
    const std::map<QString, QByteArray> whole = allFilesIn("whole");
    for (int lines = 1; lines <= 5; ++lines) {
        QProcess process;
        start(process, arguments);
        for (int read = 0; read < lines; read += process.readAllStandardOutput().count('\n')) {
            ASSERT_TRUE(process.waitForReadyRead(patience));
        }
        process.kill();
        ASSERT_TRUE(process.waitForFinished(patience));
        // A process may still be at work on its last picture, under a temporary name where it replaces a file.
        for (const auto &[name, file] : allFilesIn("bw")) {
            EXPECT_TRUE(name.startsWith(".grisal-") || file == whole.at(name)) << name.toStdString();
        }
    }
    EXPECT_EQ(run(arguments).status, 0);
    for (const auto &[name, file] : whole) {
        EXPECT_TRUE(contents("bw/" + name) == file) << name.toStdString();
    }
}

TEST_F(BatchProgram, UsesNoWindowLibrary)
{
    QProcess process;
    process.start(QStringLiteral("ldd"), {QStringLiteral(GRISAL_BATCH_PROGRAM)});
    ASSERT_TRUE(process.waitForFinished(patience));
    const QString libraries = QString::fromUtf8(process.readAllStandardOutput());

    EXPECT_TRUE(libraries.contains("libQt6Core"));
    for (const char *library : {"libQt6Gui", "libQt6Widgets", "libGL", "libGLEW", "libEGL"}) {
        EXPECT_FALSE(libraries.contains(QString::fromLatin1(library))) << library;
    }
}

} // namespace grisal::batch
