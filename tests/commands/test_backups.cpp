// The ten-minute backup and the deletion of old ones.

#include "commands/mdAutoDeleteBackups.h"
#include "commands/mdAutoSave.h"
#include "tests/commands/clsDocumentTest.h"

#include <cerrno>
#include <ctime>

namespace {

class Backups : public clsDocumentTest {
protected:
    void SetUp() override
    {
        clsDocumentTest::SetUp();
        make(QStringLiteral("backups"));
        make(QStringLiteral("program/Logs"));
        SetClock([this] { return now; });
        put(log(), QByteArray());
        Preferences->Log = true;
        Preferences->AutoBackupPath = path("backups");
    }
    QString log() const { return path("program/Logs/15-11-2026.txt"); }
    /// The log's messages without their times.
    QStringList logged() const
    {
        QStringList lines = textOf(log()).split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
        for (QString &line : lines)
            line.remove(0, QStringLiteral("15/11/2026 14:03:22 : ").size());
        return lines;
    }
    QStringList backups() const { return QDir(path("backups")).entryList(QDir::Files | QDir::Hidden); }
    void newLog() const { put(log(), QByteArray()); }

    QDateTime now {QDate(2026, 11, 15), QTime(14, 3, 22)};
};

} // namespace

TEST_F(Backups, AreTheTreeAsItStandsAndTheClaimIsNotTouched)
{
    const QString file = savedClaim();
    change();
    const QByteArray onDisk = bytesOf(file);
    const QString clean = CleanXML;
    const QString text = Form->XMLOutput();
    newLog();
    mdAutoSave();
    EXPECT_EQ(text, textOf(path("backups/Smith.zr3")));
    EXPECT_EQ(text, Form->XMLOutput());
    EXPECT_EQ(clean, CleanXML);
    EXPECT_TRUE(FormIsDirty());
    EXPECT_EQ(onDisk, bytesOf(file));
    EXPECT_EQ(
        (QStringList {QStringLiteral("Begin Autosave"),
            QStringLiteral("Begin Write Text Document - ") + path("backups/Smith.zr3"),
            QStringLiteral("End Write Text Document - ") + path("backups/Smith.zr3"), QStringLiteral("End Autosave")}),
        logged());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(shown.isEmpty());
    OpenFormFile(path("backups/Smith.zr3"));
    EXPECT_TRUE(FormIsDirty()) << "it holds the path of its claim";
}

TEST_F(Backups, OfOneNameOverwriteEachOther)
{
    savedClaim();
    mdAutoSave();
    change();
    mdAutoSave();
    EXPECT_EQ(QStringList {QStringLiteral("Smith.zr3")}, backups());
    EXPECT_EQ(Form->XMLOutput(), textOf(path("backups/Smith.zr3")));
}

TEST_F(Backups, OfUnsavedClaimsHaveANameThatIsNotDeletedByAge)
{
    NewForm(true);
    mdAutoSave();
    ASSERT_EQ(1, backups().size());
    EXPECT_EQ(Form->FormFileName(), backups()[0]);
    EXPECT_FALSE(backups()[0].toLower().endsWith(QLatin1String("zr3")));
}

TEST_F(Backups, BearTheRealNameOfAClaimOutsideTheCodePage)
{
    OpenFormFile(claimFrom("housing-typical.zr3", "claims/中.zr3"));
    mdAutoSave();
    EXPECT_EQ(QStringList {QString::fromUtf8("中.zr3")}, backups());
}

TEST_F(Backups, NeedAFolderAndNothingElse)
{
    NewForm(true);
    Preferences->AutoBackup = false;
    mdAutoSave();
    EXPECT_EQ(1, backups().size());
    for (const QString &noFolder : {QString(), path("none"), log()}) {
        Preferences->AutoBackupPath = noFolder;
        newLog();
        mdAutoSave();
        EXPECT_EQ(
            (QStringList {QStringLiteral("Begin Autosave"), QStringLiteral("Autosave cancelled. Path not found")}),
            logged());
    }
    EXPECT_EQ(1, backups().size());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Backups, TheFolderMayEndInASlash)
{
    NewForm(true);
    Preferences->AutoBackupPath = path("backups/");
    newLog();
    mdAutoSave();
    EXPECT_EQ(1, backups().size());
    EXPECT_EQ(QStringLiteral("Begin Write Text Document - ") + path("backups/") + Form->FormFileName(), logged()[1]);
}

