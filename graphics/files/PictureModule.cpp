// SPDX-License-Identifier: MIT
//
// The door of the module that is loaded for image files; app/PictureModule opens it.
#include "graphics/files/LumioImage.h"

#include <exception>

extern "C" {

/// A new empty picture, the caller's; null where the library does not give one.
__attribute__((visibility("default"))) grisal::graphics::IPicture *newPicture()
{
    try {
        return new grisal::graphics::LumioImage;
    } catch (const std::exception &) {
        return nullptr;
    }
}
}
