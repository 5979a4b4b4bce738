// SPDX-License-Identifier: MIT
#include "tests/support/GlTest.h"

#include "tests/support/GlPresence.h"

#include <iostream>
#include <memory>
#include <string_view>

namespace grisal::test
{

namespace
{

std::unique_ptr<graphics::OffscreenContext> context;

/// Names the driver in the output, once in a program.
void printDriver()
{
    static const bool printed = [] {
        std::cout << "OpenGL driver: " << glGetString(GL_VENDOR) << ", " << glGetString(GL_RENDERER) << ", "
                  << glGetString(GL_VERSION) << std::endl;
        return true;
    }();
    static_cast<void>(printed);
}

} // namespace

void GlTest::SetUp()
{
    GRISAL_SKIP_WITHOUT_GL();
    context = std::make_unique<graphics::OffscreenContext>();
    ASSERT_EQ(graphics::initialiseGlEntryPoints(), graphics::GlStart::Ready);
    printDriver();
    clearGlErrors();
}

void GlTest::TearDown()
{
    if (context != nullptr) {
        EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    }
    context.reset();
}

void GlTest::clearGlErrors()
{
    while (glGetError() != GL_NO_ERROR) {
    }
}

bool GlTest::isLlvmpipe()
{
    const auto *renderer = reinterpret_cast<const char *>(glGetString(GL_RENDERER));
    return std::string_view(renderer).find("llvmpipe") != std::string_view::npos;
}

} // namespace grisal::test
