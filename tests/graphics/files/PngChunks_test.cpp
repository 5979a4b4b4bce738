// SPDX-License-Identifier: MIT
#include "graphics/files/PngChunks.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include <fcntl.h>

#include <vector>

using namespace grisal::test;
using namespace grisal::graphics;

namespace
{

const QByteArray signature = "\x89PNG\r\n\x1a\n";

struct PngChunksTest : testing::Test {
    QTemporaryDir directory;

    OpenFile fileOf(const QByteArray &chunks) const
    {
        const QString path = directory.filePath(QStringLiteral("a.png"));
        writeFile(path, signature + chunks);
        return OpenFile(open(path.toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC));
    }

    QByteArray kindsIn(const QByteArray &chunks) const
    {
        QByteArray kinds;
        EXPECT_TRUE(visitPngChunks(fileOf(chunks), [&](const PngChunk &chunk) {
            kinds += chunk.kind + ' ';
            return true;
        }));
        return kinds;
    }
};

TEST_F(PngChunksTest, WritesLengthKindContentsAndChecksum)
{
    EXPECT_EQ(pngChunk("IEND", {}), QByteArray::fromHex("0000000049454e44ae426082"));
    EXPECT_EQ(pngChunk("tEXt", "a"), QByteArray::fromHex("00000001744558746175f38b29"));
}

TEST_F(PngChunksTest, VisitsChunksWithOffsetLengthAndStart)
{
    std::vector<PngChunk> chunks;
    const QByteArray text(100, 'x');
    visitPngChunks(fileOf(pngChunk("tEXt", text) + pngChunk("IDAT", "yz")), [&](const PngChunk &chunk) {
        chunks.push_back(chunk);
        return true;
    });
    ASSERT_EQ(chunks.size(), 2U);
    EXPECT_EQ(chunks[0].offset, 8U);
    EXPECT_EQ(chunks[0].length, 100U);
    EXPECT_EQ(chunks[0].size(), 112U);
    EXPECT_EQ(chunks[0].start, text.first(20));
    EXPECT_EQ(chunks[1].offset, 120U);
    EXPECT_TRUE(chunks[1].start.startsWith("yz"));
}

TEST_F(PngChunksTest, EndsAtTheIendChunkOrAtInvalidData)
{
    const QByteArray one = pngChunk("IDAT", "pixels");
    EXPECT_EQ(kindsIn(one + pngChunk("IEND", {}) + one), "IDAT ");
    EXPECT_EQ(kindsIn(one + pngChunk("ID4T", {}) + one), "IDAT ");
    EXPECT_EQ(kindsIn(one + QByteArray(40, '\0') + one), "IDAT ");
    EXPECT_EQ(kindsIn(one + one.first(7)), "IDAT ");
    EXPECT_EQ(kindsIn({}), "");
}

TEST_F(PngChunksTest, EndsWhenTheVisitorReturnsFalse)
{
    int visited = 0;
    EXPECT_FALSE(
        visitPngChunks(fileOf(pngChunk("IDAT", {}).repeated(5)), [&](const PngChunk &) { return ++visited < 3; }));
    EXPECT_EQ(visited, 3);
}

} // namespace
