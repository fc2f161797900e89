// The command line.

#include "base/mdGetVersionInfo.h"
#include "tests/zr3tool/clsToolTest.h"

namespace {

class Usage : public clsToolTest { };

} // namespace

TEST_F(Usage, WrongCommandLinesGetTheUsageAndStatusOne)
{
    const QString claim = mdSamplePath("empty.zr3"_q);
    const QStringList rows[] = {
        {},
        {""_q},
        {"bill"_q},
        {"Totals"_q, claim},
        {"totals"_q},
        {claim},
        {claim, "totals"_q},
        {"check"_q},
        {"check"_q, "--full"_q},
        {"totals"_q, "--full"_q, claim},
        {"check"_q, "--full"_q, claim, "--force"_q},
        {"check"_q, "--full"_q, claim, "--doubles"_q},
        {"check"_q, "--full"_q, claim, "--today"_q},
        {"check"_q, "--full"_q, claim, "--today"_q, "03/06/25"_q},
        {"check"_q, "--full"_q, claim, "--today"_q, "2025-02-30"_q},
        {"check"_q, "--full"_q, claim, "--today"_q, "2025-6-3"_q},
        {"check"_q, "--full"_q, claim, "--today="_q},
        {"check"_q, claim, "--json"_q},
        {"check"_q, claim, "--today"_q, "2025-06-03"_q},
        {"why"_q, claim},
        {"why"_q, claim, "schedule"_q},
        {"why"_q, claim, "schedule"_q, "1"_q, "2"_q},
        {"why"_q, claim, "schedule"_q, "1"_q, "--json"_q},
        {"diff"_q},
        {"diff"_q, claim},
        {"diff"_q, claim, claim, claim},
        {"diff"_q, claim, claim, "--quiet"_q},
        {"forecast"_q, claim, "--words"_q},
        {"table"_q},
        {"table"_q, claim},
        {"table"_q, claim, "Schedule"_q},
        {"table"_q, claim, "list"_q},
        {"table"_q, claim, "schedule"_q, "--json"_q},
        {"table"_q, claim, "schedule"_q, "totals"_q},
        {"import"_q, claim, "new.zr3"_q},
        {"import"_q, claim, "--items"_q, "rows.csv"_q},
        {"import"_q, claim, "new.zr3"_q, "--items="_q},
        {"import"_q, claim, "new.zr3"_q, "--doubles"_q},
        {"import"_q, claim, "new.zr3"_q, "--items"_q, "rows.csv"_q, "--map"_q, "Activity"_q},
        {"import"_q, claim, "new.zr3"_q, "--items"_q, "rows.csv"_q, "--map"_q, "=code"_q},
        {"import"_q, claim, "new.zr3"_q, "--items"_q, "rows.csv"_q, "--map"_q, "Activity=work"_q},
        {"import"_q, claim, "new.zr3"_q, "--items"_q, "rows.csv"_q, "--force"_q},
        {"save"_q, claim, "new.zr3"_q, "--items"_q, "rows.csv"_q},
        {"save"_q},
        {"save"_q, claim},
        {"save"_q, claim, "a"_q, "b"_q},
        {"export"_q},
        {"export"_q, claim},
        {"export"_q, claim, "a"_q, "--templates"_q},
        {"export"_q, claim, "a"_q, "--templates"_q, ""_q},
        {"export"_q, claim, "a"_q, "--templates="_q},
        {"export"_q, claim, "a"_q, "--templates="_q, "--templates"_q, "x"_q},
        {"export"_q, claim, "a"_q, "--force=yes"_q},
        {"export"_q, claim, "a"_q, "--unknown"_q},
        {"export"_q, claim, "a"_q, "-f"_q},
        {"totals"_q, claim, "--force"_q},
        {"totals"_q, claim, "--quiet"_q},
        {"check"_q, claim, "--keep-sheets"_q},
        {"save"_q, claim, "a"_q, "--templates"_q, "x"_q},
        {"forecast"_q},
        {"forecast"_q, claim, claim},
        {"forecast"_q, claim, "--quiet"_q},
        {"forecast"_q, claim, "--pdf"_q},
        {"totals"_q, claim, "--json"_q},
        {"export"_q, claim, "a"_q, "--json"_q},
        {"check"_q, claim, "--name-by-file"_q},
        {"list"_q},
        {"list"_q, claim, "--csv"_q, "--json"_q},
        {"list"_q, claim, "--csv"_q, "--jsonl"_q},
        {"list"_q, claim, "--jobs"_q},
        {"list"_q, claim, "--jobs"_q, "0"_q},
        {"list"_q, claim, "--jobs=two"_q},
        {"list"_q, claim, "--jobs="_q},
        {"list"_q, claim, "--newer"_q},
        {"list"_q, claim, "--follow"_q},
        {"list"_q, claim, "--follow"_q, "--json"_q},
        {"check"_q, claim, "--follow"_q, "--jsonl"_q},
        {"list"_q, claim, "--full"_q},
        {"list"_q, claim, "--today"_q, "2025-02-30"_q},
        {"totals"_q, claim, claim, "--csv"_q},
        {"totals"_q, claim, "--newer"_q},
        {"check"_q, "--full"_q, claim, "--csv"_q},
        {"check"_q, "--full"_q, claim, "--json"_q, "--jsonl"_q},
        {"save"_q, claim, "a"_q, "--jobs"_q, "2"_q},
        {"why"_q, claim, "schedule"_q, "1"_q, "--jsonl"_q},
        {"export"_q, claim, "a"_q, "--csv"_q},
        {"--help"_q, "totals"_q},
        {"--help"_q, "--version"_q},
        {"totals"_q, claim, "--version"_q},
        {"-h"_q},
        {"--quiet"_q},
    };
    for (const QStringList &arguments : rows) {
        const clsToolResult result = run(arguments);
        EXPECT_EQ(1, result.status) << arguments.join(u' ').toStdString();
        EXPECT_EQ("", result.out);
        EXPECT_TRUE(result.err.startsWith("Usage:\n")) << result.err.constData();
        EXPECT_EQ(1, result.err.count("Usage:"));
    }
    EXPECT_EQ(QStringList(), filesOf(folder.path()));
}

