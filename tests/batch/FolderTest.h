// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace grisal::batch
{

/// Tests that run in a temporary folder, so that relative paths can be used.
class FolderTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        QDir::setCurrent(folder.path());
        current = QDir::currentPath();
    }
    void TearDown() override { QDir::setCurrent(before); }

    const QString before = QDir::currentPath();
    const QTemporaryDir folder;
    QString current; ///< the folder as the system names it
};

} // namespace grisal::batch
