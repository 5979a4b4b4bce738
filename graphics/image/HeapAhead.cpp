// SPDX-License-Identifier: MIT
#include "graphics/image/HeapAhead.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <memory>
#include <numeric>
#include <utility>

namespace grisal::graphics
{

namespace
{

/// What takes the system a few milliseconds at the most is not worth a helper.
constexpr std::size_t smallestHelp = 8U << 20U;
/// Others may have to wait with their memory until a piece is handed out.
constexpr std::size_t piece = 512U << 10U;

using Taken = std::unique_ptr<std::byte, decltype(&std::free)>;

/// The front of a block, which will be touched.
struct Front {
    std::byte *begin;
    std::size_t size;
};

bool isWorthAHelper(const std::vector<HeapAhead::Block> &blocks)
{
    const std::size_t used =
        std::accumulate(blocks.begin(), blocks.end(), std::size_t{0},
                        [](std::size_t sum, const HeapAhead::Block &block) { return sum + block.used; });
    return used >= smallestHelp && std::thread::hardware_concurrency() > 1;
}

} // namespace

std::size_t handOut(std::byte *begin, std::size_t size, const std::stop_token &stop)
{
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const std::size_t skipped = (page - reinterpret_cast<std::uintptr_t>(begin) % page) % page;
    const std::size_t whole = size < skipped ? 0 : (size - skipped) / page * page;
    std::size_t done = 0;
    while (done < whole && !stop.stop_requested()) {
        const std::size_t length = std::min(piece, whole - done);
        if (madvise(begin + skipped + done, length, MADV_POPULATE_WRITE) != 0) {
            break;
        }
        done += length;
    }
    return done;
}

HeapAhead::HeapAhead(const std::vector<Block> &blocks)
{
    if (!isWorthAHelper(blocks)) {
        return;
    }
    try {
        std::vector<Taken> taken; // until the helper knows where they are
        std::vector<Front> fronts;
        taken.reserve(blocks.size());
        fronts.reserve(blocks.size());
        for (const Block &block : blocks) {
            taken.emplace_back(static_cast<std::byte *>(std::malloc(block.size)), &std::free);
            if (!taken.back()) {
                return; // whoever asks for it next will not get it either
            }
            fronts.push_back({taken.back().get(), block.used});
        }
        m_helper = std::jthread([fronts = std::move(fronts)](const std::stop_token &stop) {
            for (const Front &front : fronts) {
                handOut(front.begin, front.size, stop);
            }
        });
    } catch (const std::exception &) {
        // no memory for so little, or no more threads to be had: it goes without help
    }
}

} // namespace grisal::graphics
