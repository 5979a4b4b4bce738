// SPDX-License-Identifier: MIT
#include "tests/support/TestHome.h"

namespace grisal::test
{

TestHome::TestHome()
{
    const QByteArray home = m_directory.path().toLocal8Bit();
    qputenv("HOME", home);
    qputenv("XDG_CONFIG_HOME", home + "/.config");
    qputenv("XDG_CACHE_HOME", home + "/.cache");
    qputenv("XDG_DATA_HOME", home + "/.local/share");
}

} // namespace grisal::test
