#include "programs/zr3tool/clsToolCommand.h"

#include <QCommandLineParser>

#include <algorithm>

namespace {

/// The groups of options that a command may have.
enum OptionGroup : unsigned { NoOptions = 0, ExportOptions = 1, JsonOption = 2 };

struct VerbRow {
    const char *word;
    clsToolCommand::Verb verb;
    int paths; ///< how many paths follow the word
    unsigned options = NoOptions;
};

constexpr VerbRow Verbs[] = {
    {"totals", clsToolCommand::Totals, 1},
    {"export", clsToolCommand::Export, 2, ExportOptions},
    {"check", clsToolCommand::Check, 1},
    {"save", clsToolCommand::Save, 2},
    // Its result is JSON with the option or without it.
    {"why", clsToolCommand::Why, 3, JsonOption},
    {"forecast", clsToolCommand::Forecast, 1, JsonOption},
    {"diff", clsToolCommand::Diff, 2, JsonOption},
};

const QString Force = QStringLiteral("force");
const QString Templates = QStringLiteral("templates");
const QString KeepSheets = QStringLiteral("keep-sheets");
const QString Quiet = QStringLiteral("quiet");
const QString Full = QStringLiteral("full");
const QString Json = QStringLiteral("json");
const QString Today = QStringLiteral("today");
const QString Pdf = QStringLiteral("pdf");
const QString NameByFile = QStringLiteral("name-by-file");
const QString HelpOption = QStringLiteral("help");
const QString VersionOption = QStringLiteral("version");

void addOptions(QCommandLineParser &parser)
{
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
    for (const QString &flag : {Force, KeepSheets, Quiet, Pdf, NameByFile, Full, Json, HelpOption, VersionOption})
        parser.addOption(QCommandLineOption(flag));
    parser.addOption(QCommandLineOption(Templates, QString(), QStringLiteral("DIR")));
    parser.addOption(QCommandLineOption(Today, QString(), QStringLiteral("DAY")));
}

bool hasExportOptions(const QCommandLineParser &parser)
{
    return parser.isSet(Force) || parser.isSet(Templates) || parser.isSet(KeepSheets) || parser.isSet(Quiet)
        || parser.isSet(Pdf) || parser.isSet(NameByFile);
}

unsigned optionsOf(const QCommandLineParser &parser)
{
    return (hasExportOptions(parser) ? ExportOptions : NoOptions) | (parser.isSet(Json) ? JsonOption : NoOptions);
}

/// `check --full`, which takes as many claims as there are and has options of its own.
std::optional<clsToolCommand> fullCheckOf(const QCommandLineParser &parser, const QStringList &words)
{
    clsToolCommand command;
    command.verb = clsToolCommand::CheckFull;
    command.claims = words.mid(1);
    command.json = parser.isSet(Json);
    if (words.value(0) != QLatin1String("check") || command.claims.isEmpty() || hasExportOptions(parser))
        return {};
    for (const QString &day : parser.values(Today)) {
        command.today = QDate::fromString(day, QStringLiteral("yyyy-MM-dd"));
        if (!command.today.isValid())
            return {};
    }
    return command;
}

std::optional<clsToolCommand> commandOf(const QCommandLineParser &parser)
{
    const QStringList words = parser.positionalArguments();
    if (parser.isSet(Full))
        return fullCheckOf(parser, words);
    if (parser.isSet(Today))
        return {};
    const auto *row = std::find_if(std::begin(Verbs), std::end(Verbs),
        [&](const VerbRow &candidate) { return !words.isEmpty() && words.first() == QLatin1String(candidate.word); });
    if (row == std::end(Verbs) || words.size() != row->paths + 1)
        return {};
    if (optionsOf(parser) & ~row->options)
        return {};
    // As from a variable of a script that was never set: the program's own templates are not what was asked for.
    if (parser.values(Templates).contains(QString()))
        return {};
    clsToolCommand command;
    command.verb = row->verb;
    command.claim = words[1];
    if (row->verb == clsToolCommand::Why) {
        command.kind = words[2];
        command.which = words[3];
        return command;
    }
    command.json = parser.isSet(Json);
    if (row->verb == clsToolCommand::Diff) {
        command.claims = words.mid(1);
        return command;
    }
    command.target = words.value(2);
    command.force = parser.isSet(Force);
    command.keepSheets = parser.isSet(KeepSheets);
    command.quiet = parser.isSet(Quiet);
    command.pdf = parser.isSet(Pdf);
    command.nameByFile = parser.isSet(NameByFile);
    command.templates = parser.value(Templates);
    return command;
}

} // namespace

std::optional<clsToolCommand> clsToolCommand::read(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(QStringList(QStringLiteral("zr3tool")) + arguments))
        return {};
    for (const auto &[option, verb] : {std::pair(HelpOption, Help), std::pair(VersionOption, Version)}) {
        if (parser.isSet(option) && arguments.size() == 1) {
            clsToolCommand command;
            command.verb = verb;
            return command;
        }
        if (parser.isSet(option))
            return {};
    }
    return commandOf(parser);
}

QString clsToolCommand::usage()
{
    return QStringLiteral(
        "Usage:\n"
        "  zr3tool totals CLAIM           every figure of the bill, as JSON\n"
        "  zr3tool export CLAIM FOLDER    the finished document into FOLDER\n"
        "  zr3tool check  CLAIM           the blank items check\n"
        "  zr3tool check  --full CLAIM... what is to be put right before a claim is sent\n"
        "  zr3tool save   CLAIM NEWFILE   brings the claim up to date and writes it to NEWFILE\n"
        "  zr3tool forecast CLAIM         the sheets and what doesn't fit its box, before any export\n"
        "  zr3tool why    CLAIM KIND N    how one figure comes about, as JSON; KIND and N are\n"
        "                                 schedule and an item's order, communications and KIND/LINE,\n"
        "                                 fas and an order, total and a key of totals, list and a column\n"
        "  zr3tool diff   OLD NEW         what changed between two claims, or two folders of claims\n"
        "  zr3tool --help | --version\n"
        "\n"
        "Options of check --full (it takes folders too):\n"
        "  --json             the findings as JSON\n"
        "  --today DAY        another day than today's, as YYYY-MM-DD\n"
        "\n"
        "Options of export:\n"
        "  --force            replace an existing document\n"
        "  --templates DIR    the folder of the page templates\n"
        "  --keep-sheets      leave the folder ~ZR3Temp with its sheets\n"
        "  --quiet            show no progress\n"
        "  --pdf              make the same as PDF beside the document\n"
        "  --name-by-file     name the document after the claim's file\n"
        "\n"
        "Option of forecast and diff:\n"
        "  --json             print it as JSON\n"
        "\n"
        "Exit status: 0 done; 1 wrong usage; 2 a claim can't be read; 3 blank items found, an error or a warning\n"
        "by check --full, or two claims differ; 4 a figure can't be computed, the export failed or would fail, or\n"
        "the PDF could not be made; 5 the document or the PDF exists already.\n"
        "A box whose text is no amount is told of and left as it is; the document is made all the same.\n");
}
