// SPDX-License-Identifier: MIT
#include "batch/Report.h"

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace grisal::batch
{

namespace
{

class ReportTest : public testing::Test
{
protected:
    QByteArray contents() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("report.jsonl"));
};

} // namespace

TEST_F(ReportTest, HasALineForEachPicture)
{
    Report report(path);
    report.add({QStringLiteral("a \"1\".jpg"), QStringLiteral("bw/a.jpg")}, {Result::Done, {}, 6000, 4000, 8, 0.6144});
    report.add({QStringLiteral("b\n.jpg"), QStringLiteral("bw/b.jpg")}, {Result::Failed, QStringLiteral("no picture")});

    EXPECT_EQ(contents().toStdString(),
              R"({"depth":8,"message":"","output":"bw/a.jpg","result":"done","seconds":0.614,"size":[6000,4000],)"
              R"("source":"a \"1\".jpg"})"
              "\n"
              R"({"message":"no picture","output":"bw/b.jpg","result":"failed","seconds":0,"source":"b\n.jpg"})"
              "\n");
    EXPECT_EQ(report.problem(), QString());
}

TEST_F(ReportTest, ReplacesAFormerReport)
{
    Report(path).add({}, {});
    const Report second(path);

    EXPECT_EQ(contents(), QByteArray());
}

TEST_F(ReportTest, WithoutPathNothingIsWritten)
{
    Report report({});
    report.add({}, {});

    EXPECT_EQ(report.problem(), QString());
}

TEST_F(ReportTest, ReportsThatTheFileCannotBeOpened)
{
    Report report(directory.filePath(QStringLiteral("missing/report.jsonl")));
    report.add({}, {});

    EXPECT_TRUE(report.problem().startsWith(QStringLiteral("the report "))) << report.problem().toStdString();
    EXPECT_TRUE(report.problem().contains(QStringLiteral("cannot be written: No such file")));
}

TEST_F(ReportTest, ReportsAFullDisk)
{
    Report report(QStringLiteral("/dev/full"));
    report.add({}, {});

    EXPECT_TRUE(report.problem().contains(QStringLiteral("No space left"))) << report.problem().toStdString();
}

TEST(OutcomeTest, IsTheSameAfterJson)
{
    for (const Result result : {Result::Done, Result::Skipped, Result::Failed}) {
        const Outcome outcome{result, QStringLiteral("text"), 3, 2, 16, 1.5};
        const Outcome read = outcomeOf(toJson(outcome));
        EXPECT_EQ(read.result, result);
        EXPECT_EQ(read.message, outcome.message);
        EXPECT_EQ(read.width, 3);
        EXPECT_EQ(read.height, 2);
        EXPECT_EQ(read.depth, 16);
        EXPECT_EQ(read.seconds, 1.5);
    }
}

TEST(OutcomeTest, AnythingElseIsAFailure)
{
    EXPECT_EQ(outcomeOf({}).result, Result::Failed);
    EXPECT_EQ(outcomeOf({{QStringLiteral("result"), QStringLiteral("great")}}).result, Result::Failed);
}

} // namespace grisal::batch
