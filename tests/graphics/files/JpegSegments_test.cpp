// SPDX-License-Identifier: MIT
#include "graphics/files/JpegSegments.h"

#include "graphics/files/MetadataBlocks.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include <fcntl.h>

#include <vector>

using namespace grisal::test;
using namespace grisal::graphics;

namespace
{

struct JpegSegmentsTest : testing::Test {
    OpenFile fileOf(const QByteArray &contents) const
    {
        const QString path = directory.filePath(QStringLiteral("a.jpg"));
        writeFile(path, "\xff\xd8" + contents);
        return OpenFile(open(path.toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC));
    }

    std::vector<int> markersIn(const QByteArray &contents) const
    {
        std::vector<int> markers;
        EXPECT_TRUE(visitJpegSegments(fileOf(contents),
                                      [&](const JpegSegment &segment) { markers.push_back(segment.marker); }));
        return markers;
    }

    QTemporaryDir directory;
    const QByteArray app = QByteArray("\xff\xe1\0\4ab", 6);
    const QByteArray scan = QByteArray("\xff\xda\0\3\1", 5);
};

TEST_F(JpegSegmentsTest, VisitsSegmentsUpToTheFirstScan)
{
    EXPECT_EQ(markersIn(app + app + scan + app), (std::vector<int>{0xe1, 0xe1, 0xda}));
    EXPECT_EQ(markersIn(app), (std::vector<int>{0xe1}));
    EXPECT_TRUE(markersIn({}).empty());
}

TEST_F(JpegSegmentsTest, SkipsOtherBytesBetweenSegments)
{
    for (const QByteArray &stray : {QByteArray("s"), QByteArray(5'000, '\0'), QByteArray(5'000, '\xff'),
                                    QByteArray("\xff\0\xff\x01\xff\xd3", 6)}) {
        EXPECT_EQ(markersIn(app + stray + app + stray + scan), (std::vector<int>{0xe1, 0xe1, 0xda}));
    }
}

TEST_F(JpegSegmentsTest, VisitsALimitedNumberOfSegments)
{
    const auto ignore = [](const JpegSegment &) {};
    EXPECT_TRUE(visitJpegSegments(fileOf(app.repeated(19'000)), ignore));
    EXPECT_FALSE(visitJpegSegments(fileOf(app.repeated(21'000)), ignore));
}

TEST_F(JpegSegmentsTest, MetadataBehindOtherBytesIsExtracted)
{
    const QByteArray xmp = "http://ns.adobe.com/xap/1.0/" + QByteArray(1, '\0') + "<x/>";
    const QByteArray segment = QByteArray("\xff\xe1\0", 3) + static_cast<char>(xmp.size() + 2) + xmp;
    EXPECT_EQ(extractMetadata(fileOf(app + segment + scan), ImageFormat::Jpeg).xmp, "<x/>");
    EXPECT_EQ(extractMetadata(fileOf(app + "stray" + segment + scan), ImageFormat::Jpeg).xmp, "<x/>");
}

} // namespace
