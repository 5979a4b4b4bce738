// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace grisal::test
{

/// Collects what is logged while it lives, in place of the handler that was installed. One at a time.
class LogCapture
{
public:
    LogCapture();
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;
    ~LogCapture();

    QStringList debugs() const;
    QStringList warnings() const; ///< warnings and anything worse
    bool contains(const QString &part) const;
    void clear();
};

} // namespace grisal::test
