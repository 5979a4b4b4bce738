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
#include <memory>

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

TEST(HeapAheadTest, TheNextBlocksAreHandedOut)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "The sanitizer's heap does not give out again at once what was freed";
#endif
    if (!systemHandsOut()) {
        GTEST_SKIP() << "This system does not hand out memory ahead of its use";
    }
    mallopt(M_MMAP_THRESHOLD, INT_MAX);
    mallopt(M_TRIM_THRESHOLD, INT_MAX);
    constexpr std::size_t first = 20'000'000;
    constexpr std::size_t second = 10'000'000;
    constexpr auto longEnough = std::chrono::seconds(30);

    const HeapAhead ahead({{first, first / 2}, {second, second}});
    const std::unique_ptr<std::byte[]> firstBlock = std::make_unique_for_overwrite<std::byte[]>(first);
    const std::unique_ptr<std::byte[]> secondBlock = std::make_unique_for_overwrite<std::byte[]>(second);
    // Small blocks in between may have moved the large ones a little.
    const auto expected = static_cast<std::ptrdiff_t>(second / pageSize() - 300);
    const auto start = std::chrono::steady_clock::now();
    while (handedOut(secondBlock.get(), second) < expected && std::chrono::steady_clock::now() - start < longEnough) {
        std::this_thread::yield();
    }
    EXPECT_GE(handedOut(secondBlock.get(), second), expected);
    EXPECT_NEAR(static_cast<double>(handedOut(firstBlock.get(), first)), first / 2.0 / pageSize(), 300);
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
