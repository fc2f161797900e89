// The recovery copy of the open claim: when it exists, what it contains, and when it is deleted.

#include "base/mdCodePage.h"
#include "formdata/mdRunStep.h"
#include "tests/commands/clsJournalTest.h"

#include <QCoreApplication>

#include <cerrno>

#include <unistd.h>

namespace {

class JournalKept : public clsJournalTest { };

const clsTypedTexts TypedWork {QStringLiteral("frmDetailsOfWork"), QStringLiteral("Details of Work"), 0,
    {{QStringLiteral("Details"), QStringLiteral("Drafted the statement — in full")}}};

} // namespace

TEST_F(JournalKept, HoldsTheClaimAsItStands)
{
    const QString claim = changedClaim();
    ASSERT_EQ(1, journals().size());
    const auto kept = contents();
    ASSERT_TRUE(kept);
    EXPECT_EQ(claim, kept->head.claim);
    EXPECT_EQ(Form->XMLOutput().toLatin1(), kept->claim);
    EXPECT_EQ(QDateTime(QDate(2026, 11, 22), QTime(14, 3, 22)), kept->head.changed);
    EXPECT_EQ(QCoreApplication::applicationPid(), kept->head.process);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(JournalKept, TouchesNothingOfTheClaim)
{
    savedClaim();
    change();
    const QString text = Form->XMLOutput();
    const QString clean = CleanXML;
    const QString file = Document().filePath();
    Journal().flush();
    EXPECT_EQ(text, Form->XMLOutput());
    EXPECT_EQ(clean, CleanXML);
    EXPECT_EQ(file, Document().filePath());
    EXPECT_TRUE(FormIsDirty());
}

TEST_F(JournalKept, IsItsOwnersAlone)
{
    const mode_t before = ::umask(0);
    changedClaim();
    ::umask(before);
    EXPECT_EQ(mode_t(0600), modeOf(journal()));
    EXPECT_EQ(mode_t(0700), modeOf(path("state/Velmor/Journal")));
    EXPECT_EQ(mode_t(0700), modeOf(path("state/Velmor")));
}

TEST_F(JournalKept, IsNotMadeForACleanClaim)
{
    savedClaim();
    Journal().flush();
    EXPECT_TRUE(allFiles().isEmpty());
}

TEST_F(JournalKept, IsNotMadeForAClaimThatLiesElsewhereThanItWasSaved)
{
    OpenFormFile(claimFrom("housing-typical.zr3"));
    ASSERT_TRUE(FormIsDirty());
    Journal().flush();
    EXPECT_TRUE(allFiles().isEmpty());
}

TEST_F(JournalKept, IsMadeForAClaimThatWasNeverSaved)
{
    NewForm(true);
    Journal().flush();
    EXPECT_TRUE(allFiles().isEmpty()) << "nothing of the user's is in it yet";
    change();
    Journal().flush();
    ASSERT_TRUE(contents());
    EXPECT_EQ(QString(), contents()->head.claim);
}

TEST_F(JournalKept, HoldsWhatIsTypedInOpenScreensOfACleanClaim)
{
    savedClaim();
    typed = {TypedWork};
    Journal().flush();
    ASSERT_TRUE(contents());
    EXPECT_EQ(std::vector {TypedWork}, contents()->head.typed);
    typed.clear();
    Journal().flush();
    EXPECT_TRUE(allFiles().isEmpty()) << "the screen was cancelled";
}

TEST_F(JournalKept, GoesWithTheChange)
{
    savedClaim();
    const QString notes = Form->Notes();
    change();
    Journal().flush();
    ASSERT_EQ(1, journals().size());
    Form->Notes = notes;
    Journal().flush();
    EXPECT_TRUE(allFiles().isEmpty());
}

TEST_F(JournalKept, GoesWithASave)
{
    changedClaim();
    EXPECT_TRUE(SaveForm(false));
    EXPECT_TRUE(allFiles().isEmpty());
    EXPECT_TRUE(Journal().notSaved().isEmpty());
}

TEST_F(JournalKept, IsNotOlderThanTheFileWhenASaveIsBrokenOff)
{
    const QString claim = savedClaim();
    change();
    const QByteArray saved = mdToCodePage(Form->XMLOutput());
    QByteArray atTheSave;
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        if (step == clsFileStep::Truncate && at == claim)
            atTheSave = bytesOf(journal());
        return clsFileFault();
    };
    EXPECT_TRUE(SaveForm(false));
    ASSERT_TRUE(ReadJournal(atTheSave));
    EXPECT_EQ(saved, ReadJournal(atTheSave)->claim);
}

