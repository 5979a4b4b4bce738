// SPDX-License-Identifier: MIT
#include "batch/Progress.h"

#include <gtest/gtest.h>

namespace grisal::batch
{

namespace
{

const Job job{QStringLiteral("a.jpg"), QStringLiteral("bw/a.jpg")};

Outcome done(const QString &message = {})
{
    return {Result::Done, message, 6000, 4000, 8, 0.614};
}

/// What a progress with one picture prints to standard output and standard error. In tests neither is a terminal.
std::pair<std::string, std::string> printed(Verbosity verbosity, const Outcome &outcome)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Progress progress(1, verbosity);
    progress.add(job, outcome);
    progress.refresh();
    return {testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
}

using Printed = std::pair<std::string, std::string>;

} // namespace

TEST(ProgressTest, TextHasSpeedTimeLeftAndFailures)
{
    EXPECT_EQ(progressText({300, 0, 0, 0}, 0), QStringLiteral("0/300"));
    EXPECT_EQ(progressText({300, 12, 0, 0}, 12), QStringLiteral("12/300, 60 pictures a minute, 5 min left"));
    EXPECT_EQ(progressText({300, 10, 90, 2}, 5), QStringLiteral("102/300, 120 pictures a minute, 99 s left, 2 failed"));
    EXPECT_EQ(progressText({300, 0, 5, 3}, 9), QStringLiteral("8/300, 3 failed"));
    EXPECT_EQ(progressText({60'100, 100, 0, 0}, 60), QStringLiteral("100/60100, 100 pictures a minute, 10.0 h left"));
}

TEST(ProgressTest, SummaryNamesOnlyWhatHappened)
{
    EXPECT_EQ(summaryText({1, 1, 0, 0}, 0.4), QStringLiteral("1 picture: 1 done, in 0 s"));
    EXPECT_EQ(summaryText({300, 297, 2, 1}, 200),
              QStringLiteral("300 pictures: 297 done, 2 skipped, 1 failed, in 3 min"));
    EXPECT_EQ(summaryText({300, 10, 0, 0}, 5), QStringLiteral("300 pictures: 10 done, 290 left, in 5 s"));
}

TEST(ProgressTest, PrintsALineForEachPicture)
{
    EXPECT_EQ(printed(Verbosity::Normal, done()), (Printed{"a.jpg -> bw/a.jpg\n", ""}));
    EXPECT_EQ(printed(Verbosity::Verbose, done()), (Printed{"a.jpg -> bw/a.jpg (6000 x 4000, 8 bits, 0.61 s)\n", ""}));
    EXPECT_EQ(printed(Verbosity::Quiet, done()), (Printed{"", ""}));
}

TEST(ProgressTest, PrintsSkippedPicturesUnlessQuiet)
{
    const Outcome skipped{Result::Skipped, QStringLiteral("bw/a.jpg exists")};

    EXPECT_EQ(printed(Verbosity::Normal, skipped), (Printed{"a.jpg: skipped: bw/a.jpg exists\n", ""}));
    EXPECT_EQ(printed(Verbosity::Quiet, skipped), (Printed{"", ""}));
}

TEST(ProgressTest, PrintsFailuresAndWarningsAlways)
{
    const Outcome failed{Result::Failed, QStringLiteral("no picture")};

    for (const Verbosity verbosity : {Verbosity::Quiet, Verbosity::Normal, Verbosity::Verbose}) {
        EXPECT_EQ(printed(verbosity, failed), (Printed{"", "a.jpg: no picture\n"}));
        EXPECT_EQ(printed(verbosity, done(QStringLiteral("cut short"))).second, "a.jpg: warning: cut short\n");
    }
}

TEST(ProgressTest, TerminalGetsALineThatIsOverwritten)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Progress progress(2, Verbosity::Normal, {true, true});
    progress.refresh();
    progress.add(job, {Result::Failed, QStringLiteral("bad")});
    progress.refresh();
    progress.refresh();
    progress.add(job, done());
    progress.finish();

    EXPECT_EQ(testing::internal::GetCapturedStderr(), "\r\x1b[K0/2\r\x1b[Ka.jpg: bad\n\r\x1b[K1/2, 1 failed\r\x1b[K");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "2 pictures: 1 done, 1 failed, in 0 s\n");
}

TEST(ProgressTest, PrintsALineForEachPictureIfOnlyTheErrorsGoToATerminal)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Progress progress(1, Verbosity::Normal, {false, true});
    progress.add(job, done());

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "a.jpg -> bw/a.jpg\n");
    testing::internal::GetCapturedStderr();
}

TEST(ProgressTest, EscapesControlCharactersOfNames)
{
    testing::internal::CaptureStderr();
    Progress progress(1, Verbosity::Quiet);
    progress.add({QStringLiteral("a\x1b[2J\nb.jpg"), {}}, {Result::Failed, QStringLiteral("bad")});
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "a\\x1b[2J\\nb.jpg: bad\n");
}

TEST(ProgressTest, CountsResults)
{
    testing::internal::CaptureStderr();
    Progress progress(4, Verbosity::Quiet);
    progress.add(job, done());
    progress.add(job, {Result::Skipped, {}});
    progress.add(job, {Result::Failed, {}});
    testing::internal::GetCapturedStderr();

    EXPECT_EQ(progress.counts().done, 1U);
    EXPECT_EQ(progress.counts().skipped, 1U);
    EXPECT_EQ(progress.counts().failed, 1U);
    EXPECT_EQ(progress.counts().finished(), 3U);
    EXPECT_EQ(progress.counts().total, 4U);
}

} // namespace grisal::batch
