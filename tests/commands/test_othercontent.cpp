// A claim's file that another program changes while the claim is open.

#include "tests/commands/clsJournalTest.h"

#include <cerrno>

namespace {

class OtherContent : public clsJournalTest {
protected:
    QStringList aside() const { return QDir(path("state/Velmor/Set Aside")).entryList(QDir::Files); }
};

} // namespace

TEST_F(OtherContent, IsNoneAsLongAsOnlyThisProgramWrites)
{
    savedClaim();
    EXPECT_FALSE(Document().onDisk.changedByOthers());
    change();
    EXPECT_TRUE(SaveForm(false));
    EXPECT_FALSE(Document().onDisk.changedByOthers());
    EXPECT_TRUE(aside().isEmpty());
    EXPECT_TRUE(user.lines.isEmpty());
}

TEST_F(OtherContent, IsNoneWhereTheSameBytesAreWrittenAnew)
{
    const QString claim = savedClaim();
    const QByteArray bytes = bytesOf(claim);
    QFile::remove(claim);
    put(claim, bytes);
    EXPECT_FALSE(Document().onDisk.changedByOthers());
}

TEST_F(OtherContent, IsFoundAfterALoadAndAfterASave)
{
    const QString claim = savedClaim();
    const QByteArray mine = bytesOf(claim);
    put(claim, mine + "\n");
    EXPECT_TRUE(Document().onDisk.changedByOthers());
    SaveForm(false);
    EXPECT_FALSE(Document().onDisk.changedByOthers());
    put(claim, mine + "\n");
    EXPECT_TRUE(Document().onDisk.changedByOthers());
    put(claim, mine);
    EXPECT_FALSE(Document().onDisk.changedByOthers()) << "put back as it was";
}

TEST_F(OtherContent, IsSetAsideBeforeASaveWritesOverIt)
{
    const QString claim = savedClaim();
    const QByteArray theirs = bytesOf(claim) + "<!-- theirs -->";
    put(claim, theirs);
    change();
    EXPECT_TRUE(SaveForm(false));
    EXPECT_EQ(QStringList {QStringLiteral("Smith 2026-11-22 14.03.22.zr3")}, aside());
    EXPECT_EQ(theirs, bytesOf(path("state/Velmor/Set Aside/Smith 2026-11-22 14.03.22.zr3")));
    EXPECT_EQ(mode_t(0600), modeOf(path("state/Velmor/Set Aside/Smith 2026-11-22 14.03.22.zr3")));
    EXPECT_EQ(Form->XMLOutput(), textOf(claim));
    EXPECT_EQ(QStringList {QStringLiteral("Saved. The other program's version was set aside")}, user.lines);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(OtherContent, IsKeptTenTimesOfOneClaimAndNothingElseIsTouched)
{
    const QString claim = savedClaim();
    const QByteArray theirs = bytesOf(claim) + "<!-- theirs -->";
    const QString asideFolder = path("state/Velmor/Set Aside/");
    int minute = 0;
    // Creates a file with a copy's name and the given time of change.
    const auto putAged = [&](const QString &name, const QDateTime &changed) {
        put(asideFolder + name, "x");
        QFile file(asideFolder + name);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(changed, QFileDevice::FileModificationTime));
    };
    const auto saveOverTheirs = [&] {
        SetClock([&] { return QDateTime(QDate(2026, 11, 22), QTime(14, minute, 0)); });
        put(claim, theirs + QByteArray::number(minute));
        change();
        EXPECT_TRUE(SaveForm(false));
        const QString made
            = asideFolder + QStringLiteral("Smith 2026-11-22 14.%1.00.zr3").arg(minute, 2, 10, QChar(u'0'));
        QFile file(made);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite)) << made.toStdString();
        ASSERT_TRUE(file.setFileTime(Now(), QFileDevice::FileModificationTime));
    };
    saveOverTheirs();
    const QDateTime old(QDate(2020, 1, 2), QTime(3, 4, 5));
    const QStringList others {QStringLiteral("Smith.zr3"), QStringLiteral("Smith 2020-01-02.zr3"),
        QStringLiteral("Smith 2020-01-02 03.04.05.zr3.bak"), QStringLiteral("Smith 2020-01-02 03.04.05 (x).zr3"),
        QStringLiteral("Smith 2020-13-02 03.04.05.zr3"), QStringLiteral("Smithson 2020-01-02 03.04.05.zr3"),
        QStringLiteral("Smith 2020-01-02 03.04.05 2020-01-02 03.04.05.zr3")};
    for (const QString &name : others)
        putAged(name, old);
    const QString saved = QStringLiteral("Smith 2020-01-02 03.04.06.zr3");
    putAged(saved, old.addDays(1));
    put(path("elsewhere"), "x");
    const QString link = QStringLiteral("Smith 2020-01-02 03.04.07.zr3");
    ASSERT_TRUE(QFile::link(path("elsewhere"), asideFolder + link));
    const QString oldest = QStringLiteral("Smith 2020-01-02 03.04.05.zr3");
    const QString second = QStringLiteral("Smith 2020-01-02 03.04.05 (2).zr3");
    putAged(oldest, old);
    putAged(second, old);
    for (minute = 1; minute <= 7; ++minute)
        saveOverTheirs();
    EXPECT_TRUE(QFile::exists(asideFolder + oldest)) << "ten with it";
    saveOverTheirs();
    EXPECT_FALSE(QFile::exists(asideFolder + oldest));
    EXPECT_TRUE(QFile::exists(asideFolder + second));
    // The clock was put back: this save's copy must still not be deleted.
    minute = 9;
    saveOverTheirs();
    SetClock([] { return QDateTime(QDate(2019, 1, 1), QTime(0, 0)); });
    put(claim, theirs);
    EXPECT_TRUE(SaveForm(false));
    EXPECT_TRUE(QFile::exists(asideFolder + QStringLiteral("Smith 2019-01-01 00.00.00.zr3")));
    EXPECT_FALSE(QFile::exists(asideFolder + second));
    EXPECT_FALSE(QFile::exists(asideFolder + QStringLiteral("Smith 2026-11-22 14.00.00.zr3")));
    EXPECT_TRUE(QFile::exists(asideFolder + QStringLiteral("Smith 2026-11-22 14.01.00.zr3")));
    for (const QString &name : others + QStringList {saved, link})
        EXPECT_TRUE(QFileInfo::exists(asideFolder + name)) << name.toStdString();
    EXPECT_EQ("x", bytesOf(path("elsewhere")));
}

