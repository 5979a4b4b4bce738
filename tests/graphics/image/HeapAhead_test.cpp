// SPDX-License-Identifier: MIT
#include "graphics/image/HeapAhead.h"

#include <gtest/gtest.h>

#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <stop_token>
#include <thread>
#include <vector>

namespace grisal::test
{

using graphics::handOut;
using graphics::HeapAhead;

std::size_t pageSize()
{
    return static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

/// Fresh pages that nobody has touched.
class Pages
{
public:
    explicit Pages(std::size_t count)
        : m_size(count * pageSize()), m_begin(static_cast<std::byte *>(mmap(nullptr, m_size, PROT_READ | PROT_WRITE,
                                                                            MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)))
    {
        madvise(m_begin, m_size, MADV_NOHUGEPAGE); // each page counts
    }
    Pages(const Pages &) = delete;
    Pages &operator=(const Pages &) = delete;
    ~Pages() { munmap(m_begin, m_size); }

    std::byte *begin() { return m_begin; }
    std::size_t size() const { return m_size; }

private:
    std::size_t m_size;
    std::byte *m_begin;
};

/// The pages that the system has handed out, of those that lie in `size` bytes from the page of `begin` on.
std::ptrdiff_t handedOut(std::byte *begin, std::size_t size)
{
    std::byte *page = begin - reinterpret_cast<std::uintptr_t>(begin) % pageSize();
    std::vector<unsigned char> present(size / pageSize());
    if (mincore(page, present.size() * pageSize(), present.data()) != 0) {
        return -1;
    }
    return std::count_if(present.begin(), present.end(), [](unsigned flags) { return (flags & 1U) != 0; });
}

bool systemHandsOut()
{
    Pages pages(1);
    return handOut(pages.begin(), pages.size(), {}) == pages.size();
}

TEST(HeapAheadTest, WholePagesAreHandedOutAndKeepTheirContents)
{
    if (!systemHandsOut()) {
        GTEST_SKIP() << "This system does not hand out memory ahead of its use";
    }
    Pages pages(1000);
    std::byte &written = pages.begin()[500 * pageSize() + 7];
    written = std::byte{42};
    EXPECT_EQ(handedOut(pages.begin(), pages.size()), 1);

    EXPECT_EQ(handOut(pages.begin() + 1, pages.size() - 2, {}), 998 * pageSize());
    EXPECT_EQ(handedOut(pages.begin(), pages.size()), 998);
    EXPECT_EQ(written, std::byte{42});
    EXPECT_EQ(pages.begin()[999 * pageSize() - 1], std::byte{0});
}

TEST(HeapAheadTest, LessThanAPageIsLeftAlone)
{
    Pages pages(2);
    EXPECT_EQ(handOut(pages.begin() + 1, pageSize() - 1, {}), 0U);
    EXPECT_EQ(handOut(pages.begin() + 1, 0, {}), 0U);
    EXPECT_EQ(handOut(pages.begin() + 1, pageSize() + 1, {}), 0U);
    EXPECT_EQ(handedOut(pages.begin(), pages.size()), 0);
}

TEST(HeapAheadTest, NothingIsHandedOutAfterAStop)
{
    Pages pages(100);
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(handOut(pages.begin(), pages.size(), stop.get_token()), 0U);
    EXPECT_EQ(handedOut(pages.begin(), pages.size()), 0);
}

TEST(HeapAheadTest, MemoryThatIsGoneIsNoMatter)
{
    constexpr std::size_t count = 1000;
    Pages pages(count);
    ASSERT_EQ(munmap(pages.begin() + count / 2 * pageSize(), count / 2 * pageSize()), 0);
    EXPECT_LE(handOut(pages.begin(), pages.size(), {}), count / 2 * pageSize());
}

/// Has the heap keep what is freed, with none of it handed out.
void keepUntouchedHeap()
{
    mallopt(M_MMAP_THRESHOLD, INT_MAX);
    mallopt(M_TRIM_THRESHOLD, INT_MAX);
    malloc_trim(0);
}

TEST(HeapAheadTest, TheNextBlocksAreHandedOut)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "The sanitizer's heap does not give out again at once what was freed";
#endif
    if (!systemHandsOut() || std::thread::hardware_concurrency() < 2) {
        GTEST_SKIP() << "This system does not hand out memory ahead of its use";
    }
    keepUntouchedHeap();
    constexpr std::size_t first = 20'000'000;
    constexpr std::size_t second = 10'000'000;
    constexpr auto longEnough = std::chrono::seconds(30);

    const HeapAhead ahead({{first, first / 2}, {second, second}});
    const std::unique_ptr<std::byte[]> firstBlock = std::make_unique_for_overwrite<std::byte[]>(first);
    const std::unique_ptr<std::byte[]> secondBlock = std::make_unique_for_overwrite<std::byte[]>(second);
    // Small blocks in between may have moved the large ones a little, and pages may come by the 512.
    constexpr std::ptrdiff_t some = 1100;
    const auto expected = static_cast<std::ptrdiff_t>(second / pageSize()) - some;
    const auto start = std::chrono::steady_clock::now();
    while (handedOut(secondBlock.get(), second) < expected && std::chrono::steady_clock::now() - start < longEnough) {
        std::this_thread::yield();
    }
    EXPECT_GE(handedOut(secondBlock.get(), second), expected);
    const auto half = static_cast<std::ptrdiff_t>(first / 2 / pageSize());
    EXPECT_GE(handedOut(firstBlock.get(), first), half - some);
    EXPECT_LE(handedOut(firstBlock.get(), first), half + some);
}

/// The pages that this process has.
long residentPages()
{
    std::ifstream statm("/proc/self/statm");
    long all = 0;
    long resident = 0;
    statm >> all >> resident;
    return resident;
}

bool leavesAllAloneWhereABlockCannotBeHad()
{
    keepUntouchedHeap();
    constexpr std::size_t tooMuch = std::size_t{1} << 60U;
    constexpr std::size_t size = 30'000'000;
    const long before = residentPages();
    const HeapAhead ahead({{size, size}, {tooMuch, size}, {size, size}});
    // Long enough for a helper, if there were one, to be seen.
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    return before > 0 && residentPages() - before < static_cast<long>(size / pageSize() / 4);
}

// In a process of its own: where there was no memory once, the heap goes on somewhere else.
TEST(HeapAheadDeathTest, NothingIsHandedOutWhereABlockCannotBeHad)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "The sanitizer ends a process that asks for too much";
#endif
    EXPECT_EXIT(std::_Exit(leavesAllAloneWhereABlockCannotBeHad() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(HeapAheadTest, WhatIsWrittenMeanwhileStays)
{
    constexpr std::size_t size = 30'000'000;
    auto ahead = std::make_unique<HeapAhead>(std::vector<HeapAhead::Block>{{size, size}});
    const std::unique_ptr<std::byte[]> block = std::make_unique_for_overwrite<std::byte[]>(size);
    std::fill_n(block.get(), size, std::byte{42});
    ahead.reset();
    EXPECT_EQ(std::count(block.get(), block.get() + size, std::byte{42}), static_cast<std::ptrdiff_t>(size));
}

} // namespace grisal::test
