// SPDX-License-Identifier: MIT
#include "graphics/gl/Textures.h"

#include "graphics/shader/ShaderProgram.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlState.h"
#include "tests/support/GlTest.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PictureCompare.h"

#include <dlfcn.h>

#include <string>

namespace
{

/// An error that one call of glGetError() returns instead of that of the OpenGL driver.
struct FakedError {
    GLenum error = GL_NO_ERROR;
    int call = 0; ///< which call, counted from 1; none at 0
    int calls = 0;
};

FakedError faked;

} // namespace

/// Replaces the function of the OpenGL driver.
extern "C" GLenum GLAPIENTRY glGetError()
{
    static const auto real = reinterpret_cast<GLenum(GLAPIENTRY *)()>(dlsym(RTLD_NEXT, "glGetError"));
    const GLenum error = real();
    return ++faked.calls == faked.call ? faked.error : error;
}

namespace grisal::test
{

namespace
{

using graphics::create1DTexture;
using graphics::createTexture;
using graphics::RenderTarget;
using graphics::ShaderProgram;
using graphics::Texture;

class TexturesTest : public GlTest
{
};

class UnalignedRowsTest : public GlTest, public testing::WithParamInterface<int>
{
};

GLint textureParameter(GLenum kind, GLuint texture, GLenum parameter)
{
    GLint value = 0;
    glBindTexture(kind, texture);
    glGetTexParameteriv(kind, parameter, &value);
    glBindTexture(kind, 0);
    return value;
}

/// The red bytes that a fragment program renders from a texture into one row of `width` pixels.
std::vector<int> reds(const std::string &fragment, GLenum kind, GLuint texture, int width, int height = 1)
{
    const ShaderProgram program("test", graphics::vertexSource(), "#version 120\n" + fragment);
    const RenderTarget target(width, height, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    (kind == GL_TEXTURE_1D ? graphics::bindTexture1D : graphics::bindTexture2D)(program, "Picture", texture, 1);
    graphics::renderToFramebuffer(width, height, program.program, target.record());
    const BytePixels pixels = readBytes(target.record(), width, height);
    std::vector<int> result;
    for (int i = 0; i < width * height; ++i) {
        result.push_back(pixels.values[static_cast<std::size_t>(i) * 3]);
    }
    return result;
}

const std::vector<std::uint8_t> fourGreys{10, 10, 10, 20, 20, 20, 30, 30, 30, 40, 40, 40};

/// The warnings for a texture after whose upload the OpenGL driver reports `error`; expects that it is returned.
QStringList warningsAfter(GLenum error)
{
    const LogCapture log;
    faked = {error, 2}; // the first call clears an earlier error
    const Texture texture(createTexture(4, 1, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, fourGreys.data()));
    EXPECT_EQ(faked.calls, 2) << "only the first error after the upload is read";
    faked = {};
    EXPECT_NE(texture.name(), 0U);
    EXPECT_EQ(reds("uniform sampler2D Picture; void main() { gl_FragColor = texture2D(Picture, "
                   "vec2(gl_FragCoord.x / 4.0, 0.5)); }",
                   GL_TEXTURE_2D, texture.name(), 4),
              (std::vector<int>{10, 20, 30, 40}));
    return log.warnings();
}

} // namespace

TEST_P(UnalignedRowsTest, RoundTripKeepsBytes)
{
    const BytePixels picture = rampPicture<std::uint8_t>(GetParam(), 3);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 8);

    const Texture texture(
        createTexture(picture.width, picture.height, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, picture.values.data()));

    EXPECT_TRUE(picturesNear("rows-bytes", readTexture(texture.name(), picture.width, picture.height), picture));
}

TEST_P(UnalignedRowsTest, RoundTripKeepsSixteenBitSamples)
{
    const Samples16Image picture = rampPicture<std::uint16_t>(GetParam(), 3);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 8);

    const Texture texture(
        createTexture(picture.width, picture.height, GL_RGB16, GL_RGB, GL_UNSIGNED_SHORT, picture.values.data()));

    Samples16Image result(picture.width, picture.height);
    glBindTexture(GL_TEXTURE_2D, texture.name());
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glGetTexImage(GL_TEXTURE_2D, 0, GL_RGB, GL_UNSIGNED_SHORT, result.values.data());
    glBindTexture(GL_TEXTURE_2D, 0);
    EXPECT_TRUE(picturesNear("rows-words", result, picture));
}

INSTANTIATE_TEST_SUITE_P(Widths, UnalignedRowsTest, testing::Values(1, 3, 5, 513, 515));

TEST_F(TexturesTest, NullDataGivesATextureOfTheSize)
{
    const Texture texture(createTexture(7, 5, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, nullptr));

    GLint width = 0;
    GLint height = 0;
    glBindTexture(GL_TEXTURE_2D, texture.name());
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_WIDTH, &width);
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_HEIGHT, &height);
    glBindTexture(GL_TEXTURE_2D, 0);
    EXPECT_EQ(width, 7);
    EXPECT_EQ(height, 5);
}

