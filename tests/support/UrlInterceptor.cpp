// SPDX-License-Identifier: MIT
#include "tests/support/UrlInterceptor.h"

#include <QDesktopServices>

namespace grisal::test
{

UrlInterceptor::UrlInterceptor(const QString &scheme) : m_scheme(scheme)
{
    QDesktopServices::setUrlHandler(m_scheme, this, "take");
}

UrlInterceptor::~UrlInterceptor()
{
    QDesktopServices::unsetUrlHandler(m_scheme);
}

} // namespace grisal::test
