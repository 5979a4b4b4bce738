// SPDX-License-Identifier: MIT
#pragma once

#include "batch/Options.h"
#include "batch/SourceList.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace grisal::batch
{

/// A picture to convert and the file to write.
struct Job {
    QString source;
    QString output;
};

struct OutputPlan {
    std::vector<Job> jobs; ///< those of the shard, in the order of the sources; empty if there are problems
    QStringList problems;  ///< sentences; after the first 20, one with the number of the others
};

/// Plans the outputs of sources; OutputNames describes how they are named. Problems are:
///
/// - An output that would overwrite a source: its path is that of a source, or it exists and is the same file as a
///   source, for example through a link.
/// - Two sources that would have the same output, or two outputs that exist and are the same file, for example through
///   a link or because the file system ignores upper and lower case.
/// - An --output-dir that exists and is not a folder.
/// - A --report that would overwrite something, see problemOfReport().
///
/// A source that has the path of another source's output and carries a look is the result of an earlier run beside the
/// sources and has no job; nor has it an output that another source could be.
///
/// All sources are checked, also those of other shards, so that every shard finds the same problems. The shard of a
/// source follows from its subfolder and its name. Otherwise, existing outputs are not considered, and folders are not
/// made.
OutputPlan planOutputs(std::vector<Source> sources, const Options &options);

} // namespace grisal::batch
