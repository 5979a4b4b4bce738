// SPDX-License-Identifier: MIT
#include "tests/support/GlTest.h"

#include "tests/support/OffscreenContext.h"

#include <QtGlobal>

#include <memory>
#include <string_view>

namespace grisal::test
{

namespace
{

std::unique_ptr<OffscreenContext> context;

} // namespace

void GlTest::SetUp()
{
    context = std::make_unique<OffscreenContext>();
    const bool ready = context->isCurrent() && graphics::initialiseGlEntryPoints() == graphics::GlStart::Ready;
    if (!ready && qEnvironmentVariableIsSet("GRISAL_REQUIRE_GL")) {
        FAIL() << "no OpenGL 2.1 context on this machine, and GRISAL_REQUIRE_GL asks for one";
    }
    if (!ready) {
        GTEST_SKIP() << "no OpenGL 2.1 context on this machine";
    }
    clearGlErrors();
}

void GlTest::TearDown()
{
    if (context->isCurrent() && !IsSkipped()) {
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
