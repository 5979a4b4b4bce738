// SPDX-License-Identifier: MIT
//
// The door of the module that is loaded for image files; app/PictureModule opens it.
#include "graphics/files/LumioImage.h"

#include <new>

extern "C" {

/// A new empty picture, the caller's; null where there is no memory for it.
__attribute__((visibility("default"))) grisal::graphics::IPicture *newPicture()
{
    return new (std::nothrow) grisal::graphics::LumioImage;
}
}
