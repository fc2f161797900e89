#include "base/mdDatabasePath.h"
#include "base/mdGetResourceData.h"
#include "base/mdOwnDatabasePath.h"
#include "tests/base/clsShellTest.h"
#include "tests/support/mdOrdinaryUser.h"

#include <QDirIterator>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class OwnDatabasePathTest : public clsShellTest {
protected:
    void SetUp() override
    {
        clsShellTest::SetUp();
        qputenv("XDG_DATA_HOME", QFile::encodeName(path("data")));
        own = path("data/Velmor/ZR3/Databases");
        preferences = own + QStringLiteral("/Preferences Database.vzp");
        store = path("config/Velmor/ZR3.conf");
    }
    void TearDown() override
    {
        qunsetenv("XDG_DATA_HOME");
        clsShellTest::TearDown();
    }
    static mode_t modeOf(const QString &path)
    {
        struct stat status = {};
        return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 0777 : 0;
    }
    static QByteArray fresh()
    {
        return GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML")).toLatin1();
    }
    /// Gives the whole test folder to the ordinary user, except for write access to this folder.
    void everythingIsTheUsersBut(const QString &readOnly) const
    {
        ASSERT_EQ(0, ::chmod(QFile::encodeName(readOnly).constData(), 0555));
        if (::geteuid() != 0)
            return;
        QStringList all {folder.path()};
        for (QDirIterator each(folder.path(), QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
             each.hasNext();)
            all << each.next();
        for (const QString &one : all)
            ASSERT_EQ(0, ::chown(QFile::encodeName(one).constData(), OrdinaryUser, OrdinaryUser));
    }
    /// A user with a stored folder keeps it and gets no new one.
    void expectNothingGiven(const QString &storeInForce, const QByteArray &content)
    {
        put(storeInForce, content);
        GiveOwnDatabasePath();
        EXPECT_EQ(content, bytesOf(storeInForce));
        EXPECT_FALSE(exists(path("data")));
        EXPECT_TRUE(user.messages.empty());
    }

    QString own;
    QString preferences;
    QString store;
};

} // namespace

