// SPDX-License-Identifier: MIT
#include "graphics/files/FileError.h"

#include <cerrno>
#include <cstring>

namespace grisal::graphics
{

bool isDiskFull(int error)
{
    return error == ENOSPC || error == EDQUOT;
}

Message fileErrorMessage(int error)
{
    if (isDiskFull(error)) {
        return Message(QT_TRANSLATE_NOOP("Message", "the disk is full"));
    }
    return Message::quoting(QString::fromLocal8Bit(std::strerror(error)));
}

} // namespace grisal::graphics
