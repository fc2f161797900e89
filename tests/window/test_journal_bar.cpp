// The journal while the main window is open, and the bar that reports dangers to the user's work.

#include "commands/clsJournal.h"
#include "commands/mdRecoveredCopy.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCustomButton.h"
#include "controls/oFooterLine.h"
#include "controls/oNoticeBar.h"
#include "editors/frmScreen.h"
#include "formdata/mdRunStep.h"
#include "shell/clsJournalKeeper.h"
#include "tests/support/mdTry.h"
#include "tests/window/clsMainWindowTest.h"

#include <QLabel>
#include <QTimer>

#include <cerrno>

namespace {

class JournalBar : public clsMainWindowTest {
protected:
    void TearDown() override
    {
        FileSystem().faultPoint = nullptr;
        clsMainWindowTest::TearDown();
    }
    oNoticeBar &bar() const { return control<oNoticeBar>(*window, "oNoticeBar"); }
    QString told() const { return bar().isVisible() ? bar().Sentence() : QString(); }
    void press(const char *caption) const
    {
        for (oCustomButton *button : bar().findChildren<oCustomButton *>())
            if (button->isVisible() && button->Caption() == QLatin1String(caption))
                return QTest::mouseClick(button, Qt::LeftButton);
        ADD_FAILURE() << "no button " << caption;
    }
    QStringList journals() const
    {
        return QDir(path("state/Velmor/Journal")).entryList({QStringLiteral("*.journal")}, QDir::Files);
    }
    QByteArray journal() const
    {
        QFile file(path("state/Velmor/Journal/") + journals().value(0));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// Removes the window without the user, as in a kill, and starts a new one.
    void killAndStart(const QString &claim = {})
    {
        Journal().flush();
        window.reset();
        Form.reset();
        CleanXML.clear();
        start(claim);
    }
    /// A claim with a change that only the journal has, and a new window.
    QString leftClaim()
    {
        const QString claim = savedClaim();
        Form->ClientDetails.Surname = QStringLiteral("Hartwell");
        killAndStart();
        return claim;
    }
    void expectNoBox() const
    {
        for (const auto &message : user.messages)
            ADD_FAILURE() << qPrintable(message.title + u'\n' + message.text);
    }
    QString today(const char *sentence) const
    {
        return QString::fromUtf8(sentence).arg(Now().toString(QStringLiteral("HH:mm")));
    }
};

} // namespace

TEST_F(JournalBar, IsHiddenWhileAllIsWell)
{
    start();
    EXPECT_FALSE(bar().isVisible());
    savedClaim();
    EXPECT_FALSE(bar().isVisible());
    EXPECT_TRUE(journals().isEmpty());
}

TEST_F(JournalBar, AStepIsWrittenSoonAfterIt)
{
    savedClaim();
    QTest::qWait(400);
    EXPECT_TRUE(journals().isEmpty());
    RunStep(QStringLiteral("Client Details"), [] { Form->ClientDetails.Surname = QStringLiteral("Hartwell"); });
    EXPECT_TRUE(journals().isEmpty()) << "not inside the step";
    QTRY_VERIFY(journal().contains("Hartwell"));
    entry("mnuUndo").trigger();
    QTRY_VERIFY(journals().isEmpty());
    entry("mnuRedo").trigger();
    QTRY_VERIFY(journal().contains("Hartwell"));
}

TEST_F(JournalBar, WhatIsTypedIsWrittenNowAndThen)
{
    savedClaim();
    EXPECT_GE(std::chrono::seconds(15), window->journal().between) << "far less than the thirty that are promised";
    window->journal().between = std::chrono::milliseconds(50);
    window->journal().begin();
    bool kept = false;
    QTimer::singleShot(0, window.get(), [&] {
        auto *screen = qobject_cast<frmScreen *>(QApplication::activeModalWidget());
        ASSERT_TRUE(screen);
        screen->Box<oAllPurposeBox>("txtSurname").setText(QStringLiteral("Typed and not stored"));
        QElapsedTimer patience;
        patience.start();
        while (!kept && patience.elapsed() < 5000) {
            QTest::qWait(20);
            kept = journal().contains("Typed and not stored");
        }
        screen->Cancel();
    });
    window->tbSubSection_Click(1, QStringLiteral("Client Details"));
    EXPECT_TRUE(kept);
    QTRY_VERIFY(journals().isEmpty());
}

TEST_F(JournalBar, ClosingProperlyLeavesNoJournal)
{
    savedClaim();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    Journal().flush();
    EXPECT_EQ(1, journals().size());
    user.answers = {clsUserInterface::No};
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(journals().isEmpty());
}

TEST_F(JournalBar, OffersAClaimThatWasNotClosedProperlyAndWaits)
{
    leftClaim();
    EXPECT_EQ(today("empty was not closed properly: changes until %1."), told());
    expectNoBox();
    EXPECT_FALSE(bar().isAncestorOf(window->focusWidget()));
    killAndStart();
    EXPECT_EQ(today("empty was not closed properly: changes until %1."), told()) << "until it is answered";
}

TEST_F(JournalBar, TellsTheDayWhereItIsNotToday)
{
    savedClaim();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    SetClock([] { return QDateTime(QDate(2026, 11, 20), QTime(9, 5)); });
    Journal().flush();
    SetClock([] { return QDateTime(QDate(2026, 11, 22), QTime(8, 0)); });
    killAndStart();
    EXPECT_EQ(QStringLiteral("empty was not closed properly: changes until 20 November, 09:05."), told());
}

TEST_F(JournalBar, OpensItAsChangedUnderItsOldPath)
{
    const QString claim = leftClaim();
    press("Open");
    EXPECT_EQ(claim + u'*', header());
    EXPECT_EQ(QStringLiteral("Hartwell"), Form->ClientDetails.Surname());
    EXPECT_FALSE(bar().isVisible());
    entry("mnuSave").trigger();
    EXPECT_EQ(claim, header());
    EXPECT_TRUE(journals().isEmpty());
    expectNoBox();
}

TEST_F(JournalBar, OpenGoesThroughTheSaveQuestionOfAnotherClaim)
{
    leftClaim();
    Form->Notes = QStringLiteral("mine");
    user.answers = {clsUserInterface::Cancel};
    press("Open");
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Save?"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("mine"), Form->Notes());
    EXPECT_FALSE(told().isEmpty());
    user.answers = {clsUserInterface::No};
    press("Open");
    EXPECT_EQ(QStringLiteral("Hartwell"), Form->ClientDetails.Surname());
}

TEST_F(JournalBar, TheSameWorkIsNotOfferedTwice)
{
    savedClaim();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    // As when logging off: both remain.
    Journal().flush();
    const QString copy = WriteRecoveredCopy().path;
    ASSERT_FALSE(copy.isEmpty());
    killAndStart();
    ASSERT_TRUE(told().startsWith(QLatin1String("empty was not closed properly")));
    user.files = {copy};
    entry("mnuOpen").trigger();
    EXPECT_EQ(QStringLiteral("Hartwell"), Form->ClientDetails.Surname());
    EXPECT_FALSE(bar().isVisible());
    EXPECT_TRUE(journals().isEmpty());
    EXPECT_TRUE(QFileInfo::exists(copy));
    killAndStart();
    EXPECT_FALSE(bar().isVisible()) << "nor at the next start";
    expectNoBox();
}

TEST_F(JournalBar, DiscardTakesItAway)
{
    leftClaim();
    press("Discard");
    EXPECT_FALSE(bar().isVisible());
    EXPECT_TRUE(journals().isEmpty());
    expectNoBox();
}

TEST_F(JournalBar, AFailedSaveStaysVisibleUntilOneSucceeds)
{
    const QString claim = savedClaim();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::Write && at == claim ? clsFileFault {ENOSPC, 100} : clsFileFault();
    };
    entry("mnuSave").trigger();
    EXPECT_EQ(QStringLiteral("Not saved: the disk is full"), told());
    EXPECT_EQ(claim, header()) << "whatever the mark says";
    entry("mnuSave").trigger();
    EXPECT_EQ(QStringLiteral("Not saved: the disk is full"), told());
    user.files = {path("claims/elsewhere.zr3")};
    press("Save As...");
    EXPECT_FALSE(bar().isVisible());
    EXPECT_EQ(path("claims/elsewhere.zr3"), header());
}

