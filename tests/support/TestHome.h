// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

namespace grisal::test
{

/// An empty temporary home directory for a test program: during its lifetime the home, settings, cache and data
/// directories point into it. To be created before the application object.
class TestHome
{
public:
    TestHome();

    QString path() const { return m_directory.path(); }

private:
    QTemporaryDir m_directory;
};

} // namespace grisal::test
