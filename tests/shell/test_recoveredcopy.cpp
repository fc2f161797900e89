// The copy of a claim that would be lost at the end of the program, and the box that tells of it.

#include "shell/mdDatabasePath.h"
#include "shell/mdRecoveredCopy.h"
#include "shell/mdRunTimeErrorMessage.h"
#include "tests/shell/clsDocumentTest.h"
#include "tests/support/mdOrdinaryUser.h"

#include <QSet>

#include <cerrno>

#include <sys/stat.h>

class RecoveredCopy : public clsDocumentTest {
protected:
    void SetUp() override
    {
        clsDocumentTest::SetUp();
        SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3, 22)); });
    }
    QString recovered(const char *name) const { return path("program/Databases/Recovered/") + QString::fromUtf8(name); }
    QString fallback(const char *name) const { return path("state/Velmor/Recovered/") + QString::fromUtf8(name); }
    static mode_t modeOf(const QString &at)
    {
        struct stat status = {};
        return ::stat(QFile::encodeName(at).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
    }
    void changedClaim(const char *name = "claims/Smith.zr3")
    {
        savedClaim(name);
        change();
    }
};

TEST_F(RecoveredCopy, IsTheClaimUnderItsNameAndTheTime)
{
    changedClaim();
    const QString clean = CleanXML;
    EXPECT_EQ(recovered("Smith 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy());
    EXPECT_EQ(Form->XMLOutput(), textOf(recovered("Smith 2026-11-21 14.03.22.zr3")));
    EXPECT_EQ(clean, CleanXML);
    EXPECT_TRUE(FormIsDirty());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(shown.isEmpty());
    OpenFormFile(recovered("Smith 2026-11-21 14.03.22.zr3"));
    EXPECT_TRUE(user.messages.empty()) << "it opens like any claim";
}

TEST_F(RecoveredCopy, IsReadableByItsOwnerOnly)
{
    changedClaim();
    const mode_t before = ::umask(0);
    const QString file = WriteRecoveredCopy();
    ::umask(before);
    EXPECT_EQ(mode_t(0600), modeOf(file));
    EXPECT_EQ(mode_t(0700), modeOf(QFileInfo(file).path()));
}

TEST_F(RecoveredCopy, ClosesAFolderThatWasOpenToOthers)
{
    changedClaim();
    make(QStringLiteral("program/Databases/Recovered"));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(recovered("")).constData(), 0755));
    EXPECT_FALSE(WriteRecoveredCopy().isEmpty());
    EXPECT_EQ(mode_t(0700), modeOf(recovered("")));
}

TEST_F(RecoveredCopy, IsOnTheDiskWithItsEntryInTheFolder)
{
    changedClaim();
    std::vector<clsFileStep> steps;
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        if (at.contains(QLatin1String("Recovered")))
            steps.push_back(step);
        return clsFileFault();
    };
    WriteRecoveredCopy();
    EXPECT_EQ((std::vector {clsFileStep::OpenToWrite, clsFileStep::Inspect, clsFileStep::Write, clsFileStep::SyncFile,
                  clsFileStep::Close, clsFileStep::SyncFolder}),
        steps);
}

TEST_F(RecoveredCopy, IsNotWrittenWhereNothingWouldBeLost)
{
    EXPECT_EQ(QString(), WriteRecoveredCopy()) << "no claim";
    NewForm(true);
    EXPECT_EQ(QString(), WriteRecoveredCopy()) << "a new one";
    savedClaim();
    EXPECT_EQ(QString(), WriteRecoveredCopy()) << "an opened one";
    change();
    SaveForm(false);
    EXPECT_EQ(QString(), WriteRecoveredCopy()) << "a saved one";
    EXPECT_FALSE(QFileInfo::exists(recovered("")));
    EXPECT_FALSE(QFileInfo::exists(path("state")));
}

TEST_F(RecoveredCopy, IsWrittenWhereTheLastSaveDidNotGetThrough)
{
    const QString file = savedClaim();
    change();
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::Write && at == file ? clsFileFault {ENOSPC} : clsFileFault();
    };
    SaveForm(false);
    FileSystem().faultPoint = nullptr;
    const QString copy = WriteRecoveredCopy();
    EXPECT_EQ(Form->XMLOutput(), textOf(copy));
}

