// SPDX-License-Identifier: MIT
#pragma once

#include "batch/Options.h"
#include "batch/OutputNames.h"
#include "batch/SourceList.h"

#include <QString>

#include <vector>

namespace grisal::batch
{

/// Why the file of --report must not be replaced; a sentence, empty if it may be or if there is no report. It must be
/// none of these files, also through a link: a source, an output, the file of --look, that of --files-from. A file that
/// exists must be empty or start like a report, with "{".
QString problemOfReport(const Options &options, const std::vector<Source> &sources, const std::vector<Output> &outputs);

} // namespace grisal::batch
