// SPDX-License-Identifier: MIT
#include "graphics/filters/NoiseMap.h"

#include "graphics/gl/Textures.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlTest.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PictureCompare.h"

#include <QFile>
#include <QTemporaryDir>

namespace grisal::test
{

namespace
{

using graphics::loadRawTexture;
using graphics::noiseMapSide;
using graphics::Texture;

const QString wrongSize = QStringLiteral("Error: Filesize doesn't equal width*height*channels!");
const QString wrongChannels = QStringLiteral("Error: RAW has not 3 channels!");

class NoiseMapTest : public GlTest
{
protected:
    /// A file with the given bytes.
    QString fileWith(const std::vector<std::uint8_t> &bytes) const
    {
        QFile file(m_directory.filePath(QStringLiteral("noise.raw")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(reinterpret_cast<const char *>(bytes.data()), static_cast<qint64>(bytes.size()));
        return file.fileName();
    }

private:
    QTemporaryDir m_directory;
};

} // namespace

TEST_F(NoiseMapTest, TextureContainsTheBytesOfTheFile)
{
    const BytePixels picture = rampPicture<std::uint8_t>(5, 3);
    const LogCapture log;

    const Texture texture(loadRawTexture(fileWith(picture.values), 5, 3, 3));

    EXPECT_TRUE(picturesNear("raw", readTexture(texture.name(), 5, 3), picture));
    EXPECT_EQ(log.warnings(), QStringList());
}

TEST_F(NoiseMapTest, FileOneByteTooShortIsLoggedAndGivesATexture)
{
    BytePixels picture = rampPicture<std::uint8_t>(noiseMapSide, noiseMapSide);
    picture.values.pop_back();
    const QString path = fileWith(picture.values);
    const LogCapture log;

    const Texture texture(loadRawTexture(path, noiseMapSide, noiseMapSide, 3));

    EXPECT_EQ(log.warnings(), QStringList{wrongSize});
    picture.values.push_back(0);
    EXPECT_TRUE(picturesNear("raw-short", readTexture(texture.name(), noiseMapSide, noiseMapSide), picture));
}

TEST_F(NoiseMapTest, TooLongFileIsLoggedAndTruncated)
{
    BytePixels picture = rampPicture<std::uint8_t>(5, 3);
    std::vector<std::uint8_t> bytes = picture.values;
    bytes.push_back(77);
    const QString path = fileWith(bytes);
    const LogCapture log;

    const Texture texture(loadRawTexture(path, 5, 3, 3));

    EXPECT_EQ(log.warnings(), QStringList{wrongSize});
    EXPECT_TRUE(picturesNear("raw-long", readTexture(texture.name(), 5, 3), picture));
}

TEST_F(NoiseMapTest, MissingFileIsLoggedAndGivesATexture)
{
    const LogCapture log;

    const Texture texture(loadRawTexture(QStringLiteral(":/no/such/file"), 5, 3, 3));

    EXPECT_EQ(log.warnings(), QStringList{wrongSize});
    EXPECT_TRUE(picturesNear("raw-missing", readTexture(texture.name(), 5, 3), BytePixels(5, 3)));
}

TEST_F(NoiseMapTest, FourChannelsAreLoggedAndReadAsThree)
{
    BytePixels picture = rampPicture<std::uint8_t>(5, 3);
    std::vector<std::uint8_t> bytes = picture.values;
    bytes.resize(5 * 3 * 4);
    const QString path = fileWith(bytes);
    const LogCapture log;

    const Texture texture(loadRawTexture(path, 5, 3, 4));

    EXPECT_EQ(log.warnings(), QStringList{wrongChannels});
    EXPECT_TRUE(picturesNear("raw-four", readTexture(texture.name(), 5, 3), picture));
}

TEST_F(NoiseMapTest, OneChannelIsLoggedAndReadAsThree)
{
    const QString path = fileWith(std::vector<std::uint8_t>(5 * 3, 9));
    const LogCapture log;

    const Texture texture(loadRawTexture(path, 5, 3, 1));

    EXPECT_EQ(log.warnings(), QStringList{wrongChannels});
    EXPECT_EQ(readTexture(texture.name(), 5, 3).at(4, 0, 2), 9);
}

TEST_F(NoiseMapTest, EmbeddedMapIsCompleteAndLoadsWithoutWarning)
{
    QFile file(QStringLiteral(":/Icons/Icons/noiseMap_512x512x3.raw"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    ASSERT_EQ(bytes.size(), 786432);
    const LogCapture log;

    const Texture texture(graphics::loadNoiseMap());

    const BytePixels expected(noiseMapSide, noiseMapSide, 3, std::vector<std::uint8_t>(bytes.begin(), bytes.end()));
    EXPECT_TRUE(picturesNear("raw-own", readTexture(texture.name(), noiseMapSide, noiseMapSide), expected));
    EXPECT_EQ(log.warnings(), QStringList());
}

} // namespace grisal::test
