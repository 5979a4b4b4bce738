// SPDX-License-Identifier: MIT
#include "graphics/document/DocumentFilterQueue.h"

#include "tests/support/RecordingFilter.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace grisal::test
{

namespace
{

using graphics::anyEnabledFrom;
using graphics::countEnabled;
using graphics::DocumentFilterQueue;
using graphics::IFilter;

using Filters = std::vector<IFilter *>;

class DocumentFilterQueueTest : public testing::Test
{
protected:
    std::vector<RecordedPass> m_passes;
    RecordingFilter m_on{"on", true, m_passes};
    RecordingFilter m_off{"off", false, m_passes};
};

} // namespace

TEST_F(DocumentFilterQueueTest, IsEmptyInitially)
{
    EXPECT_TRUE(DocumentFilterQueue().filters().empty());
}

TEST_F(DocumentFilterQueueTest, KeepsTheOrderOfAddition)
{
    DocumentFilterQueue queue;
    queue.add(&m_off);
    queue.add(&m_on);

    EXPECT_EQ(queue.filters(), (Filters{&m_off, &m_on}));
}

TEST_F(DocumentFilterQueueTest, AcceptsTheSameFilterTwice)
{
    DocumentFilterQueue queue;
    queue.add(&m_on);
    queue.add(&m_on);

    EXPECT_EQ(queue.filters(), (Filters{&m_on, &m_on}));
}

TEST_F(DocumentFilterQueueTest, ReturnsACopyOfItsFilters)
{
    DocumentFilterQueue queue;
    queue.add(&m_on);

    Filters copy = queue.filters();
    copy.clear();

    EXPECT_EQ(queue.filters(), Filters{&m_on});
}

TEST_F(DocumentFilterQueueTest, ClearRemovesAllFilters)
{
    DocumentFilterQueue queue;
    queue.add(&m_on);

    queue.clear();

    EXPECT_TRUE(queue.filters().empty());
}

TEST_F(DocumentFilterQueueTest, NeitherDeletesNorRunsItsFilters)
{
    {
        DocumentFilterQueue queue;
        queue.add(&m_on);
    }
    EXPECT_EQ(m_on.getName(), "on");
    EXPECT_TRUE(m_passes.empty());
}

TEST_F(DocumentFilterQueueTest, HasAVirtualDestructor)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<DocumentFilterQueue>);
}

TEST_F(DocumentFilterQueueTest, CountsTheEnabledFilters)
{
    EXPECT_EQ(countEnabled({}), 0);
    EXPECT_EQ(countEnabled({&m_off}), 0);
    EXPECT_EQ(countEnabled({&m_on, &m_off, &m_on}), 2);
}

TEST_F(DocumentFilterQueueTest, FindsEnabledFiltersFromAnIndexOn)
{
    const Filters filters{&m_off, &m_on, &m_off};

    EXPECT_TRUE(anyEnabledFrom(filters, 0));
    EXPECT_TRUE(anyEnabledFrom(filters, 1));
    EXPECT_FALSE(anyEnabledFrom(filters, 2));
    EXPECT_FALSE(anyEnabledFrom(filters, 3));
}

} // namespace grisal::test
