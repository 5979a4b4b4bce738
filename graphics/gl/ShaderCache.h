// SPDX-License-Identifier: MIT
#pragma once

namespace grisal::graphics
{

/// Switches off the shader cache of Mesa for this process and the programs that it starts, unless the user has set
/// MESA_SHADER_CACHE_DISABLE. Mesa maps a file of the cache into memory: on a full disk, or a full quota, the first
/// shader program that it stores there would end the process with SIGBUS. Must be called before the application object
/// is created.
void disableShaderCache();

} // namespace grisal::graphics
