// SPDX-License-Identifier: MIT
#include "batch/Options.h"

#include "batch/CommandLine.h"

#include <QThread>

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace
{

using namespace grisal::batch;
using grisal::graphics::ImageFormat;

/// The arguments after the name of the program.
std::variant<Options, EarlyExit> parse(const QStringList &arguments)
{
    return parseOptions(QStringList{"grisal-batch"} + arguments);
}

Options optionsOf(const QStringList &arguments)
{
    const auto parsed = parse(arguments);
    if (const auto *early = std::get_if<EarlyExit>(&parsed)) {
        ADD_FAILURE() << early->text.toStdString();
        return {};
    }
    return std::get<Options>(parsed);
}

/// Those of a valid command line with additional arguments.
Options optionsWith(const QStringList &arguments)
{
    return optionsOf(QStringList{"--film", "Film", "a.jpg"} + arguments);
}

/// The text of wrong usage; empty if the arguments are valid.
std::string problemOf(const QStringList &arguments)
{
    const auto parsed = parse(arguments);
    const auto *early = std::get_if<EarlyExit>(&parsed);
    if (early == nullptr) {
        return {};
    }
    EXPECT_EQ(early->status, 2);
    EXPECT_TRUE(early->text.startsWith("grisal-batch: ")) << early->text.toStdString();
    EXPECT_TRUE(early->text.endsWith(".\nTry 'grisal-batch --help'.\n")) << early->text.toStdString();
    EXPECT_EQ(early->text.count('\n'), 2) << early->text.toStdString();
    return early->text.section('\n', 0, 0).mid(14).toStdString();
}

std::string problemWith(const QStringList &arguments)
{
    return problemOf(QStringList{"--film", "Film", "a.jpg"} + arguments);
}

TEST(Options, SeparateOperandsThatAreNotUtf8)
{
    const std::array<const char *, 7> argv{"grisal-batch", "--film",   "Film",    "a.jpg",
                                           "\xe9.jpg",     "\xe8.jpg", "\xc3\xa9"};
    const QString name = QStringLiteral("\ufffd.jpg");
    const QStringList invalid = invalidArguments(argv.size(), argv.data());
    EXPECT_EQ(invalid, (QStringList{name, name}));

    const auto parsed = parseOptions({"grisal-batch", "--film", "Film", "a.jpg", name, name}, invalid);
    ASSERT_TRUE(std::holds_alternative<Options>(parsed));
    EXPECT_EQ(std::get<Options>(parsed).sources, QStringList{"a.jpg"});
    EXPECT_EQ(std::get<Options>(parsed).invalidSources, invalid);
    EXPECT_TRUE(std::holds_alternative<EarlyExit>(
        parseOptions({"grisal-batch", "--film", "Film", "-o", name, "a.jpg"}, {name})));
}

TEST(Options, HaveDefaults)
{
    const Options options = optionsOf({"--film", "Film", "a.jpg"});
    EXPECT_EQ(options.film, "Film");
    EXPECT_EQ(options.sources, QStringList{"a.jpg"});
    EXPECT_EQ(options.look, "");
    EXPECT_EQ(options.outputDir, "");
    EXPECT_EQ(options.namePattern, "");
    EXPECT_FALSE(options.format);
    EXPECT_EQ(options.quality, 90);
    EXPECT_EQ(options.jobs, QThread::idealThreadCount());
    EXPECT_EQ(options.ifExists, IfExists::Error);
    EXPECT_FALSE(options.recursive);
    EXPECT_EQ(options.filesFrom, "");
    EXPECT_FALSE(options.nulSeparated);
    EXPECT_EQ(options.shard.index, 0);
    EXPECT_EQ(options.shard.count, 1);
    EXPECT_FALSE(options.memory);
    EXPECT_FALSE(options.dryRun);
    EXPECT_EQ(options.report, "");
    EXPECT_FALSE(options.quiet);
    EXPECT_FALSE(options.verbose);
    EXPECT_EQ(options.showLook, "");
    EXPECT_FALSE(options.listFilms);
}

TEST(Options, AreReadFromLongNames)
{
    const Options options =
        optionsOf({"--look", "a.json", "--output-dir", "bw", "--name", "x{name}y", "--format=tif", "--quality=75",
                   "--jobs=3", "--if-exists=update", "--recursive", "--files-from=list", "--null", "--memory=64M",
                   "--shard=2/5", "--dry-run", "--report", "r.jsonl", "--verbose"});
    EXPECT_EQ(options.look, "a.json");
    EXPECT_EQ(options.outputDir, "bw");
    EXPECT_EQ(options.namePattern, "x{name}y");
    EXPECT_EQ(options.format, ImageFormat::Tiff);
    EXPECT_EQ(options.quality, 75);
    EXPECT_EQ(options.jobs, 3);
    EXPECT_EQ(options.ifExists, IfExists::Update);
    EXPECT_TRUE(options.recursive);
    EXPECT_EQ(options.filesFrom, "list");
    EXPECT_TRUE(options.nulSeparated);
    EXPECT_EQ(options.memory, 64U << 20U);
    EXPECT_EQ(options.shard.index, 2);
    EXPECT_EQ(options.shard.count, 5);
    EXPECT_TRUE(options.dryRun);
    EXPECT_EQ(options.report, "r.jsonl");
    EXPECT_TRUE(options.verbose);
    EXPECT_TRUE(options.sources.isEmpty());
}

TEST(Options, AreReadFromLetters)
{
    const Options options = optionsOf({"-fFilm", "-o", "bw", "-j8", "-rq", "--files-from", "-", "-0"});
    EXPECT_EQ(options.film, "Film");
    EXPECT_EQ(options.outputDir, "bw");
    EXPECT_EQ(options.jobs, 8);
    EXPECT_TRUE(options.recursive);
    EXPECT_TRUE(options.quiet);
    EXPECT_EQ(options.filesFrom, "-");
    EXPECT_TRUE(options.nulSeparated);
    EXPECT_EQ(optionsOf({"-l", "a.jpg", "b.jpg"}).look, "a.jpg");
    EXPECT_TRUE(optionsWith({"-v"}).verbose);
}

TEST(Options, MayFollowSources)
{
    const Options options = optionsOf({"a.jpg", "-o", "bw", "b.jpg", "--film", "Film"});
    EXPECT_EQ(options.sources, (QStringList{"a.jpg", "b.jpg"}));
    EXPECT_EQ(options.outputDir, "bw");
}

TEST(Options, EndAtTwoDashes)
{
    const Options options = optionsOf({"--film", "Film", "--", "-r", "--look"});
    EXPECT_EQ(options.sources, (QStringList{"-r", "--look"}));
    EXPECT_FALSE(options.recursive);
}

TEST(Options, HaveTheLastOfSeveralValues)
{
    EXPECT_EQ(optionsWith({"--quality", "10", "--quality", "20"}).quality, 20);
}

TEST(Options, ContainEveryFormatAndAction)
{
    EXPECT_EQ(optionsWith({"--format", "jpg"}).format, ImageFormat::Jpeg);
    EXPECT_EQ(optionsWith({"--format", "png"}).format, ImageFormat::Png);
    EXPECT_EQ(optionsWith({"--format", "tif"}).format, ImageFormat::Tiff);
    EXPECT_EQ(optionsWith({"--if-exists", "error"}).ifExists, IfExists::Error);
    EXPECT_EQ(optionsWith({"--if-exists", "skip"}).ifExists, IfExists::Skip);
    EXPECT_EQ(optionsWith({"--if-exists", "overwrite"}).ifExists, IfExists::Overwrite);
    EXPECT_EQ(optionsWith({"--if-exists", "update"}).ifExists, IfExists::Update);
}

TEST(Options, RequireExactlyOneLookOrList)
{
    EXPECT_EQ(problemOf({}),
              "Exactly one of --look, --film, --show-look and --list-films is needed, but none is given.");
    EXPECT_EQ(
        problemOf({"a.jpg", "--look", "b", "--film", "c"}),
        "Exactly one of --look, --film, --show-look and --list-films is needed, but --look and --film are given.");
    EXPECT_NE(problemOf({"--film", "a", "--list-films"}), "");
    EXPECT_NE(problemOf({"--show-look", "a", "--list-films"}), "");
}

TEST(Options, RequireSourcesOrAList)
{
    EXPECT_EQ(problemOf({"--film", "Film"}),
              "No source is given; name a picture, a folder with -r, or a list with --files-from.");
    EXPECT_EQ(problemOf({"--film", "Film", "--files-from", "list"}), "");
    EXPECT_EQ(problemOf({"--film", "Film", "a.jpg", ""}),
              "The name of a source is empty; name a picture, or a folder with -r.");
}

TEST(Options, ThatPrintTakeNeitherSourcesNorOtherOptions)
{
    EXPECT_EQ(optionsOf({"--show-look", "a.jpg"}).showLook, "a.jpg");
    EXPECT_TRUE(optionsOf({"--list-films"}).listFilms);
    EXPECT_TRUE(optionsOf({"--list-films", "-v"}).verbose);
    EXPECT_EQ(problemOf({"--show-look", "a.jpg", "b.jpg"}),
              "--show-look only prints and takes no sources, but 'b.jpg' is given.");
    EXPECT_EQ(problemOf({"--list-films", "b.jpg"}),
              "--list-films only prints and takes no sources, but 'b.jpg' is given.");
    EXPECT_EQ(problemOf({"--show-look", "a.jpg", "-o", "b.json"}),
              "--show-look only prints and takes no further options, but --output-dir is given.");
    EXPECT_NE(problemOf({"--show-look", "a.jpg", "--files-from", "list"}), "");
}

TEST(Options, ThatExcludeEachOtherAreRejected)
{
    EXPECT_EQ(problemWith({"-q", "-v"}), "--quiet and --verbose exclude each other, but both are given.");
    EXPECT_EQ(problemWith({"-0"}),
              "-0 separates the names in the file of --files-from, but --files-from is not given.");
}

TEST(Options, RejectNumbersOutOfRange)
{
    EXPECT_EQ(problemWith({"--quality", "101"}), "--quality is '101', but must be a whole number from 0 to 100.");
    EXPECT_EQ(problemWith({"-j", "0"}), "--jobs is '0', but must be a whole number from 1 to 1024.");
    for (const char *text : {"-1", "+5", " 5", "5 ", "x", "", "1.5", "0x10", "99999999999999999999"}) {
        EXPECT_NE(problemWith({"--quality", text}), "") << text;
        EXPECT_NE(problemWith({"--jobs", text}), "") << text;
    }
    EXPECT_EQ(optionsWith({"--quality", "0"}).quality, 0);
    EXPECT_EQ(optionsWith({"--quality", "100"}).quality, 100);
    EXPECT_EQ(optionsWith({"--jobs", "1"}).jobs, 1);
}

TEST(Options, ReadMemoryInBytesOrWithASuffix)
{
    EXPECT_EQ(optionsWith({"--memory", "67108864"}).memory, 67108864U);
    EXPECT_EQ(optionsWith({"--memory", "65536K"}).memory, 67108864U);
    EXPECT_EQ(optionsWith({"--memory", "64m"}).memory, 67108864U);
    EXPECT_EQ(optionsWith({"--memory", "8G"}).memory, std::uint64_t{8} << 30U);
    EXPECT_EQ(optionsWith({"--memory", "17179869183G"}).memory, std::uint64_t{17179869183U} << 30U);
}

TEST(Options, RejectMemoryThatIsTooLittleOrNoSize)
{
    EXPECT_EQ(problemWith({"--memory", "63M"}),
              "--memory is '63M', but must be a number of bytes, or a number with the "
              "suffix K, M or G, of at least 64M.");
    for (const char *text : {"67108863", "0", "", "M", "-64M", "64MB", "64T", "64 M", "1.5G", "17179869184G"}) {
        EXPECT_NE(problemWith({"--memory", text}), "") << text;
    }
}

TEST(Options, CountShardsFromZeroOrOne)
{
    EXPECT_EQ(optionsWith({"--shard", "0/3"}).shard.index, 0);
    EXPECT_EQ(optionsWith({"--shard", "1/3"}).shard.index, 1);
    EXPECT_EQ(optionsWith({"--shard", "3/3"}).shard.index, 0);
    EXPECT_EQ(optionsWith({"--shard", "3/3"}).shard.count, 3);
    EXPECT_EQ(optionsWith({"--shard", "1/1"}).shard.index, 0);
}

TEST(Options, RejectInvalidShards)
{
    EXPECT_EQ(problemWith({"--shard", "4/3"}),
              "--shard is '4/3', but must be I/N, two whole numbers with 0 <= I <= N and N >= 1.");
    for (const char *text : {"", "1", "1/", "/1", "0/0", "-1/3", "1/2/3", "a/b", "1/99999999999"}) {
        EXPECT_NE(problemWith({"--shard", text}), "") << text;
    }
}

TEST(Options, RejectNamePatternsThatAreNoNames)
{
    EXPECT_EQ(problemWith({"--name", "bw"}),
              "--name is 'bw', but must be a name that contains {name}, no other braces and no slash.");
    for (const char *text : {"", "a/{name}", "{name}{", "{name}}", "{name}{x}", "{{name}}", "{NAME}"}) {
        EXPECT_NE(problemWith({"--name", text}), "") << text;
    }
    EXPECT_EQ(optionsWith({"--name", "{name}-{name}"}).namePattern, "{name}-{name}");
}

TEST(Options, RejectUnknownChoices)
{
    EXPECT_EQ(problemWith({"--format", "gif"}), "--format is 'gif', but must be jpg, png or tif.");
    EXPECT_EQ(problemWith({"--if-exists", "ask"}),
              "--if-exists is 'ask', but must be error, skip, overwrite or update.");
}

TEST(Options, RejectEmptyValues)
{
    EXPECT_EQ(problemWith({"-o", ""}), "--output-dir is '', but must be the name of a folder.");
    for (const char *name : {"--files-from", "--report", "--format", "--if-exists", "--name"}) {
        EXPECT_NE(problemWith({name, ""}), "") << name;
    }
    EXPECT_NE(problemOf({"--look", "", "a.jpg"}), "");
    EXPECT_NE(problemOf({"--film", "", "a.jpg"}), "");
    EXPECT_NE(problemOf({"--show-look", ""}), "");
}

TEST(Options, RejectUnknownNamesAndMissingOrUnexpectedValues)
{
    EXPECT_EQ(problemWith({"--qualty", "9"}), "There is no option '--qualty'.");
    EXPECT_EQ(problemWith({"-x"}), "There is no option '-x'.");
    EXPECT_EQ(problemWith({"--quality"}), "Missing value after '--quality'.");
    EXPECT_EQ(problemWith({"--recursive=yes"}), "Unexpected value after '--recursive'.");
}

TEST(Options, EscapeControlCharactersOfWrongUsage)
{
    EXPECT_EQ(problemWith({"--a\n=\x1b[1m"}), "There is no option '--a\\n'.");
    EXPECT_EQ(problemWith({"-\x1b"}), "There is no option '-\\x1b'.");
    EXPECT_EQ(problemWith({"--format", "\x1b[1m\n"}), "--format is '\\x1b[1m\\n', but must be jpg, png or tif.");
}

TEST(Options, AreNotNeededForHelpAndVersion)
{
    for (const QStringList &arguments : {QStringList{"--help"}, QStringList{"-h"}, QStringList{"a.jpg", "--help"}}) {
        const auto parsed = parse(arguments);
        const auto *early = std::get_if<EarlyExit>(&parsed);
        ASSERT_NE(early, nullptr);
        EXPECT_EQ(early->status, 0);
        EXPECT_EQ(early->text, helpText());
    }
    const auto parsed = parse({"--version"});
    const auto *early = std::get_if<EarlyExit>(&parsed);
    ASSERT_NE(early, nullptr);
    EXPECT_EQ(early->status, 0);
    EXPECT_TRUE(early->text.startsWith("grisal-batch ")) << early->text.toStdString();
    EXPECT_TRUE(early->text.endsWith('\n'));
}

TEST(Help, ContainsUsageAllOptionsAndExamples)
{
    const QString help = helpText();
    EXPECT_TRUE(help.startsWith("Usage: grisal-batch "));
    for (const OptionGroup &group : optionGroups()) {
        for (const QCommandLineOption &option : group.options) {
            EXPECT_TRUE(help.contains("--" + option.names().constLast())) << option.names().constLast().toStdString();
            EXPECT_FALSE(option.description().isEmpty());
        }
    }
    for (const char *example :
         {"grisal-batch --film \"Rochester Tri-X\" -o bw/ *.jpg\n", "grisal-batch --look best.jpg -o bw/ -r holiday/\n",
          "grisal-batch --show-look best.jpg > portrait.json\n",
          "grisal-batch --look portrait.json -o /bw --files-from - -0 --jobs 8\n"}) {
        EXPECT_TRUE(help.contains(example)) << example;
    }
}

TEST(Help, FitsIntoEightyColumns)
{
    for (const QString &line : helpText().split('\n')) {
        EXPECT_LE(line.size(), 80) << line.toStdString();
    }
}

} // namespace
