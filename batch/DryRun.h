// SPDX-License-Identifier: MIT
#pragma once

#include "batch/ExitStatus.h"
#include "batch/Options.h"
#include "batch/OutputPlan.h"

#include <vector>

namespace grisal::batch
{

/// Prints what a conversion would do with each picture: failures that are known without reading its pixels to standard
/// error, the rest to standard output. Whether an output is up to date is not examined. Returns SomeFailed if a picture
/// would fail.
ExitStatus showPlan(const std::vector<Job> &jobs, IfExists ifExists);

} // namespace grisal::batch