TEST_F(JournalBar, SeveralNoticesShowTheGravestFirst)
{
    leftClaim();
    const QString claim = path("claims/new.zr3");
    user.files = {claim};
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::Write && at == claim ? clsFileFault {EIO, 0} : clsFileFault();
    };
    entry("mnuSaveAs").trigger();
    EXPECT_EQ(QStringLiteral("Not saved: the disk does not answer"), told());
    EXPECT_EQ(2, bar().count());
    EXPECT_EQ(QStringLiteral("1 of 2"), control<QLabel>(bar(), "lblCount").text());
}

TEST_F(JournalBar, AFileThatAnotherProgramChangedIsToldOnActivation)
{
    const QString claim = savedClaim();
    QFile file(claim);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray theirs = file.readAll();
    theirs.replace("<surname/>", "<surname>Theirs</surname>");
    ASSERT_TRUE(theirs.contains("Theirs"));
    ASSERT_TRUE(file.resize(0) && file.seek(0));
    file.write(theirs);
    file.close();
    window->Activate();
    EXPECT_EQ(today("Changed on disk at %1 by another program"), told());
    press("Open theirs");
    EXPECT_EQ(QStringLiteral("Theirs"), Form->ClientDetails.Surname());
    EXPECT_FALSE(bar().isVisible());
    ASSERT_EQ(1u, user.messages.size()) << "what was saved here is set aside, as ever";
    EXPECT_TRUE(user.messages[0].text.contains(QLatin1String("/Recovered/")));
}

