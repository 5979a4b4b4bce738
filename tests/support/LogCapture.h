// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace grisal::test
{

/// Collects log messages during its lifetime in place of the previously installed handler. Only one instance at a time.
class LogCapture
{
public:
    LogCapture();
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;
    ~LogCapture();

    QStringList debugs() const;
    QStringList warnings() const; ///< warnings and more severe messages
    bool contains(const QString &part) const;
    void clear();
};

} // namespace grisal::test
