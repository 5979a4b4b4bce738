// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"

#include <gtest/gtest.h>

namespace grisal::test
{

/// A test with a GL context of its own, current while it runs. Where the machine gives none the test is skipped with
/// the reason, or fails if GRISAL_REQUIRE_GL is set. A GL error left behind by the test makes it fail.
class GlTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Takes all pending GL errors; for tests that provoke one.
    static void clearGlErrors();

    /// Whether the driver is Mesa's llvmpipe, of which is known to the last bit how it rounds.
    static bool isLlvmpipe();
};

} // namespace grisal::test
