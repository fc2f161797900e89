// Journals left by an earlier run: which are offered, and how one is opened and discarded.

#include "base/clsHeldFile.h"
#include "base/mdCodePage.h"
#include "commands/clsNotStored.h"
#include "commands/mdRecoveredCopy.h"
#include "tests/commands/clsJournalTest.h"

namespace {

class LeftJournals : public clsJournalTest {
protected:
    std::vector<clsLeftJournal> look()
    {
        left.look();
        return left.all();
    }
    clsLeftJournals left;
};

} // namespace

TEST_F(LeftJournals, OfARunningWindowAreNotOffered)
{
    changedClaim();
    EXPECT_TRUE(look().empty());
    kill();
    ASSERT_EQ(1u, look().size());
    EXPECT_EQ(path("claims/Smith.zr3"), left.all()[0].head.claim);
}

TEST_F(LeftJournals, OfTwoWindowsOnOneClaimAreTwo)
{
    changedClaim();
    kill();
    change();
    Journal().flush();
    EXPECT_EQ(2, journals().size());
    EXPECT_EQ(1u, look().size()) << "the other is this window's own";
    kill();
    EXPECT_EQ(2u, look().size());
}

TEST_F(LeftJournals, OpenAsChangedAndWithTheirOldPath)
{
    const QString claim = changedClaim();
    const QString text = Form->XMLOutput();
    kill();
    NewForm(true);
    const auto found = look();
    ASSERT_EQ(1u, found.size());
    EXPECT_TRUE(left.open(found[0]));
    EXPECT_EQ(text, Form->XMLOutput());
    EXPECT_EQ(claim, Document().filePath());
    EXPECT_TRUE(FormIsDirty());
    EXPECT_EQ(1, journals().size()) << "its journal goes on until it is saved";
    EXPECT_TRUE(look().empty());
    EXPECT_TRUE(SaveForm(false));
    EXPECT_TRUE(allFiles().isEmpty());
    EXPECT_EQ(text, textOf(claim));
}

TEST_F(LeftJournals, OpenedAndKilledAgainAreOfferedAgain)
{
    changedClaim();
    kill();
    left.look();
    ASSERT_TRUE(left.open(left.all().at(0)));
    change();
    Journal().flush();
    const QByteArray latest = mdToCodePage(Form->XMLOutput());
    kill();
    ASSERT_EQ(1u, look().size());
    EXPECT_EQ(latest, contents()->claim);
}

TEST_F(LeftJournals, KeepWhatWasTypedInOpenScreens)
{
    typed = {{QStringLiteral("frmCounselEdit"), QStringLiteral("Counsel"), 2,
        {{QStringLiteral("Name"), QStringLiteral("A")}}}};
    changedClaim();
    const auto before = typed;
    typed.clear();
    kill();
    left.look();
    ASSERT_TRUE(left.open(left.all().at(0)));
    EXPECT_EQ(before, NotStored().all());
    Journal().flush();
    EXPECT_EQ(before, contents()->head.typed) << "a second end loses them no more than the first";
}

TEST_F(LeftJournals, OfAClaimThatWasNeverSavedOpenWithoutAPath)
{
    NewForm(true);
    change();
    Journal().flush();
    kill();
    NewForm(true);
    left.look();
    ASSERT_TRUE(left.open(left.all().at(0)));
    EXPECT_EQ(QString(), Document().filePath());
    EXPECT_TRUE(FormIsDirty());
}

TEST_F(LeftJournals, AreTakenAwayWhereTheClaimsFileHoldsAllOfThem)
{
    const QString claim = changedClaim();
    const QByteArray saved = mdToCodePage(Form->XMLOutput());
    kill();
    put(claim, saved);
    EXPECT_TRUE(look().empty());
    EXPECT_TRUE(allFiles().isEmpty());
}

