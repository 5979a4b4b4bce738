// SPDX-License-Identifier: MIT
#include "graphics/image/HeapAhead.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <system_error>

namespace grisal::graphics
{

namespace
{

/// Less is handed out before another thread has started.
constexpr std::size_t smallestHelp = 8U << 20U;
/// Others may have to wait with their memory until a piece is handed out.
constexpr std::size_t piece = 512U << 10U;

struct Range {
    std::uintptr_t begin;
    std::size_t size;
};

/// Where blocks of these sizes will come to lie.
std::vector<Range> placesOf(const std::vector<HeapAhead::Block> &blocks)
{
    std::vector<Range> places;
    std::vector<void *> taken;
    places.reserve(blocks.size());
    taken.reserve(blocks.size());
    for (const HeapAhead::Block &block : blocks) {
        taken.push_back(std::malloc(block.size));
        if (taken.back() != nullptr) {
            places.push_back({reinterpret_cast<std::uintptr_t>(taken.back()), block.used});
        }
    }
    std::for_each(taken.begin(), taken.end(), &std::free);
    return places;
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
    std::size_t all = 0;
    for (const Block &block : blocks) {
        all += block.used;
    }
    if (all < smallestHelp) {
        return;
    }
    try {
        m_helper = std::jthread([places = placesOf(blocks)](const std::stop_token &stop) {
            for (const Range &place : places) {
                handOut(reinterpret_cast<std::byte *>(place.begin), place.size, stop);
            }
        });
    } catch (const std::system_error &) {
        // no more threads to be had
    }
}

} // namespace grisal::graphics
