// SPDX-License-Identifier: MIT
#include "app/PictureModule.h"

#include <QtGlobal>

#include <dlfcn.h>

namespace picture_module
{

namespace
{

using Door = grisal::graphics::IPicture *(*)();

// By its bare name, which is looked for where the program's run path says. A library of the toolkit would look where
// its own does.
Door openModule()
{
    void *module = dlopen("libgrisal_pictures.so", RTLD_NOW | RTLD_LOCAL);
    void *door = module != nullptr ? dlsym(module, "newPicture") : nullptr;
    if (door == nullptr) {
        qWarning("The part for image files cannot be loaded: %s", dlerror());
    }
    return reinterpret_cast<Door>(door);
}

} // namespace

std::unique_ptr<grisal::graphics::IPicture> newPicture()
{
    static const Door door = openModule();
    return std::unique_ptr<grisal::graphics::IPicture>(door != nullptr ? door() : nullptr);
}

} // namespace picture_module