TEST_F(LeftJournals, GoWhenTheUserOpensTheRecoveredCopyOfTheSameEnd)
{
    typed = {{QStringLiteral("frmCounselEdit"), QStringLiteral("Counsel"), 2,
        {{QStringLiteral("Name"), QStringLiteral("A")}}}};
    const QString claim = changedClaim();
    const auto before = typed;
    const QString copy = WriteRecoveredCopy().path;
    ASSERT_FALSE(copy.isEmpty());
    typed.clear();
    kill();
    OpenFormFile(claim);
    EXPECT_EQ(1u, look().size()) << "the file lacks the change";
    OpenFormFile(copy);
    EXPECT_TRUE(look().empty());
    EXPECT_TRUE(allFiles().isEmpty());
    EXPECT_EQ(before, NotStored().all()) << "what was typed goes along";
    EXPECT_TRUE(QFile::exists(copy));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(LeftJournals, StayWhereWhatIsOpenIsNotTheSameToTheByte)
{
    changedClaim();
    const QString copy = WriteRecoveredCopy().path;
    change();
    Journal().flush();
    kill();
    OpenFormFile(copy);
    EXPECT_EQ(1u, look().size()) << "the journal has more than the copy";
    // Nor does a claim without a file match a journal.
    NewForm(true);
    EXPECT_EQ(1u, look().size());
    // Another window now holds it.
    left = {};
    put(copy, contents()->claim);
    OpenFormFile(copy);
    const clsHeldFile other(JournalLock(journal()));
    EXPECT_TRUE(look().empty());
    EXPECT_EQ(1, journals().size());
}

TEST_F(LeftJournals, GoWhenDiscarded)
{
    changedClaim();
    kill();
    left.look();
    EXPECT_TRUE(left.discard(left.all().at(0)));
    EXPECT_TRUE(allFiles().isEmpty());
    EXPECT_TRUE(look().empty());
}

TEST_F(LeftJournals, ThatAnotherWindowHasTakenAreNeitherOpenedNorDiscarded)
{
    changedClaim();
    kill();
    left.look();
    const clsHeldFile other(JournalLock(journal()));
    NewForm(true);
    const QString text = Form->XMLOutput();
    EXPECT_FALSE(left.open(left.all().at(0)));
    EXPECT_FALSE(left.discard(left.all().at(0)));
    EXPECT_EQ(text, Form->XMLOutput());
    EXPECT_EQ(1, journals().size());
    EXPECT_TRUE(look().empty());
}

TEST_F(LeftJournals, ThatAreBrokenAreSetAsideAndHarmNothing)
{
    changedClaim();
    kill();
    const QByteArray whole = bytesOf(journal());
    const QString name = journal();
    QByteArray altered = whole;
    altered[altered.size() / 2] = char(altered[altered.size() / 2] ^ 1);
    const QByteArrayList bad {QByteArray(), "Velmor ZR3 journal 1 ", whole.left(whole.size() - 1), whole + ' ', altered,
        "Velmor ZR3 journal 1 -5 99999999999999999999 x\n{}", QByteArray(3000, '\0')};
    for (const QByteArray &bytes : bad) {
        put(name, bytes);
        EXPECT_TRUE(look().empty());
        EXPECT_EQ(1, left.broken());
        left.brokenWereTold();
        EXPECT_EQ(bytes, bytesOf(name + QStringLiteral(".broken"))) << "it can still be looked at by hand";
        EXPECT_EQ(1, allFiles().size());
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(LeftJournals, ThatCannotBeSetAsideKeepNoOtherFromBeingOffered)
{
    changedClaim();
    kill();
    // Sorts before any other name.
    const QString broken = path("state/Velmor/Journal/!.journal");
    put(broken, "nonsense");
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return step == clsFileStep::Rename ? clsFileFault {EROFS} : clsFileFault();
    };
    ASSERT_EQ(1u, look().size());
    EXPECT_EQ(path("claims/Smith.zr3"), left.all()[0].head.claim);
    EXPECT_EQ(0, left.broken());
    EXPECT_EQ("nonsense", bytesOf(broken));
}

TEST_F(LeftJournals, ThatCannotBeReadAreOfferedAgain)
{
    changedClaim();
    kill();
    ASSERT_EQ(1u, look().size());
    FileSystem().faultPoint = [](clsFileStep step, const QString &at) {
        return step == clsFileStep::Read && at.endsWith(QLatin1String(".journal")) ? clsFileFault {EIO}
                                                                                   : clsFileFault();
    };
    EXPECT_FALSE(left.open(left.all().at(0)));
    FileSystem().faultPoint = nullptr;
    EXPECT_EQ(0, left.broken());
    ASSERT_EQ(1u, look().size());
    EXPECT_TRUE(left.open(left.all().at(0)));
}

TEST_F(LeftJournals, WhoseClaimIsNoneAreSetAsideAndTheOpenOneStays)
{
    changedClaim();
    kill();
    const QString open = Form->XMLOutput();
    put(journal(), JournalBytes(NewJournalHead(), "no claim"));
    left.look();
    ASSERT_EQ(1u, left.all().size());
    EXPECT_FALSE(left.open(left.all().at(0)));
    EXPECT_EQ(open, Form->XMLOutput());
    EXPECT_EQ(1, left.broken());
    EXPECT_TRUE(journals().isEmpty());
}

TEST_F(LeftJournals, AreNotReadThroughALink)
{
    changedClaim();
    kill();
    ASSERT_TRUE(QDir().rename(path("state/Velmor/Journal"), path("elsewhere")));
    ASSERT_TRUE(QFile::link(path("elsewhere"), path("state/Velmor/Journal")));
    EXPECT_TRUE(look().empty());
}