TEST_F(Usage, HelpIsTheSameUsageAsAResult)
{
    const clsToolResult help = run({"--help"_q});
    EXPECT_EQ(0, help.status);
    EXPECT_EQ("", help.err);
    EXPECT_EQ(run({}).err, help.out);
    for (const char *word : {"list", "totals", "export", "check", "save", "--jsonl", "--csv", "--follow", "--newer",
             "--jobs", "why", "forecast", "diff", "table", "import", "--items", "--map", "--doubles", "--full",
             "--json", "--words", "--today", "--force", "--templates", "--keep-sheets", "--quiet", "--pdf",
             "--name-by-file", "--help", "--version"})
        EXPECT_TRUE(help.out.contains(word)) << word;
}

TEST_F(Usage, TheVersionIsTheProgramsOwn)
{
    const clsToolResult version = run({"--version"_q});
    EXPECT_EQ(0, version.status);
    EXPECT_EQ("", version.err);
    EXPECT_EQ("Velmor ZR3 " + GetVersionInfo().toLatin1() + "\n", version.out);
}

TEST_F(Usage, OptionsMayStandAnywhereAndPathsMayBeginWithADash)
{
    clsZR3Form form;
    putClaim(form, "-claim.zr3");
    EXPECT_EQ(0, run({"check"_q, "--"_q, "-claim.zr3"_q}).status);
    // The folder is missing: the command line was read.
    EXPECT_EQ(4, run({"--quiet"_q, "export"_q, "--force"_q, mdSamplePath("empty.zr3"_q), "missing"_q}).status);
}

TEST_F(Usage, AResultThatCanNotBeWrittenIsAFailure)
{
    if (!QFile::exists("/dev/full"_q))
        GTEST_SKIP() << "this system has no device that is always full";
    const QString claim = mdSamplePath("housing-typical.zr3"_q);
    for (const QStringList &arguments :
        {QStringList {"totals"_q, claim}, {"check"_q, claim}, {"--help"_q}, {"--version"_q}}) {
        const clsToolResult result = run(arguments, "/dev/full"_q);
        EXPECT_EQ(4, result.status) << arguments.join(u' ').toStdString();
        EXPECT_EQ("Standard output: The result could not be written.\n", result.err);
    }
}

TEST_F(Usage, NeedsNoPreferences)
{
    // The configuration names a database folder that does not exist.
    ASSERT_TRUE(QDir(folder.path()).mkpath("config/Velmor"_q));
    put("config/Velmor/ZR3.conf", "[General]\nDatabase%20Path=/no/such/folder\n");
    const clsToolResult result = run({"check"_q, mdSamplePath("empty.zr3"_q)});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.err);
}
