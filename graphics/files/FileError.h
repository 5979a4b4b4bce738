// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/Message.h"

namespace grisal::graphics
{

/// Whether the errno of a system call says that the disk, or the quota of the user, is used up.
bool isDiskFull(int error);

/// Describes the error of a system call on a file, given as its errno.
Message fileErrorMessage(int error);

} // namespace grisal::graphics
