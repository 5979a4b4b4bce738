// SPDX-License-Identifier: MIT
#include "tests/support/UrlTaker.h"

#include <QDesktopServices>

namespace grisal::test
{

UrlTaker::UrlTaker(const QString &scheme) : m_scheme(scheme)
{
    QDesktopServices::setUrlHandler(m_scheme, this, "take");
}

UrlTaker::~UrlTaker()
{
    QDesktopServices::unsetUrlHandler(m_scheme);
}

} // namespace grisal::test
