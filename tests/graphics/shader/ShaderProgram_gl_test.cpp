// SPDX-License-Identifier: MIT
#include "graphics/shader/ShaderProgram.h"

#include "graphics/gl/Textures.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlState.h"
#include "tests/support/GlTest.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PictureCompare.h"

#include <array>

namespace grisal::test
{

namespace
{

using graphics::compileShader;
using graphics::createTexture;
using graphics::fragmentSource;
using graphics::linkProgram;
using graphics::RenderTarget;
using graphics::setUniform1f;
using graphics::ShaderProgram;
using graphics::Texture;
using graphics::vertexSource;

const std::string goodFragment = "#version 120\n"
                                 "uniform float Amount; uniform vec3 Colour; uniform float Forgotten;"
                                 "void main() { gl_FragColor = vec4(Colour * Amount, 1.0); }";
const std::string badFragment = "#version 120\nvoid main() { gl_FragColor = noSuchThing; }";
const std::string copyFragment =
    "#version 120\nuniform sampler2D MainTexture; uniform float Width; uniform float Height;"
    "void main() { gl_FragColor = texture2D(MainTexture, "
    "vec2(gl_FragCoord.x / Width, gl_FragCoord.y / Height)); }";
const std::string twoSamplers = "#version 120\nuniform sampler2D Flat; uniform sampler1D Line;"
                                "void main() { gl_FragColor = texture2D(Flat, vec2(0.5)) + texture1D(Line, 0.5); }";

class ShaderProgramTest : public GlTest
{
};

GLint location(const ShaderProgram &program, const char *name)
{
    return glGetUniformLocation(program.program, name);
}

float floatUniform(const ShaderProgram &program, const char *name)
{
    float value = -1;
    glGetUniformfv(program.program, location(program, name), &value);
    return value;
}

GLint samplerUnit(const ShaderProgram &program, const char *name)
{
    GLint value = -1;
    glGetUniformiv(program.program, location(program, name), &value);
    return value;
}

const std::array<std::uint8_t, 3> onePixel{1, 2, 3};

GLuint smallTexture()
{
    return createTexture(1, 1, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, onePixel.data());
}

} // namespace

TEST_F(ShaderProgramTest, EmptySourceCreatesNoShader)
{
    const LogCapture log;

    EXPECT_EQ(compileShader("", GL_FRAGMENT_SHADER), (std::pair<bool, GLuint>{false, 0}));
    // Any GL call with this type would leave an error.
    EXPECT_EQ(compileShader("", GL_NEAREST), (std::pair<bool, GLuint>{false, 0}));
    EXPECT_EQ(log.debugs(), QStringList());
}

TEST_F(ShaderProgramTest, ValidSourceCompilesWithoutLogging)
{
    const LogCapture log;

    const auto [compiled, shader] = compileShader(goodFragment, GL_FRAGMENT_SHADER);

    EXPECT_TRUE(compiled);
    EXPECT_TRUE(glIsShader(shader));
    EXPECT_EQ(log.debugs(), QStringList());
    glDeleteShader(shader);
}

TEST_F(ShaderProgramTest, InvalidSourceIsLoggedOnceAndItsShaderReturned)
{
    const LogCapture log;

    const auto [compiled, shader] = compileShader(badFragment, GL_FRAGMENT_SHADER);

    EXPECT_FALSE(compiled);
    EXPECT_TRUE(glIsShader(shader));
    ASSERT_EQ(log.debugs().size(), 1);
    EXPECT_TRUE(log.debugs().first().contains("noSuchThing")) << qPrintable(log.debugs().first());
    EXPECT_EQ(log.warnings(), QStringList());
    glDeleteShader(shader);
}

TEST_F(ShaderProgramTest, LinkFailureIsLoggedAndGivesZero)
{
    const GLuint fragment = compileShader(badFragment, GL_FRAGMENT_SHADER).second;
    const LogCapture log;

    EXPECT_EQ(linkProgram({fragment}), 0U);

    ASSERT_EQ(log.debugs().size(), 1);
    EXPECT_FALSE(log.debugs().first().isEmpty());
    glDeleteShader(fragment);
}

TEST_F(ShaderProgramTest, LinkedProgramHasItsShadersAttached)
{
    const GLuint vertex = compileShader(vertexSource(), GL_VERTEX_SHADER).second;
    const GLuint fragment = compileShader(goodFragment, GL_FRAGMENT_SHADER).second;

    const GLuint program = linkProgram({vertex, fragment});

    std::array<GLuint, 3> attached{};
    GLsizei count = 0;
    glGetAttachedShaders(program, 3, &count, attached.data());
    EXPECT_EQ(count, 2);
    EXPECT_EQ(attached[0], vertex);
    EXPECT_EQ(attached[1], fragment);
    glDeleteShader(vertex);
    glDeleteShader(fragment);
    glDeleteProgram(program);
}

TEST_F(ShaderProgramTest, ProgramHasTheGivenName)
{
    const ShaderProgram program("HalfTone", vertexSource(), goodFragment);

    EXPECT_EQ(program.name, "HalfTone");
    EXPECT_TRUE(glIsProgram(program.program));
}

TEST_F(ShaderProgramTest, InvalidFragmentShaderGivesProgramZero)
{
    const LogCapture log;

    const ShaderProgram program("broken", vertexSource(), badFragment);

    EXPECT_EQ(program.program, 0U);
    EXPECT_EQ(program.name, "broken");
    EXPECT_EQ(log.debugs().filter("noSuchThing").size(), 1);
}

/// The number of existing shaders and programs, whose names OpenGL assigns from the same small numbers.
int liveObjects()
{
    constexpr GLuint largestName = 1000;
    int count = 0;
    for (GLuint name = 1; name <= largestName; ++name) {
        count += glIsShader(name) + glIsProgram(name);
    }
    return count;
}

TEST_F(ShaderProgramTest, DestructorDeletesTheProgramAndItsShaders)
{
    const int before = liveObjects();
    {
        const ShaderProgram program("short-lived", vertexSource(), goodFragment);
        ASSERT_TRUE(glIsProgram(program.program));
        ASSERT_EQ(liveObjects(), before + 3);
    }
    EXPECT_EQ(liveObjects(), before);
}

TEST_F(ShaderProgramTest, InvalidFragmentShaderLeavesNoGlObjects)
{
    const int before = liveObjects();

    const ShaderProgram program("broken", vertexSource(), badFragment);

    EXPECT_EQ(liveObjects(), before);
}

TEST_F(ShaderProgramTest, SettingAUniformLeavesNoProgramInUse)
{
    const ShaderProgram program("test", vertexSource(), goodFragment);
    glUseProgram(program.program);

    EXPECT_TRUE(setUniform1f(program, "Amount", 0.75F));

    EXPECT_EQ(floatUniform(program, "Amount"), 0.75F);
    EXPECT_EQ(glInteger(GL_CURRENT_PROGRAM), 0);
}

TEST_F(ShaderProgramTest, ThreeFloatsAreSetInOrder)
{
    const ShaderProgram program("test", vertexSource(), goodFragment);

    EXPECT_TRUE(graphics::setUniform3f(program, "Colour", 0.25F, 0.5F, 0.75F));

    std::array<float, 3> values{};
    glGetUniformfv(program.program, location(program, "Colour"), values.data());
    EXPECT_EQ(values, (std::array<float, 3>{0.25F, 0.5F, 0.75F}));
    EXPECT_EQ(glInteger(GL_CURRENT_PROGRAM), 0);
}

TEST_F(ShaderProgramTest, MissingUniformChangesNothing)
{
    const ShaderProgram program("test", vertexSource(), goodFragment);
    setUniform1f(program, "Amount", 0.75F);
    const LogCapture log;
    glUseProgram(program.program);

    EXPECT_FALSE(setUniform1f(program, "NoSuchUniform", 0.1F));
    EXPECT_FALSE(graphics::setUniform3f(program, "NoSuchUniform", 0.1F, 0.2F, 0.3F));

    EXPECT_EQ(floatUniform(program, "Amount"), 0.75F);
    EXPECT_EQ(glInteger(GL_CURRENT_PROGRAM), 0);
    EXPECT_EQ(log.debugs() + log.warnings(), QStringList());
}

TEST_F(ShaderProgramTest, UnusedUniformIsTreatedAsMissing)
{
    const ShaderProgram program("test", vertexSource(), goodFragment);

    EXPECT_FALSE(setUniform1f(program, "Forgotten", 1.0F));
}

TEST_F(ShaderProgramTest, A2DTextureIsBoundToItsUnit)
{
    const ShaderProgram program("test", vertexSource(), twoSamplers);
    const Texture texture(smallTexture());

    EXPECT_TRUE(graphics::bindTexture2D(program, "Flat", texture.name(), 2));

    EXPECT_EQ(bound2D(2), static_cast<GLint>(texture.name()));
    EXPECT_EQ(samplerUnit(program, "Flat"), 2);
    EXPECT_EQ(activeUnit(), 2);
    EXPECT_EQ(glInteger(GL_CURRENT_PROGRAM), 0);
}

TEST_F(ShaderProgramTest, A1DTextureIsBoundToItsUnit)
{
    const ShaderProgram program("test", vertexSource(), twoSamplers);
    const Texture texture(graphics::create1DTexture(1, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, onePixel.data()));

    EXPECT_TRUE(graphics::bindTexture1D(program, "Line", texture.name(), 1));

    EXPECT_EQ(bound1D(1), static_cast<GLint>(texture.name()));
    EXPECT_EQ(samplerUnit(program, "Line"), 1);
    EXPECT_EQ(activeUnit(), 1);
    EXPECT_EQ(glInteger(GL_CURRENT_PROGRAM), 0);
}

TEST_F(ShaderProgramTest, MissingSamplerBindsNothing)
{
    const ShaderProgram program("test", vertexSource(), goodFragment);
    const Texture texture(smallTexture());

    EXPECT_FALSE(graphics::bindTexture2D(program, "NoiseMap", texture.name(), 2));
    EXPECT_FALSE(graphics::bindTexture1D(program, "Curve", texture.name(), 2));

    EXPECT_EQ(bound2D(2), 0);
    EXPECT_EQ(bound1D(2), 0);
    EXPECT_EQ(activeUnit(), 0);
}

TEST_F(ShaderProgramTest, PassReadsTheTexelAtEachFragment)
{
    const BytePixels picture = rampPicture<std::uint8_t>(13, 7);
    const ShaderProgram program("test", vertexSource(), copyFragment);
    setUniform1f(program, "Width", 13);
    setUniform1f(program, "Height", 7);
    const Texture texture(createTexture(13, 7, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, picture.values.data()));
    const RenderTarget target(13, 7, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);

    graphics::runPass(program, 13, 7, texture.name(), target.record());

    EXPECT_TRUE(picturesNear("copied", readBytes(target.record(), 13, 7), picture));
}

TEST_F(ShaderProgramTest, PassLeavesNothingBound)
{
    const ShaderProgram program("test", vertexSource(), copyFragment);
    const Texture texture(smallTexture());
    const RenderTarget target(1, 1, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    glActiveTexture(GL_TEXTURE0 + 2);

    graphics::runPass(program, 1, 1, texture.name(), target.record());

    EXPECT_EQ(activeUnit(), 0);
    expectStateAfterPass();
}

TEST_F(ShaderProgramTest, SourcesStartWithTheVersionLine)
{
    EXPECT_EQ(vertexSource().rfind("#version 120\n", 0), 0U);
    EXPECT_EQ(fragmentSource("MixerFilter").rfind("#version 120\n", 0), 0U);
}

TEST_F(ShaderProgramTest, UnknownSourceIsEmptyAndLogged)
{
    const LogCapture log;

    EXPECT_EQ(fragmentSource("NoSuchFilter"), "");

    EXPECT_EQ(log.warnings(), QStringList{"Shader source is missing: :/Shaders/NoSuchFilter.frag"});
}

} // namespace grisal::test
