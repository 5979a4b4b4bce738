// SPDX-License-Identifier: MIT
#include "graphics/document/FlexibleDocumentView.h"

#include "graphics/document/Document.h"
#include "graphics/gl/Textures.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlTest.h"

#include <array>
#include <cmath>
#include <memory>
#include <utility>

namespace grisal::test
{

namespace
{

using graphics::FlexibleDocumentView;
using graphics::RenderTarget;

using Matrix = std::array<float, 16>;

class FlexibleDocumentViewTest : public GlTest
{
};

/// A view of an image of 30 x 20 in a viewport of 200 x 100.
FlexibleDocumentView smallView()
{
    return {200, 100, 30, 20, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE};
}

Matrix matrix(GLenum name)
{
    Matrix values{};
    glGetFloatv(name, values.data());
    return values;
}

std::array<GLint, 4> viewport()
{
    std::array<GLint, 4> values{};
    glGetIntegerv(GL_VIEWPORT, values.data());
    return values;
}

/// The position in the viewport of a point of the image, in pixels.
std::pair<double, double> landing(double x, double y)
{
    std::array<double, 16> modelView{};
    std::array<double, 16> projection{};
    glGetDoublev(GL_MODELVIEW_MATRIX, modelView.data());
    glGetDoublev(GL_PROJECTION_MATRIX, projection.data());
    double windowX = 0;
    double windowY = 0;
    double windowZ = 0;
    gluProject(x, y, 0, modelView.data(), projection.data(), viewport().data(), &windowX, &windowY, &windowZ);
    return {windowX, windowY};
}

/// Draws the texture over the image's quad, its first row at the bottom.
void drawTexture(GLuint texture, int width, int height)
{
    glEnable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, texture);
    glColor3f(1, 1, 1);
    glBegin(GL_QUADS);
    glTexCoord2i(0, 0);
    glVertex2i(0, 0);
    glTexCoord2i(0, 1);
    glVertex2i(0, height);
    glTexCoord2i(1, 1);
    glVertex2i(width, height);
    glTexCoord2i(1, 0);
    glVertex2i(width, 0);
    glEnd();
    glBindTexture(GL_TEXTURE_2D, 0);
    glDisable(GL_TEXTURE_2D);
}

} // namespace

TEST_F(FlexibleDocumentViewTest, IsCentredAtScaleOneInitially)
{
    const FlexibleDocumentView view = smallView();

    EXPECT_EQ(view.scale(), 1.0F);
    EXPECT_EQ(view.offsetX(), 100.0F);
    EXPECT_EQ(view.offsetY(), 50.0F);
    EXPECT_EQ(view.viewportWidth(), 200.0F);
    EXPECT_EQ(view.viewportHeight(), 100.0F);
}

TEST_F(FlexibleDocumentViewTest, TargetHasTheTruncatedSizeAndTheFormatOfTheImage)
{
    const FlexibleDocumentView view(200, 100, 30.9F, 20.9F, GL_RGB16, GL_RGB, GL_UNSIGNED_SHORT);

    std::array<GLint, 3> found{};
    glBindTexture(GL_TEXTURE_2D, view.target().texture);
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_WIDTH, &found[0]);
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_HEIGHT, &found[1]);
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_INTERNAL_FORMAT, &found[2]);
    glBindTexture(GL_TEXTURE_2D, 0);
    EXPECT_EQ(found, (std::array<GLint, 3>{30, 20, GL_RGB16}));
}

TEST_F(FlexibleDocumentViewTest, DestructorDeletesTheTarget)
{
    auto view = std::make_unique<FlexibleDocumentView>(200.0F, 100.0F, 30.0F, 20.0F, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE);
    const graphics::FramebufferObject target = view->target();
    ASSERT_TRUE(glIsFramebuffer(target.framebuffer));

    view.reset();

    EXPECT_FALSE(glIsTexture(target.texture));
    EXPECT_FALSE(glIsRenderbuffer(target.renderbuffer));
    EXPECT_FALSE(glIsFramebuffer(target.framebuffer));
}

