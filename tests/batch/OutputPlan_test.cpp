// SPDX-License-Identifier: MIT
#include "batch/OutputPlan.h"

#include "graphics/files/LumioImage.h"
#include "tests/batch/FolderTest.h"
#include "tests/graphics/files/PictureFiles.h"
#include "tests/support/CpuTimer.h"

#include <QDir>

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace
{

using namespace grisal::batch;
using grisal::graphics::ImageFormat;
using grisal::test::writeFile;

using Texts = std::vector<std::string>;

class OutputPlanTest : public FolderTest
{
protected:
    Source source(const QString &path, const QString &subfolder = {}) const
    {
        return {path, QDir::cleanPath(path.startsWith('/') ? path : current + '/' + path), subfolder};
    }

    /// The output of a source, without problems.
    std::string output(const QString &path, const QString &subfolder = {}) const
    {
        const OutputPlan plan = planOutputs({source(path, subfolder)}, options);
        if (plan.jobs.size() != 1) {
            ADD_FAILURE() << plan.problems.join('\n').toStdString();
            return {};
        }
        EXPECT_EQ(plan.jobs.front().source.toStdString(), path.toStdString());
        return plan.jobs.front().output.toStdString();
    }

    /// "source -> output"
    Texts jobs(const std::vector<Source> &sources) const
    {
        const OutputPlan plan = planOutputs(sources, options);
        EXPECT_EQ(plan.problems.join('\n').toStdString(), "");
        Texts texts;
        for (const Job &job : plan.jobs) {
            texts.push_back((job.source + " -> " + job.output).toStdString());
        }
        return texts;
    }

    /// A picture with a look, unless that is empty.
    static void writePicture(const QString &path, const QByteArray &look)
    {
        grisal::graphics::LumioImage image(3, 2, false);
        grisal::graphics::Metadata metadata;
        metadata.setLook(look);
        image.setMetadata(metadata);
        ASSERT_TRUE(image.save(path, 90));
    }

    Texts problems(const std::vector<Source> &sources) const
    {
        const OutputPlan plan = planOutputs(sources, options);
        EXPECT_EQ(plan.jobs.empty(), !plan.problems.isEmpty());
        Texts texts;
        for (const QString &problem : plan.problems) {
            texts.push_back(problem.toStdString());
        }
        return texts;
    }

    Options options;
};

TEST_F(OutputPlanTest, IsEmptyWithoutSources)
{
    const OutputPlan plan = planOutputs({}, options);
    EXPECT_TRUE(plan.jobs.empty());
    EXPECT_TRUE(plan.problems.isEmpty());
}

TEST_F(OutputPlanTest, PutsOutputsBesideTheirSources)
{
    EXPECT_EQ(output("a.jpg"), "a-bw.jpg");
    EXPECT_EQ(output("./x/a.b.TIFF"), "./x/a.b-bw.TIFF");
    EXPECT_EQ(output("/x/a.png", "ignored"), "/x/a-bw.png");
}

TEST_F(OutputPlanTest, PutsOutputsIntoTheOutputFolder)
{
    options.outputDir = "bw";
    EXPECT_EQ(output("a.jpg"), "bw/a.jpg");
    EXPECT_EQ(output("/x/a.jpg"), "bw/a.jpg");
    EXPECT_EQ(output("holiday/a/b.jpg", "a"), "bw/a/b.jpg");
    options.outputDir = "/bw//";
    EXPECT_EQ(output("holiday/a/b/c.jpg", "a/b"), "/bw//a/b/c.jpg");
    options.outputDir = "/";
    EXPECT_EQ(output("a.jpg"), "/a.jpg");
}

TEST_F(OutputPlanTest, AddsBwInTheFolderOfTheSource)
{
    options.outputDir = "x/../y";
    EXPECT_EQ(output("y/a.jpg"), "x/../y/a-bw.jpg");
    EXPECT_EQ(output(current + "/y/a.jpg"), "x/../y/a-bw.jpg");
    EXPECT_EQ(output("y/z/a.jpg", "z"), "x/../y/z/a-bw.jpg");
    EXPECT_EQ(output("y/z/a.jpg"), "x/../y/a.jpg");
}

TEST_F(OutputPlanTest, UsesTheNamePattern)
{
    options.namePattern = "x-{name}-{name}";
    EXPECT_EQ(output("a.b.jpg"), "x-a.b-a.b.jpg");
    EXPECT_EQ(output("{name}.jpg"), "x-{name}-{name}.jpg");
    options.outputDir = "bw";
    EXPECT_EQ(output("a.jpg"), "bw/x-a-a.jpg");
}

TEST_F(OutputPlanTest, UsesTheExtensionOfTheFormat)
{
    options.format = ImageFormat::Tiff;
    EXPECT_EQ(output("a.JPG"), "a-bw.tif");
    EXPECT_EQ(output("a.tiff"), "a-bw.tif");
    EXPECT_EQ(output("scan.001"), "scan.001-bw.tif");
}

TEST_F(OutputPlanTest, UsesTheExtensionOfTheContentsForOtherNames)
{
    writeFile("scan.001", "\x89PNG\r\n\x1a\n");
    writeFile("scan", QByteArray("II*\0\x08\0\0\0\0\0", 10));
    writeFile("photo.jpg", "\x89PNG\r\n\x1a\n");
    EXPECT_EQ(output("scan.001"), "scan.001-bw.png");
    EXPECT_EQ(output("scan"), "scan-bw.tif");
    EXPECT_EQ(output("photo.jpg"), "photo-bw.jpg");
    EXPECT_EQ(output("missing"), "missing-bw.jpg");
    options.outputDir = "bw";
    EXPECT_EQ(output("scan.001"), "bw/scan.001.png");
}

TEST_F(OutputPlanTest, RejectsAnOutputWithThePathOfASource)
{
    options.namePattern = "{name}";
    EXPECT_EQ(problems({source("x/a.jpg")}),
              Texts{"The output of 'x/a.jpg' would overwrite the source 'x/a.jpg'; choose another folder with "
                    "-o, or other names with --name."});
    options.namePattern.clear();
    EXPECT_EQ(problems({source("a.jpg"), source(current + "/./a-bw.jpg")}),
              Texts{"The output of 'a.jpg' would overwrite the source '" + current.toStdString() +
                    "/./a-bw.jpg'; choose another folder with -o, or other names with --name."});
}

TEST_F(OutputPlanTest, RejectsTwoSourcesWithOneOutput)
{
    options.outputDir = "bw";
    EXPECT_EQ(problems({source("x/a.jpg"), source("b.jpg"), source("y/a.jpg")}),
              Texts{"'x/a.jpg' and 'y/a.jpg' would have the same output 'bw/a.jpg'; convert them in separate "
                    "runs with different folders (-o) or names (--name)."});
    options.format = ImageFormat::Png;
    EXPECT_EQ(problems({source("a.jpg"), source("a.tif")}).size(), 1U);
    EXPECT_EQ(problems({source("x/a.jpg", "x"), source("y/a.jpg", "y")}), Texts());
}

TEST_F(OutputPlanTest, RejectsAnExistingOutputThatIsALinkToASource)
{
    QDir().mkpath("bw");
    writeFile("a.jpg", "a");
    writeFile("b.jpg", "b");
    options.outputDir = "bw";
    EXPECT_EQ(problems({source("a.jpg"), source("b.jpg")}), Texts());

    ASSERT_EQ(symlink("../b.jpg", "bw/a.jpg"), 0);
    const Texts expected{"'bw/a.jpg', the output of 'a.jpg', is the same file as the source 'b.jpg'; choose "
                         "another folder with -o, or other names with --name."};
    EXPECT_EQ(problems({source("a.jpg"), source("b.jpg")}), expected);
    EXPECT_EQ(problems({source("a.jpg")}), Texts());

    ASSERT_EQ(unlink("bw/a.jpg"), 0);
    ASSERT_EQ(link("b.jpg", "bw/a.jpg"), 0);
    EXPECT_EQ(problems({source("a.jpg"), source("b.jpg")}), expected);
}

TEST_F(OutputPlanTest, RejectsAnOutputFolderThatIsALinkToThatOfTheSources)
{
    QDir().mkpath("x");
    writeFile("x/a.jpg", "a");
    ASSERT_EQ(symlink("x", "bw"), 0);
    options.outputDir = "bw";
    EXPECT_EQ(problems({source("x/a.jpg")}).size(), 1U);
}

TEST_F(OutputPlanTest, RejectsTwoOutputsInOneFolderBehindALink)
{
    QDir().mkpath("bw/B");
    ASSERT_EQ(symlink("B", "bw/A"), 0);
    options.outputDir = "bw";
    EXPECT_EQ(problems({source("in/A/x.jpg", "A"), source("in/B/x.jpg", "B")}),
              Texts{"'in/A/x.jpg' and 'in/B/x.jpg' would have the same output 'bw/B/x.jpg'; convert them in separate "
                    "runs with different folders (-o) or names (--name)."});
    EXPECT_EQ(problems({source("in/A/C/x.jpg", "A/C"), source("in/B/C/x.jpg", "B/C")}).size(), 1U);
    EXPECT_EQ(problems({source("in/A/x.jpg", "A"), source("in/B/y.jpg", "B"), source("in/x.jpg")}), Texts());
}

TEST_F(OutputPlanTest, RejectsTwoExistingOutputsThatAreOneFile)
{
    QDir().mkpath("bw");
    writeFile("bw/b.jpg", "b");
    ASSERT_EQ(symlink("b.jpg", "bw/a.jpg"), 0);
    options.outputDir = "bw";
    EXPECT_EQ(problems({source("a.jpg"), source("b.jpg"), source("c.jpg")}),
              Texts{"'bw/a.jpg' and 'bw/b.jpg', the outputs of 'a.jpg' and 'b.jpg', are the same file; convert them in "
                    "separate runs with different folders (-o) or names (--name)."});
    EXPECT_EQ(problems({source("a.jpg"), source("c.jpg")}), Texts());
}

TEST_F(OutputPlanTest, LeavesOutTheOutputsOfAnEarlierRunBesideTheSources)
{
    for (const char *name : {"a.png", "a-bw.png", "a-bw-bw.png", "b-bw.png"}) {
        writePicture(name, QByteArray(name).contains("-bw") ? "{}" : "");
    }
    const std::vector<Source> sources{source("a-bw-bw.png"), source("a-bw.png"), source("a.png"), source("b-bw.png")};
    EXPECT_EQ(jobs(sources), (Texts{"a.png -> a-bw.png", "b-bw.png -> b-bw-bw.png"}));
    options.format = ImageFormat::Jpeg;
    EXPECT_EQ(jobs(sources).size(), 4U);
}

TEST_F(OutputPlanTest, RejectsAnOutputWithThePathOfASourceWithoutLook)
{
    writePicture("a-bw.png", "");
    EXPECT_EQ(problems({source("a.png"), source("a-bw.png")}).size(), 1U);
    writePicture("a-bw.png", "{}");
    writePicture("a-bw-bw.png", "");
    EXPECT_EQ(jobs({source("a.png"), source("a-bw.png"), source("a-bw-bw.png")}),
              (Texts{"a.png -> a-bw.png", "a-bw-bw.png -> a-bw-bw-bw.png"}));
}

TEST_F(OutputPlanTest, RejectsAnOutputWithThePathOfItsOwnSourceThatHasALook)
{
    writePicture("a.png", "{}");
    options.namePattern = "{name}";
    EXPECT_EQ(problems({source("a.png")}).size(), 1U);
}

TEST_F(OutputPlanTest, AcceptsExistingOutputs)
{
    QDir().mkpath("bw");
    writeFile("a.jpg", "a");
    writeFile("bw/a.jpg", "b");
    options.outputDir = "bw";
    EXPECT_EQ(output("a.jpg"), "bw/a.jpg");
}

TEST_F(OutputPlanTest, RejectsAnOutputFolderThatIsAFile)
{
    writeFile("b.jpg", "");
    options.outputDir = "b.jpg";
    EXPECT_EQ(problems({source("a.jpg")}), Texts{"'b.jpg' is a file, but -o needs a folder."});
}

TEST_F(OutputPlanTest, ListsTwentyProblemsAndCountsTheOthers)
{
    options.namePattern = "{name}";
    std::vector<Source> sources;
    for (int i = 0; i < 20; ++i) {
        sources.push_back(source(QStringLiteral("%1.jpg").arg(i)));
    }
    EXPECT_EQ(problems(sources).size(), 20U);
    EXPECT_NE(problems(sources).back().find("'19.jpg'"), std::string::npos);
    for (int i = 20; i < 25; ++i) {
        sources.push_back(source(QStringLiteral("%1.jpg").arg(i)));
    }
    EXPECT_EQ(problems(sources).size(), 21U);
    EXPECT_EQ(problems(sources).back(), "Further problems that are not listed: 5.");
}

TEST_F(OutputPlanTest, EscapesControlCharactersOfPaths)
{
    options.namePattern = "{name}";
    EXPECT_NE(problems({source("a\n\x1b.jpg")}).front().find("'a\\n\\x1b.jpg'"), std::string::npos);
}

TEST_F(OutputPlanTest, ContainsTheJobsOfTheShardInOrder)
{
    std::vector<Source> sources;
    for (int i = 0; i < 100; ++i) {
        sources.push_back(source(QStringLiteral("%1.jpg").arg(i)));
    }
    std::set<QString> found;
    for (int index = 0; index < 3; ++index) {
        options.shard = {index, 3};
        int last = -1;
        for (const Job &job : planOutputs(sources, options).jobs) {
            EXPECT_TRUE(found.insert(job.source).second) << job.source.toStdString();
            const int number = job.source.section('.', 0, 0).toInt();
            EXPECT_GT(number, last);
            last = number;
        }
    }
    EXPECT_EQ(found.size(), sources.size());
}

TEST_F(OutputPlanTest, ShardFollowsFromSubfolderAndName)
{
    for (int i = 0; i < 20; ++i) {
        const QString name = QStringLiteral("%1.jpg").arg(i);
        options.shard = {1, 2};
        const std::size_t jobs = planOutputs({source(name, "x")}, options).jobs.size();
        for (const QString &place : {QStringLiteral("in/x/"), QStringLiteral("/y//in/x/"), current + "/x/"}) {
            EXPECT_EQ(planOutputs({source(place + name, "x")}, options).jobs.size(), jobs) << i;
        }
    }
}

TEST_F(OutputPlanTest, FindsProblemsOfOtherShards)
{
    options.outputDir = "bw";
    const std::vector<Source> sources{source("x/a.jpg"), source("y/a.jpg"), source("b.jpg")};
    for (int index = 0; index < 5; ++index) {
        options.shard = {index, 5};
        EXPECT_EQ(planOutputs(sources, options).problems.size(), 1) << index;
    }
}

// Comparing all pairs would take hours.
TEST_F(OutputPlanTest, TakesLinearTime)
{
    constexpr int count = 100'000;
    std::vector<Source> sources;
    for (int i = 0; i < count; ++i) {
        sources.push_back(source(QStringLiteral("/archive/%1/%2.jpg").arg(i / 1000).arg(i), {}));
    }
    options.outputDir = "bw";
    const grisal::test::CpuTimer timer;
    EXPECT_EQ(planOutputs(sources, options).jobs.size(), static_cast<std::size_t>(count));
    EXPECT_LT(timer.seconds(), 20);
}

} // namespace
