// SPDX-License-Identifier: MIT
#include "app/Session.h"
#include "graphics/files/LookInFile.h"
#include "graphics/look/LookText.h"
#include "tests/graphics/files/PictureFiles.h"
#include "tests/support/InaccessibleFolder.h"
#include "tests/support/LogCapture.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace grisal::test;
using grisal::Session;
using grisal::graphics::Image16;
using grisal::graphics::Image8;
using grisal::graphics::Look;
using grisal::graphics::MemorySources;

namespace
{

struct SessionTest : testing::Test {
    QString path(const QString &name) const { return directory.filePath(name); }

    QString makePicture(const QString &name, int depth)
    {
        painted(4, 2, depth, [](int x, int y) -> Samples {
            return {static_cast<std::uint16_t>(x * 257 * 60), static_cast<std::uint16_t>(y * 0x0101), 0xffff};
        }).write(path(name).toStdString());
        return path(name);
    }

    void open(const QString &file) { session.setPicture(session.read(file)); }

    const QTemporaryDir directory;
    LogCapture log;
    Session session;
};

TEST_F(SessionTest, ReadsAnImageAtTheDepthOfItsFile)
{
    const auto picture8 = session.read(makePicture("a.png", 8));
    ASSERT_TRUE(picture8);
    const auto *image8 = std::get_if<Image8>(&picture8->image);
    ASSERT_NE(image8, nullptr);
    EXPECT_EQ(image8->width, 4);
    EXPECT_EQ(image8->height, 2);
    EXPECT_EQ(Bytes(image8->samples.begin(), image8->samples.begin() + 6), (Bytes{0, 0, 255, 60, 0, 255}));

    const auto picture16 = session.read(makePicture("a.tif", 16));
    ASSERT_TRUE(picture16);
    EXPECT_EQ(std::get<Image16>(picture16->image).samples, samplesOf(path("a.tif")));
}

TEST_F(SessionTest, LogsTheDescriptionOfTheImage)
{
    ASSERT_TRUE(session.read(makePicture("a.png", 8)));
    EXPECT_TRUE(log.contains("  width :     4\n  height:     2\n  depth:      8"));
}

TEST_F(SessionTest, ReadingDoesNotReplaceTheOpenImage)
{
    open(makePicture("a.png", 8));
    const auto before = session.picture();
    ASSERT_TRUE(session.read(makePicture("b.png", 8)));
    EXPECT_EQ(session.picture(), before);
}

TEST_F(SessionTest, ReturnsTheOpenImageForAMissingFile)
{
    EXPECT_FALSE(session.read(path("missing.png")));
    open(makePicture("a.png", 8));
    EXPECT_EQ(session.read(path("missing.png")), session.picture());
    EXPECT_EQ(session.read(path("a.png/missing.png")), session.picture());
    EXPECT_EQ(log.warnings().size(), 3);
}

TEST_F(SessionTest, ReturnsNothingForAnInvalidFile)
{
    open(makePicture("a.png", 8));
    writeFile(path("rubbish.png"), "no picture at all");
    EXPECT_FALSE(session.read(path("rubbish.png")));
    EXPECT_EQ(log.warnings().size(), 1);
}

// The file may exist: if the open image got its name, the next save would replace the wrong file.
TEST_F(SessionTest, ReturnsNothingForAnInaccessibleFile)
{
    open(makePicture("a.png", 8));
    ASSERT_TRUE(QDir(directory.path()).mkdir("closed"));
    {
        const InaccessibleFolder closed(path("closed"));
        EXPECT_FALSE(session.read(path("closed/b.png")));
    }
    EXPECT_FALSE(session.read(path(QString(1000, QLatin1Char('x')) + ".png")));
}

TEST_F(SessionTest, WritesTheSamplesUnchanged)
{
    Image8 image8(2, 1);
    image8.samples = {0, 1, 127, 128, 254, 255};
    ASSERT_TRUE(session.write(image8, path("a.png"), Look()));
    EXPECT_EQ(bitsPerChannel(path("a.png")), 8);
    EXPECT_EQ(samplesOf(path("a.png")), (Samples16{0, 257, 127 * 257, 128 * 257, 254 * 257, 65535}));

    Image16 image16(2, 1);
    image16.samples = {0, 1, 255, 256, 65534, 65535};
    ASSERT_TRUE(session.write(image16, path("a.tif"), Look()));
    EXPECT_EQ(bitsPerChannel(path("a.tif")), 16);
    EXPECT_EQ(samplesOf(path("a.tif")), image16.samples);
}

TEST_F(SessionTest, WritesTheLookInsteadOfThatOfTheSource)
{
    Look look;
    for (const char *name : {"a.png", "a.jpg", "a.tif"}) {
        look.grainRadius += 0.1F;
        ASSERT_TRUE(session.write(Image8(2, 1), path(name), look));
        EXPECT_EQ(grisal::graphics::readLook(path(name)).text, grisal::graphics::lookText(look)) << name;
        open(path(name));
    }
}

TEST_F(SessionTest, WritesNoNamesOfFilesAndFolders)
{
    const QByteArray folder = QFileInfo(directory.path()).fileName().toUtf8();
    for (const QString &extension : {QStringLiteral(".png"), QStringLiteral(".jpg"), QStringLiteral(".tif")}) {
        open(makePicture("source-name" + extension, 8));
        ASSERT_TRUE(session.write(Image8(2, 1), path("output-name" + extension), Look()));
        const QByteArray written = contentsOf(path("output-name" + extension));
        for (const QByteArray &name : {QByteArray("source-name"), QByteArray("output-name"), folder}) {
            EXPECT_FALSE(written.contains(name)) << extension.toStdString() << ": " << name.toStdString();
        }
    }
}

TEST_F(SessionTest, LogsWhyAFileCannotBeWritten)
{
    EXPECT_FALSE(session.write(Image8(2, 1), path("nowhere/a.png"), Look()));
    ASSERT_EQ(log.warnings().size(), 1);
    EXPECT_TRUE(log.warnings().first().startsWith("Cannot save " + path("nowhere/a.png")));
    EXPECT_FALSE(session.problem().isEmpty());
    EXPECT_TRUE(session.write(Image8(2, 1), path("a.png"), Look()));
    EXPECT_TRUE(session.problem().isEmpty());
}

// Otherwise a black image would be written.
TEST_F(SessionTest, WritesNothingIfMemoryIsInsufficient)
{
    makePicture("a.png", 8);
    const QByteArray before = contentsOf(path("a.png"));
    Image8 image;
    image.width = image.height = 1'000'000;
    EXPECT_FALSE(session.write(image, path("a.png"), Look()));
    EXPECT_EQ(contentsOf(path("a.png")), before);
    ASSERT_EQ(log.warnings().size(), 1);
    EXPECT_FALSE(log.warnings().first().contains("image is not valid")) << log.warnings().first().toStdString();
}

struct SessionMemoryTest : SessionTest {
    void setFree(const char *kilobytes)
    {
        writeFile(path("meminfo"), QByteArray("MemAvailable: ") + kilobytes + " kB");
    }

