// SPDX-License-Identifier: MIT
//
// make_read_seeds FOLDER: writes the small images that read_fuzz starts with, one of each kind.
#include "tests/graphics/files/PictureFiles.h"

#include <cstdlib>
#include <iostream>
#include <string>

namespace
{

using namespace grisal::test;

Samples colours(int x, int y)
{
    return {static_cast<std::uint16_t>(x * 4099), static_cast<std::uint16_t>(y * 8191),
            static_cast<std::uint16_t>((x * y) * 257)};
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "make_read_seeds FOLDER\n";
        return EXIT_FAILURE;
    }
    const std::string folder = argv[1];
    for (const int depth : {8, 16}) {
        const std::string bits = std::to_string(depth);
        Magick::Image picture = painted(16, 8, depth, colours);
        for (const char *extension : {"jpg", "png", "tif"}) {
            picture.write(folder + "/colour" + bits + "." + extension);
        }
        Magick::Image grey = picture;
        grey.type(Magick::GrayscaleType);
        Magick::Image palette = picture;
        palette.type(Magick::PaletteType);
        for (const char *extension : {"png", "tif"}) {
            grey.write(folder + "/grey" + bits + "." + extension);
            palette.write(folder + "/palette" + bits + "." + extension);
        }
    }
    return EXIT_SUCCESS;
}
