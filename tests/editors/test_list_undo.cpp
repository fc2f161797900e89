#include "commands/mdFileHandling.h"
#include "controls/mdTheme.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oContentSwitcher.h"
#include "editors/oEnhancementsBox.h"
#include "editors/oListLine.h"
#include "formdata/mdRunStep.h"
#include "tests/editors/clsScheduleTest.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

// Undo and redo on the screens with lists, and the line shown after a deletion.

namespace {

class ListUndo : public clsScheduleTest {
protected:
    void SetUp() override
    {
        clsScheduleTest::SetUp();
        Document().takeAsClean();
    }
    void TearDown() override
    {
        screen.reset();
        Document().history.clear();
        clsScheduleTest::TearDown();
    }
    void open(const char *section) { screen = opened(QString::fromUtf8(section)); }
    oSGrid &grid(const char *name) const { return screen->Box<oSGrid>(name); }
    oListLine &line() const { return *screen->findChild<oListLine *>(); }
    QTimer &lineTimer() const { return *line().findChild<QTimer *>(QStringLiteral("tmrListLine")); }

    /// The menu Edit when the user opens it.
    QStringList editEntries() const
    {
        auto *edit = screen->findChild<QMenu *>(QStringLiteral("mnuEdit"));
        emit edit->aboutToShow();
        QStringList texts;
        for (const QAction *entry : edit->actions().first(2))
            texts << entry->text() + (entry->isEnabled() ? QString() : QStringLiteral(" (off)"));
        emit edit->aboutToHide();
        QCoreApplication::processEvents();
        return texts;
    }
    void undo() const { QTest::keyClick(screen->focusWidget(), Qt::Key_Z, Qt::ControlModifier); }
    void redo() const { QTest::keyClick(screen->focusWidget(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    void deleteRow(const char *name, int row)
    {
        grid(name).SelectRow(row);
        focusPart(grid(name))->setFocus();
        user.answers = {clsUserInterface::Yes};
        QTest::keyClick(screen->focusWidget(), Qt::Key_Delete);
    }
    static QStringList dates()
    {
        QStringList result;
        for (const auto &item : Form->ScheduleOfTimeItemsForExportCollection())
            result << item->dDate();
        return result;
    }

    std::unique_ptr<frmScreen> screen;
    static constexpr const char *Schedule = "sgScheduleOfTime";
};

} // namespace

TEST_F(ListUndo, TheEditMenuStandsBehindFileAndNamesTheSteps)
{
    addItem("01/02/26");
    addItem("15/12/25", "HFN", "03:20");
    open("Schedule of Time");
    QStringList menus;
    for (const QAction *menu : screen->findChild<QMenuBar *>()->actions())
        menus << menu->text();
    EXPECT_EQ(QStringList({QStringLiteral("&File"), QStringLiteral("&Edit"), QStringLiteral("&Jump To")}), menus);
    EXPECT_EQ(QStringList({QStringLiteral("&Undo (off)"), QStringLiteral("&Redo (off)")}), editEntries());

    deleteRow(Schedule, 1);
    EXPECT_EQ(
        QStringList({QStringLiteral("&Undo Delete 15/12/25 HFN 03:20"), QStringLiteral("&Redo (off)")}), editEntries());
    undo();
    EXPECT_EQ(
        QStringList({QStringLiteral("&Undo (off)"), QStringLiteral("&Redo Delete 15/12/25 HFN 03:20")}), editEntries());
}

TEST_F(ListUndo, ADeletedItemComesBackWhereItWas)
{
    for (const char *date : {"01/01/26", "02/01/26", "03/01/26", "04/01/26"})
        addItem(date);
    open("Schedule of Time");
    const QString before = Form->XMLOutput();
    const QStringList shown = rows(grid(Schedule));
    deleteRow(Schedule, 2);
    EXPECT_EQ(
        QStringList({QStringLiteral("01/01/26"), QStringLiteral("03/01/26"), QStringLiteral("04/01/26")}), dates());
    grid(Schedule).SelectRow(3);

    undo();
    EXPECT_EQ(before, Form->XMLOutput());
    EXPECT_EQ(shown, rows(grid(Schedule)));
    EXPECT_EQ(4, dates().size());
    EXPECT_EQ(2, grid(Schedule).SelectedRow()) << "the list goes to what came back";

    redo();
    EXPECT_EQ(3, grid(Schedule).Rows());
    EXPECT_EQ(2, grid(Schedule).SelectedRow());
    QTest::keyClick(screen->focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(3, grid(Schedule).Rows()) << "Ctrl+Y does it again too";
}

TEST_F(ListUndo, AddedEditedAndMovedItemsAreSteps)
{
    addItem("01/01/26", "ABC");
    addItem("01/01/26", "ACT");
    open("Schedule of Time");
    focusPart(grid(Schedule))->setFocus();
    const QString before = Form->XMLOutput();

    grid(Schedule).SelectRow(1);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(QStringLiteral("Move 01/01/26 ABC 01:00"), Document().history.undoName());
    const QString moved = Form->XMLOutput();
    EXPECT_NE(before, moved);

    inModal([&] { QTest::keyClick(screen->focusWidget(), Qt::Key_Return); },
        [](frmScreen &editor) {
            type(editor.Box("txtTime"), QStringLiteral("02:30"));
            editor.Save();
        });
    EXPECT_EQ(QStringLiteral("Edit 01/01/26 ABC 02:30"), Document().history.undoName());

    inModal([&] { QTest::keyClick(screen->focusWidget(), Qt::Key_Insert); },
        [](frmScreen &editor) {
            EXPECT_FALSE(Document().history.canUndo()) << "no step goes back under an open editor";
            type(editor.Box("txtDate"), QStringLiteral("05/01/26"));
            type(editor.Box("cmbCode"), QStringLiteral("ACT"));
            type(editor.Box("txtTime"), QStringLiteral("00:30"));
            editor.Save();
        });
    EXPECT_EQ(QStringLiteral("Add 05/01/26 ACT 00:30"), Document().history.undoName());
    const QString after = Form->XMLOutput();
    EXPECT_EQ(3u, Document().history.steps());

    undo();
    undo();
    EXPECT_EQ(moved, Form->XMLOutput());
    undo();
    EXPECT_EQ(before, Form->XMLOutput());
    for (int n = 0; n < 3; ++n)
        redo();
    EXPECT_EQ(after, Form->XMLOutput());
    EXPECT_EQ(3, grid(Schedule).SelectedRow());
}

TEST_F(ListUndo, ACancelledEditorIsNoStep)
{
    addItem("01/01/26");
    open("Schedule of Time");
    focusPart(grid(Schedule))->setFocus();
    inModal(
        [&] { QTest::keyClick(screen->focusWidget(), Qt::Key_Return); }, [](frmScreen &editor) { editor.Cancel(); });
    EXPECT_FALSE(Document().history.canUndo());
}

TEST_F(ListUndo, OpeningAListIsNoStep)
{
    addItem("02/01/26");
    addItem("01/01/26");
    const QString before = Form->XMLOutput();
    open("Schedule of Time");
    EXPECT_NE(before, Form->XMLOutput()) << "the list numbers its items by their dates";
    const QString numbered = Form->XMLOutput();
    EXPECT_FALSE(Document().history.canUndo());
    deleteRow(Schedule, 1);
    undo();
    EXPECT_EQ(numbered, Form->XMLOutput());
}

TEST_F(ListUndo, AScreenReadsAnewWhatTheUserHasNotChanged)
{
    Form->ExcludeNonAdvocacy = false;
    addItem("01/01/26");
    open("Schedule of Time");
    screen->Box<oCheckBox>("chkExcludeNonAdvocacy").setChecked(true);
    screen->Close();
    EXPECT_EQ(QStringLiteral("Schedule of Time"), Document().history.undoName());
    EXPECT_TRUE(Form->ExcludeNonAdvocacy());

    open("Schedule of Time");
    focusPart(grid(Schedule))->setFocus();
    undo();
    EXPECT_FALSE(Form->ExcludeNonAdvocacy());
    EXPECT_FALSE(screen->Box<oCheckBox>("chkExcludeNonAdvocacy").Checked());

    screen->Box<oCheckBox>("chkExcludeNonAdvocacy").setChecked(true); // by the user
    Document().history.take(QString());
    redo();
    undo();
    EXPECT_TRUE(screen->Box<oCheckBox>("chkExcludeNonAdvocacy").Checked()) << "what the user has changed stays";
}

TEST_F(ListUndo, AChoiceForgetsAnItemThatIsGone)
{
    addFeeEarners(1);
    const auto first = Form->AddEnhancement();
    first->Name = QStringLiteral("First");
    Document().history.join();
    RunStep(QStringLiteral("Add Second"), [] { Form->AddEnhancement()->Name = QStringLiteral("Second"); });
    open("Communications");
    auto &box = screen->Box<oEnhancementsBox>("oCallsEnhancement");
    box.setIncludeInEnhancements(true);
    box.setEnhancementUniqueID(Form->Enhancement(2)->UniqueID());
    focusPart(grid("sgCommunications"))->setFocus();
    undo();
    EXPECT_EQ(1, box.findChild<QComboBox *>()->count());
    EXPECT_EQ(QString(), box.EnhancementUniqueID());
    screen->Close();
    EXPECT_EQ(QString(), Form->Communications.CallsEnhancementUniqueID());
}

TEST_F(ListUndo, EachCountIsAStep)
{
    addFeeEarners(2);
    open("Communications");
    focusPart(grid("sgCommunications"))->setFocus();
    QTest::keyClick(screen->focusWidget(), Qt::Key_C);
    QTest::keyClick(screen->focusWidget(), Qt::Key_C);
    QTest::keyClick(screen->focusWidget(), Qt::Key_I);
    EXPECT_EQ(QStringLiteral("Letters In 1"), Document().history.undoName());
    undo();
    undo();
    EXPECT_EQ(1, Form->FeeEarner(1)->Calls());
    EXPECT_EQ(0, Form->FeeEarner(1)->LettersIn());
    EXPECT_EQ(QStringLiteral("1|1|1|0|0"), rows(grid("sgCommunications")).first());
}

TEST_F(ListUndo, AStepOfAnotherPageOpensIt)
{
    for (const char *name : {"Taxi", "Train"})
        Form->AddDisbursement()->Description = QString::fromUtf8(name);
    open("Disbursements");
    screen->Switcher().SwitchTo(4);
    deleteRow("sgOtherDisbursements", 1);
    EXPECT_EQ(QStringLiteral("Delete Taxi 0.00"), Document().history.undoName());
    screen->Switcher().SwitchTo(1);
    focusPart(grid("sgExpertInvoices"))->setFocus();
    undo();
    EXPECT_EQ(4, screen->Switcher().OpenPage());
    EXPECT_EQ(1, grid("sgOtherDisbursements").SelectedRow());
    EXPECT_EQ(2u, Form->NonCounselDisbursementsCollection().size());
}

TEST_F(ListUndo, ATextBoxKeepsItsOwnUndo)
{
    Form->AddDisbursement()->Description = QStringLiteral("Taxi");
    open("Disbursements");
    screen->Switcher().SwitchTo(4);
    deleteRow("sgOtherDisbursements", 1);
    screen->Switcher().SwitchTo(2);
    auto &box = screen->Box<oAllPurposeBox>("txtExpertsMeetMOJStandardReasons");
    type(box, QStringLiteral("some words"));
    undo();
    EXPECT_TRUE(Form->DisbursementsCollection().empty());
    EXPECT_EQ(QString(), box.Text());
    QTest::keyClick(screen->focusWidget(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("some words"), box.Text());
}

TEST_F(ListUndo, PreferencesAndRecordScreensHaveNoEditMenu)
{
    for (const char *section : {"Form Setup", "Client Details"}) {
        open(section);
        EXPECT_FALSE(screen->findChild<QMenu *>(QStringLiteral("mnuEdit"))) << section;
        EXPECT_FALSE(screen->findChild<oListLine *>()) << section;
    }
}

TEST_F(ListUndo, TheStoreOfAScreenIsOneStepAndFormSetupToo)
{
    open("Form Setup");
    screen->Box<QComboBox>("cmbFormType").setCurrentText(QStringLiteral("Claim1A"));
    screen->Close();
    EXPECT_EQ(QStringLiteral("Form Setup"), Document().history.undoName());
    open("Client Details");
    type(screen->Box("txtSurname"), QStringLiteral("Hartwell"));
    screen->Save();
    EXPECT_EQ(QStringLiteral("Client Details"), Document().history.undoName());
    EXPECT_EQ(2u, Document().history.steps());
    Document().history.undo();
    Document().history.undo();
    EXPECT_EQ(QStringLiteral("Claim1"), Form->FormType());
}

TEST_F(ListUndo, OpensTenThousandItemsAndTakesOneBack)
{
    addFeeEarners(1);
    for (int n = 0; n < 10000; ++n)
        addItem("01/01/26");
    open("Schedule of Time");
    const QString before = Form->XMLOutput();
    deleteRow(Schedule, 1);
    undo();
    EXPECT_EQ(before, Form->XMLOutput());
    EXPECT_EQ(1, grid(Schedule).SelectedRow());
}

// The line.

TEST_F(ListUndo, TheLineSaysWhatWent)
{
    addItem("15/12/25", "HFN", "03:20");
    addItem("16/12/25");
    open("Schedule of Time");
    EXPECT_EQ(QString(), line().Text());
    EXPECT_EQ(Qt::NoFocus, line().focusPolicy());
    EXPECT_EQ(Theme::scaled(34), line().height()) << "its room is always there";
    const int gridTop = grid(Schedule).mapTo(screen.get(), QPoint()).y();
    const int gridHeight = grid(Schedule).height();

    deleteRow(Schedule, 1);
    EXPECT_EQ(QStringLiteral("Deleted 15/12/25 HFN 03:20. Ctrl+Z brings it back"), line().Text());
    EXPECT_EQ(line().Text(), line().accessibleName());
    EXPECT_EQ(10'000, lineTimer().interval());
    EXPECT_TRUE(lineTimer().isActive());
    EXPECT_EQ(gridTop, grid(Schedule).mapTo(screen.get(), QPoint()).y());
    EXPECT_EQ(gridHeight, grid(Schedule).height());
    EXPECT_EQ(line().mapTo(screen.get(), QPoint(0, line().height())).y(),
        screen->findChild<QWidget *>(QStringLiteral("cmdClose"))->parentWidget()->y());
    EXPECT_EQ(Theme::InformationTint, line().grab().toImage().pixelColor(line().width() / 2, line().height() - 3));

    undo();
    EXPECT_EQ(QString(), line().Text());
    EXPECT_EQ(Theme::Canvas, line().grab().toImage().pixelColor(line().width() / 2, line().height() - 3));
}

TEST_F(ListUndo, TheLineGoesAfterTenSecondsUnlessItIsLookedAt)
{
    addItem("15/12/25");
    addItem("16/12/25");
    open("Schedule of Time");
    const auto timeout = [this] {
        lineTimer().stop();
        QMetaObject::invokeMethod(&lineTimer(), "timeout");
    };
    deleteRow(Schedule, 1);
    line().setFocus(Qt::TabFocusReason);
    timeout();
    EXPECT_NE(QString(), line().Text());
    focusPart(grid(Schedule))->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    EXPECT_EQ(QString(), line().Text());

    deleteRow(Schedule, 1);
    line().setAttribute(Qt::WA_UnderMouse);
    timeout();
    EXPECT_NE(QString(), line().Text());
    line().setAttribute(Qt::WA_UnderMouse, false);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&line(), &leave);
    QCoreApplication::processEvents();
    EXPECT_EQ(QString(), line().Text());
}

TEST_F(ListUndo, TheLineGoesWhenItIsNoLongerTrue)
{
    addItem("15/12/25", "ABC");
    addItem("16/12/25", "ACT");
    addItem("16/12/25", "ACO");
    open("Schedule of Time");
    deleteRow(Schedule, 1);
    grid(Schedule).SelectRow(1);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(QString(), line().Text());
}

TEST_F(ListUndo, TheLineIsReachedByTheTabKeyBetweenTheListAndTheBar)
{
    addItem("15/12/25");
    addItem("16/12/25");
    open("Schedule of Time");
    deleteRow(Schedule, 1);
    screen->Box("chkExcludeNonAdvocacy").setFocus(Qt::TabFocusReason);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(&line(), screen->focusWidget());
    undo();
    EXPECT_EQ(2, grid(Schedule).Rows());
    EXPECT_NE(&line(), screen->focusWidget()) << "an empty line has no focus";
}
