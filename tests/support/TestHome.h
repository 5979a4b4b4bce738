// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

namespace grisal::test
{

/// An empty home of its own for a test program: home, settings, cache and data directories point into it while it
/// lives. Made before the application object.
class TestHome
{
public:
    TestHome();

    QString path() const { return m_directory.path(); }

private:
    QTemporaryDir m_directory;
};

} // namespace grisal::test
