// SPDX-License-Identifier: MIT
#include "graphics/files/FileError.h"

#include <cerrno>
#include <cstring>

namespace grisal::graphics
{

Message fileErrorMessage(int error)
{
    if (error == ENOSPC || error == EDQUOT) {
        return Message(QT_TRANSLATE_NOOP("Message", "the disk is full"));
    }
    return Message::quoting(QString::fromLocal8Bit(std::strerror(error)));
}

} // namespace grisal::graphics
