// SPDX-License-Identifier: MIT
//
// Writes the image used by the other benchmark programs: make_bench_picture WIDTH HEIGHT DEPTH PATH [SEED]
#include "bench/BenchPictures.h"
#include "graphics/files/ImageLibrary.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    if (argc != 5 && argc != 6) {
        std::fprintf(stderr, "usage: make_bench_picture WIDTH HEIGHT DEPTH PATH [SEED]\n");
        return EXIT_FAILURE;
    }
    grisal::graphics::initializeImageLibrary(argv[0]);
    const auto number = [argv](int i) { return static_cast<unsigned>(std::strtoul(argv[i], nullptr, 10)); };
    const unsigned seed = argc == 6 ? number(5) : 1;
    Magick::Image picture = grisal::bench::paintedPicture(number(1), number(2), number(3), seed);
    picture.matte(false);
    picture.quality(90);
    picture.write(argv[4]);
    return EXIT_SUCCESS;
}
