// SPDX-License-Identifier: MIT
#include "tests/support/LogCapture.h"

#include <QtGlobal>

namespace grisal::test
{

namespace
{

QStringList debugTexts;
QStringList warningTexts;
QtMessageHandler handlerBefore = nullptr;

void collect(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    (type == QtDebugMsg || type == QtInfoMsg ? debugTexts : warningTexts) << text;
}

} // namespace

LogCapture::LogCapture()
{
    clear();
    handlerBefore = qInstallMessageHandler(collect);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(handlerBefore);
}

QStringList LogCapture::debugs() const
{
    return debugTexts;
}

QStringList LogCapture::warnings() const
{
    return warningTexts;
}

bool LogCapture::contains(const QString &part) const
{
    return !(debugTexts + warningTexts).filter(part).isEmpty();
}

void LogCapture::clear()
{
    debugTexts.clear();
    warningTexts.clear();
}

} // namespace grisal::test
