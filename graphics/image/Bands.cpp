// SPDX-License-Identifier: MIT
#include "graphics/image/Bands.h"

#include <algorithm>
#include <exception>
#include <system_error>
#include <thread>
#include <vector>

namespace grisal::graphics
{

namespace
{

/// More would wait for the memory and not for the processor.
constexpr std::size_t mostUsefulCores = 4;

std::size_t mostBands()
{
    return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, mostUsefulCores);
}

} // namespace

void inBands(std::size_t count, std::size_t smallest, const std::function<void(std::size_t, std::size_t)> &work)
{
    const std::size_t bands = std::clamp<std::size_t>(count / std::max<std::size_t>(smallest, 1), 1, mostBands());
    const auto start = [=](std::size_t band) { return count / bands * band + std::min(band, count % bands); };
    std::vector<std::exception_ptr> problems(bands);
    const auto run = [&](std::size_t band) {
        try {
            work(start(band), start(band + 1));
        } catch (...) {
            problems[band] = std::current_exception();
        }
    };
    {
        std::vector<std::jthread> helpers;
        for (std::size_t band = 1; band < bands; ++band) {
            try {
                helpers.emplace_back(run, band);
            } catch (const std::system_error &) {
                run(band); // no more threads to be had
            }
        }
        run(0);
    }
    for (const std::exception_ptr &problem : problems) {
        if (problem) {
            std::rethrow_exception(problem);
        }
    }
}

} // namespace grisal::graphics
