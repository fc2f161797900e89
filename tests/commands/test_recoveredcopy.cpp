// The copy of a claim that would be lost when the program ends, and the box that reports it.

#include "base/mdDatabasePath.h"
#include "commands/mdLossCause.h"
#include "commands/mdRecoveredCopy.h"
#include "commands/mdRunTimeErrorMessage.h"
#include "tests/commands/clsDocumentTest.h"
#include "tests/support/mdOrdinaryUser.h"

#include <QSet>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace {

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

} // namespace

TEST_F(RecoveredCopy, IsTheClaimUnderItsNameAndTheTime)
{
    changedClaim();
    const QString clean = CleanXML;
    EXPECT_EQ(recovered("Smith 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy().path);
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
    const QString file = WriteRecoveredCopy().path;
    ::umask(before);
    EXPECT_EQ(mode_t(0600), modeOf(file));
    EXPECT_EQ(mode_t(0700), modeOf(QFileInfo(file).path()));
}

TEST_F(RecoveredCopy, ClosesAFolderThatWasOpenToOthers)
{
    changedClaim();
    make(QStringLiteral("program/Databases/Recovered"));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(recovered("")).constData(), 0755));
    EXPECT_FALSE(WriteRecoveredCopy().path.isEmpty());
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
    EXPECT_EQ(QString(), WriteRecoveredCopy().path) << "no claim";
    NewForm(true);
    EXPECT_EQ(QString(), WriteRecoveredCopy().path) << "a new one";
    savedClaim();
    EXPECT_EQ(QString(), WriteRecoveredCopy().path) << "an opened one";
    change();
    SaveForm(false);
    EXPECT_EQ(QString(), WriteRecoveredCopy().path) << "a saved one";
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
    const QString copy = WriteRecoveredCopy().path;
    EXPECT_EQ(Form->XMLOutput(), textOf(copy));
}

TEST_F(RecoveredCopy, IsNotWrittenWhereTheFileHasTheVeryContent)
{
    const QString file = savedClaim();
    change();
    EXPECT_EQ(clsLossCause::UnsavedChanges, FormLossCause());
    // As a backup does if the backup folder is the claim's folder.
    EXPECT_TRUE(Form->SaveXML(file));
    EXPECT_TRUE(FormIsDirty());
    EXPECT_EQ(clsLossCause::None, WriteRecoveredCopy().cause);
    EXPECT_FALSE(QFileInfo::exists(recovered("")));
}

TEST_F(RecoveredCopy, IsNotWrittenWhereOnlyThePathIsAnother)
{
    QFile::rename(savedClaim(), path("claims/Smith 2.zr3"));
    OpenFormFile(path("claims/Smith 2.zr3"));
    EXPECT_TRUE(FormIsDirty());
    EXPECT_EQ(clsLossCause::None, FormLossCause());
    EXPECT_EQ(QString(), WriteRecoveredCopy().path);
    change();
    EXPECT_EQ(clsLossCause::UnsavedChanges, FormLossCause());
    // Without its file, the open claim is the only copy.
    OpenFormFile(path("claims/Smith 2.zr3"));
    QFile::remove(path("claims/Smith 2.zr3"));
    EXPECT_EQ(clsLossCause::UnsavedChanges, FormLossCause());
}

TEST_F(RecoveredCopy, IsNotWrittenWhereTheSavedFileHasAnotherNameNow)
{
    const QString file = savedClaim();
    change();
    SaveForm(false);
    ASSERT_TRUE(QFile::rename(file, path("claims/Smith v. Jones.ZR3")));
    EXPECT_EQ(clsLossCause::None, WriteRecoveredCopy().cause);
    // The user could not open a side file as a claim.
    ASSERT_TRUE(QFile::rename(path("claims/Smith v. Jones.ZR3"), path("claims/Smith.zr3a")));
    EXPECT_EQ(clsLossCause::FileMissing, FormLossCause());
    ASSERT_TRUE(QFile::copy(mdSamplePath(QStringLiteral("empty.zr3")), path("claims/Other.zr3")));
    EXPECT_EQ(clsLossCause::FileMissing, WriteRecoveredCopy().cause);
}

TEST_F(RecoveredCopy, KnowsWhyTheSavedFileIsNotThereAnyMore)
{
    const QString file = savedClaim();
    change();
    SaveForm(false);
    EXPECT_EQ(clsLossCause::None, FormLossCause());
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return step == clsFileStep::OpenToRead ? clsFileFault {EACCES} : clsFileFault();
    };
    EXPECT_EQ(clsLossCause::FileUnreadable, FormLossCause());
    FileSystem().faultPoint = nullptr;
    put(file, "another");
    EXPECT_EQ(clsLossCause::FileChanged, FormLossCause());
    QFile::remove(file);
    EXPECT_EQ(clsLossCause::FileMissing, FormLossCause());
}