TEST_F(FlexibleDocumentViewTest, SetupCoversTheViewport)
{
    FlexibleDocumentView view = smallView();

    view.setup();

    EXPECT_EQ(viewport(), (std::array<GLint, 4>{0, 0, 200, 100}));
    EXPECT_EQ(matrix(GL_PROJECTION_MATRIX), (Matrix{0.01F, 0, 0, 0, 0, 0.02F, 0, 0, 0, 0, -1, 0, -1, -1, 0, 1}));
}

TEST_F(FlexibleDocumentViewTest, FractionalViewportIsTruncatedInTheGlViewportOnly)
{
    FlexibleDocumentView view = smallView();
    view.setViewportSize(160.75F, 80.5F);

    view.setup();

    EXPECT_EQ(viewport(), (std::array<GLint, 4>{0, 0, 160, 80}));
    EXPECT_FLOAT_EQ(matrix(GL_PROJECTION_MATRIX)[0], 2 / 160.75F);
    EXPECT_FLOAT_EQ(matrix(GL_PROJECTION_MATRIX)[5], 2 / 80.5F);
}

// An image has no depth, so the z factor is 0.
TEST_F(FlexibleDocumentViewTest, SetupTranslatesAndScalesWithZeroDepth)
{
    FlexibleDocumentView view = smallView();
    view.setOffset(70, 40);
    view.setScale(2.5F);

    view.setup();

    // 70 - 2.5 * 15 and 40 - 2.5 * 10
    EXPECT_EQ(matrix(GL_MODELVIEW_MATRIX), (Matrix{2.5F, 0, 0, 0, 0, 2.5F, 0, 0, 0, 0, 0, 0, 32.5F, 15, 0, 1}));
}

TEST_F(FlexibleDocumentViewTest, SetupReplacesTheFormerMatrices)
{
    FlexibleDocumentView view = smallView();
    view.setup();
    const Matrix first = matrix(GL_MODELVIEW_MATRIX);

    view.setup();

    EXPECT_EQ(matrix(GL_MODELVIEW_MATRIX), first);
}

TEST_F(FlexibleDocumentViewTest, PointIsAtOffsetPlusScaledDistanceFromTheMiddle)
{
    FlexibleDocumentView view = smallView();
    view.setOffset(70, 40);
    view.setScale(2);
    view.setup();

    const auto [middleX, middleY] = landing(15, 10);
    EXPECT_NEAR(middleX, 70, 1e-4);
    EXPECT_NEAR(middleY, 40, 1e-4);
    const auto [firstX, firstY] = landing(0, 0);
    EXPECT_NEAR(firstX, 70 - 2 * 15, 1e-4);
    EXPECT_NEAR(firstY, 40 - 2 * 10, 1e-4);
    const auto [someX, someY] = landing(22, 4);
    EXPECT_NEAR(someX, 70 + 2 * (22 - 15), 1e-4);
    EXPECT_NEAR(someY, 40 + 2 * (4 - 10), 1e-4);
}

