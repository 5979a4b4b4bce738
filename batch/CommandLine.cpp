// SPDX-License-Identifier: MIT
#include "batch/CommandLine.h"

namespace grisal::batch
{

namespace
{

constexpr int descriptionColumn = 26;

constexpr const char *usage = R"(Usage: grisal-batch (--look FILE | --film NAME) [OPTION]... SOURCE...
       grisal-batch --show-look FILE
       grisal-batch --list-films
Turns JPEG, PNG and TIFF pictures into black and white, all with the same look
of Grisal. Sources are pictures and, with -r, folders. A source is never
overwritten.
)";

constexpr const char *examples = R"(
Exit status: 0 if all pictures were converted, 1 if some failed, 2 for wrong
usage, 130 if interrupted.

Examples:
  grisal-batch --film "Rochester Tri-X" -o bw/ *.jpg
  grisal-batch --look best.jpg -o bw/ -r holiday/
  grisal-batch --show-look best.jpg > portrait.json
  find /archive -name '*.tif' -print0 | \
      grisal-batch --look portrait.json -o /bw --files-from - -0 --jobs 8
)";

/// Line breaks in a description are those of the help. An option without a value has no name for it.
QCommandLineOption option(const QStringList &names, const char *valueName, const char *description)
{
    return {names, QString::fromUtf8(description), QString::fromUtf8(valueName)};
}

OptionGroup lookOptions()
{
    return {QStringLiteral("Look, exactly one of these"),
            {
                option({"l", "look"}, "FILE", "apply the look of FILE, which is a picture that\nGrisal saved or JSON"),
                option({"f", "film"}, "NAME", "apply the look with the name of a film"),
                option({"show-look"}, "FILE", "print the look of FILE as JSON"),
                option({"list-films"}, "", "print the names of the films"),
            }};
}

OptionGroup sourceOptions()
{
    return {
        QStringLiteral("Sources"),
        {
            option({"r", "recursive"}, "",
                   "search folders for pictures, without hidden ones,\nlinks to folders and the folder of -o; below\n"
                   "the folder of -o, keep the tree"),
            option({"files-from"}, "FILE",
                   "read further pictures from FILE, one per line;\n'-' is standard input; with -r, keep their\n"
                   "folders below the folder of -o"),
            option({"0", "null"}, "", "a NUL, not a line end, separates names in the\nFILE of --files-from"),
            option({"shard"}, "I/N",
                   "convert only part I of N; the part of a picture\nfollows from its name and its subfolder with -r;\n"
                   "parts may be numbered from 0 or from 1, since\npart N is part 0"),
        }};
}

OptionGroup outputOptions()
{
    return {QStringLiteral("Output"),
            {
                option({"o", "output-dir"}, "DIR", "write into DIR, not beside the sources"),
                option({"name"}, "PATTERN",
                       "name of an output without extension, in which\n{name} is that of its source; default:\n"
                       "{name}-bw beside the source, else {name}"),
                option({"format"}, "FORMAT", "jpg, png or tif; default: that of the source"),
                option({"quality"}, "NUMBER", "quality of JPEG files, 0 to 100; default: 90"),
                option({"if-exists"}, "ACTION",
                       "if an output exists: error (default), skip,\noverwrite, or update, which overwrites what is\n"
                       "older than its source or has another look"),
            }};
}

OptionGroup executionOptions()
{
    return {QStringLiteral("Execution"),
            {
                option({"j", "jobs"}, "NUMBER",
                       "pictures to convert at once, 1 to 1024; default:\nthe number of processor cores"),
                option({"memory"}, "SIZE",
                       "limit of the memory in bytes, or with the suffix\nK, M or G (powers of 1024); at least 64M"),
                option({"dry-run"}, "", "only show what would be done; whether outputs are\nup to date is not checked"),
                option({"report"}, "FILE", "write a line of JSON about each picture to FILE"),
                option({"q", "quiet"}, "", "print errors and warnings only"),
                option({"v", "verbose"}, "", "print a line about each picture"),
                option({"h", "help"}, "", "print this help"),
                option({"version"}, "", "print the version"),
            }};
}

/// "  -l, --look FILE", or "      --name PATTERN" for an option without a letter.
QString synopsis(const QCommandLineOption &option)
{
    const QStringList names = option.names();
    QString text = names.size() > 1 ? QStringLiteral("  -%1, ").arg(names.constFirst()) : QString(6, u' ');
    text += QStringLiteral("--") + names.constLast();
    if (!option.valueName().isEmpty()) {
        text += u' ' + option.valueName();
    }
    return text;
}

QString helpOf(const QCommandLineOption &option)
{
    const QString lineBreak = u'\n' + QString(descriptionColumn, u' ');
    return synopsis(option).leftJustified(descriptionColumn) + option.description().replace(u'\n', lineBreak) + u'\n';
}

} // namespace

QList<OptionGroup> optionGroups()
{
    return {lookOptions(), sourceOptions(), outputOptions(), executionOptions()};
}

QString helpText()
{
    QString text = QString::fromUtf8(usage);
    for (const OptionGroup &group : optionGroups()) {
        text += u'\n' + group.title + QStringLiteral(":\n");
        for (const QCommandLineOption &option : group.options) {
            text += helpOf(option);
        }
    }
    return text + QString::fromUtf8(examples);
}

QString versionText()
{
    return QStringLiteral("grisal-batch " GRISAL_VERSION "\n");
}

} // namespace grisal::batch
