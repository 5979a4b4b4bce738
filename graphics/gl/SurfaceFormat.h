// SPDX-License-Identifier: MIT
#pragma once

namespace grisal::graphics
{

/// Makes Qt request OpenGL 2.1, compatibility profile, for every window and context that is created afterwards. Must be
/// called before the application object is created.
void setDefaultSurfaceFormat();

} // namespace grisal::graphics
