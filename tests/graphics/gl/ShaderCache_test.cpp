// SPDX-License-Identifier: MIT
#include "graphics/gl/ShaderCache.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QtGlobal>

namespace grisal::graphics
{

namespace
{

constexpr const char *variable = "MESA_SHADER_CACHE_DISABLE";

} // namespace

TEST(ShaderCacheTest, IsSwitchedOff)
{
    qunsetenv(variable);
    disableShaderCache();
    EXPECT_EQ(qgetenv(variable), "true");
    qunsetenv(variable);
}

TEST(ShaderCacheTest, StaysAsTheUserHasSetIt)
{
    qputenv(variable, "false");
    disableShaderCache();
    EXPECT_EQ(qgetenv(variable), "false");
    qunsetenv(variable);
}

} // namespace grisal::graphics
