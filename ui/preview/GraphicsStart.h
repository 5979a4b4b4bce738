// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/Message.h"

namespace grisal::ui
{

/// Loads the entry points of OpenGL for the current context and logs vendor, renderer and version. Returns why OpenGL
/// cannot be used; empty if it can.
graphics::Message startGraphics();

} // namespace grisal::ui
