// SPDX-License-Identifier: MIT
#pragma once

#include "batch/Batch.h"

#include <QIODevice>
#include <QStringList>

namespace grisal::batch
{

/// Does what the command line asks for; its first element is the name of the program. `standardInput` is read for
/// --files-from, `invalid` is the result of invalidArguments().
ExitStatus run(const QStringList &arguments, QIODevice &standardInput, const QStringList &invalid = {});

} // namespace grisal::batch
