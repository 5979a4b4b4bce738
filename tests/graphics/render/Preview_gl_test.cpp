// SPDX-License-Identifier: MIT
#include "graphics/render/Preview.h"

#include "graphics/filters/FilterSet.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlTest.h"
#include "tests/support/Images.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/QueueOrder.h"
#include "tests/support/ReferencePictures.h"

namespace grisal::test
{

namespace
{

using graphics::FilterSet;
using graphics::Image16;
using graphics::Image8;
using graphics::PixelFormats;
using graphics::pixelFormatsFor;
using graphics::Preview;

class PreviewTest : public GlTest
{
};

/// The formats of images with 8-bit samples.
const PixelFormats formats8 = pixelFormatsFor(Image8());

GLint sizeParameter(GLuint texture, GLenum name)
{
    GLint value = 0;
    glBindTexture(GL_TEXTURE_2D, texture);
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, name, &value);
    glBindTexture(GL_TEXTURE_2D, 0);
    return value;
}

} // namespace

TEST(PixelFormatsTest, FollowDepthAndAlpha)
{
    struct Row {
        bool sixteenBit;
        bool alpha;
        GLenum type;
        GLenum internalFormat;
        GLenum format;
    };
    for (const Row &row :
         {Row{false, false, GL_UNSIGNED_BYTE, GL_RGB8, GL_RGB}, Row{false, true, GL_UNSIGNED_BYTE, GL_RGBA8, GL_RGBA},
          Row{true, false, GL_UNSIGNED_SHORT, GL_RGB16, GL_RGB},
          Row{true, true, GL_UNSIGNED_SHORT, GL_RGBA16, GL_RGBA}}) {
        const PixelFormats formats = row.sixteenBit ? pixelFormatsFor(Image16(1, 1, row.alpha ? 4 : 3))
                                                    : pixelFormatsFor(Image8(1, 1, row.alpha ? 4 : 3));

        EXPECT_EQ(formats.pixelType, row.type) << row.sixteenBit << row.alpha;
        EXPECT_EQ(formats.internalFormat, row.internalFormat) << row.sixteenBit << row.alpha;
        EXPECT_EQ(formats.pixelFormat, row.format) << row.sixteenBit << row.alpha;
    }
}

// Unlike in the final render, grain comes before split toning.
TEST_F(PreviewTest, FiltersAreInTheOrderOfThePreview)
{
    FilterSet filters;

    expectInOrder(filters.previewOrder(),
                  {"MixerFilter", "CurveFilter", "GrainFilter", "HalfToneFilter", "VignetteFilter"});
}

TEST_F(PreviewTest, EmptyQueueOutputsTheImage)
{
    const BytePixels picture = rampPicture<std::uint8_t>(12, 8);
    Preview preview(imageOf(picture), formats8, 80, 60);

    preview.render();

    EXPECT_EQ(preview.output(), preview.document().source());
    EXPECT_TRUE(picturesNear("preview-source", readTexture(preview.output(), 12, 8), picture));
}

TEST_F(PreviewTest, FormatsWithAlphaAcceptThreeComponents)
{
    const BytePixels picture = rampPicture<std::uint8_t>(12, 8);
    const LogCapture log;

    Preview preview(imageOf(picture), pixelFormatsFor(Image8(1, 1, 4)), 80, 60);

    preview.render();
    EXPECT_TRUE(picturesNear("preview-alpha", readTexture(preview.output(), 12, 8), picture));
    EXPECT_EQ(log.warnings(), QStringList());
}

TEST_F(PreviewTest, SixteenBitImageGetsSixteenBitTextures)
{
    const Image16 image = imageOf(rampPicture<std::uint16_t>(4, 4));

    Preview preview(image, pixelFormatsFor(image), 80, 60);

    EXPECT_EQ(sizeParameter(preview.document().source(), GL_TEXTURE_INTERNAL_FORMAT), GL_RGB16);
    EXPECT_EQ(sizeParameter(preview.view().target().texture, GL_TEXTURE_INTERNAL_FORMAT), GL_RGB16);
}

TEST_F(PreviewTest, ViewHasTheSizeOfTheImageAndIsCentred)
{
    Preview preview(imageOf(rampPicture<std::uint8_t>(12, 8)), formats8, 80, 60);

    EXPECT_EQ(sizeParameter(preview.view().target().texture, GL_TEXTURE_WIDTH), 12);
    EXPECT_EQ(sizeParameter(preview.view().target().texture, GL_TEXTURE_HEIGHT), 8);
    EXPECT_EQ(preview.view().offsetX(), 40.0F);
    EXPECT_EQ(preview.view().offsetY(), 30.0F);
    EXPECT_EQ(preview.document().view(), &preview.view());
}

TEST_F(PreviewTest, QueueIsAppliedToTheImage)
{
    const BytePixels picture = rampPicture<std::uint8_t>(12, 8);
    Preview preview(imageOf(picture), formats8, 80, 60);
    FilterSet filters;
    filters.setSize(12, 8);
    filters.get<graphics::MixerFilter>().weights = {0, 1, 0};
    filters.get<graphics::MixerFilter>().enabled = true;
    for (graphics::IFilter *filter : filters.previewOrder()) {
        preview.queue().add(filter);
    }

    preview.render();

    BytePixels green = picture;
    for (std::size_t i = 0; i < green.values.size(); i += 3) {
        green.values[i] = green.values[i + 2] = green.values[i + 1];
    }
    EXPECT_TRUE(picturesNear("preview-green", readTexture(preview.output(), 12, 8), green));
}

TEST_F(PreviewTest, DestructorDeletesItsTextures)
{
    GLuint source = 0;
    GLuint target = 0;
    {
        Preview preview(imageOf(rampPicture<std::uint8_t>(12, 8)), formats8, 80, 60);
        source = preview.document().source();
        target = preview.view().target().texture;
        ASSERT_TRUE(glIsTexture(source));
        ASSERT_TRUE(glIsTexture(target));
    }
    EXPECT_FALSE(glIsTexture(source));
    EXPECT_FALSE(glIsTexture(target));
}

} // namespace grisal::test