TEST_F(OwnDatabasePathTest, AUserWithoutOneIsGivenAFolderThatNobodyElseReads)
{
    GiveOwnDatabasePath();
    EXPECT_EQ(own, OwnDatabasePath());
    EXPECT_EQ(own, GetDatabasePath());
    EXPECT_EQ(fresh(), bytesOf(preferences));
    EXPECT_EQ(0700u, modeOf(own));
    EXPECT_EQ(0600u, modeOf(preferences));
    EXPECT_EQ(
        QStringList {QStringLiteral("Preferences Database.vzp")}, QDir(own).entryList(QDir::Files | QDir::Hidden));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(OwnDatabasePathTest, TheSecondStartChangesNothing)
{
    GiveOwnDatabasePath();
    put(preferences, "mine");
    const QByteArray stored = bytesOf(store);
    GiveOwnDatabasePath();
    EXPECT_EQ(QByteArray("mine"), bytesOf(preferences));
    EXPECT_EQ(stored, bytesOf(store));
}

TEST_F(OwnDatabasePathTest, OddPathsComeBackAsTheyAre)
{
    for (const char *name :
        {"with blanks", "quo\"te and 'quote'", "back\\slash", "\u00fcml\u00e4ut \u20ac", "a,b;c=d#e%20", "end\\"}) {
        const QString data = path("odd ") + QString::fromUtf8(name);
        qputenv("XDG_DATA_HOME", QFile::encodeName(data));
        QFile::remove(store);
        GiveOwnDatabasePath();
        EXPECT_EQ(data + QStringLiteral("/Velmor/ZR3/Databases"), GetDatabasePath()) << name;
        EXPECT_TRUE(exists(GetDatabasePath() + QStringLiteral("/Preferences Database.vzp"))) << name;
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(OwnDatabasePathTest, WhoHasAFolderKeepsItEvenWhereItCanNotBeUsed)
{
    make(QStringLiteral("config/Velmor"));
    expectNothingGiven(store, "[General]\nDatabase%20Path=/srv/gone\n");
}

TEST_F(OwnDatabasePathTest, AFolderForAllUsersIsTheAdministratorsToChange)
{
    make(QStringLiteral("machine/Velmor"));
    expectNothingGiven(path("machine/Velmor/ZR3.conf"), "[General]\nDatabase%20Path=/srv/firm\n");
    EXPECT_FALSE(exists(store));
}

TEST_F(OwnDatabasePathTest, TheFolderBesideTheProgramIsKeptByWhoMayWriteIt)
{
    make(QStringLiteral("config/Velmor"));
    make(QStringLiteral("program/Databases"));
    expectNothingGiven(store, "[General]\nDatabase%20Path=" + path("program/Databases").toUtf8() + '\n');
}

TEST_F(OwnDatabasePathTest, AfterAResetWhoMayNotWriteTheProgramsFolderIsGivenTheirOwnAgain)
{
    make(QStringLiteral("config/Velmor"));
    make(QStringLiteral("program/Databases"));
    make(QStringLiteral("data/Velmor/ZR3/Databases"));
    put(preferences, "mine");
    for (const char *writing : {"program/Databases", "program/Databases/", "program/../program/Databases"}) {
        put(store, "[General]\nDatabase%20Path=" + path(writing).toUtf8() + '\n');
        everythingIsTheUsersBut(path("program/Databases"));
        EXPECT_EQ(0, resultAsOrdinaryUser([this] {
            GiveOwnDatabasePath();
            return int(user.messages.size());
        }));
        EXPECT_EQ(own, GetDatabasePath()) << writing;
        EXPECT_EQ(QByteArray("mine"), bytesOf(preferences));
    }
}

TEST_F(OwnDatabasePathTest, AProgramsFolderThatHasGoneIsReplaced)
{
    make(QStringLiteral("config/Velmor"));
    put(store, "[General]\nDatabase%20Path=" + path("program/Databases").toUtf8() + '\n');
    GiveOwnDatabasePath();
    EXPECT_EQ(own, GetDatabasePath());
    EXPECT_EQ(fresh(), bytesOf(preferences));
}

TEST_F(OwnDatabasePathTest, AStoreThatCanNotBeReadIsNotTouched)
{
    make(QStringLiteral("config/Velmor"));
    expectNothingGiven(store, "[General\n=broken\n");
}

TEST_F(OwnDatabasePathTest, AStoreWithoutTheFolderKeepsItsOtherValues)
{
    make(QStringLiteral("config/Velmor"));
    put(store, "[General]\nOther=1\n");
    GiveOwnDatabasePath();
    EXPECT_EQ(own, GetDatabasePath());
    EXPECT_TRUE(bytesOf(store).contains("Other=1\n"));
}

TEST_F(OwnDatabasePathTest, PreferencesThatOutlivedTheirStoreAreKept)
{
    make(QStringLiteral("data/Velmor/ZR3/Databases"));
    put(preferences, "mine");
    GiveOwnDatabasePath();
    EXPECT_EQ(own, GetDatabasePath());
    EXPECT_EQ(QByteArray("mine"), bytesOf(preferences));
}

TEST_F(OwnDatabasePathTest, WhereNoFolderCanBeMadeNothingIsStored)
{
    put(path("data"), "a file in the folder's place");
    GiveOwnDatabasePath();
    EXPECT_FALSE(exists(store));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(OwnDatabasePathTest, FirstStartsAtOnceMakeOneWholeFolder)
{
    constexpr int Starts = 4;
    for (int round = 0; round < 10; ++round) {
        QDir(path("data")).removeRecursively();
        QFile::remove(store);
        for (int start = 0; start < Starts; ++start)
            if (fork() == 0) {
                GiveOwnDatabasePath();
                _exit(int(user.messages.size()));
            }
        for (int start = 0; start < Starts; ++start) {
            int status = -1;
            ASSERT_GT(wait(&status), 0);
            EXPECT_EQ(0, status);
        }
        EXPECT_EQ(own, GetDatabasePath());
        EXPECT_EQ(fresh(), bytesOf(preferences));
        EXPECT_EQ(1, QDir(own).entryList(QDir::Files | QDir::Hidden).size());
    }
    EXPECT_TRUE(user.messages.empty());
}
