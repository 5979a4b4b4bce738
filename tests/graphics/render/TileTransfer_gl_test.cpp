// SPDX-License-Identifier: MIT
#include "graphics/render/TileTransfer.h"

#include "tests/support/GlState.h"
#include "tests/support/GlTest.h"
#include "tests/support/HalfFloats.h"
#include "tests/support/PictureCompare.h"

#include <ostream>
#include <string>

namespace grisal::test
{

namespace
{

using graphics::RenderTarget;
using graphics::Texture;
using graphics::TileArea;
using graphics::TileFormats;
using graphics::tileFormatsFor;
using graphics::TileTransfer;

// With these sizes, no row is a multiple of 4 bytes long.
constexpr int width = 7;
constexpr int height = 5;

struct Place {
    const char *name;
    TileArea area;
};

constexpr Place places[] = {
    {"Whole", {0, 0, 7, 5}},          {"Inside", {2, 1, 3, 2}},          {"AtTheEdge", {4, 2, 3, 3}},
    {"OneBeyondRight", {3, 1, 5, 2}}, {"OneBeyondBottom", {1, 2, 3, 4}}, {"BeyondBoth", {5, 3, 4, 4}},
    {"Outside", {8, 6, 2, 3}},
};

/// One kind of transfer: position of the tile, components of the image, and format of transferred 16-bit samples.
struct Case {
    Place place;
    int components;
    bool halfFloats;

    friend void PrintTo(const Case &c, std::ostream *stream)
    {
        *stream << c.place.name << c.components << (c.halfFloats ? "HalfFloats" : "AsTheyAre");
    }
};

std::vector<Case> everyCase()
{
    std::vector<Case> cases;
    for (const Place &place : places) {
        for (const int components : {3, 4}) {
            cases.push_back({place, components, true});
            cases.push_back({place, components, false});
        }
    }
    return cases;
}

template <typename T>
constexpr GLenum pixelType = sizeof(T) == 1 ? GL_UNSIGNED_BYTE : GL_UNSIGNED_SHORT;

/// Samples that half floats represent exactly, so that only positions are compared.
template <typename T>
Pixels<T> image(int imageWidth, int imageHeight, int components)
{
    Pixels<T> pixels = rampPicture<T>(imageWidth, imageHeight, components);
    if constexpr (sizeof(T) == 2) {
        for (std::uint16_t &sample : pixels.values) {
            sample = throughHalfFloat(sample);
        }
    }
    return pixels;
}

class TileTransferTest : public GlTest
{
protected:
    template <typename T>
    static Pixels<T> contentOf(const Texture &texture, const TileArea &area)
    {
        Pixels<T> content(static_cast<int>(area.width), static_cast<int>(area.height));
        glBindTexture(GL_TEXTURE_2D, texture.name());
        glPixelStorei(GL_PACK_ALIGNMENT, 1);
        glGetTexImage(GL_TEXTURE_2D, 0, GL_RGB, pixelType<T>, content.values.data());
        glBindTexture(GL_TEXTURE_2D, 0);
        return content;
    }

    template <typename T>
    static void fill(const RenderTarget &target, const Pixels<T> &tile)
    {
        glBindTexture(GL_TEXTURE_2D, target.record().texture);
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, tile.width, tile.height, GL_RGB, pixelType<T>, tile.values.data());
        glBindTexture(GL_TEXTURE_2D, 0);
    }

    /// Drivers other than llvmpipe may round a 16-bit sample to the next half float.
    template <typename T>
    static Limits limits()
    {
        return {sizeof(T) == 1 || isLlvmpipe() ? 0 : halfFloatStep, 0};
    }
};

class TileTransfers : public TileTransferTest, public testing::WithParamInterface<Case>
{
protected:
    template <typename T>
    TileTransfer<T> transfer() const
    {
        return {width, height, static_cast<std::size_t>(GetParam().components), formats<T>()};
    }

    template <typename T>
    TileFormats formats() const
    {
        return tileFormatsFor<T>(GetParam().halfFloats, false);
    }

    template <typename T>
    void expectTheAreaInTheTexture() const
    {
        const Pixels<T> source = image<T>(width, height, GetParam().components);
        const TileArea &area = GetParam().place.area;

        const Texture texture = transfer<T>().upload(source.values.data(), area);

        Pixels<T> expected(static_cast<int>(area.width), static_cast<int>(area.height));
        forEachCommonComponent([&](int x, int y, int inImageX, int inImageY, int c) {
            expected.at(x, y, c) = source.at(inImageX, inImageY, c);
        });
        EXPECT_TRUE(picturesNear("upload", contentOf<T>(texture, area), expected, limits<T>()));
    }

    template <typename T>
    void expectTheTileInTheArea() const
    {
        const TileArea &area = GetParam().place.area;
        Pixels<T> actual = image<T>(width, height, GetParam().components);
        const auto tile = image<T>(static_cast<int>(area.width), static_cast<int>(area.height) + 3, 3);
        const RenderTarget target(tile.width, tile.height, GL_RGB, formats<T>().internalFormat, pixelType<T>);
        fill(target, tile);
        Pixels<T> expected = actual;

        transfer<T>().download(target.record(), area, actual.values.data());

        forEachCommonComponent([&](int x, int y, int inImageX, int inImageY, int c) {
            expected.at(inImageX, inImageY, c) = tile.at(x, y, c);
        });
        EXPECT_TRUE(picturesNear("download", actual, expected, limits<T>()));
    }