TEST_F(RecoveredCopy, OfAnUnsavedClaimHasItsFixedName)
{
    NewForm(true);
    change();
    EXPECT_EQ(recovered("Unsaved Claim 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy());
}

TEST_F(RecoveredCopy, AClockThatJumpsOverwritesNone)
{
    changedClaim();
    QSet<QString> copies;
    QSet<QByteArray> contents;
    const QDateTime times[] = {QDateTime(QDate(1970, 1, 1), QTime(0, 0)), QDateTime(QDate(1901, 1, 1), QTime(0, 0)),
        QDateTime(QDate(2099, 12, 31), QTime(23, 59, 59)), QDateTime(QDate(2026, 10, 25), QTime(1, 30))};
    for (int turn = 0; turn < 3; ++turn)
        for (const QDateTime &time : times) {
            SetClock([time] { return time; });
            change();
            const QString copy = WriteRecoveredCopy();
            copies += copy;
            contents += bytesOf(copy);
        }
    EXPECT_EQ(12, copies.size());
    EXPECT_EQ(12, contents.size());
    for (const QString &copy : std::as_const(copies))
        EXPECT_TRUE(contents.contains(bytesOf(copy))) << qPrintable(copy);
}

TEST_F(RecoveredCopy, TwoOfOneSecondAreBothKept)
{
    changedClaim();
    EXPECT_EQ(recovered("Smith 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy());
    const QByteArray first = bytesOf(recovered("Smith 2026-11-21 14.03.22.zr3"));
    change();
    EXPECT_EQ(recovered("Smith 2026-11-21 14.03.22 (2).zr3"), WriteRecoveredCopy());
    change();
    EXPECT_EQ(recovered("Smith 2026-11-21 14.03.22 (3).zr3"), WriteRecoveredCopy());
    EXPECT_EQ(first, bytesOf(recovered("Smith 2026-11-21 14.03.22.zr3")));
}

TEST_F(RecoveredCopy, IsWrittenOnceForTheSameText)
{
    changedClaim();
    const QString first = WriteRecoveredCopy();
    SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3, 25)); });
    EXPECT_EQ(first, WriteRecoveredCopy());
    EXPECT_EQ(1, QDir(recovered("")).entryList(QDir::Files).size());
    change();
    EXPECT_EQ(recovered("Smith 2026-11-21 14.03.25.zr3"), WriteRecoveredCopy());
    // One that is gone, or no longer what was written, is no copy.
    put(recovered("Smith 2026-11-21 14.03.25.zr3"), "another");
    EXPECT_EQ(recovered("Smith 2026-11-21 14.03.25 (2).zr3"), WriteRecoveredCopy());
    QFile::remove(recovered("Smith 2026-11-21 14.03.25 (2).zr3"));
    EXPECT_EQ(recovered("Smith 2026-11-21 14.03.25 (2).zr3"), WriteRecoveredCopy());
    EXPECT_EQ(3, QDir(recovered("")).entryList(QDir::Files).size());
}

TEST_F(RecoveredCopy, HasANameThatEveryFileSystemTakes)
{
    struct Row {
        const char *claim;
        const char *copy;
    };
    for (const Row &row : {Row {"claims/a:b*c?\"d\".zr3", "a_b_c__d_ 2026-11-21 14.03.22.zr3"},
             Row {"claims/.zr3", "Claim 2026-11-21 14.03.22.zr3"},
             Row {"claims/v1.2.zr3", "v1.2 2026-11-21 14.03.22.zr3"},
             Row {"claims/Łukasz 中.zr3", "Łukasz 中 2026-11-21 14.03.22.zr3"}}) {
        changedClaim(row.claim);
        EXPECT_EQ(recovered(row.copy), WriteRecoveredCopy());
    }
    const QByteArray longest = "claims/" + QByteArray("é").repeated(120) + "12.zr3";
    changedClaim(longest.constData());
    const QString copy = WriteRecoveredCopy();
    EXPECT_EQ(
        QString::fromUtf8("é").repeated(90) + QStringLiteral(" 2026-11-21 14.03.22.zr3"), QFileInfo(copy).fileName());
}

