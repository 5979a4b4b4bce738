// SPDX-License-Identifier: MIT
#include "graphics/gl/ShaderCache.h"

#include <QByteArray>

namespace grisal::graphics
{

void disableShaderCache()
{
    constexpr const char *variable = "MESA_SHADER_CACHE_DISABLE";
    if (!qEnvironmentVariableIsSet(variable)) {
        qputenv(variable, "true");
    }
}

} // namespace grisal::graphics
