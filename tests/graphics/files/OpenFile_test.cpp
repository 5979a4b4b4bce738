// SPDX-License-Identifier: MIT
#include "graphics/files/OpenFile.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <exception>

using namespace grisal::test;
using grisal::graphics::OpenFile;

namespace
{

struct OpenFileTest : testing::Test {
    QTemporaryDir directory;
    QString path = directory.filePath(QStringLiteral("a"));

    OpenFile opened(const QByteArray &contents) const
    {
        writeFile(path, contents);
        return OpenFile(open(path.toLocal8Bit().constData(), O_RDWR | O_CLOEXEC));
    }
};

/// Bytes with a long period.
QByteArray counted(qsizetype size)
{
    QByteArray bytes(size, '\0');
    for (qsizetype i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>(i * 31 + i / 251);
    }
    return bytes;
}

TEST_F(OpenFileTest, ReturnsTheBytesWithinTheFile)
{
    const OpenFile file = opened("abcdef");
    EXPECT_EQ(file.size(), 6U);
    EXPECT_EQ(file.bytesAt(1, 3), "bcd");
    EXPECT_EQ(file.bytesAt(4, 10), "ef");
    EXPECT_EQ(file.bytesAt(7, 1), "");
    EXPECT_EQ(OpenFile().bytesAt(0, 1), "");
    EXPECT_EQ(OpenFile().size(), 0U);
}

TEST_F(OpenFileTest, FindsTheDataOfASparseFile)
{
    const OpenFile file = opened(counted(1 << 16));
    ASSERT_EQ(ftruncate(file.descriptor(), off_t{1} << 34), 0);
    file.overwrite(1 << 30, counted(1 << 16));
    EXPECT_EQ(file.size(), std::uint64_t{1} << 34);
    EXPECT_EQ(file.storedSize(), std::uint64_t{2} << 16);
    EXPECT_EQ(file.dataFrom(0).start, 0U);
    EXPECT_EQ(file.dataFrom(0).end, 1U << 16);
    EXPECT_EQ(file.dataFrom(1 << 16).start, 1U << 30);
    EXPECT_EQ(file.dataFrom(1 << 16).size(), 1U << 16);
    EXPECT_EQ(file.dataFrom((1 << 30) + (1 << 16)).size(), 0U);
    EXPECT_EQ(file.dataFrom(std::uint64_t{1} << 40).size(), 0U);
}

TEST_F(OpenFileTest, StoresAllBytesOfAFileWithoutHoles)
{
    EXPECT_EQ(opened("abcdef").storedSize(), 6U);
    EXPECT_EQ(opened("").storedSize(), 0U);
    EXPECT_EQ(OpenFile().storedSize(), 0U);
}

TEST_F(OpenFileTest, InsertsBytesAtAnyOffset)
{
    for (const qsizetype place : {0, 2, 6}) {
        const OpenFile file = opened("abcdef");
        ASSERT_TRUE(file.insert(static_cast<std::uint64_t>(place), "12345678"));
        EXPECT_EQ(contentsOf(path), QByteArray("abcdef").insert(place, "12345678"));
    }
}

TEST_F(OpenFileTest, InsertsBytesBeforeManyBlocks)
{
    const QByteArray contents = counted((9 << 20) + 123);
    for (const qsizetype size : {1, 5000, 5 << 20}) {
        const OpenFile file = opened(contents);
        ASSERT_TRUE(file.insert(77, counted(size)));
        EXPECT_TRUE(contentsOf(path) == QByteArray(contents).insert(77, counted(size))) << size;
    }
}

TEST_F(OpenFileTest, StaysUnchangedOnAFullDisk)
{
    const QByteArray contents = counted(10'000);
    const OpenFile file = opened(contents);
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{10'100, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    EXPECT_FALSE(file.insert(5, counted(200)));
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(contentsOf(path), contents);
}

TEST_F(OpenFileTest, OverwritesBytesOrThrowsIfReadOnly)
{
    const OpenFile file = opened("abcdef");
    file.overwrite(2, "XY");
    EXPECT_EQ(contentsOf(path), "abXYef");
    const OpenFile readOnly(open(path.toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC));
    EXPECT_THROW(readOnly.overwrite(0, "x"), std::exception);
    EXPECT_EQ(contentsOf(path), "abXYef");
}

} // namespace