TEST_F(Backups, InTheClaimsOwnFolderOverwriteTheClaim)
{
    const QString file = savedClaim();
    change();
    Preferences->AutoBackupPath = path("claims");
    mdAutoSave();
    EXPECT_EQ(Form->XMLOutput(), textOf(file));
    EXPECT_TRUE(FormIsDirty());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Backups, AWriteThatFailsShowsItsBoxEachTime)
{
    savedClaim();
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::Write && at == path("backups/Smith.zr3") ? clsFileFault {ENOSPC} : clsFileFault();
    };
    mdAutoSave();
    mdAutoSave();
    const Box box {QStringLiteral("File Not Saved"), saveBox(path("backups/Smith.zr3"), "61 - Disk full")};
    expectBoxes({box, box});
}

TEST_F(Backups, AnyOtherFailureIsLoggedOnly)
{
    Form.reset();
    mdAutoSave();
    EXPECT_EQ(
        (QStringList {QStringLiteral("Begin Autosave"), QStringLiteral("End Autosave - ERROR ENCOUNTERED")}), logged());
    Preferences->XMLNode().remove_child("autobackuppath");
    NewForm(true);
    newLog();
    mdAutoSave();
    EXPECT_EQ(
        (QStringList {QStringLiteral("Begin Autosave"), QStringLiteral("End Autosave - ERROR ENCOUNTERED")}), logged());
    EXPECT_TRUE(user.messages.empty());
}

// The ticks

TEST_F(Backups, TheFirstTickNotesTheTimeAndTheBackupIsDueTenMinutesLater)
{
    NewForm(true);
    QString tag;
    mdAutoBackupTick(tag);
    EXPECT_FALSE(tag.isEmpty());
    EXPECT_TRUE(backups().isEmpty());
    const QString first = tag;
    now = now.addSecs(599);
    mdAutoBackupTick(tag);
    EXPECT_EQ(first, tag);
    EXPECT_TRUE(backups().isEmpty());
    now = now.addSecs(1);
    mdAutoBackupTick(tag);
    EXPECT_NE(first, tag);
    EXPECT_EQ(1, backups().size());
}

TEST_F(Backups, AreWrittenAgainTenMinutesAfterTheLastWhateverHasChanged)
{
    NewForm(true);
    QString tag;
    int written = 0;
    for (int tick = 0; tick <= 3 * 61; ++tick, now = now.addSecs(10)) {
        mdAutoBackupTick(tag);
        written += int(backups().size());
        for (const QString &file : backups())
            QFile::remove(path("backups/") + file);
    }
    EXPECT_EQ(3, written);
}

TEST_F(Backups, WholeSecondsCount)
{
    NewForm(true);
    now = QDateTime(QDate(2026, 11, 15), QTime(14, 0, 0, 900));
    QString tag;
    mdAutoBackupTick(tag);
    now = QDateTime(QDate(2026, 11, 15), QTime(14, 10, 0, 100));
    mdAutoBackupTick(tag);
    EXPECT_EQ(1, backups().size());
}

TEST_F(Backups, TenMinutesAreTenMinutesWhenTheClocksChange)
{
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "Europe/London");
    ::tzset();
    NewForm(true);
    const qint64 fiveMinutesBefore = QDateTime(QDate(2026, 10, 25), QTime(0, 55), Qt::UTC).toSecsSinceEpoch();
    now = QDateTime::fromSecsSinceEpoch(fiveMinutesBefore);
    const QTime before = now.time();
    QString tag;
    mdAutoBackupTick(tag);
    now = QDateTime::fromSecsSinceEpoch(fiveMinutesBefore + 600);
    const QTime after = now.time();
    put(path("program/Logs/25-10-2026.txt"), QByteArray());
    mdAutoBackupTick(tag);
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    ::tzset();
    if (before != QTime(1, 55) || after != QTime(1, 5))
        GTEST_SKIP() << "this machine does not know the time of London";
    EXPECT_EQ(1, backups().size());
}

TEST_F(Backups, AClockThatIsSetBackHoldsThemUpForTenMinutesAtMost)
{
    NewForm(true);
    QString tag;
    mdAutoBackupTick(tag);
    now = now.addYears(-56);
    mdAutoBackupTick(tag);
    EXPECT_TRUE(backups().isEmpty());
    now = now.addSecs(599);
    put(path("program/Logs/15-11-1970.txt"), QByteArray());
    mdAutoBackupTick(tag);
    EXPECT_TRUE(backups().isEmpty());
    now = now.addSecs(1);
    mdAutoBackupTick(tag);
    EXPECT_EQ(1, backups().size());
}

