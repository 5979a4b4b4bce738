// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/Message.h"

namespace grisal::graphics
{

/// Describes the error of a system call on a file, given as its errno.
Message fileErrorMessage(int error);

} // namespace grisal::graphics
