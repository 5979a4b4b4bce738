// SPDX-License-Identifier: MIT
//
// The yardsticks of a picture's way in and out: library_job IN OUT reads a file and writes another with nothing but the
// image library, once, in a process of its own, and prints how long each took.
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
    image.defineValue("jpeg", "optimize-coding", "false"); // as the program has it
    const double write = millisecondsOf([&] { image.write(argv[2]); });
    std::printf("{\"read\": %.3f, \"write\": %.3f}\n", read, write);
    return EXIT_SUCCESS;
}
