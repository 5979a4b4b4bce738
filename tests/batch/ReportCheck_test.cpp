// SPDX-License-Identifier: MIT
#include "batch/ReportCheck.h"

#include "batch/OutputPlan.h"
#include "tests/graphics/files/PictureFiles.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace
{

using namespace grisal::batch;
using grisal::test::writeFile;

/// Tests that run in a temporary folder, in which "a.jpg" has the output "bw/a.jpg".
class ReportCheck : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        QDir::setCurrent(folder.path());
        options.look = "look.json";
        options.filesFrom = "list";
        writeFile("a.jpg", "{");
        writeFile("look.json", "{");
        writeFile("list", "{");
    }
    void TearDown() override { QDir::setCurrent(before); }

    /// What would be overwritten.
    std::string problem(const QString &report)
    {
        options.report = report;
        const QString start = QStringLiteral("The report '%1' would overwrite ").arg(report);
        const QString end = QStringLiteral("; choose another file for --report.");
        const QString text = problemOfReport(options, {{"a.jpg", folder.path() + "/a.jpg", {}}},
                                             {{"bw/a.jpg", folder.path() + "/bw/a.jpg"}});
        EXPECT_TRUE(text.isEmpty() || (text.startsWith(start) && text.endsWith(end))) << text.toStdString();
        return text.mid(start.size()).chopped(text.isEmpty() ? 0 : end.size()).toStdString();
    }

    const QString before = QDir::currentPath();
    const QTemporaryDir folder;
    Options options;
};

TEST_F(ReportCheck, AcceptsNewAndEarlierReports)
{
    EXPECT_EQ(problem(""), "");
    EXPECT_EQ(problem("report"), "");
    EXPECT_EQ(problem("missing/report"), "");
    writeFile("report", "");
    EXPECT_EQ(problem("report"), "");
    writeFile("report", "{}\n");
    EXPECT_EQ(problem("report"), "");
    EXPECT_EQ(problem("/dev/null"), "");
}

TEST_F(ReportCheck, DoesNotReadPipes)
{
    ASSERT_EQ(mkfifo("pipe", S_IRWXU), 0);
    EXPECT_EQ(problem("pipe"), "");
}

TEST_F(ReportCheck, RejectsFilesOfTheRun)
{
    EXPECT_EQ(problem("./a.jpg"), "the source 'a.jpg'");
    EXPECT_EQ(problem("bw/a.jpg"), "the output 'bw/a.jpg'");
    EXPECT_EQ(problem("look.json"), "the file of --look");
    EXPECT_EQ(problem("list"), "the file of --files-from");
}

TEST_F(ReportCheck, RejectsLinksToFilesOfTheRun)
{
    const std::pair<const char *, const char *> links[] = {{"a.jpg", "to-source"}, {"list", "to-list"}};
    for (const auto &[file, name] : links) {
        ASSERT_EQ(symlink(file, name), 0);
        EXPECT_NE(problem(name), "") << name;
    }
    ASSERT_EQ(link("look.json", "hard"), 0);
    EXPECT_NE(problem("hard"), "");
    QDir().mkpath("bw");
    ASSERT_EQ(symlink("bw", "to-bw"), 0);
    EXPECT_EQ(problem("to-bw/a.jpg"), "the output 'bw/a.jpg'");
}

TEST_F(ReportCheck, RejectsFilesThatAreNoReports)
{
    writeFile("b.jpg", "\xff\xd8\xff");
    EXPECT_EQ(problem("b.jpg"), "a file that is no earlier report");
    writeFile("./:b", "text");
    EXPECT_EQ(problem(":b"), "a file that is no earlier report");
    writeFile("./:b", "{}");
    EXPECT_EQ(problem(":b"), "");
}

TEST_F(ReportCheck, IsPartOfThePlan)
{
    options.report = "a.jpg";
    const OutputPlan plan = planOutputs({{"a.jpg", folder.path() + "/a.jpg", {}}}, options);
    EXPECT_EQ(plan.problems.size(), 1);
    EXPECT_TRUE(plan.jobs.empty());
}

} // namespace