TEST_F(RecoveredCopy, GoesToTheStoredDatabaseFolderWithoutAWord)
{
    make(QStringLiteral("own"));
    SetDatabasePath(path("own/"));
    changedClaim();
    Preferences->Log = true; // no folder for the log: each line would show two boxes
    const QByteArray store = bytesOf(path("config/Velmor/ZR3.conf"));
    EXPECT_EQ(path("own/Recovered/Smith 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(store, bytesOf(path("config/Velmor/ZR3.conf"))) << "nothing is stored";
}

TEST_F(RecoveredCopy, GoesToTheUsersOwnFolderWhereTheDatabaseFolderIsGone)
{
    changedClaim();
    QDir(path("program/Databases")).removeRecursively();
    EXPECT_EQ(fallback("Smith 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy());
    EXPECT_EQ(Form->XMLOutput(), textOf(fallback("Smith 2026-11-21 14.03.22.zr3")));
    EXPECT_EQ(mode_t(0700), modeOf(fallback("")));
    EXPECT_FALSE(QFileInfo::exists(path("program/Databases"))) << "the folder is the administrator's to make";
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(RecoveredCopy, GoesToTheUsersOwnFolderWhereTheStoreCanNotBeRead)
{
    changedClaim();
    QDir(path("program/Databases")).removeRecursively();
    QFile::remove(path("config/Velmor/ZR3.conf"));
    make(QStringLiteral("config/Velmor/ZR3.conf")); // a folder in the store's place
    EXPECT_EQ(fallback("Smith 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(RecoveredCopy, GoesToTheUsersOwnFolderWhereTheDatabaseFolderIsReadOnly)
{
    changedClaim();
    for (const char *at : {"", "program", "config", "config/Velmor"})
        ASSERT_EQ(0, ::chmod(QFile::encodeName(path(at)).constData(), 0755));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(path("config/Velmor/ZR3.conf")).constData(), 0644));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(path("program/Databases")).constData(), 0555));
    make(QStringLiteral("state"));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(path("state")).constData(), 0777));
    const int result = resultAsOrdinaryUser(
        [&] { return WriteRecoveredCopy() == fallback("Smith 2026-11-21 14.03.22.zr3") ? 0 : 1; });
    ASSERT_EQ(0, ::chmod(QFile::encodeName(path("program/Databases")).constData(), 0755));
    EXPECT_EQ(0, result);
    EXPECT_EQ(Form->XMLOutput(), textOf(fallback("Smith 2026-11-21 14.03.22.zr3")));
}

TEST_F(RecoveredCopy, LeavesNothingHalfWrittenOnAFullDisk)
{
    changedClaim();
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return step == clsFileStep::Write ? clsFileFault {ENOSPC, 100} : clsFileFault();
    };
    EXPECT_EQ(QString(), WriteRecoveredCopy());
    EXPECT_TRUE(QDir(recovered("")).isEmpty());
    EXPECT_TRUE(QDir(fallback("")).isEmpty());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(RecoveredCopy, ThatCanNotBeWrittenAnywhereIsNoFailure)
{
    changedClaim();
    put(path("program/Databases/Recovered"), "a file in the folder's place");
    put(path("state"), "and another");
    EXPECT_EQ(QString(), WriteRecoveredCopy());
    EXPECT_TRUE(user.messages.empty());
}

// The box of an error that nothing has caught

TEST_F(RecoveredCopy, TheBoxOfAnErrorSaysWhereItLies)
{
    const clsRunTimeError error(clsRunTimeError::SubscriptOutOfRange);
    const QString start = QStringLiteral("Run-time error '9':\r\n\r\nSubscript out of range");
    EXPECT_EQ(start, mdRunTimeErrorMessage(error, QString()));
    changedClaim();
    EXPECT_EQ(start + QStringLiteral("\r\n\r\nA copy of your claim with its unsaved changes is in:\r\n\r\n/x/y.zr3"),
        mdRunTimeErrorMessage(error, QStringLiteral("/x/y.zr3")));
    EXPECT_EQ(start + QStringLiteral("\r\n\r\nThe unsaved changes to your claim could not be written to a copy."),
        mdRunTimeErrorMessage(error, QString()));
}

TEST_F(RecoveredCopy, TheBoxHasTheErrorsOwnDescription)
{
    EXPECT_EQ(QStringLiteral("Run-time error '321':\r\n\r\nNo main part"),
        mdRunTimeErrorMessage(clsRunTimeError(clsRunTimeError::InvalidFileFormat, QStringLiteral("No main part")), {}));
}

TEST_F(RecoveredCopy, TheBoxNamesWhatTheErrorComesFromBeforeTheCopy)
{
    const clsRunTimeError error
        = clsRunTimeError(clsRunTimeError::ObjectNotSet)
              .because(QStringLiteral("Schedule item 12 names a fee earner that no longer exists"));
    const QString start = QStringLiteral("Run-time error '91':\r\n\r\nObject variable or With block variable not set"
                                         "\r\n\r\nSchedule item 12 names a fee earner that no longer exists");
    EXPECT_EQ(start, mdRunTimeErrorMessage(error, {}));
    changedClaim();
    EXPECT_EQ(start + QStringLiteral("\r\n\r\nA copy of your claim with its unsaved changes is in:\r\n\r\n/x/y.zr3"),
        mdRunTimeErrorMessage(error, QStringLiteral("/x/y.zr3")));
}
