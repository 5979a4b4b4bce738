// SPDX-License-Identifier: MIT
#include "batch/Options.h"

#include "batch/CommandLine.h"
#include "batch/Paths.h"

#include <QCommandLineParser>
#include <QFile>
#include <QSet>
#include <QThread>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace grisal::batch
{

namespace
{

constexpr std::uint64_t maxQuality = 100;
constexpr std::uint64_t maxJobs = 1024;
constexpr std::uint64_t minMemory = std::uint64_t{64} << 20;
constexpr std::uint64_t maxShards = std::numeric_limits<int>::max();

/// A number of decimal digits; no value for other texts and for numbers above the limit.
std::optional<std::uint64_t> numberIn(const QString &text, std::uint64_t highest)
{
    const bool digitsOnly = std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    bool good = false;
    const std::uint64_t number = text.toULongLong(&good);
    return good && digitsOnly && number <= highest ? std::optional(number) : std::nullopt;
}

std::optional<std::uint64_t> bytesIn(QString text)
{
    constexpr QStringView suffixes = u"KMG";
    const qsizetype suffix = text.isEmpty() ? -1 : suffixes.indexOf(text.back(), 0, Qt::CaseInsensitive);
    const qsizetype shift = 10 * (suffix + 1);
    if (suffix >= 0) {
        text.chop(1);
    }
    const auto number = numberIn(text, std::numeric_limits<std::uint64_t>::max() >> shift);
    return number ? std::optional(*number << shift) : std::nullopt;
}

std::optional<Shard> shardIn(const QString &text)
{
    const QStringList parts = text.split(u'/');
    if (parts.size() != 2) {
        return std::nullopt;
    }
    const auto count = numberIn(parts.at(1), maxShards);
    const auto index = count ? numberIn(parts.at(0), *count) : std::nullopt;
    if (!index || *count == 0) {
        return std::nullopt;
    }
    return Shard{static_cast<int>(*index % *count), static_cast<int>(*count)};
}

bool isNamePattern(QString text)
{
    const bool hasName = text.contains(namePlaceholder);
    text.remove(namePlaceholder);
    return hasName && !text.contains(u'/') && !text.contains(u'{') && !text.contains(u'}');
}

QString withDashes(const QString &name)
{
    return (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name;
}

/// "--look, --film and --show-look"
QString enumeration(const QStringList &names)
{
    QStringList dashed;
    std::transform(names.begin(), names.end(), std::back_inserter(dashed), withDashes);
    const QString last = dashed.takeLast();
    return dashed.isEmpty() ? last : dashed.join(QStringLiteral(", ")) + QStringLiteral(" and ") + last;
}

/// Reads the options from the parser and keeps the first problem.
class OptionReader
{
public:
    explicit OptionReader(const QCommandLineParser &parser) : m_parser(parser) {}

    Options read();

    /// Moves invalid operands to their own list.
    void separate(const QStringList &invalid, Options &options);

    QString problem() const { return m_problem; }

private:
    void readOutput(Options &options);
    void readExecution(Options &options);
    void checkMode();
    void checkPrinting(const QString &mode);
    void checkCombinations(const Options &options);

    QString text(const QString &name, const char *allowed);
    int number(const QString &name, std::uint64_t lowest, std::uint64_t highest, int otherwise);

    template <typename Value>
    std::optional<Value> choice(const QString &name, const std::vector<std::pair<QString, Value>> &choices,
                                const char *allowed);

    bool isSet(const char *name) const { return m_parser.isSet(QString::fromUtf8(name)); }
    void refuse(const QString &name, const QString &value, const QString &allowed);
    void fail(const QString &problem);

    const QCommandLineParser &m_parser;
    QString m_problem;
};

Options OptionReader::read()
{
    Options options;
    checkMode();
    options.look = text("look", "the name of a picture or of a JSON file");
    options.film = text("film", "the name of a film, see --list-films");
    options.showLook = text("show-look", "the name of a picture or of a JSON file");
    options.listFilms = isSet("list-films");
    options.sources = m_parser.positionalArguments();
    options.filesFrom = text("files-from", "the name of a file, or '-' for standard input");
    options.nulSeparated = isSet("null");
    options.recursive = isSet("recursive");
    readOutput(options);
    readExecution(options);
    checkCombinations(options);
    return options;
}

void OptionReader::separate(const QStringList &invalid, Options &options)
{
    const QSet<QString> operands(options.sources.begin(), options.sources.end());
    for (const QString &argument : invalid) {
        if (operands.contains(argument)) {
            options.invalidSources.append(argument);
        } else {
            fail(QStringLiteral("The argument %1 is not valid UTF-8.").arg(quoted(argument)));
        }
    }
    const QSet<QString> leftOut(invalid.begin(), invalid.end());
    options.sources.removeIf([&leftOut](const QString &source) { return leftOut.contains(source); });
}

void OptionReader::readOutput(Options &options)
{
    using graphics::ImageFormat;
    std::vector<std::pair<QString, ImageFormat>> formats;
    for (const ImageFormat format : {ImageFormat::Jpeg, ImageFormat::Png, ImageFormat::Tiff}) {
        formats.emplace_back(graphics::extensionOf(format), format);
    }
    const std::vector<std::pair<QString, IfExists>> actions{
        {"error", IfExists::Error},
        {"skip", IfExists::Skip},
        {"overwrite", IfExists::Overwrite},
        {"update", IfExists::Update},
    };
    options.outputDir = text("output-dir", "the name of a folder");
    options.namePattern = text("name", "a name that contains {name}");
    if (isSet("name") && !isNamePattern(options.namePattern)) {
        refuse("name", options.namePattern, "a name that contains {name}, no other braces and no slash");
    }
    options.format = choice("format", formats, "jpg, png or tif");
    options.quality = number("quality", 0, maxQuality, options.quality);
    options.ifExists = choice("if-exists", actions, "error, skip, overwrite or update").value_or(options.ifExists);
}

void OptionReader::readExecution(Options &options)
{
    options.jobs = number("jobs", 1, maxJobs, QThread::idealThreadCount());
    const QString memory = m_parser.value("memory");
    options.memory = bytesIn(memory);
    if (isSet("memory") && options.memory.value_or(0) < minMemory) {
        refuse("memory", memory, "a number of bytes, or a number with the suffix K, M or G, of at least 64M");
    }
    const QString shard = m_parser.value("shard");
    options.shard = shardIn(shard).value_or(Shard());
    if (isSet("shard") && !shardIn(shard)) {
        refuse("shard", shard, "I/N, two whole numbers with 0 <= I <= N and N >= 1");
    }
    options.dryRun = isSet("dry-run");
    options.report = text("report", "the name of a file");
    options.quiet = isSet("quiet");
    options.verbose = isSet("verbose");
}

void OptionReader::checkMode()
{
    const QStringList modes{"look", "film", "show-look", "list-films"};
    QStringList given;
    std::copy_if(modes.begin(), modes.end(), std::back_inserter(given),
                 [this](const QString &mode) { return m_parser.isSet(mode); });
    if (given.size() != 1) {
        fail(QStringLiteral("Exactly one of %1 is needed, but %2 given.")
                 .arg(enumeration(modes),
                      given.isEmpty() ? QStringLiteral("none is") : enumeration(given) + QStringLiteral(" are")));
    } else if (given.contains("show-look") || given.contains("list-films")) {
        checkPrinting(given.constFirst());
    }
}

void OptionReader::checkPrinting(const QString &mode)
{
    const QStringList allowed{mode, "quiet", "verbose"};
    for (const OptionGroup &group : optionGroups()) {
        for (const QCommandLineOption &option : group.options) {
            const QString name = option.names().constLast();
            if (m_parser.isSet(name) && !allowed.contains(name)) {
                fail(QStringLiteral("--%1 only prints and takes no further options, but --%2 is given.")
                         .arg(mode, name));
            }
        }
    }
    const QStringList sources = m_parser.positionalArguments();
    if (!sources.isEmpty()) {
        fail(QStringLiteral("--%1 only prints and takes no sources, but %2 is given.")
                 .arg(mode, quoted(sources.constFirst())));
    }
}

void OptionReader::checkCombinations(const Options &options)
{
    const bool converts = isSet("look") || isSet("film");
    if (options.quiet && options.verbose) {
        fail(QStringLiteral("--quiet and --verbose exclude each other, but both are given."));
    }
    if (options.nulSeparated && options.filesFrom.isEmpty()) {
        fail(QStringLiteral("-0 separates the names in the file of --files-from, but --files-from is not given."));
    }
    if (converts && options.sources.isEmpty() && options.filesFrom.isEmpty()) {
        fail(QStringLiteral("No source is given; name a picture, a folder with -r, or a list with --files-from."));
    }
    if (options.sources.contains(QString())) {
        fail(QStringLiteral("The name of a source is empty; name a picture, or a folder with -r."));
    }
}

QString OptionReader::text(const QString &name, const char *allowed)
{
    QString value = m_parser.value(name);
    if (m_parser.isSet(name) && value.isEmpty()) {
        refuse(name, value, QString::fromUtf8(allowed));
    }
    return value;
}

int OptionReader::number(const QString &name, std::uint64_t lowest, std::uint64_t highest, int otherwise)
{
    if (!m_parser.isSet(name)) {
        return otherwise;
    }
    const QString value = m_parser.value(name);
    const std::optional<std::uint64_t> number = numberIn(value, highest);
    if (!number || *number < lowest) {
        refuse(name, value, QStringLiteral("a whole number from %1 to %2").arg(lowest).arg(highest));
        return otherwise;
    }
    return static_cast<int>(*number);
}

template <typename Value>
std::optional<Value> OptionReader::choice(const QString &name, const std::vector<std::pair<QString, Value>> &choices,
                                          const char *allowed)
{
    if (!m_parser.isSet(name)) {
        return std::nullopt;
    }
    const QString value = m_parser.value(name);
    for (const auto &[text, meaning] : choices) {
        if (value == text) {
            return meaning;
        }
    }
    refuse(name, value, QString::fromUtf8(allowed));
    return std::nullopt;
}

void OptionReader::refuse(const QString &name, const QString &value, const QString &allowed)
{
    fail(QStringLiteral("--%1 is %2, but must be %3.").arg(name, quoted(value), allowed));
}

void OptionReader::fail(const QString &problem)
{
    if (m_problem.isEmpty()) {
        m_problem = problem;
    }
}

EarlyExit exitFor(const QString &problem)
{
    return {QStringLiteral("grisal-batch: ") + problem + QStringLiteral("\nTry 'grisal-batch --help'.\n"), WrongUsage};
}

QString problemOf(const QCommandLineParser &parser)
{
    const QStringList unknown = parser.unknownOptionNames();
    return unknown.isEmpty() ? parser.errorText()
                             : QStringLiteral("There is no option %1.").arg(quoted(withDashes(unknown.constFirst())));
}

} // namespace

QStringList invalidArguments(int argc, const char *const *argv)
{
    QStringList invalid;
    for (const char *const *argument = argv; argument != argv + argc; ++argument) {
        const QString decoded = QFile::decodeName(*argument);
        if (QFile::encodeName(decoded) != *argument) {
            invalid.append(decoded);
        }
    }
    return invalid;
}

std::variant<Options, EarlyExit> parseOptions(const QStringList &arguments, const QStringList &invalid)
{
    QCommandLineParser parser;
    for (const OptionGroup &group : optionGroups()) {
        parser.addOptions(group.options);
    }
    if (!parser.parse(arguments)) {
        return exitFor(problemOf(parser));
    }
    if (parser.isSet(QStringLiteral("help"))) {
        return EarlyExit{helpText(), AllDone};
    }
    if (parser.isSet(QStringLiteral("version"))) {
        return EarlyExit{versionText(), AllDone};
    }
    OptionReader reader(parser);
    Options options = reader.read();
    reader.separate(invalid, options);
    if (!reader.problem().isEmpty()) {
        return exitFor(reader.problem());
    }
    return options;
}

} // namespace grisal::batch
