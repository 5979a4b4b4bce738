// SPDX-License-Identifier: MIT
// The GL objects of the preview widget are deleted with its context.
#include "ui/preview/GLWidget.h"

#include "tests/support/GlPresence.h"
#include "tests/support/GuiTest.h"
#include "tests/support/Images.h"
#include "tests/support/PictureCompare.h"

#include <gtest/gtest.h>

#include <QTest>

#include <memory>

namespace
{

using namespace grisal::test;
using grisal::graphics::GrainFilter;
using grisal::ui::GLWidget;

/// Two previews in a window. Their contexts share textures, so one shows what the end of the other one leaves.
class GLWidgetReleaseTest : public testing::Test
{
protected:
    void SetUp() override
    {
        GRISAL_SKIP_WITHOUT_GL();
        window.resize(200, 160);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        ASSERT_TRUE(QTest::qWaitFor([this] { return preview->isValid() && other->isValid(); }));
        preview->loadImage(imageOf(rampPicture<std::uint8_t>(4, 4)));
        preview->slotChangeGrain(QVector<float>(256, 1.0F), 1);
        const auto *grain = dynamic_cast<GrainFilter *>(preview->filter<GrainFilter>());
        ASSERT_NE(grain, nullptr);
        texture = grain->weightsTexture();
        ASSERT_TRUE(hasTexture());
    }

    bool hasTexture()
    {
        other->makeCurrent();
        const bool exists = glIsTexture(texture) == GL_TRUE;
        other->doneCurrent(); // otherwise objects would be deleted even without their own context
        return exists;
    }

    QWidget window;
    std::unique_ptr<GLWidget> preview = std::make_unique<GLWidget>(&window);
    std::unique_ptr<GLWidget> other = std::make_unique<GLWidget>(&window);
    GLuint texture = 0;
};

TEST_F(GLWidgetReleaseTest, DestructorDeletesTheTextures)
{
    preview.reset();
    EXPECT_FALSE(hasTexture());
}

// In another window, a widget gets another context.
TEST_F(GLWidgetReleaseTest, MoveToAnotherWindowDeletesTheTextures)
{
    preview->setParent(nullptr);
    EXPECT_EQ(preview->filter<GrainFilter>(), nullptr);
    EXPECT_FALSE(hasTexture());
}

} // namespace
