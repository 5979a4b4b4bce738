// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/image/IPicture.h"

#include <memory>

/// The part of the program that reads and writes image files. It stands in a module of its own, which brings some
/// thirty shared libraries along: to load and start them would hold up the window.
namespace picture_module
{

/// A new empty picture. The first call loads the module. Null where it is missing or broken, which is told in the log.
std::unique_ptr<grisal::graphics::IPicture> newPicture();

} // namespace picture_module
