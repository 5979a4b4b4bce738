// SPDX-License-Identifier: MIT
#pragma once

#include "batch/Options.h"
#include "batch/SourceList.h"

#include <QString>

namespace grisal::batch
{

struct Output {
    QString path;     ///< as it is opened and shown: relative where the source or --output-dir is
    QString absolute; ///< absolute and cleaned
};

/// Makes the path of an output from that of its source.
///
/// Folder: that of the source or, with --output-dir, the source's subfolder in that folder.
///
/// Name: the pattern of --name, by default "{name}-bw" in the folder of the source and "{name}" elsewhere. {name} is
/// the name of the source without its extension; an extension that is not one of an image format is part of the name,
/// so that "scan.001" and "scan.002" have different outputs.
///
/// Extension: that of --format; else that of the source as it is written, if it is one of an image format; else that of
/// the source's contents, for which the source is read. The extension of a source that is missing or no image, and
/// cannot be converted anyway, is "jpg".
class OutputNames
{
public:
    explicit OutputNames(const Options &options);

    Output outputFor(const Source &source) const;

private:
    struct Folder {
        QString path;     ///< empty, or with a slash at its end
        QString absolute; ///< with a slash at its end
    };

    Folder folderFor(const Source &source) const;
    QString nameFor(const Source &source, bool besideSource) const;

    bool m_hasFolder;
    Folder m_folder;
    QString m_extension; ///< empty without --format
    QString m_pattern;   ///< empty for the default
};

} // namespace grisal::batch
