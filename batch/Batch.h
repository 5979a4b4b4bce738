// SPDX-License-Identifier: MIT
#pragma once

#include "batch/ExitStatus.h"
#include "batch/Options.h"
#include "batch/OutputPlan.h"
#include "graphics/look/Look.h"

#include <vector>

namespace grisal::batch
{

/// Converts pictures in several processes, of which as many work at the same time as the memory allows. Prints the
/// progress and writes the report.
///
/// After the first signal of Interruption no further picture is started; after the second one, those in work are given
/// up. In both cases every output is whole or absent.
ExitStatus convertAll(const std::vector<Job> &jobs, const graphics::Look &look, const Options &options);

} // namespace grisal::batch
