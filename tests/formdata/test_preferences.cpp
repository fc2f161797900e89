// The user's settings.

#include "base/clsProgramEnd.h"
#include "base/mdDatabasePath.h"
#include "base/mdGetResourceData.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "tests/base/clsShellTest.h"
#include "tests/formdata/mdFormatTables.h"
#include "tests/support/mdExpectError.h"

namespace {

using Error = clsRunTimeError;

class Preferences : public clsShellTest {
protected:
    void SetUp() override
    {
        clsShellTest::SetUp();
        make(QStringLiteral("program/Databases"));
        make(QStringLiteral("program/Logs"));
    }

    QString file() const { return path("program/Databases/Preferences Database.vzp"); }
    void putPreferences(const QByteArray &bytes) const { put(file(), bytes); }
    void putFreshPreferences() const
    {
        putPreferences(
            GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML")).toLatin1());
    }
};

} // namespace

TEST_F(Preferences, AFreshFileHoldsTheDefaults)
{
    putFreshPreferences();
    const clsZR3PreferencesDatabase preferences;
    EXPECT_EQ(QStringLiteral("17.50"), preferences.DefaultVATRate());
    EXPECT_FALSE(preferences.AutoBackup());
    EXPECT_EQ(QString(), preferences.AutoBackupPath());
    EXPECT_FALSE(preferences.AutoDeleteBackups());
    EXPECT_FALSE(preferences.AutoRefreshPreview());
    EXPECT_TRUE(preferences.PlaySound());
    EXPECT_FALSE(preferences.Log());
    EXPECT_TRUE(preferences.ReplacementsCollection().empty());
    EXPECT_TRUE(preferences.RateSetsCollection().empty());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Preferences, PropertiesAreThoseOfTheTableInTheirOrder)
{
    putFreshPreferences();
    const clsZR3PreferencesDatabase preferences;
    const auto &rows = propertyTables().at("preferencesdatabase");
    ASSERT_EQ(rows.size(), preferences.properties().size());
    for (size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].name, preferences.properties()[i].property->name);
        EXPECT_EQ(
            rows[i].kind == Text ? clsXMLKind::Text : clsXMLKind::Boolean, preferences.properties()[i].property->kind);
    }
}

TEST_F(Preferences, EverythingSurvivesTheFile)
{
    putFreshPreferences();
    {
        clsZR3PreferencesDatabase preferences;
        preferences.DefaultVATRate = QStringLiteral("20.00");
        preferences.AutoBackup = true;
        preferences.AutoBackupPath = QStringLiteral("/a b/\u00e9");
        preferences.AutoDeleteBackups = true;
        preferences.AutoRefreshPreview = true;
        preferences.PlaySound = false;
        for (int n = 1; n <= 2; ++n) {
            const auto replacement = preferences.AddReplacement();
            replacement->InputText = QStringLiteral("in%1").arg(n);
            replacement->OutputText = QStringLiteral("out \u00a3 %1").arg(n);
            const auto rates = preferences.AddRateSet();
            for (const clsXMLPropertyPlace &place : rates->properties())
                rates->field(QString::fromLatin1(place.property->name))
                    ->writeText(QStringLiteral("%1 %2").arg(n).arg(QString::fromLatin1(place.property->name)));
        }
        preferences.SaveXML();
    }
    const clsZR3PreferencesDatabase read;
    EXPECT_EQ(QStringLiteral("20.00"), read.DefaultVATRate());
    EXPECT_TRUE(read.AutoBackup());
    EXPECT_EQ(QStringLiteral("/a b/\u00e9"), read.AutoBackupPath());
    EXPECT_TRUE(read.AutoDeleteBackups());
    EXPECT_TRUE(read.AutoRefreshPreview());
    EXPECT_FALSE(read.PlaySound());
    EXPECT_FALSE(read.Log());
    ASSERT_EQ(2u, read.ReplacementsCollection().size());
    ASSERT_EQ(2u, read.RateSetsCollection().size());
    for (int n = 1; n <= 2; ++n) {
        EXPECT_EQ(n, read.Replacement(n)->Index);
        EXPECT_EQ(QStringLiteral("in%1").arg(n), read.Replacement(n)->InputText());
        EXPECT_EQ(QStringLiteral("out \u00a3 %1").arg(n), read.Replacement(n)->OutputText());
        EXPECT_EQ(n, read.RateSet(n)->Index);
        for (const clsXMLPropertyPlace &place : read.RateSet(n)->properties())
            EXPECT_EQ(QStringLiteral("%1 %2").arg(n).arg(QString::fromLatin1(place.property->name)),
                read.RateSet(n)->field(QString::fromLatin1(place.property->name))->readText());
    }
    EXPECT_EQ(8u, read.RateSet(1)->properties().size());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Preferences, AnOlderFileGainsWhatItLacks)
{
    putPreferences(
        "<preferencesdatabase><log>False</log><defaultvatrate>15</defaultvatrate><later>x y</later><ratesets>"
        "<rateset><name>Old</name></rateset></ratesets><replacements><replacement/></replacements>"
        "</preferencesdatabase>");
    clsZR3PreferencesDatabase preferences;
    EXPECT_FALSE(preferences.AutoRefreshPreview());
    EXPECT_TRUE(preferences.PlaySound());
    EXPECT_EQ(QStringLiteral("15"), preferences.DefaultVATRate());
    EXPECT_EQ(QStringLiteral("Old"), preferences.RateSet(1)->Name());
    EXPECT_EQ(QStringLiteral("0.00"), preferences.RateSet(1)->TravelAndWaitingRate());
    EXPECT_EQ(QString(), preferences.Replacement(1)->OutputText());
    preferences.SaveXML();
    EXPECT_TRUE(bytesOf(file()).startsWith("<preferencesdatabase><log>False</log><defaultvatrate>15</defaultvatrate>"
                                           "<later>x y</later><ratesets>"));
}