    /// Visits the colour components of the intersection of area and image, with their index in both.
    template <typename Visit>
    void forEachCommonComponent(Visit visit) const
    {
        const TileArea &area = GetParam().place.area;
        for (int y = 0; y < static_cast<int>(area.height); ++y) {
            for (int x = 0; x < static_cast<int>(area.width); ++x) {
                const int inImageX = static_cast<int>(area.x) + x;
                const int inImageY = static_cast<int>(area.y) + y;
                for (int c = 0; inImageX < width && inImageY < height && c < 3; ++c) {
                    visit(x, y, inImageX, inImageY, c);
                }
            }
        }
    }
};

} // namespace

TEST_P(TileTransfers, UploadCopiesBytesOfTheAreaAndBlackBeyond)
{
    expectTheAreaInTheTexture<std::uint8_t>();
}

TEST_P(TileTransfers, UploadCopiesSamplesOfTheAreaAndBlackBeyond)
{
    expectTheAreaInTheTexture<std::uint16_t>();
}

TEST_P(TileTransfers, DownloadWritesBytesInTheAreaOnly)
{
    expectTheTileInTheArea<std::uint8_t>();
}

TEST_P(TileTransfers, DownloadWritesSamplesInTheAreaOnly)
{
    expectTheTileInTheArea<std::uint16_t>();
}

TEST_P(TileTransfers, RestoreTheRowLengths)
{
    const auto source = image<std::uint16_t>(width, height, GetParam().components);
    auto destination = source;
    const TileArea &area = GetParam().place.area;
    const RenderTarget target(static_cast<int>(area.width), static_cast<int>(area.height), GL_RGB, GL_RGB16F,
                              GL_UNSIGNED_SHORT);
    auto samples = transfer<std::uint16_t>();

    samples.upload(source.values.data(), area);
    samples.download(target.record(), area, destination.values.data());

    EXPECT_EQ(glInteger(GL_UNPACK_ROW_LENGTH), 0);
    EXPECT_EQ(glInteger(GL_PACK_ROW_LENGTH), 0);
    EXPECT_EQ(glInteger(GL_FRAMEBUFFER_BINDING), 0);
}

INSTANTIATE_TEST_SUITE_P(Places, TileTransfers, testing::ValuesIn(everyCase()),
                         [](const auto &test) { return testing::PrintToString(test.param); });

// The buffers are reused for tiles of different size.
TEST_F(TileTransferTest, SmallTileContainsNothingOfAFormerLargeTile)
{
    const auto source = image<std::uint16_t>(width, height, 4);
    TileTransfer<std::uint16_t> transfer(width, height, 4, tileFormatsFor<std::uint16_t>(true, false));
    transfer.upload(source.values.data(), {0, 0, 7, 5});
    const TileArea corner{6, 4, 2, 2};

    const Samples16Image content = contentOf<std::uint16_t>(transfer.upload(source.values.data(), corner), corner);

    Samples16Image expected(2, 2);
    for (int c = 0; c < 3; ++c) {
        expected.at(0, 0, c) = source.at(6, 4, c);
    }
    EXPECT_TRUE(picturesNear("small after large", content, expected, limits<std::uint16_t>()));
}

// Upload and download of every 16-bit sample.
TEST_F(TileTransferTest, HalfFloatAndSampleTransfersAgree)
{
    constexpr int side = 256;
    Samples16Image every(side, side);
    for (std::size_t i = 0; i < every.values.size(); ++i) {
        every.values[i] = static_cast<std::uint16_t>(i / 3);
    }
    const TileArea whole{0, 0, side, side};
    const auto throughTheDriver = [&](bool halfFloats) {
        TileTransfer<std::uint16_t> transfer(side, side, 3, tileFormatsFor<std::uint16_t>(halfFloats, false));
        const RenderTarget target(side, side, GL_RGB, GL_RGB16F, GL_UNSIGNED_SHORT);
        const Texture texture = transfer.upload(every.values.data(), whole);
        glBindFramebuffer(GL_FRAMEBUFFER, target.record().framebuffer);
        glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, texture.name(), 0);
        Samples16Image result(side, side);
        transfer.download(target.record(), whole, result.values.data());
        return result;
    };

    const Samples16Image asHalfFloats = throughTheDriver(true);

    EXPECT_EQ(asHalfFloats.at(255, 255, 0), 65535);
    EXPECT_TRUE(picturesNear("both ways", throughTheDriver(false), asHalfFloats, limits<std::uint16_t>()));
}

TEST(TileFormatsTest, HalfFloatTransfersNeedVersion3OrTheExtension)
{
    EXPECT_FALSE(tileFormatsFor<std::uint16_t>(false, false).halfFloatTransfers);
    EXPECT_TRUE(tileFormatsFor<std::uint16_t>(true, false).halfFloatTransfers);
    EXPECT_TRUE(tileFormatsFor<std::uint16_t>(false, true).halfFloatTransfers);
    EXPECT_TRUE(tileFormatsFor<std::uint16_t>(true, true).halfFloatTransfers);
}

TEST(TileFormatsTest, BytesUseRgb8AndSamplesUseHalfFloats)
{
    const TileFormats bytes = tileFormatsFor<std::uint8_t>(true, true);
    EXPECT_EQ(bytes.pixelFormat, static_cast<GLenum>(GL_RGB));
    EXPECT_EQ(bytes.pixelType, static_cast<GLenum>(GL_UNSIGNED_BYTE));
    EXPECT_EQ(bytes.internalFormat, static_cast<GLenum>(GL_RGB8));
    const TileFormats samples = tileFormatsFor<std::uint16_t>(false, false);
    EXPECT_EQ(samples.pixelFormat, static_cast<GLenum>(GL_RGB));
    EXPECT_EQ(samples.pixelType, static_cast<GLenum>(GL_UNSIGNED_SHORT));
    EXPECT_EQ(samples.internalFormat, static_cast<GLenum>(GL_RGB16F));
}

} // namespace grisal::test