TEST_F(OtherContent, ThatCannotBeSetAsideKeepsNoSaveUp)
{
    const QString claim = savedClaim();
    put(path("state"), "no folder");
    put(claim, bytesOf(claim) + "<!-- theirs -->");
    change();
    EXPECT_TRUE(SaveForm(false));
    EXPECT_EQ(Form->XMLOutput(), textOf(claim));
    EXPECT_EQ(QStringList {QStringLiteral("Saved. The other program's version could not be set aside")}, user.lines);
}

TEST_F(OtherContent, OfAnotherFileIsTheUsersToOverwrite)
{
    savedClaim();
    put(path("claims/Other.zr3"), "theirs");
    user.files = {path("claims/Other.zr3")};
    user.answers = {clsUserInterface::Yes};
    EXPECT_TRUE(SaveForm(true));
    EXPECT_TRUE(aside().isEmpty()) << "the question was asked";
    EXPECT_FALSE(Document().onDisk.changedByOthers());
}

TEST_F(OtherContent, IsNoneWhereTheFileIsGone)
{
    const QString claim = savedClaim();
    QFile::remove(claim);
    EXPECT_FALSE(Document().onDisk.changedByOthers());
}

TEST_F(OtherContent, IsFoundWhereTheFileCannotBeRead)
{
    const QString claim = savedClaim();
    const QByteArray mine = bytesOf(claim);
    put(claim, mine + "<!-- theirs -->");
    for (const auto &[step, error] : {std::pair(clsFileStep::OpenToRead, EACCES), {clsFileStep::Read, EIO}}) {
        FileSystem().faultPoint = [&, step = step, error = error](clsFileStep at, const QString &file) {
            return at == step && file == claim ? clsFileFault {error} : clsFileFault();
        };
        EXPECT_TRUE(Document().changedOnDisk());
        EXPECT_TRUE(Document().onDisk.isUnreadable());
    }
    FileSystem().faultPoint = nullptr;
    EXPECT_TRUE(Document().changedOnDisk()) << "looked at anew";
    EXPECT_FALSE(Document().onDisk.isUnreadable());
    // Only its permissions were changed, and restored.
    put(claim, mine);
    FileSystem().faultPoint = [](clsFileStep at, const QString &) {
        return at == clsFileStep::OpenToRead ? clsFileFault {EACCES} : clsFileFault();
    };
    EXPECT_TRUE(Document().changedOnDisk());
    FileSystem().faultPoint = nullptr;
    EXPECT_FALSE(Document().changedOnDisk());
}

