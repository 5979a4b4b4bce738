// SPDX-License-Identifier: MIT
#include "graphics/gl/GlErrors.h"

#include "tests/support/GlPresence.h"

namespace
{

using namespace grisal::graphics;

class GlErrorScopeTest : public testing::Test
{
protected:
    void SetUp() override { GRISAL_SKIP_WITHOUT_GL(); }
};

TEST_F(GlErrorScopeTest, IsCleanUntilAnErrorIsRecorded)
{
    const OffscreenContext context;
    const GlErrorScope scope;
    EXPECT_TRUE(scope.isClean());
    recordIncompleteFramebuffer();
    EXPECT_FALSE(scope.isClean());
}

// A render whose context could not be made current again has no result.
TEST_F(GlErrorScopeTest, IsNotCleanWhileAnotherContextIsCurrent)
{
    const OffscreenContext context;
    const GlErrorScope scope;
    const OffscreenContext other;
    EXPECT_FALSE(scope.isClean());
}

TEST_F(GlErrorScopeTest, CountsTheErrorsOfItsContextOnly)
{
    {
        const OffscreenContext context;
        recordIncompleteFramebuffer();
    }
    const OffscreenContext other;
    EXPECT_TRUE(GlErrorScope().isClean());
}

TEST_F(GlErrorScopeTest, IsNotCleanWithoutAContext)
{
    EXPECT_FALSE(GlErrorScope().isClean());
}

} // namespace
