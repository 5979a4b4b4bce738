// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace grisal::batch
{

/// One of several parts of a list of files, for several processes or machines that share the work. The default is the
/// whole list.
struct Shard {
    int index = 0; ///< 0 to count - 1
    int count = 1; ///< at least 1
};

/// Whether a file belongs to a part. Every file belongs to exactly one of the parts 0 to count - 1. The part follows
/// from the cleaned path only and is the same in every version of the program. For a Source, the path consists of its
/// subfolder and its name: "*.jpg" in the folder "x", "-r x" and "-r /y/x" put a picture into the same part.
bool contains(const Shard &shard, const QString &path);

} // namespace grisal::batch
