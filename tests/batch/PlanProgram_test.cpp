// SPDX-License-Identifier: MIT
// Runs grisal-batch as users do: which pictures are converted, and which files are never touched.
#include "tests/batch/ProgramTest.h"

namespace grisal::batch
{

namespace
{

class PlanProgram : public ProgramTest
{
protected:
    Ended run(const QStringList &arguments, const QByteArray &input = {}) const
    {
        return ProgramTest::run(film + arguments, input);
    }

    void makePictures(const QStringList &names) const
    {
        for (const QString &name : names) {
            QDir(directory.path()).mkpath(QFileInfo(name).path());
            test::painted(8, 6, 8, [](int x, int y) {
                return test::Samples{static_cast<std::uint16_t>(x * 157), static_cast<std::uint16_t>(y * 211), 0};
            }).write(path(name).toStdString());
        }
    }
};

} // namespace

TEST_F(PlanProgram, ReportDoesNotReplaceAPicture)
{
    makePictures({"a.png", "b.png", "c.png"});
    const QByteArray before = contents("a.png");

    const Ended ended = run({"-o", "bw", "--report", "a.png", "b.png", "c.png"});

    EXPECT_EQ(ended.status, 2);
    EXPECT_TRUE(ended.errors.contains("'a.png'")) << ended.errors.toStdString();
    EXPECT_EQ(contents("a.png"), before);
    EXPECT_FALSE(QDir(path("bw")).exists());
}

TEST_F(PlanProgram, ReportReplacesAnEarlierOne)
{
    makePictures({"a.png"});
    const QStringList arguments{"-o", "bw", "--if-exists", "overwrite", "--report", "report", "a.png"};

    EXPECT_EQ(run(arguments).status, 0);
    EXPECT_EQ(run(arguments).status, 0);
    EXPECT_EQ(contents("report").count('\n'), 1);
}

TEST_F(PlanProgram, SecondRunBesideTheSourcesDoesOnlyTheRest)
{
    makePictures({"h/a.png", "h/b.png"});
    EXPECT_EQ(run({"-r", "h"}).status, 0);
    makePictures({"h/c.png"});

    const Ended second = run({"--if-exists", "update", "-r", "h"});

    EXPECT_EQ(second.status, 0) << second.errors.toStdString();
    EXPECT_TRUE(second.output.contains("3 pictures: 1 done, 2 skipped")) << second.output.toStdString();
    EXPECT_EQ(filesIn("h"), (QStringList{"a-bw.png", "a.png", "b-bw.png", "b.png", "c-bw.png", "c.png"}));
    EXPECT_EQ(run({"--if-exists", "skip", "h/a-bw.png", "h/a.png"}).status, 0);
}

TEST_F(PlanProgram, DryRunConsidersExistingOutputs)
{
    makePictures({"a.png", "b.png", "bw/a.png"});
    const QStringList arguments{"--dry-run", "-o", "bw", "a.png", "b.png"};

    const Ended error = run(arguments);
    EXPECT_EQ(error.status, 1);
    EXPECT_EQ(error.errors, QString("a.png: bw/a.png exists\n"));
    EXPECT_EQ(error.output, QString("b.png -> bw/b.png\n"));
    const Ended skip = run(arguments + QStringList{"--if-exists", "skip"});
    EXPECT_EQ(skip.status, 0);
    EXPECT_EQ(skip.output, QString("a.png: skipped: bw/a.png exists\nb.png -> bw/b.png\n"));
    const Ended update = run(arguments + QStringList{"--if-exists", "update"});
    EXPECT_EQ(update.status, 0);
    EXPECT_EQ(update.output, QString("a.png -> bw/a.png (unless it is up to date)\nb.png -> bw/b.png\n"));
    EXPECT_EQ(run(arguments + QStringList{"--if-exists", "overwrite"}).output,
              QString("a.png -> bw/a.png\nb.png -> bw/b.png\n"));
}

TEST_F(PlanProgram, DryRunReportsPicturesThatWouldFail)
{
    makePictures({"a\n\x1b[2J.png"});
    test::writeFile(path("text.png"), "text");

    const Ended ended = run({"--dry-run", "-o", "bw", "a\n\x1b[2J.png", "text.png", "missing.png"});

    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.output, QString("a\\n\\x1b[2J.png -> bw/a\\n\\x1b[2J.png\n"));
    EXPECT_EQ(ended.errors.count('\n'), 2);
    EXPECT_TRUE(ended.errors.startsWith("text.png: ")) << ended.errors.toStdString();
}

TEST_F(PlanProgram, ListedNamesThatAreNotUtf8AreReported)
{
    makePictures({"a.png"});

    for (const QStringList &mode : {QStringList{"--dry-run"}, QStringList()}) {
        const Ended ended = run(mode + QStringList{"-o", "bw", "--files-from", "-"}, "a.png\n\xe9.png\n");
        EXPECT_EQ(ended.status, 1);
        EXPECT_EQ(ended.errors.count("is not valid UTF-8"), 1) << ended.errors.toStdString();
    }
    EXPECT_EQ(filesIn("bw"), QStringList{"a.png"});
}

// QProcess could not pass the name.
TEST_F(PlanProgram, OperandsThatAreNotUtf8AreReported)
{
    makePictures({"a.png"});
    QProcess process;
    process.setWorkingDirectory(directory.path());
    process.start("/bin/sh", {"-c", QStringLiteral(GRISAL_BATCH_PROGRAM) +
                                        " --film 'Rochester Tri-X' -o bw a.png \"$(printf '\\351.png')\""});
    ASSERT_TRUE(process.waitForFinished(patience));

    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_EQ(process.readAllStandardError().count("is not valid UTF-8"), 1);
    EXPECT_EQ(filesIn("bw"), QStringList{"a.png"});
}

} // namespace grisal::batch
