// SPDX-License-Identifier: MIT
#include "batch/Converter.h"
#include "graphics/files/ImageConversion.h"
#include "graphics/files/LookInFile.h"
#include "graphics/look/LookText.h"
#include "tests/graphics/files/MetadataFiles.h"
#include "tests/graphics/files/PictureFiles.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace grisal::batch
{

namespace
{

using graphics::Look;

class ConverterTest : public testing::Test
{
protected:
    QString path(const char *name) const { return directory.filePath(QString::fromLatin1(name)); }

    QString makePicture(const char *name, int depth = 8) const
    {
        test::painted(40, 30, depth, [](int x, int y) {
            return test::Samples{static_cast<std::uint16_t>(x * 1600), static_cast<std::uint16_t>(y * 2100),
                                 static_cast<std::uint16_t>((x * y) * 50)};
        }).write(path(name).toStdString());
        return path(name);
    }

    Outcome convert(const QString &source, const QString &output)
    {
        return Converter(look, options).convert({source, output});
    }

    const QTemporaryDir directory;
    Look look;
    Options options;
};

QDateTime timeOf(const QString &file)
{
    return QFileInfo(file).lastModified();
}

void setTime(const QString &path, const QDateTime &time)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
}

} // namespace

TEST_F(ConverterTest, OutputHasTheRenderedPixels)
{
    look.enabled.get<graphics::CurveFilter>() = look.enabled.get<graphics::GrainFilter>() =
        look.enabled.get<graphics::HalfToneFilter>() = look.enabled.get<graphics::VignetteFilter>() = true;
    for (const auto &[name, depth] : {std::pair("a.png", 8), std::pair("b.tif", 16)}) {
        graphics::LumioImage source;
        ASSERT_TRUE(source.read(makePicture(name, depth)));
        graphics::Image expected = graphics::imageOf(source);
        graphics::CpuRenderer(look.parameters(), look.enabled).render(expected);

        const QString output = path("out-") + QString::fromLatin1(name);
        const Outcome outcome = convert(path(name), output);

        ASSERT_EQ(outcome.result, Result::Done) << outcome.message.toStdString();
        EXPECT_EQ(outcome.message, QString());
        EXPECT_EQ(outcome.width, 40);
        EXPECT_EQ(outcome.height, 30);
        EXPECT_EQ(outcome.depth, depth);
        graphics::LumioImage result;
        ASSERT_TRUE(result.read(output));
        graphics::Image actual = graphics::imageOf(result);
        EXPECT_EQ(is16Bit(actual), depth == 16);
        EXPECT_TRUE(std::visit(
            [](const auto &a, const auto &b) {
                return std::equal(a.samples.begin(), a.samples.end(), b.samples.begin(), b.samples.end());
            },
            actual, expected));
    }
}

TEST_F(ConverterTest, OutputHasTheMetadataOfTheSourceAndTheLook)
{
    look.grainRadius = 2;
    makePicture("a.jpg");
    test::setMetadata(path("a.jpg"), test::fullMetadata());

    ASSERT_EQ(convert(path("a.jpg"), path("b.jpg")).result, Result::Done);

    const test::Metadata written = test::metadataIn(path("b.jpg"));
    EXPECT_EQ(written["Exif.Image.Orientation"], "1");
    EXPECT_FALSE(written.iptc.empty());
    EXPECT_EQ(graphics::readLook(path("b.jpg")).text, graphics::lookText(look));
}

TEST_F(ConverterTest, MakesTheFolderOfTheOutput)
{
    EXPECT_EQ(convert(makePicture("a.png"), path("x/y/a.png")).result, Result::Done);
    EXPECT_TRUE(QFile::exists(path("x/y/a.png")));
}

TEST_F(ConverterTest, ReportsWhyItFails)
{
    test::writeFile(path("rubbish.png"), "no picture at all");
    test::writeFile(path("file"), "not a folder");
    const auto problemOf = [&](const QString &source, const char *output = "out.png") {
        const Outcome outcome = convert(source, path(output));
        EXPECT_EQ(outcome.result, Result::Failed);
        return outcome.message;
    };

    EXPECT_EQ(problemOf(path("missing.png")), QStringLiteral("there is no such file"));
    EXPECT_EQ(problemOf(directory.path()), QStringLiteral("it is a folder"));
    EXPECT_EQ(problemOf(QStringLiteral("/dev/null")), QStringLiteral("it is not a regular file"));
    EXPECT_TRUE(problemOf(path("rubbish.png")).contains(path("rubbish.png")));
    EXPECT_EQ(problemOf(makePicture("a.png"), "file/a.png"),
              QStringLiteral("the folder %1 cannot be made: Not a directory").arg(path("file")));
    EXPECT_FALSE(QFile::exists(path("out.png")));
}