TEST_F(FlexibleDocumentViewTest, DrawnImageCoversTheComputedPixels)
{
    const RenderTarget screen(200, 100, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    FlexibleDocumentView view = smallView();
    view.setup();
    glBindFramebuffer(GL_FRAMEBUFFER, screen.record().framebuffer);
    glClear(GL_COLOR_BUFFER_BIT);
    glColor3f(1, 1, 1);

    glRecti(0, 0, 30, 20);

    // 100 - 15 to 100 + 15 and 50 - 10 to 50 + 10
    const BytePixels pixels = readBytes(screen.record(), 200, 100);
    EXPECT_EQ(pixels.at(85, 40, 0), 255);
    EXPECT_EQ(pixels.at(114, 59, 0), 255);
    EXPECT_EQ(pixels.at(84, 40, 0), 0);
    EXPECT_EQ(pixels.at(85, 39, 0), 0);
    EXPECT_EQ(pixels.at(115, 59, 0), 0);
    EXPECT_EQ(pixels.at(114, 60, 0), 0);
}

// At a position between two device pixels, rows and columns would be drawn twice or not at all.
TEST_F(FlexibleDocumentViewTest, EveryPixelIsDrawnOnceAtScaleOneForAnyOffset)
{
    constexpr int width = 30;
    constexpr int height = 20;
    BytePixels image(width, height);
    for (int i = 0; i < width * height; ++i) {
        image.at(i % width, i / width, 0) = static_cast<std::uint8_t>(1 + i % width * 8);
        image.at(i % width, i / width, 1) = static_cast<std::uint8_t>(1 + i / width * 12);
    }
    const graphics::Texture texture(
        graphics::createTexture(width, height, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, image.values.data()));
    const RenderTarget screen(201, 101, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    FlexibleDocumentView view = smallView();
    struct Place {
        float x;
        float y;
        float scale;
    };
    const float inAndOut = 1.0F + 0.04F - 0.04F; // a step in and a step out
    ASSERT_NE(inAndOut, 1.0F);
    for (const auto &[x, y, scale] : {Place{100, 50, 1},
                                      {100.5F, 50.5F, 1},
                                      {100, 50.5F, 1},
                                      {60.25F, 41.75F, 1},
                                      {60.49F, 41.51F, 1},
                                      {60.999F, 41.001F, 1},
                                      {100.5F, 50.5F, inAndOut},
                                      {100.5F, 50.5F, 1.00001F}}) {
        view.setScale(scale);
        view.setViewportSize(201, 101);
        view.setOffset(x, y);
        view.setup();
        glBindFramebuffer(GL_FRAMEBUFFER, screen.record().framebuffer);
        glClear(GL_COLOR_BUFFER_BIT);
        drawTexture(texture.name(), width, height);

        const BytePixels drawn = readBytes(screen.record(), 201, 101);
        const int left = static_cast<int>(std::floor(x - 15 + 0.5F));
        const int bottom = static_cast<int>(std::floor(y - 10 + 0.5F));
        int wrong = 0;
        for (int i = 0; i < width * height; ++i) {
            for (const int c : {0, 1}) {
                wrong += drawn.at(left + i % width, bottom + i / width, c) != image.at(i % width, i / width, c);
            }
        }
        EXPECT_EQ(wrong, 0) << "offset " << x << ", " << y << " scale " << scale;
        EXPECT_EQ(drawn.at(left - 1, bottom, 0), 0);
        EXPECT_EQ(drawn.at(left + width, bottom + height - 1, 0), 0);
        // The stored offset is not changed.
        EXPECT_EQ(view.scale(), scale);
        EXPECT_EQ(view.offsetX(), x);
        EXPECT_EQ(view.offsetY(), y);
    }
}

TEST_F(FlexibleDocumentViewTest, OtherScalesKeepFractionalOffsets)
{
    FlexibleDocumentView view = smallView();
    view.setOffset(70.25F, 40.5F);
    view.setScale(2);
    view.setup();
    const auto [x, y] = landing(15, 10);
    EXPECT_NEAR(x, 70.25, 1e-4);
    EXPECT_NEAR(y, 40.5, 1e-4);
}

TEST_F(FlexibleDocumentViewTest, CentringSetsTheOffsetToHalfTheViewport)
{
    FlexibleDocumentView view = smallView();
    view.setOffset(3, 4);
    view.setViewportSize(640, 481);

    view.centre();

    EXPECT_EQ(view.offsetX(), 320.0F);
    EXPECT_EQ(view.offsetY(), 240.5F);
}

TEST_F(FlexibleDocumentViewTest, ChangedViewportKeepsTheOffset)
{
    FlexibleDocumentView view = smallView();

    view.setViewportSize(640, 480);

    EXPECT_EQ(view.offsetX(), 100.0F);
    EXPECT_EQ(view.offsetY(), 50.0F);
}

TEST_F(FlexibleDocumentViewTest, DocumentReturnsTheViewThatWasSet)
{
    FlexibleDocumentView view = smallView();
    graphics::DocumentFilterQueue queue;
    graphics::Document document(0, &queue);

    document.setView(&view);

    EXPECT_EQ(document.view(), &view);
}

} // namespace grisal::test
