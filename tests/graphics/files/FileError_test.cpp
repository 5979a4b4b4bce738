// SPDX-License-Identifier: MIT
#include "graphics/files/FileError.h"

#include <gtest/gtest.h>

#include <cerrno>

using grisal::graphics::fileErrorMessage;

namespace
{

TEST(FileError, FullDiskAndUsedUpQuotaAreAFullDisk)
{
    EXPECT_EQ(fileErrorMessage(ENOSPC).english(), QStringLiteral("the disk is full"));
    EXPECT_EQ(fileErrorMessage(EDQUOT).english(), QStringLiteral("the disk is full"));
}

TEST(FileError, OtherErrorsHaveTheTextOfTheSystem)
{
    EXPECT_EQ(fileErrorMessage(EACCES).english(), QStringLiteral("Permission denied"));
}

} // namespace
