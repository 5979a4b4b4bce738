// SPDX-License-Identifier: MIT
#include "batch/Paths.h"

#include <gtest/gtest.h>

namespace
{

using namespace grisal::batch;

TEST(Paths, AreCleaned)
{
    EXPECT_EQ(cleaned("./a//b/../c/"), "a/c");
    EXPECT_EQ(cleaned("../a"), "../a");
    EXPECT_EQ(cleaned("/a/../../b"), "/b");
    EXPECT_EQ(cleaned("/../../..a"), "/..a");
    EXPECT_EQ(cleaned("/.."), "/");
    EXPECT_EQ(cleaned("/"), "/");
}

TEST(Paths, BecomeAbsolute)
{
    EXPECT_EQ(absolutePath("a/b.jpg", "/x"), "/x/a/b.jpg");
    EXPECT_EQ(absolutePath("../b.jpg", "/x"), "/b.jpg");
    EXPECT_EQ(absolutePath("../../b.jpg", "/x"), "/b.jpg");
    EXPECT_EQ(absolutePath("/y/./b.jpg", "/x"), "/y/b.jpg");
    EXPECT_EQ(absolutePath("a", "/"), "/a");
    EXPECT_EQ(absolutePath(":a", "/x"), "/x/:a");
}

TEST(Paths, AreSplitAndJoined)
{
    EXPECT_EQ(folderOf("a/b/c.jpg"), "a/b/");
    EXPECT_EQ(nameOf("a/b/c.jpg"), "c.jpg");
    EXPECT_EQ(folderOf("c.jpg"), "");
    EXPECT_EQ(nameOf("c.jpg"), "c.jpg");
    EXPECT_EQ(joined("a", "c.jpg"), "a/c.jpg");
    EXPECT_EQ(joined("a/", "c.jpg"), "a/c.jpg");
    EXPECT_EQ(joined("", "c.jpg"), "c.jpg");
}

TEST(Paths, LoseSlashesAtTheirEnds)
{
    EXPECT_EQ(withoutLastSlash("a//"), "a");
    EXPECT_EQ(withoutLastSlash("//"), "/");
    EXPECT_EQ(withoutLastSlash(""), "");
}

TEST(Paths, StartWithNoColonForQt)
{
    EXPECT_EQ(pathForQt(":a"), "./:a");
    EXPECT_EQ(pathForQt("a:b"), "a:b");
}

TEST(Paths, AreQuotedWithoutControlCharacters)
{
    EXPECT_EQ(quoted("a\n.jpg"), "'a\\n.jpg'");
}

} // namespace
