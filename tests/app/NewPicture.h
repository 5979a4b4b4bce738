// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/LumioImage.h"

#include <memory>

namespace grisal::test
{

/// What a window is given to make its pictures with.
inline std::unique_ptr<graphics::IPicture> newPicture()
{
    return std::make_unique<graphics::LumioImage>();
}

} // namespace grisal::test