TEST_F(TexturesTest, A2DTextureIsNearestAndMirrored)
{
    const Texture texture(createTexture(4, 1, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, fourGreys.data()));

    EXPECT_EQ(textureParameter(GL_TEXTURE_2D, texture.name(), GL_TEXTURE_MAG_FILTER), GL_NEAREST);
    EXPECT_EQ(textureParameter(GL_TEXTURE_2D, texture.name(), GL_TEXTURE_MIN_FILTER), GL_NEAREST);
    EXPECT_EQ(textureParameter(GL_TEXTURE_2D, texture.name(), GL_TEXTURE_WRAP_S), GL_MIRRORED_REPEAT);
    EXPECT_EQ(textureParameter(GL_TEXTURE_2D, texture.name(), GL_TEXTURE_WRAP_T), GL_MIRRORED_REPEAT);
}

TEST_F(TexturesTest, A1DTextureIsNearestAndRepeated)
{
    const std::vector<float> values{0.25F, 0.5F};
    const Texture texture(create1DTexture(2, GL_R32F, GL_RED, GL_FLOAT, values.data()));

    EXPECT_EQ(textureParameter(GL_TEXTURE_1D, texture.name(), GL_TEXTURE_MAG_FILTER), GL_NEAREST);
    EXPECT_EQ(textureParameter(GL_TEXTURE_1D, texture.name(), GL_TEXTURE_MIN_FILTER), GL_NEAREST);
    EXPECT_EQ(textureParameter(GL_TEXTURE_1D, texture.name(), GL_TEXTURE_WRAP_S), GL_REPEAT);
}

TEST_F(TexturesTest, A1DTextureKeepsFloatsExactly)
{
    const std::vector<float> values{0.1F, -2.5F, 1e-7F, 3.0F, 0.999F};

    const Texture texture(create1DTexture(5, GL_R32F, GL_RED, GL_FLOAT, values.data()));

    std::vector<float> result(5);
    glBindTexture(GL_TEXTURE_1D, texture.name());
    glGetTexImage(GL_TEXTURE_1D, 0, GL_RED, GL_FLOAT, result.data());
    glBindTexture(GL_TEXTURE_1D, 0);
    EXPECT_EQ(result, values);
}

TEST_F(TexturesTest, BeyondItsEdgesA2DTextureIsMirroredInX)
{
    const Texture texture(createTexture(4, 1, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, fourGreys.data()));

    const std::vector<int> row = reds("uniform sampler2D Picture; void main() { gl_FragColor = texture2D(Picture, "
                                      "vec2((gl_FragCoord.x - 4.0) / 4.0, 0.5)); }",
                                      GL_TEXTURE_2D, texture.name(), 12);

    EXPECT_EQ(row, (std::vector<int>{40, 30, 20, 10, 10, 20, 30, 40, 40, 30, 20, 10}));
}

TEST_F(TexturesTest, BeyondItsEdgesA2DTextureIsMirroredInY)
{
    const Texture texture(createTexture(1, 4, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, fourGreys.data()));

    const std::vector<int> column = reds("uniform sampler2D Picture; void main() { gl_FragColor = texture2D(Picture, "
                                         "vec2(0.5, (gl_FragCoord.y - 4.0) / 4.0)); }",
                                         GL_TEXTURE_2D, texture.name(), 1, 12);

    EXPECT_EQ(column, (std::vector<int>{40, 30, 20, 10, 10, 20, 30, 40, 40, 30, 20, 10}));
}

TEST_F(TexturesTest, BeyondItsEndsA1DTextureRepeats)
{
    const std::vector<std::uint8_t> values{10, 20, 30, 40};
    const Texture texture(create1DTexture(4, GL_RGB8, GL_RED, GL_UNSIGNED_BYTE, values.data()));

    const std::vector<int> row = reds("uniform sampler1D Picture; void main() { gl_FragColor = texture1D(Picture, "
                                      "(gl_FragCoord.x - 4.0) / 4.0); }",
                                      GL_TEXTURE_1D, texture.name(), 12);

    EXPECT_EQ(row, (std::vector<int>{10, 20, 30, 40, 10, 20, 30, 40, 10, 20, 30, 40}));
}

TEST_F(TexturesTest, TexelsAreNotInterpolated)
{
    const Texture texture(createTexture(4, 1, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, fourGreys.data()));

    const std::vector<int> row = reds("uniform sampler2D Picture; void main() { gl_FragColor = texture2D(Picture, "
                                      "vec2(gl_FragCoord.x / 12.0, 0.5)); }",
                                      GL_TEXTURE_2D, texture.name(), 12);

    EXPECT_EQ(row, (std::vector<int>{10, 10, 10, 20, 20, 20, 30, 30, 30, 40, 40, 40}));
}