TEST_F(JournalBar, AFileThatWasChangedAndCannotBeReadIsTold)
{
    const QString claim = savedClaim();
    QFile file(claim);
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write(" ");
    file.close();
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::OpenToRead && at == claim ? clsFileFault {EACCES} : clsFileFault();
    };
    window->Activate();
    EXPECT_EQ(today("Changed on disk at %1 by another program, and cannot be read"), told());
    FileSystem().faultPoint = nullptr;
    window->Activate();
    EXPECT_EQ(today("Changed on disk at %1 by another program"), told());
    expectNoBox();
}

TEST_F(JournalBar, AJournalThatCannotBeWrittenIsTold)
{
    QDir(path("state")).removeRecursively();
    ASSERT_TRUE(QFile(path("state")).open(QIODevice::WriteOnly));
    savedClaim();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    Journal().stepTaken();
    QTRY_COMPARE(told(), QStringLiteral("No recovery copy is kept: its folder cannot be written to"));
    QFile::remove(path("state"));
    Journal().stepTaken();
    QTRY_VERIFY(!bar().isVisible());
}

TEST_F(JournalBar, ABrokenJournalIsToldInOneLine)
{
    QDir().mkpath(path("state/Velmor/Journal"));
    for (const char *made : {"state/Velmor", "state/Velmor/Journal"})
        QFile::setPermissions(path(made), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile file(path("state/Velmor/Journal/0.journal"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("nonsense");
    file.close();
    start();
    EXPECT_EQ(QStringLiteral("A recovery copy was broken and has been set aside."), told());
    press("OK");
    EXPECT_FALSE(bar().isVisible());
    EXPECT_TRUE(QFileInfo::exists(path("state/Velmor/Journal/0.journal.broken")));
}

TEST_F(JournalBar, IsTheFirstStopOfTheWindow)
{
    leftClaim();
    EXPECT_FALSE(bar().isAncestorOf(window->focusWidget())) << "it takes no focus when it comes";
    QWidget *tabs = window->focusWidget();
    QTest::keyClick(window.get(), Qt::Key_Backtab);
    EXPECT_EQ(&control<QWidget>(bar(), "cmdAnswer3"), window->focusWidget()) << "Discard, the last of its buttons";
    QTest::keyClick(window.get(), Qt::Key_Backtab);
    EXPECT_EQ(&control<QWidget>(bar(), "cmdAnswer2"), window->focusWidget()) << "Compare";
    QTest::keyClick(window.get(), Qt::Key_Backtab);
    EXPECT_EQ(&control<QWidget>(bar(), "cmdAnswer1"), window->focusWidget());
    for (int button = 1; button <= 3; ++button)
        QTest::keyClick(window.get(), Qt::Key_Tab);
    EXPECT_EQ(tabs, window->focusWidget());
    QTest::keyClick(window.get(), Qt::Key_Backtab);
    QTest::keyClick(window.get(), Qt::Key_Backtab);
    QTest::keyClick(window.get(), Qt::Key_Backtab);
    QTest::keyClick(window.get(), Qt::Key_Backtab);
    EXPECT_FALSE(bar().isAncestorOf(window->focusWidget())) << "before the bar comes the end of the window";
}
