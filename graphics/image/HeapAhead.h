// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <stop_token>
#include <thread>
#include <vector>

namespace grisal::graphics
{

/// Has the system hand out memory of the heap in another thread, while this one does something that will need it.
///
/// The first touch of fresh memory costs more than most of what is done with it afterwards. Decoding a picture keeps
/// one core busy, of whose time a third may go into such touches; another core can be ahead of it.
///
/// A hint: blocks of the given sizes are taken and freed at once, so that the next blocks of these sizes, asked for in
/// the same order by the same thread, come to lie where the system is asked for memory. Where they do not, or where
/// the heap gives freed blocks back to the system, nothing is won; the process may then have memory that it does not
/// use until it next gives back what is free. What stands in memory that is handed out stays as it is. Where one of the
/// blocks cannot be had, nothing is handed out.
class HeapAhead
{
public:
    struct Block {
        std::size_t size; ///< bytes that will be asked for
        std::size_t used; ///< of these, from the front, the bytes that will be touched
    };

    explicit HeapAhead(const std::vector<Block> &blocks);
    /// Stops; what has not been handed out by then is left.
    ~HeapAhead() = default;

private:
    std::jthread m_helper;
};

/// Has the system hand out the whole pages among `size` bytes from `begin` on, piece by piece until told to stop.
/// Contents stay. Returns the number of bytes handed out: fewer where there is no such memory, none where the system
/// does not know how.
std::size_t handOut(std::byte *begin, std::size_t size, const std::stop_token &stop);

} // namespace grisal::graphics
