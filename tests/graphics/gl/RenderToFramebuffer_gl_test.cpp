// SPDX-License-Identifier: MIT
#include "graphics/gl/Framebuffers.h"
#include "graphics/shader/ShaderProgram.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlState.h"
#include "tests/support/GlTest.h"
#include "tests/support/PictureCompare.h"

#include <array>
#include <string>

namespace grisal::test
{

namespace
{

using graphics::RenderTarget;
using graphics::renderToFramebuffer;
using graphics::ShaderProgram;

constexpr int width = 6;
constexpr int height = 4;

class RenderToFramebufferTest : public GlTest
{
};

class InterferingStateTest : public GlTest, public testing::WithParamInterface<GLenum>
{
};

ShaderProgram fragmentProgram(const std::string &body)
{
    return {"test", graphics::vertexSource(), "#version 120\nvoid main() { " + body + " }"};
}

BytePixels flat(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    BytePixels picture(width, height);
    for (std::size_t i = 0; i < picture.values.size(); i += 3) {
        picture.values[i] = red;
        picture.values[i + 1] = green;
        picture.values[i + 2] = blue;
    }
    return picture;
}

/// Fills the target with a colour that no pass of these tests renders.
void fillWithSentinel(const RenderTarget &target)
{
    glBindFramebuffer(GL_FRAMEBUFFER, target.record().framebuffer);
    glClearColor(1, 0, 1, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    glClearColor(0, 0, 0, 0);
}

std::array<float, 16> matrix(GLenum name)
{
    std::array<float, 16> values{};
    glGetFloatv(name, values.data());
    return values;
}

} // namespace

TEST_F(RenderToFramebufferTest, EveryPixelOfTheTargetIsReplaced)
{
    const RenderTarget target(width, height, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    const ShaderProgram program = fragmentProgram("gl_FragColor = vec4(0.2, 0.4, 0.6, 1.0);");
    fillWithSentinel(target);

    renderToFramebuffer(width, height, program.program, target.record());

    EXPECT_TRUE(picturesNear("pass", readBytes(target.record(), width, height), flat(51, 102, 153)));
}

TEST_F(RenderToFramebufferTest, SmallerPassClearsTheRestOfTheTarget)
{
    const RenderTarget target(width, height, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    const ShaderProgram program = fragmentProgram("gl_FragColor = vec4(1.0);");
    fillWithSentinel(target);

    renderToFramebuffer(2, 1, program.program, target.record());

    BytePixels expected = flat(0, 0, 0);
    for (int x = 0; x < 2; ++x) {
        for (int c = 0; c < 3; ++c) {
            expected.at(x, 0, c) = 255;
        }
    }
    EXPECT_TRUE(picturesNear("small-pass", readBytes(target.record(), width, height), expected));
}

TEST_P(InterferingStateTest, IsDisabledByThePass)
{
    const RenderTarget target(width, height, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    const ShaderProgram program = fragmentProgram("gl_FragColor = vec4(0.2, 0.4, 0.6, 1.0);");
    fillWithSentinel(target);
    glBlendFunc(GL_ZERO, GL_ONE);
    glScissor(0, 0, 1, 1);
    glDepthFunc(GL_NEVER);
    glStencilFunc(GL_NEVER, 0, 0);
    glEnable(GetParam());

    renderToFramebuffer(width, height, program.program, target.record());

    EXPECT_TRUE(picturesNear("left-on", readBytes(target.record(), width, height), flat(51, 102, 153)));
    EXPECT_FALSE(glIsEnabled(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(States, InterferingStateTest,
                         testing::Values(GL_BLEND, GL_SCISSOR_TEST, GL_DEPTH_TEST, GL_STENCIL_TEST));

TEST_F(RenderToFramebufferTest, LeavesNoProgramAndNoFramebufferBound)
{
    const RenderTarget target(width, height, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    const ShaderProgram program = fragmentProgram("gl_FragColor = vec4(1.0);");
    glUseProgram(program.program);

    renderToFramebuffer(width, height, program.program, target.record());

    EXPECT_EQ(glInteger(GL_CURRENT_PROGRAM), 0);
    EXPECT_EQ(glInteger(GL_FRAMEBUFFER_BINDING), 0);
}

TEST_F(RenderToFramebufferTest, SetsViewportAndMatricesForThePass)
{
    const RenderTarget target(width, height, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    const ShaderProgram program = fragmentProgram("gl_FragColor = vec4(1.0);");
    glMatrixMode(GL_MODELVIEW);
    glScalef(3, 3, 3);

    renderToFramebuffer(width, height, program.program, target.record());

    std::array<GLint, 4> viewport{};
    glGetIntegerv(GL_VIEWPORT, viewport.data());
    EXPECT_EQ(viewport, (std::array<GLint, 4>{0, 0, width, height}));
    EXPECT_EQ(matrix(GL_MODELVIEW_MATRIX), (std::array<float, 16>{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}));
    EXPECT_EQ(matrix(GL_PROJECTION_MATRIX),
              (std::array<float, 16>{2.0F / width, 0, 0, 0, 0, 2.0F / height, 0, 0, 0, 0, -1, 0, -1, -1, 0, 1}));
}

TEST_F(RenderToFramebufferTest, FragmentCoordinatesStartAtTheFirstRow)
{
    const RenderTarget target(width, height, GL_RGBA, GL_RGBA32F, GL_FLOAT);
    const ShaderProgram program = fragmentProgram("gl_FragColor = vec4(gl_FragCoord.xy, 0.0, 1.0);");

    renderToFramebuffer(width, height, program.program, target.record());

    FloatPixels result(width, height, 4);
    graphics::readPixels(target.record(), width, height, GL_RGBA, GL_FLOAT, result.values.data());
    EXPECT_FLOAT_EQ(result.at(0, 0, 0), 0.5F);
    EXPECT_FLOAT_EQ(result.at(0, 0, 1), 0.5F);
    EXPECT_FLOAT_EQ(result.at(5, 3, 0), 5.5F);
    EXPECT_FLOAT_EQ(result.at(5, 3, 1), 3.5F);
}

// With these coordinates the programs for the screen draw the first texture row at the top; the filters do not use
// them.
TEST_F(RenderToFramebufferTest, TextureCoordinatesDecreaseWithTheRows)
{
    const RenderTarget target(width, height, GL_RGBA, GL_RGBA32F, GL_FLOAT);
    const ShaderProgram program = fragmentProgram("gl_FragColor = vec4(gl_TexCoord[0].xy, 0.0, 1.0);");

    renderToFramebuffer(width, height, program.program, target.record());

    FloatPixels result(width, height, 4);
    graphics::readPixels(target.record(), width, height, GL_RGBA, GL_FLOAT, result.values.data());
    EXPECT_NEAR(result.at(0, 0, 0), 0.5 / width, 1e-6);
    EXPECT_NEAR(result.at(0, 0, 1), 1 - 0.5 / height, 1e-6);
    EXPECT_NEAR(result.at(5, 3, 0), 5.5 / width, 1e-6);
    EXPECT_NEAR(result.at(5, 3, 1), 0.5 / height, 1e-6);
}

TEST_F(RenderToFramebufferTest, FixedPipelineDrawsWithoutAProgram)
{
    const RenderTarget target(width, height, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    fillWithSentinel(target);
    glColor3f(0, 1, 0);

    renderToFramebuffer(width, height, 0, target.record());

    EXPECT_TRUE(picturesNear("fixed", readBytes(target.record(), width, height), flat(0, 255, 0)));
}

} // namespace grisal::test
