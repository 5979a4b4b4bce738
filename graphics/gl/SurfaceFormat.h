// SPDX-License-Identifier: MIT
#pragma once

namespace grisal::graphics
{

/// Asks the toolkit for OpenGL 2.1, compatibility profile, for every window and context made from now on. To be
/// called before the application object is made.
void setDefaultSurfaceFormat();

} // namespace grisal::graphics