TEST_F(OtherContent, ThatCannotBeReadIsNotSavedOver)
{
    const QString claim = savedClaim();
    const QByteArray theirs = bytesOf(claim) + "<!-- theirs -->";
    put(claim, theirs);
    change();
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::Read && at == claim ? clsFileFault {EIO} : clsFileFault();
    };
    EXPECT_TRUE(SaveForm(false));
    FileSystem().faultPoint = nullptr;
    EXPECT_EQ(theirs, bytesOf(claim)) << "the guard of the save can't read it either";
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("File Not Saved"), user.messages[0].title);
    EXPECT_TRUE(Document().changedOnDisk());
    EXPECT_TRUE(aside().isEmpty());
    // Now it succeeds.
    EXPECT_TRUE(SaveForm(false));
    EXPECT_EQ(1, aside().size());
    EXPECT_EQ(Form->XMLOutput(), textOf(claim));
}

TEST_F(OtherContent, ThatCouldNotBeReadForAMomentIsToldOf)
{
    const QString claim = savedClaim();
    const QByteArray mine = bytesOf(claim);
    int failures = 0;
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::Read && at == claim && failures-- > 0 ? clsFileFault {EIO} : clsFileFault();
    };
    // Both checks during the save fail, but the copy of the guarded overwrite succeeds.
    put(claim, mine + "<!-- theirs -->");
    change();
    failures = 2;
    EXPECT_TRUE(SaveForm(false));
    EXPECT_EQ(QStringList {QStringLiteral("Saved. The other program's version could not be set aside")}, user.lines);
    // Only the first fails: the content can be set aside.
    user.lines.clear();
    put(claim, mine + "<!-- theirs -->");
    failures = 1;
    EXPECT_TRUE(SaveForm(false));
    EXPECT_EQ(1, aside().size());
    EXPECT_EQ(QStringList {QStringLiteral("Saved. The other program's version was set aside")}, user.lines);
    // The same, but the content turns out to be this program's own.
    user.lines.clear();
    const QByteArray own = bytesOf(claim);
    QFile::remove(claim);
    put(claim, own);
    failures = 1;
    EXPECT_TRUE(SaveForm(false));
    EXPECT_EQ(1, aside().size());
    EXPECT_TRUE(user.lines.isEmpty());
}

TEST_F(OtherContent, IsFoundThatCameWhileTheProgramLayKilled)
{
    const QString claim = changedClaim();
    kill();
    put(claim, bytesOf(claim) + "<!-- theirs -->");
    clsLeftJournals left;
    left.look();
    ASSERT_TRUE(left.open(left.all().at(0)));
    EXPECT_TRUE(Document().onDisk.changedByOthers());
    SaveForm(false);
    EXPECT_EQ(1, aside().size());
}

TEST_F(OtherContent, IsNotWhatAFailedSaveHasLeft)
{
    const QString claim = savedClaim();
    const QByteArray before = bytesOf(claim);
    change();
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::Write && at == claim ? clsFileFault {ENOSPC, 100} : clsFileFault();
    };
    SaveForm(false);
    ASSERT_NE(before, bytesOf(claim));
    EXPECT_FALSE(Document().changedOnDisk());
    FileSystem().faultPoint = nullptr;
    SaveForm(false);
    EXPECT_TRUE(aside().isEmpty());
    EXPECT_TRUE(user.lines.isEmpty());
}

TEST_F(OtherContent, IsStillFoundAfterASaveThatFailed)
{
    const QString claim = savedClaim();
    put(claim, bytesOf(claim) + "<!-- theirs -->");
    change();
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::OpenToWrite && at == claim ? clsFileFault {EACCES} : clsFileFault();
    };
    SaveForm(false);
    EXPECT_TRUE(Document().changedOnDisk());
    EXPECT_EQ(1, aside().size());
}

TEST_F(OtherContent, OfTheClaimThatANewOneWasBegunFromIsNone)
{
    const QString claim = savedClaim();
    user.files = {claim};
    OpenFormDialog(true);
    put(claim, bytesOf(claim) + "<!-- theirs -->");
    EXPECT_FALSE(Document().changedOnDisk());
}
