#include "base/mdGetResourceData.h"
#include "base/mdGetVersionInfo.h"
#include "base/mdShellExecute.h"
#include "base/mdVersionComparison.h"
#include "tests/base/clsShellTest.h"
#include "tests/support/mdExpectError.h"

#include <QRegularExpression>

namespace {

int compared(const char *file, const char *program)
{
    return CompareVersions(QString::fromUtf8(file), QString::fromUtf8(program));
}

} // namespace

// Versions

TEST(CompareVersions, ComparesTheWorkedExamples)
{
    EXPECT_EQ(1, compared("1.1.140", "1.1.140"));
    EXPECT_EQ(2, compared("1.2.0", "1.1.140"));
    EXPECT_EQ(2, compared("1.10.0", "1.9.9"));
    EXPECT_EQ(0, compared("1.01.0140", "1.1.140"));
}

TEST(CompareVersions, TheFirstFieldThatDiffersDecides)
{
    EXPECT_EQ(0, compared("1.9.999", "2.0.0"));
    EXPECT_EQ(2, compared("2.0.0", "1.9.999"));
    EXPECT_EQ(0, compared("1.1.139", "1.1.140"));
    EXPECT_EQ(2, compared("1.1.141", "1.1.140"));
}

TEST(CompareVersions, ReadsNumbersFromTheStartOfAField)
{
    EXPECT_EQ(0, compared("1.1.140beta", "1.1.140"));
    EXPECT_EQ(0, compared("a.b.c", "1.1.140"));
    EXPECT_EQ(0, compared("0.0.0", "..")); // equal as numbers, though not as texts
}

TEST(CompareVersions, IgnoresFieldsAfterTheThird)
{
    EXPECT_EQ(0, compared("1.1.140.9", "1.1.140"));
    EXPECT_EQ(0, compared("1.1.140.9", "1.1.140.1"));
}

TEST(CompareVersions, FewerThanThreeFieldsAreASubscriptErrorInEitherText)
{
    for (const auto &[file, program] : {std::pair("", "1.1.140"), std::pair("9", "1.1.140"),
             std::pair("9.9", "1.1.140"), std::pair("1.1.140", "9.9"), std::pair("0", "9.9.9")})
        EXPECT_EQ(9, errorOf([file = file, program = program] { compared(file, program); })) << file;
}

TEST(CompareVersions, IdenticalTextsAreTheSameWhateverTheyAre)
{
    EXPECT_EQ(1, compared("", ""));
    EXPECT_EQ(1, compared("no version", "no version"));
}

TEST(GetVersionInfo, IsThreeNumbersWithoutLeadingZeros)
{
    const QRegularExpression form(QStringLiteral("^(0|[1-9][0-9]*)\\.(0|[1-9][0-9]*)\\.(0|[1-9][0-9]*)$"));
    EXPECT_TRUE(form.match(GetVersionInfo()).hasMatch()) << qPrintable(GetVersionInfo());
    EXPECT_EQ(1, CompareVersions(GetVersionInfo(), GetVersionInfo()));
}

// Resources

TEST(GetResourceData, HoldsEveryTemplate)
{
    for (const char *name : {"xmlZR3Form", "xmlZR3FeeEarnerGroup", "xmlZR3FeeEarner", "xmlZR3Counsel",
             "xmlZR3Enhancement", "xmlZR3CostsLimit", "xmlZR3Disbursement", "xmlZR3ScheduleOfTimeItem",
             "xmlZR3ExpertInvoice", "xmlZR3FASItem", "xmlZR3JointInstruction", "xmlZR3PreferencesDatabase",
             "xmlZR3Replacement", "xmlZR3RateSet"}) {
        const QString text = GetResourceData(QString::fromUtf8(name), QStringLiteral("VELMORZR3XML"));
        EXPECT_TRUE(text.startsWith(u'<')) << name;
        EXPECT_TRUE(text.trimmed().endsWith(u'>')) << name;
    }
}

TEST(GetResourceData, HoldsTheMakersAddressesOnOneLineEach)
{
    for (const char *name : {"ciWebsite", "ciSupportEmail", "ciSuggestionURL"}) {
        const QString text = GetResourceData(QString::fromUtf8(name), QStringLiteral("COMPANYINFO"));
        EXPECT_EQ(text.trimmed(), text) << name;
        EXPECT_FALSE(text.isEmpty()) << name;
    }
    EXPECT_TRUE(GetResourceData(QStringLiteral("ciSupportEmail"), QStringLiteral("COMPANYINFO")).contains(u'@'));
    EXPECT_TRUE(GetResourceData(QStringLiteral("ciWebsite"), QStringLiteral("COMPANYINFO"))
                    .startsWith(QStringLiteral("https://")));
}

TEST(GetResourceData, AMissingResourceIsAnErrorEachTime)
{
    for (int time = 0; time < 2; ++time) {
        try {
            GetResourceData(QStringLiteral("xmlNothing"), QStringLiteral("VELMORZR3XML"));
            FAIL() << "no error";
        } catch (const clsRunTimeError &error) {
            EXPECT_EQ(326, error.number());
            EXPECT_EQ(QStringLiteral("Resource with identifier 'xmlNothing' not found"), error.description());
        }
    }
    EXPECT_EQ(326, errorOf([] { GetResourceData(QStringLiteral("ciWebsite"), QStringLiteral("VELMORZR3XML")); }));
}

TEST(GetResourceData, IsReadOnceAndKept)
{
    const QString name = QStringLiteral("xmlZR3Form");
    const QString group = QStringLiteral("VELMORZR3XML");
    // The same text object, not just an equal one: the second call reads nothing.
    EXPECT_EQ(GetResourceData(name, group).constData(), GetResourceData(name, group).constData());
}

// Sounds and documents

namespace {

class Services : public clsShellTest { };

} // namespace

TEST_F(Services, ASoundIsPlayedOnlyWhenSoundIsOn)
{
    const QString alert = ProgramPath(QStringLiteral("Sounds/Alert.wav"));
    PlayWav(alert);
    EXPECT_TRUE(user.sounds.isEmpty()) << "before the preferences exist";
    bool on = false;
    SetSoundSwitch([&] { return on; });
    PlayWav(alert);
    EXPECT_TRUE(user.sounds.isEmpty()) << "switched off";
    on = true;
    PlayWav(alert);
    EXPECT_EQ(QStringList {path("program/Sounds/Alert.wav")}, user.sounds);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Services, ADocumentIsOpenedByTheDesktop)
{
    EXPECT_TRUE(ShellOpen(QStringLiteral("mailto:someone@velmor.example")));
    EXPECT_EQ(QStringList {QStringLiteral("mailto:someone@velmor.example")}, user.opened);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Services, ADocumentThatNothingOpensIsToldOf)
{
    user.opens = false;
    EXPECT_FALSE(ShellOpen(QStringLiteral("/none.pdf")));
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Open Error"), user.messages[0].title);
    EXPECT_TRUE(user.messages[0].text.contains(QLatin1String("\r\n\r\n/none.pdf\r\n\r\n")));
}

TEST_F(Services, TheProgramFolderIsThatOfTheRunningProgram)
{
    SetProgramFolder(QString());
    EXPECT_TRUE(QFileInfo(ProgramFolder() + QStringLiteral("/base_test")).isExecutable())
        << qPrintable(ProgramFolder());
    EXPECT_EQ(ProgramFolder() + QStringLiteral("/Templates"), TemplatesFolder());
    EXPECT_EQ(ProgramFolder() + QStringLiteral("/Logs"), LogsFolder());
}
