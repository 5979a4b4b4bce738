// SPDX-License-Identifier: MIT
#pragma once

#include "batch/ExitStatus.h"
#include "batch/Shard.h"
#include "graphics/files/ImageFormat.h"

#include <QLatin1String>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <variant>

namespace grisal::batch
{

/// What the name of the source replaces in a pattern of --name.
constexpr QLatin1String namePlaceholder("{name}");

/// What happens to a picture whose output exists: it fails, it is left out, it is converted again, or it is converted
/// again if the output is older than the source or has another look.
enum class IfExists { Error, Skip, Overwrite, Update };

/// The command line of grisal-batch. Texts that were not given are empty; exactly one of `look`, `film`, `showLook` and
/// `listFilms` is given.
struct Options {
    QString look; ///< path of a picture with a look, or of a JSON file
    QString film; ///< as it was given, not checked
    QString showLook;
    bool listFilms = false;

    QStringList sources;        ///< the operands, none of them empty
    QStringList invalidSources; ///< operands that are not valid UTF-8, as Qt decodes them
    QString filesFrom;          ///< path of a list of sources; "-" is standard input
    bool nulSeparated = false;
    bool recursive = false;
    Shard shard;

    QString outputDir;
    QString namePattern;                         ///< contains {name}; empty for the default, see OutputNames
    std::optional<graphics::ImageFormat> format; ///< without a value, that of the source
    int quality = 90;                            ///< of JPEG files, 0 to 100
    IfExists ifExists = IfExists::Error;

    int jobs = 1;                        ///< 1 to 1024; parseOptions() sets it to the number of processor cores
    std::optional<std::uint64_t> memory; ///< limit in bytes, at least 64 MiB
    bool dryRun = false;
    QString report;
    bool quiet = false; ///< never together with `verbose`
    bool verbose = false;
};

/// Reason to end the program at once.
struct EarlyExit {
    QString text;      ///< complete lines: for standard output if the status is AllDone, otherwise for standard error
    ExitStatus status; ///< AllDone for --help and --version, WrongUsage otherwise
};

/// Which arguments are not valid UTF-8. Each is returned as Qt decodes it: as the name of another file, since U+FFFD
/// replaces the invalid bytes.
QStringList invalidArguments(int argc, const char *const *argv);

/// Converts the command line, whose first element is the name of the program, into options. `invalid` is the result of
/// invalidArguments(): such an argument is wrong usage, unless it is an operand. Reads and prints nothing.
std::variant<Options, EarlyExit> parseOptions(const QStringList &arguments, const QStringList &invalid = {});

} // namespace grisal::batch
