// SPDX-License-Identifier: MIT
#include "graphics/files/TiffOrientation.h"

#include "graphics/files/TiffDirectory.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>

using namespace grisal::test;
using namespace grisal::graphics;

namespace
{

constexpr std::uint16_t orientationTag = 274;

struct TiffOrientationTest : testing::Test {
    QTemporaryDir directory;
    const TiffByteOrder order{true};

    /// The header, some pixels, and a directory of two entries at offset 16.
    QByteArray fileWith(const TiffEntry &entry) const
    {
        return QByteArray("MM\0*\0\0\0\x10pixels..", 16) + encodeDirectory({{256, 3, 1, "wide"}, entry}, order);
    }

    OpenFile opened(const QByteArray &contents) const
    {
        const QString path = directory.filePath(QStringLiteral("a.tif"));
        writeFile(path, contents);
        return OpenFile(open(path.toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC));
    }

    static QByteArray all(const OpenFile &file) { return file.bytesAt(0, static_cast<qsizetype>(file.size())); }
};

TEST_F(TiffOrientationTest, CopyDiffersOnlyInTheOrientation)
{
    const QByteArray normal = fileWith({orientationTag, 3, 1, QByteArray("\0\1\0\0", 4)});
    for (const TiffEntry &entry :
         {TiffEntry{orientationTag, 3, 1, QByteArray("\0\6\0\0", 4)}, TiffEntry{orientationTag, 3, 1, "\xff\xff??"},
          TiffEntry{orientationTag, 4, 1, QByteArray("\0\1\0\0", 4)},
          TiffEntry{orientationTag, 3, 2, QByteArray("\0\1\0\0", 4)}}) {
        const OpenFile file = opened(fileWith(entry));
        const OpenFile copy = copyWithNormalOrientation(file);
        ASSERT_TRUE(copy.isOpen());
        EXPECT_EQ(all(copy), normal);
        EXPECT_EQ(all(file), fileWith(entry));
    }
}

// It would take 16 gigabytes otherwise.
TEST_F(TiffOrientationTest, CopyOfASparseFileIsSparse)
{
    const QByteArray contents = fileWith({orientationTag, 3, 1, QByteArray("\0\6\0\0", 4)});
    const OpenFile file = opened(contents);
    ASSERT_TRUE(QFile(directory.filePath(QStringLiteral("a.tif"))).resize(qint64{1} << 34));
    EXPECT_LT(sizeOfNormalisedCopy(file), 100'000U);
    const OpenFile copy = copyWithNormalOrientation(file);
    EXPECT_EQ(copy.size(), std::uint64_t{1} << 34);
    EXPECT_LT(copy.storedSize(), 100'000U);
    EXPECT_EQ(copy.bytesAt(0, contents.size()), fileWith({orientationTag, 3, 1, QByteArray("\0\1\0\0", 4)}));
}

TEST_F(TiffOrientationTest, CopyTakesTheSizeOfTheFile)
{
    const QByteArray contents = fileWith({orientationTag, 3, 1, QByteArray("\0\6\0\0", 4)});
    EXPECT_EQ(sizeOfNormalisedCopy(opened(contents)), static_cast<std::uint64_t>(contents.size()));
    EXPECT_EQ(sizeOfNormalisedCopy(opened(fileWith({orientationTag, 3, 1, QByteArray("\0\1\0\0", 4)}))), 0U);
}

TEST_F(TiffOrientationTest, NoCopyIsMadeWithNormalOrientationOrNone)
{
    for (const QByteArray &contents : {fileWith({orientationTag, 3, 1, QByteArray("\0\1\0\0", 4)}),
                                       fileWith({271, 2, 4, "Acme"}), QByteArray("MM\0*\0\0\0\x10", 8),
                                       QByteArray("MM\0*\xff\xff\xff\xff", 8), QByteArray("MM\0*"), QByteArray()}) {
        EXPECT_FALSE(copyWithNormalOrientation(opened(contents)).isOpen()) << contents.toStdString();
    }
}

} // namespace