TEST_F(ConverterTest, ReportsWhyItCannotSave)
{
    options.ifExists = IfExists::Overwrite;
    ASSERT_TRUE(QDir(directory.path()).mkdir(QStringLiteral("b.png")));

    const Outcome outcome = convert(makePicture("a.png"), path("b.png"));

    EXPECT_EQ(outcome.result, Result::Failed);
    EXPECT_TRUE(outcome.message.startsWith(path("b.png") + QStringLiteral(" cannot be saved: ")))
        << outcome.message.toStdString();
}

TEST_F(ConverterTest, ExistingOutputIsAnErrorByDefault)
{
    makePicture("a.png");
    test::writeFile(path("b.png"), "mine");

    const Outcome outcome = convert(path("a.png"), path("b.png"));

    EXPECT_EQ(outcome.result, Result::Failed);
    EXPECT_TRUE(outcome.message.contains(QStringLiteral("--if-exists")));
    EXPECT_EQ(test::contentsOf(path("b.png")), "mine");
}

TEST_F(ConverterTest, ExistingOutputIsSkippedOrReplaced)
{
    makePicture("a.png");
    test::writeFile(path("b.png"), "mine");

    options.ifExists = IfExists::Skip;
    EXPECT_EQ(convert(path("a.png"), path("b.png")).result, Result::Skipped);
    EXPECT_EQ(test::contentsOf(path("b.png")), "mine");
    options.ifExists = IfExists::Overwrite;
    EXPECT_EQ(convert(path("a.png"), path("b.png")).result, Result::Done);
    EXPECT_NE(test::contentsOf(path("b.png")), "mine");
}

TEST_F(ConverterTest, UpdateSkipsWhatIsNewerAndHasTheLook)
{
    options.ifExists = IfExists::Update;
    makePicture("a.png");
    ASSERT_EQ(convert(path("a.png"), path("b.png")).result, Result::Done);

    EXPECT_EQ(convert(path("a.png"), path("b.png")).result, Result::Skipped);

    setTime(path("a.png"), timeOf(path("b.png")).addSecs(10));
    EXPECT_EQ(convert(path("a.png"), path("b.png")).result, Result::Done);
    setTime(path("a.png"), timeOf(path("b.png")).addSecs(-10));
    EXPECT_EQ(convert(path("a.png"), path("b.png")).result, Result::Skipped);

    look.vignette.shape.center.x = 51;
    EXPECT_EQ(convert(path("a.png"), path("b.png")).result, Result::Done);
    EXPECT_EQ(convert(path("a.png"), path("b.png")).result, Result::Skipped);
}

TEST_F(ConverterTest, UpdateReplacesAPictureWithoutLook)
{
    options.ifExists = IfExists::Update;
    makePicture("a.png");
    makePicture("b.png");

    EXPECT_EQ(convert(path("a.png"), path("b.png")).result, Result::Done);
}

TEST_F(ConverterTest, QualityIsThatOfTheOptions)
{
    makePicture("a.png");
    ASSERT_EQ(convert(path("a.png"), path("90.jpg")).result, Result::Done);
    options.quality = 30;
    ASSERT_EQ(convert(path("a.png"), path("30.jpg")).result, Result::Done);

    EXPECT_LT(QFileInfo(path("30.jpg")).size(), QFileInfo(path("90.jpg")).size());
}

TEST_F(ConverterTest, MemoryGrowsWithTheSize)
{
    makePicture("a.png");
    test::painted(80, 60, 8, [](int, int) { return test::Samples{}; }).write(path("b.png").toStdString());

    EXPECT_GE(memoryToConvert(path("a.png")), 40U * 30 * 8);
    EXPECT_EQ(memoryToConvert(path("b.png")), 4 * memoryToConvert(path("a.png")));
    EXPECT_EQ(memoryToConvert(path("missing.png")), 0U);
}

} // namespace grisal::batch
