#include "programs/zr3tool/clsToolCommand.h"

#include "base/mdClock.h"
#include "costing/tables/mdTableColumns.h"

#include <QCommandLineParser>

#include <algorithm>

namespace {

/// Groups of options; a command allows some of them.
enum OptionGroup : unsigned {
    NoOptions = 0,
    ExportOptions = 1,
    JsonOption = 2,
    ImportOptions = 4,
    TodayOption = 8,
    CsvOption = 16,
    ManyOptions = 32, ///< of commands that take several claims
    FollowOption = 64,
    WordsOption = 128,
};

struct VerbRow {
    const char *word;
    clsToolCommand::Verb verb;
    int paths; ///< the number of paths after the word
    unsigned options = NoOptions;
};

constexpr VerbRow Verbs[] = {
    {"save", clsToolCommand::Save, 2},
    // JSON with or without the option.
    {"why", clsToolCommand::Why, 3, JsonOption},
    {"forecast", clsToolCommand::Forecast, 1, JsonOption},
    {"diff", clsToolCommand::Diff, 2, JsonOption | WordsOption},
    {"table", clsToolCommand::Table, 2},
    {"import", clsToolCommand::Import, 2, ImportOptions},
};

/// The commands that take any number of claims and folders.
struct ManyRow {
    const char *word;
    bool isFull; ///< with the option "full"
    clsToolCommand::Verb verb;
    unsigned options;
};

constexpr ManyRow ManyVerbs[] = {
    {"totals", false, clsToolCommand::Totals, ManyOptions},
    {"check", false, clsToolCommand::Check, ManyOptions},
    {"check", true, clsToolCommand::CheckFull, ManyOptions | JsonOption | TodayOption},
    {"list", false, clsToolCommand::List, ManyOptions | JsonOption | TodayOption | CsvOption | FollowOption},
    {"export", false, clsToolCommand::Export, ManyOptions | ExportOptions},
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
const QString Csv = QStringLiteral("csv");
const QString JsonLines = QStringLiteral("jsonl");
const QString Follow = QStringLiteral("follow");
const QString InWords = QStringLiteral("words");
const QString Newer = QStringLiteral("newer");
const QString Jobs = QStringLiteral("jobs");
const QString Items = QStringLiteral("items");
const QString Map = QStringLiteral("map");
const QString Doubles = QStringLiteral("doubles");
const QString HelpOption = QStringLiteral("help");
const QString VersionOption = QStringLiteral("version");

void addOptions(QCommandLineParser &parser)
{
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
    for (const QString &flag : {Force, KeepSheets, Quiet, Pdf, NameByFile, Newer, Full, Json, Csv, JsonLines, Follow,
             InWords, Doubles, HelpOption, VersionOption})
        parser.addOption(QCommandLineOption(flag));
    parser.addOption(QCommandLineOption(Templates, QString(), QStringLiteral("DIR")));
    parser.addOption(QCommandLineOption(Items, QString(), QStringLiteral("ROWS")));
    parser.addOption(QCommandLineOption(Map, QString(), QStringLiteral("NAME=COLUMN")));
    parser.addOption(QCommandLineOption(Jobs, QString(), QStringLiteral("N")));
    parser.addOption(QCommandLineOption(Today, QString(), QStringLiteral("DAY")));
}

unsigned optionsOf(const QCommandLineParser &parser)
{
    const auto group = [&](OptionGroup of, const QStringList &options) {
        return std::any_of(options.begin(), options.end(), [&](const QString &option) { return parser.isSet(option); })
            ? of
            : NoOptions;
    };
    return group(ExportOptions, {Force, Templates, KeepSheets, Quiet, Pdf, NameByFile, Newer})
        | group(JsonOption, {Json}) | group(CsvOption, {Csv}) | group(TodayOption, {Today})
        | group(ManyOptions, {JsonLines, Jobs}) | group(FollowOption, {Follow}) | group(WordsOption, {InWords})
        | group(ImportOptions, {Items, Map, Doubles});
}

/// Reads the options of an import; false if they are invalid.
bool addImport(clsToolCommand &command, const QCommandLineParser &parser)
{
    command.items = parser.value(Items);
    command.doubles = parser.isSet(Doubles);
    for (const QString &map : parser.values(Map)) {
        // The last sign, because the name in the table may contain one too.
        const qsizetype sign = map.lastIndexOf(u'=');
        if (sign < 1 || mdColumnOf(mdScheduleColumns(), map.mid(sign + 1)) < 0)
            return false;
        command.columns.emplace_back(map.left(sign), map.mid(sign + 1));
    }
    return !command.items.isEmpty();
}

/// Reads options that have values; false if one is invalid.
bool addValues(clsToolCommand &command, const QCommandLineParser &parser)
{
    for (const QString &day : parser.values(Today)) {
        command.today = QDate::fromString(day, QStringLiteral("yyyy-MM-dd"));
        if (!command.today.isValid())
            return false;
    }
    for (const QString &number : parser.values(Jobs)) {
        constexpr int Most = 1000;
        bool isNumber = false;
        command.jobs = number.toInt(&isNumber);
        if (!isNumber || command.jobs < 1 || command.jobs > Most)
            return false;
    }
    command.templates = parser.value(Templates);
    // An empty value, as from an unset variable of a script, must not select the program's own templates.
    return !parser.values(Templates).contains(QString());
}

std::optional<clsToolCommand> manyCommandOf(const ManyRow &row, const QCommandLineParser &parser)
{
    clsToolCommand command;
    command.verb = row.verb;
    command.claims = parser.positionalArguments().mid(1);
    if (row.verb == clsToolCommand::Export && !command.claims.isEmpty())
        command.target = command.claims.takeLast();
    const int forms = int(parser.isSet(Json)) + int(parser.isSet(Csv)) + int(parser.isSet(JsonLines));
    // Changes are written line by line, so only JSON lines fit.
    if (parser.isSet(Follow) && !parser.isSet(JsonLines))
        return {};
    if (command.claims.isEmpty() || forms > 1 || !addValues(command, parser))
        return {};
    command.claim = command.claims.front();
    command.json = parser.isSet(Json);
    command.csv = parser.isSet(Csv);
    command.jsonLines = parser.isSet(JsonLines);
    command.follow = parser.isSet(Follow);
    command.force = parser.isSet(Force);
    command.keepSheets = parser.isSet(KeepSheets);
    command.quiet = parser.isSet(Quiet);
    command.pdf = parser.isSet(Pdf);
    command.nameByFile = parser.isSet(NameByFile);
    command.newer = parser.isSet(Newer);
    return command;
}

template <class Rows, class IsIt> auto rowOf(const Rows &rows, IsIt isIt)
{
    const auto *row = std::find_if(std::begin(rows), std::end(rows), isIt);
    return row == std::end(rows) ? nullptr : row;
}

std::optional<clsToolCommand> commandOf(const QCommandLineParser &parser)
{
    const QStringList words = parser.positionalArguments();
    const QString word = words.value(0);
    if (const ManyRow *row = rowOf(ManyVerbs, [&](const ManyRow &candidate) {
            return word == QLatin1String(candidate.word) && parser.isSet(Full) == candidate.isFull;
        }))
        return optionsOf(parser) & ~row->options ? std::nullopt : manyCommandOf(*row, parser);
    const VerbRow *row = rowOf(Verbs, [&](const VerbRow &candidate) { return word == QLatin1String(candidate.word); });
    if (!row || words.size() != row->paths + 1 || parser.isSet(Full))
        return {};
    if (optionsOf(parser) & ~row->options)
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
    command.words = parser.isSet(InWords);
    if (row->verb == clsToolCommand::Table) {
        command.which = words[2];
        return command;
    }
    if (row->verb == clsToolCommand::Import && !addImport(command, parser))
        return {};
    if (row->verb == clsToolCommand::Diff) {
        command.claims = words.mid(1);
        return command;
    }
    command.target = words.value(2);
    return command;
}

} // namespace

QDate clsToolCommand::dayOfCheck() const
{
    return today.isValid() ? today : Now().date();
}

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
        "  zr3tool list   PATH...         one line for each claim: who, what, how much, what is wrong\n"
        "  zr3tool totals PATH...         every figure of the bill, as JSON\n"
        "  zr3tool export PATH... FOLDER  the finished documents into FOLDER\n"
        "  zr3tool check  PATH...         the blank items check\n"
        "  zr3tool check  --full PATH...  what is to be put right before a claim is sent\n"
        "  zr3tool save   CLAIM NEWFILE   brings the claim up to date and writes it to NEWFILE\n"
        "  zr3tool forecast CLAIM         the sheets and what doesn't fit its box, before any export\n"
        "  zr3tool why    CLAIM KIND N    how one figure comes about, as JSON; KIND and N are\n"
        "                                 schedule and an item's order, communications and KIND/LINE,\n"
        "                                 fas and an order, total and a key of totals, list and a column\n"
        "  zr3tool diff   OLD NEW         what changed between two claims, or two folders of claims\n"
        "  zr3tool table  CLAIM LIST      a list of the claim as CSV; LIST is schedule, disbursements, experts, "
        "joint,\n"
        "                                 fas, communications, counsel, feeearners, groups, enhancements or totals\n"
        "  zr3tool import CLAIM NEWFILE   adds the schedule items of a table and writes the claim to NEWFILE\n"
        "  zr3tool --help | --version\n"
        "\n"
        "PATH is a claim, or a folder, which stands for all claims below it. One claim prints its own\n"
        "result; a folder, or several paths, print a list.\n"
        "\n"
        "Options of all commands that take several claims:\n"
        "  --jsonl            print each claim's result as one line of JSON as soon as its turn has come\n"
        "  --jobs N           work on N claims at a time; without it, as many as there are processors\n"
        "\n"
        "Options of list and check --full:\n"
        "  --json             print it as JSON\n"
        "  --csv              print it as CSV (list only)\n"
        "  --follow           with --jsonl: go on until told to end, and print what changes (list only)\n"
        "  --today DAY        another day than today's, as YYYY-MM-DD\n"
        "\n"
        "Options of export:\n"
        "  --force            replace an existing document\n"
        "  --newer            pass by a claim whose document is newer than itself\n"
        "  --templates DIR    the folder of the page templates\n"
        "  --keep-sheets      leave the folder ~ZR3Temp with its sheets\n"
        "  --quiet            show no progress\n"
        "  --pdf              make the same as PDF beside the document\n"
        "  --name-by-file     name the document after the claim's file, as with several claims\n"
        "\n"
        "Options of forecast and diff:\n"
        "  --json             print it as JSON\n"
        "  --words            diff only: names in place of identities and stored values, also in JSON\n"
        "\n"
        "Options of import:\n"
        "  --items TABLE      the table: CSV or separated by semicolons or tabs, with a header\n"
        "  --map NAME=COLUMN  what a column is called in the table, such as \"Activity=code\"\n"
        "  --doubles          add rows too that the claim has already\n"
        "\n"
        "Exit status, of several claims the greatest: 0 done; 1 wrong usage; 2 a claim or a table can't be read;\n"
        "3 blank items found, an error or a warning by check --full, two claims differ, or a row of a table is\n"
        "wrong; 4 a figure can't be computed, the export failed or would fail, or the PDF could not be made;\n"
        "5 the document or the PDF exists already.\n"
        "A box whose text is no amount is told of and left as it is; the document is made all the same.\n");
}