TEST_F(Backups, AClockThatIsSetForwardBringsOneAndNoneIsLost)
{
    NewForm(true);
    QString tag;
    mdAutoBackupTick(tag);
    now = now.addYears(73);
    put(path("program/Logs/15-11-2099.txt"), QByteArray());
    mdAutoBackupTick(tag);
    EXPECT_EQ(1, backups().size());
    mdAutoBackupTick(tag);
    now = now.addYears(-73);
    mdAutoBackupTick(tag);
    now = now.addSecs(600);
    mdAutoBackupTick(tag);
    EXPECT_EQ(1, backups().size());
    EXPECT_EQ(Form->XMLOutput(), textOf(path("backups/") + backups().first()));
}

TEST_F(Backups, EachPeriodWithoutAFolderLogsTheCancelledLine)
{
    NewForm(true);
    Preferences->AutoBackupPath = QString();
    QString tag;
    for (int period = 0; period <= 2; ++period, now = now.addSecs(600))
        mdAutoBackupTick(tag);
    EXPECT_EQ(2, logged().count(QStringLiteral("Autosave cancelled. Path not found")));
}

// Deletion

namespace {

class OldBackups : public Backups {
protected:
    void SetUp() override
    {
        Backups::SetUp();
        Preferences->AutoDeleteBackups = true;
    }
    void putAged(const QString &name, int days, QTime time = QTime(12, 0))
    {
        const QString file = path("backups/") + name;
        put(file, "a backup");
        QFile opened(file);
        ASSERT_TRUE(opened.open(QIODevice::ReadWrite));
        ASSERT_TRUE(opened.setFileTime(QDateTime(now.date().addDays(-days), time), QFileDevice::FileModificationTime));
    }
};

} // namespace

TEST_F(OldBackups, AreDeletedFromSixtyOneDaysOn)
{
    putAged(QStringLiteral("fresh.zr3"), 0);
    putAged(QStringLiteral("sixty.zr3"), 60, QTime(0, 0));
    putAged(QStringLiteral("sixtyone.zr3"), 61, QTime(23, 59, 59));
    putAged(QStringLiteral("ancient.zr3"), 4000);
    putAged(QStringLiteral("future.zr3"), -100);
    mdAutoDeleteBackups();
    EXPECT_EQ((QStringList {QStringLiteral("fresh.zr3"), QStringLiteral("future.zr3"), QStringLiteral("sixty.zr3")}),
        backups());
}

TEST_F(OldBackups, AreAllFilesWhoseNameEndsInTheThreeLetters)
{
    for (const char *name : {"claim.ZR3", "claimzr3", "zr3", ".zr3", "other.Zr3", "claim.zr3a", "claim.zr3-new", "r3",
             "notes.txt", "zr3.txt"})
        putAged(QString::fromUtf8(name), 61);
    make(QStringLiteral("backups/folder.zr3"));
    make(QStringLiteral("backups/below"));
    putAged(QStringLiteral("below/claim.zr3"), 61);
    mdAutoDeleteBackups();
    EXPECT_EQ((QStringList {QStringLiteral("claim.zr3-new"), QStringLiteral("claim.zr3a"), QStringLiteral("notes.txt"),
                  QStringLiteral("r3"), QStringLiteral("zr3.txt")}),
        backups());
    EXPECT_TRUE(exists(path("backups/below/claim.zr3")));
    EXPECT_TRUE(QFileInfo(path("backups/folder.zr3")).isDir());
}

TEST_F(OldBackups, AreKeptUnlessThePreferencesSayOtherwise)
{
    putAged(QStringLiteral("claim.zr3"), 61);
    Preferences->AutoDeleteBackups = false;
    mdAutoDeleteBackups();
    EXPECT_EQ(1, backups().size());
    Preferences->AutoDeleteBackups = true;
    for (const QString &noFolder : {QString(), path("none")}) {
        Preferences->AutoBackupPath = noFolder;
        mdAutoDeleteBackups();
    }
    EXPECT_EQ(1, backups().size());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(OldBackups, OneThatCanNotBeDeletedIsAnError)
{
    putAged(QStringLiteral("claim.zr3"), 61);
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return step == clsFileStep::Delete ? clsFileFault {EACCES} : clsFileFault();
    };
    EXPECT_EQ(clsRunTimeError::PermissionDenied, errorOf([] { mdAutoDeleteBackups(); }));
    EXPECT_TRUE(user.messages.empty());
}
