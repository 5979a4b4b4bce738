// SPDX-License-Identifier: MIT
#pragma once

namespace grisal::batch
{

/// The exit statuses of the program.
enum ExitStatus { AllDone = 0, SomeFailed = 1, WrongUsage = 2, Interrupted = 130 };

} // namespace grisal::batch
