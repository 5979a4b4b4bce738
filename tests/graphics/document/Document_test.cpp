// SPDX-License-Identifier: MIT
#include "graphics/document/Document.h"

#include "tests/support/RecordingFilter.h"

#include <gtest/gtest.h>

namespace grisal::test
{

namespace
{

using graphics::Document;
using graphics::DocumentFilterQueue;

} // namespace

TEST(DocumentTest, HasSourceAndQueueButNoViewInitially)
{
    DocumentFilterQueue queue;
    const Document document(17, &queue);

    EXPECT_EQ(document.source(), 17U);
    EXPECT_EQ(document.queue(), &queue);
    EXPECT_EQ(document.view(), nullptr);
}

TEST(DocumentTest, IsNotBypassedInitially)
{
    DocumentFilterQueue queue;

    EXPECT_FALSE(Document(17, &queue).bypass());
}

TEST(DocumentTest, BypassCanBeSetAndCleared)
{
    DocumentFilterQueue queue;
    Document document(17, &queue);

    document.setBypass(true);
    EXPECT_TRUE(document.bypass());

    document.setBypass(false);
    EXPECT_FALSE(document.bypass());
}

TEST(DocumentTest, AddedFilterIsAppendedToTheQueue)
{
    std::vector<RecordedPass> passes;
    RecordingFilter first("first", true, passes);
    RecordingFilter second("second", true, passes);
    DocumentFilterQueue queue;
    queue.add(&first);
    Document document(17, &queue);

    document.add(&second);

    EXPECT_EQ(queue.filters(), (std::vector<graphics::IFilter *>{&first, &second}));
}

} // namespace grisal::test
