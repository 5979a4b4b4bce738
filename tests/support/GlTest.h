// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"

#include <gtest/gtest.h>

namespace grisal::test
{

/// A test with its own GL context, which is current while the test runs. Without OpenGL, the test is skipped with the
/// reason, or fails if GRISAL_REQUIRE_GL is set. A GL error that the test leaves makes it fail.
class GlTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Clears all pending GL errors; for tests that provoke one.
    static void clearGlErrors();

    /// Whether the OpenGL driver is Mesa's llvmpipe, whose rounding is known exactly.
    static bool isLlvmpipe();
};

} // namespace grisal::test