TEST_F(Preferences, AMissingFileIsToldAndThenTheObjectError)
{
    EXPECT_EQ(Error::ObjectNotSet, errorOf([] { clsZR3PreferencesDatabase preferences; }));
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("File Not Read"), user.messages[0].title);
    EXPECT_TRUE(user.messages[0].system);
}

TEST_F(Preferences, AMalformedFileIsTheObjectError)
{
    for (const char *bytes : {"", "rubbish", "<vzrform/>", "<preferencesdatabase>", "<preferencesdatabase/><x/>"}) {
        putPreferences(bytes);
        EXPECT_EQ(Error::ObjectNotSet, errorOf([] { clsZR3PreferencesDatabase preferences; })) << bytes;
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Preferences, AMissingDatabaseFolderEndsTheProgram)
{
    ASSERT_TRUE(QDir(path("program/Databases")).removeRecursively());
    EXPECT_THROW(clsZR3PreferencesDatabase preferences, clsProgramEnd);
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Folder Error"), user.messages[0].title);
}

TEST_F(Preferences, ChangesAreInForceAtOnceAndReachTheDiskBySaveOnly)
{
    putFreshPreferences();
    const QByteArray before = bytesOf(file());
    {
        clsZR3PreferencesDatabase preferences;
        preferences.DefaultVATRate = QStringLiteral("20.00");
        preferences.AddRateSet();
        EXPECT_EQ(QStringLiteral("20.00"), preferences.DefaultVATRate());
    }
    EXPECT_EQ(before, bytesOf(file()));
}

TEST_F(Preferences, TheVATRateIsTextAndEncodedOnlyOnceStored)
{
    putFreshPreferences();
    clsZR3PreferencesDatabase preferences;
    preferences.SaveXML();
    EXPECT_TRUE(bytesOf(file()).contains("<defaultvatrate>17.50</defaultvatrate>"));
    preferences.DefaultVATRate = preferences.DefaultVATRate();
    preferences.SaveXML();
    EXPECT_TRUE(bytesOf(file()).contains("<defaultvatrate>17%2E50</defaultvatrate>"));
}

TEST_F(Preferences, DeletingTheFirstOfTwoRateSetsMovesTheOtherUp)
{
    putFreshPreferences();
    clsZR3PreferencesDatabase preferences;
    preferences.AddRateSet()->Name = QStringLiteral("A");
    const auto second = preferences.AddRateSet();
    second->Name = QStringLiteral("B");
    preferences.AddReplacement()->InputText = QStringLiteral("a");
    preferences.AddReplacement()->InputText = QStringLiteral("b");
    preferences.DeleteRateSet(1);
    preferences.DeleteReplacement(2);
    EXPECT_EQ(1, second->Index);
    EXPECT_EQ(second, preferences.RateSet(1));
    EXPECT_EQ(QStringLiteral("a"), preferences.Replacement(1)->InputText());
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { preferences.RateSet(2); }));
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { preferences.DeleteReplacement(2); }));
    EXPECT_FALSE(preferences.XMLOutput().contains(QStringLiteral(">A<")));
}

TEST_F(Preferences, ItemsKeepTheOrderOfTheirCreation)
{
    putFreshPreferences();
    clsZR3PreferencesDatabase preferences;
    for (const char *name : {"C", "A", "B"})
        preferences.AddRateSet()->Name = QString::fromLatin1(name);
    preferences.RenderRateSets();
    QString names;
    for (const auto &rates : preferences.RateSetsCollection())
        names += rates->Name();
    EXPECT_EQ(QStringLiteral("CAB"), names);
}

TEST_F(Preferences, TheLogAndTheSoundsFollowTheirSwitches)
{
    putFreshPreferences();
    const QString sound = path("program/x.wav");
    {
        clsZR3PreferencesDatabase preferences;
        PlayWav(sound);
        EXPECT_EQ(1, user.sounds.size());
        preferences.PlaySound = false;
        PlayWav(sound);
        EXPECT_EQ(1, user.sounds.size());
        WriteLog(QStringLiteral("off"));
        EXPECT_FALSE(QFile::exists(LogPath()));
        preferences.Log = true;
        WriteLog(QStringLiteral("on"));
        EXPECT_TRUE(bytesOf(LogPath()).endsWith(" : on\r\n"));
        preferences.PlaySound = true;
    }
    PlayWav(sound); // cleared with the preferences
    EXPECT_EQ(1, user.sounds.size());
}

TEST_F(Preferences, TheDatabaseFolderMayBeElsewhere)
{
    make(QStringLiteral("elsewhere"));
    put(path("elsewhere/Preferences Database.vzp"),
        "<preferencesdatabase><defaultvatrate>5</defaultvatrate></preferencesdatabase>");
    make(QStringLiteral("config/Velmor"));
    SetDatabasePath(path("elsewhere"));
    clsZR3PreferencesDatabase preferences;
    EXPECT_EQ(QStringLiteral("5"), preferences.DefaultVATRate());
    preferences.SaveXML();
    EXPECT_TRUE(bytesOf(path("elsewhere/Preferences Database.vzp")).contains("<playsound>True</playsound>"));
    EXPECT_FALSE(QFile::exists(file()));
}
