// SPDX-License-Identifier: MIT
//
// Baselines for opening and saving: library_job IN OUT reads a file and writes another with GraphicsMagick alone, once,
// in its own process, and prints the duration of each.
#include <Magick++.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace
{

template <typename Step>
double millisecondsOf(Step step)
{
    const auto start = std::chrono::steady_clock::now();
    step();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: library_job IN OUT\n");
        return EXIT_FAILURE;
    }
    Magick::InitializeMagick(argv[0]);
    Magick::Image image;
    const double read = millisecondsOf([&] { image.read(argv[1]); });
    image.quality(90);
    image.defineValue("jpeg", "optimize-coding", "false"); // as in the program
    const double write = millisecondsOf([&] { image.write(argv[2]); });
    std::printf("{\"read\": %.3f, \"write\": %.3f}\n", read, write);
    return EXIT_SUCCESS;
}
