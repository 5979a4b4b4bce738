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

struct ShaderCacheTest : testing::Test {
    void SetUp() override { qunsetenv(variable); }
    void TearDown() override { qunsetenv(variable); }
};

} // namespace

TEST_F(ShaderCacheTest, IsDisabledByDefault)
{
    disableShaderCache();
    EXPECT_EQ(qgetenv(variable), "true");
}

TEST_F(ShaderCacheTest, KeepsTheValueSetByTheUser)
{
    qputenv(variable, "false");
    disableShaderCache();
    EXPECT_EQ(qgetenv(variable), "false");
}

} // namespace grisal::graphics