TEST_F(JournalKept, StaysAtASaveWhileSomethingIsTyped)
{
    typed = {TypedWork};
    changedClaim();
    EXPECT_TRUE(SaveForm(false));
    Journal().flush();
    ASSERT_TRUE(contents());
    EXPECT_EQ(std::vector {TypedWork}, contents()->head.typed);
}

TEST_F(JournalKept, GoesWhenTheUserGivesTheClaimUp)
{
    changedClaim();
    user.answers = {clsUserInterface::No};
    NewForm(false);
    EXPECT_TRUE(allFiles().isEmpty());
}

TEST_F(JournalKept, StaysWithAClaimWhoseQuestionWasCancelled)
{
    changedClaim();
    user.answers = {clsUserInterface::Cancel};
    NewForm(false);
    EXPECT_EQ(1, journals().size());
}

TEST_F(JournalKept, StaysWhenASaveFails)
{
    const QString claim = changedClaim();
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::Write && at == claim ? clsFileFault {ENOSPC, 100} : clsFileFault();
    };
    EXPECT_TRUE(SaveForm(false));
    EXPECT_FALSE(FormIsDirty()) << "the mark goes all the same";
    EXPECT_EQ(QStringLiteral("the disk is full"), Journal().notSaved());
    Journal().flush();
    ASSERT_TRUE(contents());
    EXPECT_EQ(mdToCodePage(Form->XMLOutput()), contents()->claim);
    Journal().leaveClaim();
    EXPECT_EQ(1, journals().size()) << "also after an orderly end";

    FileSystem().faultPoint = nullptr;
    clsLeftJournals left;
    left.look();
    EXPECT_EQ(1u, left.all().size());
}

TEST_F(JournalKept, OfAFailedSaveHoldsTheLastChangesWhenAnotherClaimIsOpened)
{
    const QString other = claimFrom("housing-typical.zr3", "claims/Other.zr3");
    const QString claim = changedClaim();
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::Write && at == claim ? clsFileFault {ENOSPC, 100} : clsFileFault();
    };
    SaveForm(false);
    FileSystem().faultPoint = nullptr;
    change();
    const QByteArray last = mdToCodePage(Form->XMLOutput());
    OpenFormFile(other);
    ASSERT_TRUE(contents());
    EXPECT_EQ(last, contents()->claim);
    EXPECT_EQ(claim, contents()->head.claim);
}

TEST_F(JournalKept, ASaveAfterOneThatFailedTakesItAway)
{
    const QString claim = changedClaim();
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::Write && at == claim ? clsFileFault {ENOSPC, 100} : clsFileFault();
    };
    SaveForm(false);
    Journal().flush();
    FileSystem().faultPoint = nullptr;
    SaveForm(false);
    EXPECT_TRUE(Journal().notSaved().isEmpty());
    EXPECT_TRUE(allFiles().isEmpty());
}

TEST_F(JournalKept, ASaveThatCannotBeReadBackIsNone)
{
    const QString claim = changedClaim();
    bool written = false;
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        written = written || (step == clsFileStep::Write && at == claim);
        return written && step == clsFileStep::Read && at == claim ? clsFileFault {EIO} : clsFileFault();
    };
    SaveForm(false);
    EXPECT_EQ(QStringLiteral("the disk does not answer"), Journal().notSaved());
    Journal().flush();
    EXPECT_EQ(1, journals().size());
}

TEST_F(JournalKept, AFullDiskLeavesTheJournalBeforeAndSaysSo)
{
    changedClaim();
    const QByteArray before = bytesOf(journal());
    change();
    FileSystem().faultPoint = [](clsFileStep step, const QString &at) {
        return step == clsFileStep::Write && at.contains(QLatin1String("/Journal/")) ? clsFileFault {ENOSPC, 10}
                                                                                     : clsFileFault();
    };
    Journal().flush();
    EXPECT_EQ(QStringLiteral("the disk is full"), Journal().notKept());
    EXPECT_EQ(before, bytesOf(journal()));
    EXPECT_EQ(2, allFiles().size()) << "the journal and its lock";
    FileSystem().faultPoint = nullptr;
    Journal().flush();
    EXPECT_TRUE(Journal().notKept().isEmpty());
    EXPECT_EQ(mdToCodePage(Form->XMLOutput()), contents()->claim);
}

