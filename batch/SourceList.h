// SPDX-License-Identifier: MIT
#pragma once

#include "batch/Options.h"

#include <QIODevice>
#include <QString>
#include <QStringList>

#include <vector>

namespace grisal::batch
{

/// A picture to convert. It may be missing, or no picture at all: then its conversion fails.
struct Source {
    QString path;      ///< as it was named or found, for opening it and for messages
    QString absolute;  ///< absolute and cleaned: two sources of a list differ in it
    QString subfolder; ///< the folder of its output below that of --output-dir; empty, or a relative path
};

struct SourceList {
    std::vector<Source> sources;
    QStringList warnings; ///< sentences about what could not be searched or opened
    QString error;        ///< a sentence about wrong usage; nothing should be done if it is not empty
};

/// The sources of a command line in their order: the operands, then the names in the file of --files-from. A file that
/// is named several times is listed once, where it is named first.
///
/// Folders: with --recursive, operands that are folders, or links to folders, are searched; otherwise they are an
/// error. A search finds every file that starts like an image, whatever its name, and sorts them by path. It leaves out
/// hidden files and folders, links to folders and, so that a second run does not find the results of the first, the
/// folder of --output-dir where it lies below the searched one. Folders that cannot be read are reported as warnings.
///
/// Names that are not valid UTF-8, which Qt cannot open, are left out and reported as warnings.
///
/// The file of --files-from: each entry names a file, relative to the current folder; entries are not inspected, so
/// that an entry that is a folder fails when it is converted. An entry ends with a line feed, before which a carriage
/// return is ignored, or, with --null, with a NUL; empty entries are ignored. A file that cannot be read is an error.
///
/// Subfolders: that of a found file is its path below the searched folder. An operand that is a file has none. An entry
/// of --files-from has one only with --recursive: the folders that a relative entry contains, and those of an absolute
/// entry below the longest folder that all absolute entries have in common. With --output-dir, a relative entry that
/// leads out of the current folder is then an error.
///
/// `standardInput` is only read for --files-from with "-".
SourceList listSources(const Options &options, QIODevice &standardInput);

} // namespace grisal::batch