TEST_F(RecoveredCopy, OfAnUnsavedClaimHasItsFixedName)
{
    NewForm(true);
    change();
    EXPECT_EQ(recovered("Unsaved Claim 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy().path);
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
            const QString copy = WriteRecoveredCopy().path;
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
    EXPECT_EQ(recovered("Smith 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy().path);
    const QByteArray first = bytesOf(recovered("Smith 2026-11-21 14.03.22.zr3"));
    change();
    EXPECT_EQ(recovered("Smith 2026-11-21 14.03.22 (2).zr3"), WriteRecoveredCopy().path);
    change();
    EXPECT_EQ(recovered("Smith 2026-11-21 14.03.22 (3).zr3"), WriteRecoveredCopy().path);
    EXPECT_EQ(first, bytesOf(recovered("Smith 2026-11-21 14.03.22.zr3")));
}

TEST_F(RecoveredCopy, IsWrittenOnceForTheSameText)
{
    changedClaim();
    const QString first = WriteRecoveredCopy().path;
    SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3, 25)); });
    EXPECT_EQ(first, WriteRecoveredCopy().path);
    EXPECT_EQ(1, QDir(recovered("")).entryList(QDir::Files).size());
    change();
    EXPECT_EQ(recovered("Smith 2026-11-21 14.03.25.zr3"), WriteRecoveredCopy().path);
    // A copy that no longer exists, or has other content, doesn't count.
    put(recovered("Smith 2026-11-21 14.03.25.zr3"), "another");
    EXPECT_EQ(recovered("Smith 2026-11-21 14.03.25 (2).zr3"), WriteRecoveredCopy().path);
    QFile::remove(recovered("Smith 2026-11-21 14.03.25 (2).zr3"));
    EXPECT_EQ(recovered("Smith 2026-11-21 14.03.25 (2).zr3"), WriteRecoveredCopy().path);
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
        EXPECT_EQ(recovered(row.copy), WriteRecoveredCopy().path);
    }
    const QByteArray longest = "claims/" + QByteArray("é").repeated(120) + "12.zr3";
    changedClaim(longest.constData());
    const QString copy = WriteRecoveredCopy().path;
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
    EXPECT_EQ(path("own/Recovered/Smith 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy().path);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(store, bytesOf(path("config/Velmor/ZR3.conf"))) << "nothing is stored";
}

TEST_F(RecoveredCopy, GoesToTheUsersOwnFolderWhereTheDatabaseFolderIsGone)
{
    changedClaim();
    QDir(path("program/Databases")).removeRecursively();
    EXPECT_EQ(fallback("Smith 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy().path);
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
    make(QStringLiteral("config/Velmor/ZR3.conf")); // a folder in place of the store
    EXPECT_EQ(fallback("Smith 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy().path);
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
        [&] { return WriteRecoveredCopy().path == fallback("Smith 2026-11-21 14.03.22.zr3") ? 0 : 1; });
    ASSERT_EQ(0, ::chmod(QFile::encodeName(path("program/Databases")).constData(), 0755));
    EXPECT_EQ(0, result);
    EXPECT_EQ(Form->XMLOutput(), textOf(fallback("Smith 2026-11-21 14.03.22.zr3")));
}

TEST_F(RecoveredCopy, ALinkInPlaceOfTheFolderIsNotFollowed)
{
    changedClaim();
    make(QStringLiteral("trap"));
    ASSERT_EQ(0, ::symlink("../../trap", QFile::encodeName(path("program/Databases/Recovered")).constData()));
    EXPECT_EQ(fallback("Smith 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy().path);
    EXPECT_TRUE(QDir(path("trap")).isEmpty());
}

TEST_F(RecoveredCopy, AFolderOfAnotherUserIsNotUsed)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the administrator can make a folder for another user";
    changedClaim();
    make(QStringLiteral("program/Databases/Recovered"));
    ASSERT_EQ(0, ::chown(QFile::encodeName(recovered("")).constData(), OrdinaryUser, OrdinaryUser));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(recovered("")).constData(), 0777));
    EXPECT_EQ(fallback("Smith 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy().path);
    EXPECT_TRUE(QDir(recovered("")).isEmpty());
    EXPECT_EQ(mode_t(0777), modeOf(recovered(""))) << "it stays as it is";
}

TEST_F(RecoveredCopy, TheUsersOwnFolderIsClosedToOthers)
{
    changedClaim();
    QDir(path("program/Databases")).removeRecursively();
    make(QStringLiteral("state/Velmor"));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(path("state/Velmor")).constData(), 0777));
    EXPECT_EQ(fallback("Smith 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy().path);
    EXPECT_EQ(mode_t(0700), modeOf(path("state/Velmor")));
}

TEST_F(RecoveredCopy, ALinkOfTheUsersOwnLeadsToTheUsersOwnFolder)
{
    changedClaim();
    QDir(path("program/Databases")).removeRecursively();
    for (const char *name : {"state", "far/away"})
        make(QString::fromUtf8(name));
    ASSERT_EQ(0, ::symlink("../far/away", QFile::encodeName(path("state/Velmor")).constData()));
    EXPECT_EQ(fallback("Smith 2026-11-21 14.03.22.zr3"), WriteRecoveredCopy().path);
    EXPECT_TRUE(exists(path("far/away/Recovered/Smith 2026-11-21 14.03.22.zr3")));
}

TEST_F(RecoveredCopy, ALinkOfAnotherUsersLeadsNowhere)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the administrator can make a link for another user";
    changedClaim();
    QDir(path("program/Databases")).removeRecursively();
    make(QStringLiteral("trap"));
    // In place of the folder, above it, and behind a link of the user's own.
    const std::pair<const char *, const char *> places[]
        = {{"state/Velmor", ""}, {"foreign", "foreign/deep"}, {"foreign", "own"}};
    for (const auto &[foreign, state] : places) {
        SCOPED_TRACE(state);
        make(QStringLiteral("state"));
        const QByteArray link = QFile::encodeName(path(foreign));
        ASSERT_EQ(0, ::symlink(QFile::encodeName(path("trap")).constData(), link.constData()));
        ASSERT_EQ(0, ::lchown(link.constData(), OrdinaryUser, OrdinaryUser));
        if (QByteArray(state) == "own") {
            ASSERT_EQ(0, ::symlink("foreign", QFile::encodeName(path("own")).constData()));
        }
        if (*state)
            qputenv("XDG_STATE_HOME", QFile::encodeName(path(state)));
        const clsRecoveredCopy copy = WriteRecoveredCopy();
        EXPECT_EQ(QString(), copy.path);
        EXPECT_EQ((QStringList {path("program/Databases/Recovered"),
                      (*state ? path(state) : path("state")) + QStringLiteral("/Velmor/Recovered")}),
            copy.tried);
        EXPECT_TRUE(QDir(path("trap")).isEmpty());
        ASSERT_EQ(0, ::unlink(link.constData()));
    }
}

TEST_F(RecoveredCopy, LeavesNothingHalfWrittenOnAFullDisk)
{
    changedClaim();
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return step == clsFileStep::Write ? clsFileFault {ENOSPC, 100} : clsFileFault();
    };
    EXPECT_EQ(QString(), WriteRecoveredCopy().path);
    EXPECT_TRUE(QDir(recovered("")).isEmpty());
    EXPECT_TRUE(QDir(fallback("")).isEmpty());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(RecoveredCopy, ThatCanNotBeWrittenAnywhereIsNoFailure)
{
    changedClaim();
    put(path("program/Databases/Recovered"), "a file in the folder's place");
    put(path("state"), "and another");
    const clsRecoveredCopy copy = WriteRecoveredCopy();
    EXPECT_EQ(QString(), copy.path);
    EXPECT_EQ((QStringList {path("program/Databases/Recovered"), path("state/Velmor/Recovered")}), copy.tried);
    EXPECT_TRUE(user.messages.empty());
}

// The box of an error that nothing has caught

TEST_F(RecoveredCopy, TheBoxOfAnErrorSaysWhereItLies)
{
    const clsRunTimeError error(clsRunTimeError::SubscriptOutOfRange);
    const QString start = QStringLiteral("Run-time error '9':\r\n\r\nSubscript out of range");
    EXPECT_EQ(start, mdRunTimeErrorMessage(error, {}));
    EXPECT_EQ(start + QStringLiteral("\r\n\r\nA copy of your claim with its unsaved changes is in:\r\n\r\n/x/y.zr3"),
        mdRunTimeErrorMessage(error, {clsLossCause::UnsavedChanges, QStringLiteral("/x/y.zr3"), {}}));
    EXPECT_EQ(start
            + QStringLiteral("\r\n\r\nNo copy of your claim could be written. The program tried these folders:"
                             "\r\n\r\n/x\r\n/y"),
        mdRunTimeErrorMessage(error, {clsLossCause::UnsavedChanges, {}, {QStringLiteral("/x"), QStringLiteral("/y")}}));
}

TEST_F(RecoveredCopy, EachCauseHasItsSentence)
{
    const std::pair<clsLossCause, const char *> rows[] = {
        {clsLossCause::UnsavedChanges, "A copy of your claim with its unsaved changes is in:"},
        {clsLossCause::SaveFailed, "A copy of your claim, whose last save failed, is in:"},
        {clsLossCause::FileChanged, "A copy of your claim, whose file another program has changed, is in:"},
        {clsLossCause::FileMissing, "A copy of your claim, whose file is no longer in its place, is in:"},
        {clsLossCause::FileUnreadable, "A copy of your claim, whose file can't be read any more, is in:"},
    };
    const QString copy = QStringLiteral("/x/y.zr3");
    for (const auto &[cause, sentence] : rows)
        EXPECT_EQ(QString::fromLatin1(sentence) + QStringLiteral("\r\n\r\n") + copy,
            mdRecoveredCopyMessage({cause, copy, {}}));
    EXPECT_EQ(QString(), mdRecoveredCopyMessage({}));
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
    EXPECT_EQ(start + QStringLiteral("\r\n\r\nA copy of your claim with its unsaved changes is in:\r\n\r\n/x/y.zr3"),
        mdRunTimeErrorMessage(error, {clsLossCause::UnsavedChanges, QStringLiteral("/x/y.zr3"), {}}));
}