TEST_F(JournalKept, AFolderThatCannotBeLookedIntoSaysSo)
{
    changedClaim();
    change();
    FileSystem().faultPoint = [](clsFileStep step, const QString &at) {
        return step == clsFileStep::Inspect && at.endsWith(QLatin1String(".lock")) ? clsFileFault {EIO}
                                                                                   : clsFileFault();
    };
    Journal().flush();
    EXPECT_EQ(QStringLiteral("the disk does not answer"), Journal().notKept());
    FileSystem().faultPoint = nullptr;
    Journal().flush();
    EXPECT_TRUE(Journal().notKept().isEmpty());
    EXPECT_EQ(mdToCodePage(Form->XMLOutput()), contents()->claim);
}

TEST_F(JournalKept, AStateFolderThatIsAFileSaysSo)
{
    put(path("state"), "no folder");
    changedClaim();
    EXPECT_EQ(QStringLiteral("its folder cannot be written to"), Journal().notKept());
    EXPECT_TRUE(user.messages.empty());
    QFile::remove(path("state"));
    Journal().flush();
    EXPECT_TRUE(Journal().notKept().isEmpty());
    EXPECT_EQ(1, journals().size());
}

TEST_F(JournalKept, AFolderThatIsALinkIsNotWrittenThrough)
{
    make(QStringLiteral("state/Velmor"));
    make(QStringLiteral("elsewhere"));
    ASSERT_TRUE(QFile::link(path("elsewhere"), path("state/Velmor/Journal")));
    changedClaim();
    EXPECT_FALSE(Journal().notKept().isEmpty());
    EXPECT_TRUE(QDir(path("elsewhere")).isEmpty());
}

TEST_F(JournalKept, IsWrittenAnewWhereItsFolderWasRemoved)
{
    changedClaim();
    QDir(path("state/Velmor")).removeRecursively();
    change();
    Journal().flush();
    EXPECT_EQ(1, journals().size());
    EXPECT_EQ(mdToCodePage(Form->XMLOutput()), contents()->claim);
}

TEST_F(JournalKept, IsWrittenInTheBackground)
{
    savedClaim();
    change();
    Journal().update();
    EXPECT_TRUE(Journal().isWriting());
    for (int i = 0; i < 1000 && Journal().isWriting(); ++i) {
        Journal().update();
        ::usleep(5000);
    }
    EXPECT_FALSE(Journal().isWriting());
    ASSERT_TRUE(contents());
    EXPECT_EQ(mdToCodePage(Form->XMLOutput()), contents()->claim);
}

TEST_F(JournalKept, IsNotWrittenWhileNothingChanges)
{
    changedClaim();
    int renamed = 0;
    FileSystem().faultPoint = [&](clsFileStep step, const QString &) {
        renamed += step == clsFileStep::Rename;
        return clsFileFault();
    };
    Journal().flush();
    EXPECT_EQ(0, renamed);
    change();
    Journal().flush();
    EXPECT_EQ(1, renamed);
}

TEST_F(JournalKept, IsOnTheDiskBeforeItTakesItsName)
{
    savedClaim();
    change();
    std::vector<clsFileStep> order;
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        if (at.contains(QLatin1String("/Journal")) && step != clsFileStep::Inspect)
            order.push_back(step);
        return clsFileFault();
    };
    Journal().flush();
    using enum clsFileStep;
    EXPECT_EQ((std::vector {OpenToWrite, Write, SyncFile, Close, SyncFolder, Rename, SyncFolder}), order);
}

TEST_F(JournalKept, OfTwoUsersOfOneDatabaseFolderKnowNothingOfEachOther)
{
    const QStringList before = QDir(path("program/Databases")).entryList(QDir::AllEntries | QDir::Hidden);
    changedClaim();
    EXPECT_EQ(before, QDir(path("program/Databases")).entryList(QDir::AllEntries | QDir::Hidden));
    kill();
    qputenv("XDG_STATE_HOME", QFile::encodeName(path("another user's state")));
    clsLeftJournals left;
    left.look();
    EXPECT_TRUE(left.all().empty());
    EXPECT_FALSE(QFileInfo::exists(path("another user's state"))) << "looking makes nothing";
}

TEST_F(JournalKept, IsToldOfEachStepUndoAndRedo)
{
    savedClaim();
    steps = 0;
    RunStep(QStringLiteral("Notes"), change);
    EXPECT_EQ(1, steps);
    Document().history.undo();
    EXPECT_EQ(2, steps);
    Document().history.redo();
    EXPECT_EQ(3, steps);
    Journal().end();
    RunStep(QStringLiteral("Notes"), change);
    EXPECT_EQ(3, steps);
}

TEST_F(JournalKept, IsNotKeptWithoutAWindow)
{
    Journal().end();
    changedClaim();
    SaveForm(false);
    EXPECT_TRUE(allFiles().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(path("state/Velmor/Journal")));
}