TEST_F(TexturesTest, CreationLeavesUnitZeroActiveAndNothingBound)
{
    glActiveTexture(GL_TEXTURE0 + 2);

    const Texture flat(createTexture(4, 1, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, fourGreys.data()));
    EXPECT_EQ(activeUnit(), 0);
    EXPECT_EQ(bound2D(0), 0);
    EXPECT_FALSE(glIsEnabled(GL_TEXTURE_2D));

    glActiveTexture(GL_TEXTURE0 + 2);
    const Texture line(create1DTexture(4, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, fourGreys.data()));
    EXPECT_EQ(activeUnit(), 0);
    EXPECT_EQ(bound1D(0), 0);
    EXPECT_FALSE(glIsEnabled(GL_TEXTURE_1D));
}

TEST_F(TexturesTest, InvalidSizeIsLoggedAndTheNameReturned)
{
    const LogCapture log;

    const Texture texture(createTexture(-1, 4, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, nullptr));

    EXPECT_NE(texture.name(), 0U);
    EXPECT_EQ(log.warnings(), QStringList{"Failed to create texture: Invalid value"});
}

TEST_F(TexturesTest, UnknownTypeIsLoggedAndTheNameReturned)
{
    const LogCapture log;

    const Texture texture(createTexture(4, 4, GL_RGB8, GL_RGB, GL_NEAREST, nullptr));

    EXPECT_NE(texture.name(), 0U);
    EXPECT_EQ(log.warnings(), QStringList{"Failed to create texture: Invalid enum"});
}

TEST_F(TexturesTest, IncompatibleFormatsAreLoggedAndTheNameReturned)
{
    const LogCapture log;

    const Texture texture(createTexture(4, 4, GL_RGB8, GL_RGB, GL_UNSIGNED_SHORT_4_4_4_4, nullptr));

    EXPECT_NE(texture.name(), 0U);
    EXPECT_EQ(log.warnings(), QStringList{"Failed to create texture: Invalid operation"});
}

// The error is simulated, because an upload cannot cause it.
TEST_F(TexturesTest, LogsTooLargeTableAndReturnsTheName)
{
    EXPECT_EQ(warningsAfter(GL_TABLE_TOO_LARGE), QStringList{"Failed to create texture: Table to large"});
}

TEST_F(TexturesTest, LogsOutOfMemoryAndReturnsTheName)
{
    EXPECT_EQ(warningsAfter(GL_OUT_OF_MEMORY), QStringList{"Failed to create texture: Out of memory"});
}

TEST_F(TexturesTest, LogsNoOtherErrorAndReturnsTheName)
{
    EXPECT_EQ(warningsAfter(GL_INVALID_FRAMEBUFFER_OPERATION), QStringList());
    EXPECT_EQ(warningsAfter(GL_CONTEXT_LOST), QStringList());
}

TEST_F(TexturesTest, ErrorBeforeCreationIsNotLogged)
{
    const LogCapture log;
    glEnable(GL_NEAREST);

    const Texture texture(createTexture(4, 1, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, fourGreys.data()));

    EXPECT_EQ(log.warnings(), QStringList());
}

TEST_F(TexturesTest, Creating1DTexturesLogsNothing)
{
    const LogCapture log;

    const Texture texture(create1DTexture(-1, GL_R32F, GL_RED, GL_FLOAT, nullptr));

    EXPECT_EQ(log.warnings(), QStringList());
    clearGlErrors();
}

TEST_F(TexturesTest, DestructorDeletesTheTexture)
{
    const GLuint name = createTexture(4, 1, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, fourGreys.data());
    {
        const Texture texture(name);
        EXPECT_TRUE(glIsTexture(name));
    }
    EXPECT_FALSE(glIsTexture(name));
}

TEST_F(TexturesTest, MoveTransfersTheTexture)
{
    const GLuint name = createTexture(4, 1, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, fourGreys.data());
    Texture first(name);

    const Texture second(std::move(first));

    EXPECT_EQ(second.name(), name);
    EXPECT_EQ(first.name(), 0U); // NOLINT(bugprone-use-after-move): the state after the move is tested
    EXPECT_TRUE(glIsTexture(name));
}

TEST_F(TexturesTest, AssignmentDeletesTheReplacedTexture)
{
    const GLuint before = createTexture(4, 1, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, fourGreys.data());
    const GLuint after = createTexture(4, 1, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, fourGreys.data());
    Texture texture(before);

    texture = Texture(after);

    EXPECT_EQ(texture.name(), after);
    EXPECT_FALSE(glIsTexture(before));
    EXPECT_TRUE(glIsTexture(after));
}

} // namespace grisal::test
