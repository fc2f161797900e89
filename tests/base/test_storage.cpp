#include "base/clsProgramEnd.h"
#include "base/mdDatabasePath.h"
#include "base/mdGetResourceData.h"
#include "base/mdRegistry.h"
#include "commands/mdDatabaseCreation.h"
#include "tests/base/clsShellTest.h"

#include <sys/stat.h>

namespace {

const QString Name = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmor\\ZR3\\Database Path");

QString box(const char *what, const char *error)
{
    return QStringLiteral("There was a problem ") + QString::fromUtf8(what)
        + QStringLiteral(" the following registry key:\r\n\r\n") + Name
        + QStringLiteral("\r\n\r\nThe error reported is:\r\n\r\n") + QString::fromUtf8(error);
}

class Registry : public clsShellTest {
protected:
    void SetUp() override
    {
        clsShellTest::SetUp();
        store = path("config/Velmor/ZR3.conf");
        machineStore = path("machine/Velmor/ZR3.conf");
    }
    void putMachineWide(const QByteArray &path)
    {
        make(QStringLiteral("machine/Velmor"));
        put(machineStore, "[General]\nDatabase%20Path=" + path + "\n");
    }

    QString store;
    QString machineStore;
};

} // namespace

TEST_F(Registry, AMissingValueReadsAsEmptyWithoutABox)
{
    EXPECT_EQ(QString(), ReadRegKey(Name));
    make(QStringLiteral("config/Velmor"));
    put(store, "[General]\nOther=1\n");
    EXPECT_EQ(QString(), ReadRegKey(Name));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Registry, AValueIsStoredForTheUserAndComesBack)
{
    for (const char *value : {"/srv/claims", "/srv/with blank/and, comma", "/srv/\u00e9\u20ac\u4e2d",
             "/srv/a=b;c#d%20\"e\"", "C:\\Velmor\\Databases", "@odd", " blanks around ", ""}) {
        WriteRegKey(Name, QString::fromUtf8(value));
        EXPECT_EQ(QString::fromUtf8(value), ReadRegKey(Name));
    }
    EXPECT_TRUE(exists(store));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Registry, NamesAreKeptApart)
{
    WriteRegKey(Name, QStringLiteral("/srv/a"));
    WriteRegKey(QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmor\\ZR3\\Other Path"), QStringLiteral("/srv/b"));
    WriteRegKey(QStringLiteral("HKEY_CURRENT_USER\\Database Path"), QStringLiteral("/srv/c"));
    EXPECT_EQ(QStringLiteral("/srv/a"), ReadRegKey(Name));
}

TEST_F(Registry, AHandWrittenFileIsUnderstood)
{
    make(QStringLiteral("config/Velmor"));
    put(store, "; where the preferences lie\n[General]\nDatabase Path=/srv/one,two/Databases\n");
    EXPECT_EQ(QStringLiteral("/srv/one,two/Databases"), ReadRegKey(Name));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Registry, AMachineWideValueIsReadWhereTheUserHasNone)
{
    putMachineWide("/srv/machine");
    EXPECT_EQ(QStringLiteral("/srv/machine"), ReadRegKey(Name));
    WriteRegKey(Name, QStringLiteral("/srv/own"));
    EXPECT_EQ(QStringLiteral("/srv/own"), ReadRegKey(Name));
    EXPECT_EQ(QByteArray("[General]\nDatabase%20Path=/srv/machine\n"), bytesOf(machineStore));
}

TEST_F(Registry, AMachineWideValueIsNotCopiedToTheUser)
{
    putMachineWide("/srv/machine");
    WriteRegKey(Name, ReadRegKey(Name));
    EXPECT_FALSE(exists(store));
    putMachineWide("/srv/moved");
    EXPECT_EQ(QStringLiteral("/srv/moved"), ReadRegKey(Name));
}

TEST_F(Registry, APathWithACommaAndABlankIsReadAsItStands)
{
    make(QStringLiteral("config/Velmor"));
    const std::pair<const char *, const char *> rows[] = {
        {"[General]\nDatabase%20Path=/srv/Smith, Jones & Co/Databases\n", "/srv/Smith, Jones & Co/Databases"},
        {"[General]\nDatabase Path = /srv/a ,b,  c \r\n", "/srv/a ,b,  c"},
        {"Database%20Path=/srv/M\xc3\xbcller, Sohn\n", "/srv/M\xc3\xbcller, Sohn"},
        {"[general]\nDatabase%20Path=/srv/a, b ; the firm's\n", "/srv/a, b"},
        {"[Other]\nDatabase%20Path=/srv/x, y\n[General]\nDatabase%20Path=/srv/a, b\n[More]\nDatabase%20Path=/z, z\n",
            "/srv/a, b"},
        {"[General]\nDatabase%20Path=\"/srv/a, b\"\n", "/srv/a, b"},
    };
    for (const auto &[file, value] : rows) {
        put(store, file);
        EXPECT_EQ(QString::fromUtf8(value), ReadRegKey(Name)) << file;
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Registry, ADeletedValueReadsAsEmpty)
{
    WriteRegKey(Name, QStringLiteral("/srv/own"));
    DeleteRegKey(Name);
    EXPECT_EQ(QString(), ReadRegKey(Name));
    EXPECT_FALSE(bytesOf(store).contains("/srv/own"));
    DeleteRegKey(Name); // it no longer exists
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Registry, ADeletedMachineWideValueIsHiddenAndNotTouched)
{
    putMachineWide("/srv/machine");
    DeleteRegKey(Name);
    EXPECT_EQ(QString(), ReadRegKey(Name));
    EXPECT_EQ(QByteArray("[General]\nDatabase%20Path=/srv/machine\n"), bytesOf(machineStore));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Registry, AFailureShowsTheBoxOfItsOperation)
{
    make(QStringLiteral("config/Velmor/ZR3.conf")); // a folder in place of the store
    EXPECT_EQ(QString(), ReadRegKey(Name));
    expectOneBox("Registry Key", box("reading", "75 - Path/File access error"));
    user.messages.clear();
    WriteRegKey(Name, QStringLiteral("/srv"));
    expectOneBox("Registry Key", box("writing to", "75 - Path/File access error"));
    user.messages.clear();
    DeleteRegKey(Name);
    expectOneBox("Registry Key", box("deleting", "75 - Path/File access error"));
}

TEST_F(Registry, AStoreThatCanNotBeWrittenShowsTheBox)
{
    put(path("config"), QByteArray()); // a file in place of the folder
    WriteRegKey(Name, QStringLiteral("/srv"));
    expectOneBox("Registry Key", box("writing to", "75 - Path/File access error"));
}

TEST_F(Registry, APipeInTheStoresPlaceDoesNotHoldTheProgramUp)
{
    make(QStringLiteral("config/Velmor"));
    ASSERT_EQ(0, ::mkfifo(QFile::encodeName(store).constData(), 0600));
    EXPECT_EQ(QString(), ReadRegKey(Name));
    expectOneBox("Registry Key", box("reading", "75 - Path/File access error"));
}

TEST_F(Registry, ADamagedStoreIsReported)
{
    make(QStringLiteral("config/Velmor"));
    put(store, "[General\n=broken\n");
    EXPECT_EQ(QString(), ReadRegKey(Name));
    expectOneBox("Registry Key", box("reading", "321 - Invalid file format"));
}

// The database folder

namespace {

class DatabasePath : public Registry { };

} // namespace

TEST_F(DatabasePath, WithoutAStoredPathTheDefaultIsTakenAndStored)
{
    make(QStringLiteral("program/Databases"));
    EXPECT_EQ(path("program/Databases"), GetDatabasePath());
    EXPECT_EQ(path("program/Databases"), ReadRegKey(Name));
    EXPECT_EQ(path("program/Databases"), DefaultDatabasePath());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(DatabasePath, WithoutTheFolderTheProgramEnds)
{
    int status = 0;
    try {
        GetDatabasePath();
    } catch (const clsProgramEnd &end) {
        status = end.exitStatus;
    }
    EXPECT_EQ(1, status);
    expectOneBox("Folder Error",
        QStringLiteral("The folder ") + path("program/Databases")
            + QStringLiteral(" does not exist. Please contact your system administrator"));
    EXPECT_EQ(QString(), ReadRegKey(Name)) << "nothing is stored";
}

TEST_F(DatabasePath, AStoredPathWhoseFolderIsGoneEndsTheProgramToo)
{
    make(QStringLiteral("program/Databases"));
    SetDatabasePath(path("gone"));
    EXPECT_THROW(GetDatabasePath(), clsProgramEnd);
    expectOneBox("Folder Error",
        QStringLiteral("The folder ") + path("gone")
            + QStringLiteral(" does not exist. Please contact your system administrator"));
}

TEST_F(DatabasePath, ATrailingSlashOrBackslashIsStrippedAndStoredSo)
{
    make(QStringLiteral("own"));
    for (const char16_t end : {u'\\', u'/'}) {
        SetDatabasePath(path("own") + end);
        EXPECT_EQ(path("own"), GetDatabasePath());
        EXPECT_EQ(path("own"), ReadRegKey(Name));
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(DatabasePath, AMachineWidePathWithASlashAtItsEndIsNotCopiedToTheUser)
{
    make(QStringLiteral("firm"));
    for (const char end : {'/', '\\'}) {
        // A backslash begins an escape in the file, so it is written twice.
        putMachineWide(path("firm").toUtf8() + (end == '\\' ? QByteArray("\\\\") : QByteArray(1, end)));
        EXPECT_EQ(path("firm"), GetDatabasePath());
        EXPECT_FALSE(exists(store)) << end;
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(DatabasePath, AMachineWidePathWithACommaIsFoundAndNotCopiedToTheUser)
{
    make(QStringLiteral("Smith, Jones"));
    putMachineWide(path("Smith, Jones").toUtf8());
    EXPECT_EQ(path("Smith, Jones"), GetDatabasePath());
    EXPECT_FALSE(exists(store));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(DatabasePath, AWriteThatFailsShowsTheBoxEachTimeAndTheProgramGoesOn)
{
    make(QStringLiteral("program/Databases"));
    put(path("config"), QByteArray());
    for (size_t time = 1; time <= 2; ++time) {
        EXPECT_EQ(path("program/Databases"), GetDatabasePath());
        ASSERT_EQ(time, user.messages.size());
        EXPECT_EQ(QStringLiteral("Registry Key"), user.messages.back().title);
    }
}

TEST_F(DatabasePath, ResetAsksAndNoChangesNothing)
{
    SetDatabasePath(path("own"));
    user.answers = {clsUserInterface::No};
    ResetDatabasePath();
    EXPECT_EQ(path("own"), ReadRegKey(Name));
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Reset"), user.messages[0].title);
    EXPECT_EQ(
        QStringLiteral("This function will reset the database path to the standard setting. Are you sure you wish to "
                       "continue?"),
        user.messages[0].text);
    EXPECT_EQ(clsUserInterface::YesNo, user.messages[0].buttons);
    EXPECT_TRUE(user.messages[0].system);
}

TEST_F(DatabasePath, AfterAResetTheDefaultHolds)
{
    make(QStringLiteral("program/Databases"));
    make(QStringLiteral("own"));
    SetDatabasePath(path("own"));
    user.answers = {clsUserInterface::Yes};
    ResetDatabasePath();
    EXPECT_EQ(path("program/Databases"), GetDatabasePath());
}

TEST_F(DatabasePath, AChosenFolderIsStoredWithoutATest)
{
    user.folders = {path("chosen")};
    SelectDatabasePath();
    EXPECT_EQ(path("chosen"), ReadRegKey(Name));
    EXPECT_EQ(QStringList {QStringLiteral("Please select a valid database folder")}, user.prompts);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(DatabasePath, ACancelledChoiceChangesNothing)
{
    SetDatabasePath(path("own"));
    SelectDatabasePath();
    CreateDatabases();
    EXPECT_EQ(path("own"), ReadRegKey(Name));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(2, user.prompts.size());
}

TEST_F(DatabasePath, FreshDatabasesAreTheTemplateWordForWord)
{
    make(QStringLiteral("chosen"));
    put(path("chosen/Preferences Database.vzp"), "what was there");
    user.folders = {path("chosen")};
    CreateDatabases();
    EXPECT_EQ(GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML")),
        QString::fromLatin1(bytesOf(path("chosen/Preferences Database.vzp"))));
    EXPECT_EQ(path("chosen"), ReadRegKey(Name));
    EXPECT_EQ(QStringList {QStringLiteral("Please select or create a database folder")}, user.prompts);
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Databases"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("The databases have been created successfully"), user.messages[0].text);
    EXPECT_EQ(int(clsUserInterface::Information), user.messages[0].icon);
    EXPECT_TRUE(user.messages[0].system);
}