    Session limited{MemorySources{directory.path(), path("groups")}};
};

TEST_F(SessionMemoryTest, DoesNotReadAPictureThatNeedsMoreMemoryThanIsFree)
{
    setFree("2000");
    const QString file = makePicture("a.png", 8);
    EXPECT_FALSE(limited.read(file));
    ASSERT_TRUE(limited.shortage());
    EXPECT_EQ(limited.shortage()->free, 2'048'000U);
    EXPECT_GT(limited.shortage()->needed, 50'000'000U);
    ASSERT_EQ(log.warnings().size(), 1);
    EXPECT_EQ(log.warnings().first(), file + " needs 50.0 MB of memory to be opened and saved, 2.0 MB are free");
}

TEST_F(SessionMemoryTest, ReadsAPictureOnceThereIsMemory)
{
    setFree("2000");
    const QString file = makePicture("a.png", 8);
    EXPECT_FALSE(limited.read(file));
    setFree("2000000");
    EXPECT_TRUE(limited.read(file));
    EXPECT_FALSE(limited.shortage());
}

TEST_F(SessionMemoryTest, HasNoShortageForAnotherFailure)
{
    setFree("2000");
    EXPECT_FALSE(limited.read(makePicture("a.png", 8)));
    writeFile(path("rubbish.png"), "no picture at all");
    EXPECT_FALSE(limited.read(path("rubbish.png")));
    EXPECT_FALSE(limited.shortage());
}

TEST_F(SessionTest, WarnsAboutATruncatedFile)
{
    const QString file = path("a.jpg");
    painted(64, 64, 8, [](int x, int y) -> Samples {
        return {static_cast<std::uint16_t>(x * y * 999), static_cast<std::uint16_t>(x * 9999), 0};
    }).write(file.toStdString());
    const QByteArray whole = contentsOf(file);
    writeFile(file, whole.left(whole.size() / 2));
    ASSERT_TRUE(session.read(file));
    EXPECT_FALSE(session.warning().isEmpty());
    ASSERT_TRUE(session.read(makePicture("b.png", 8)));
    EXPECT_TRUE(session.warning().isEmpty());
}

} // namespace
