#include "controls/oDateBox.h"
#include "controls/oDecimalBox.h"
#include "controls/oTimeBox.h"
#include "editors/mdScreenControls.h"
#include "editors/oCodeCombo.h"
#include "editors/oCounselBox.h"
#include "editors/oFeeEarnerCombo.h"
#include "editors/oPriceLine.h"
#include "editors/oStoredNote.h"
#include "formdata/clsZR3Disbursement.h"
#include "tests/editors/clsScheduleTest.h"

#include <QLineEdit>

// "Save and Add", the price below the time, and "Same Again".

namespace {

class SaveAndAdd : public clsScheduleTest {
protected:
    void SetUp() override
    {
        clsScheduleTest::SetUp();
        const auto group = addGroup("PTR");
        group->HourlyRate = QStringLiteral("78.00");
        group->AdvocacyRate = QStringLiteral("100.00");
        for (const char *name : {"DVE", "MO"})
            addFeeEarner(QString::fromUtf8(name), *group);
        Document().takeAsClean();
    }
    void TearDown() override
    {
        screen.reset();
        Document().history.clear();
        clsScheduleTest::TearDown();
    }
    void openSchedule()
    {
        screen = opened(QStringLiteral("Schedule of Time"));
        focusPart(screen->Box("sgScheduleOfTime"))->setFocus();
    }
    static void addNext(const frmScreen &editor, Qt::Key enter = Qt::Key_Return)
    {
        key(editor, enter, Qt::ControlModifier);
    }
    static oStoredNote &note(const frmScreen &editor) { return *editor.findChild<oStoredNote *>(); }
    static QString price(const frmScreen &editor)
    {
        QTest::qWait(1);
        return editor.findChild<oPriceLine *>()->Words();
    }
    static QString codes()
    {
        QStringList result;
        for (const auto &item : Form->ScheduleOfTimeItemsCollection())
            result << item->dDate() + u' ' + item->FeeEarnerReference() + u' ' + item->Code() + u' ' + item->TTime();
        return result.join(u'|');
    }

    std::unique_ptr<frmScreen> screen;
};

} // namespace

TEST_F(SaveAndAdd, StoresOneItemAfterTheOtherAndKeepsDateAndFeeEarner)
{
    openSchedule();
    inModal([&] { key(*screen, Qt::Key_Insert); },
        [](frmScreen &editor) {
            type(editor.Box("txtDate"), QStringLiteral("12/12/25"));
            type(editor.Box("cmbCode"), QStringLiteral("AWI"));
            type(editor.Box("txtDescription"), QStringLiteral("Words"));
            tick(editor, "chkAdvocacy").click();
            tick(editor, "chkUseHourlyRate").click();
            type(editor.Box("txtTime"), QStringLiteral("54"));
            addNext(editor);
            EXPECT_TRUE(editor.isVisible());
            EXPECT_EQ(QStringLiteral("12/12/25 DVE AWI 00:54"), codes());
            EXPECT_EQ(QStringLiteral("Stored: 12/12/25 DVE AWI 00:54"), note(editor).text());
            EXPECT_EQ(QStringLiteral("cmbCode"), focused(editor));
            EXPECT_EQ(QStringLiteral("12/12/25"), editor.Box<oDateBox>("txtDate").Text());
            EXPECT_EQ(QStringLiteral("DOT"), editor.Box<oCodeCombo>("cmbCode").Code());
            EXPECT_EQ(QStringLiteral("00:00"), editor.Box<oTimeBox>("txtTime").Text());
            EXPECT_EQ(QString(), mdTextOf(editor.Box("txtDescription")));
            EXPECT_FALSE(tick(editor, "chkAdvocacy").Checked());
            EXPECT_FALSE(tick(editor, "chkUseHourlyRate").isEnabled());

            key(editor, Qt::Key_F2);
            EXPECT_EQ(QString(), note(editor).text()) << "the next key takes it away";
            QTest::keyClicks(editor.focusWidget(), QStringLiteral("HFN"));
            focus(editor, "txtTime");
            QTest::keyClicks(editor.focusWidget(), QStringLiteral("1:30"));
            addNext(editor, Qt::Key_Enter);
            EXPECT_EQ(QStringLiteral("12/12/25 DVE AWI 00:54|12/12/25 MO HFN 01:30"), codes());
            EXPECT_EQ(
                QStringLiteral("MO"), editor.Box<oFeeEarnerCombo>("cmbFeeEarner").SelectedFeeEarner()->Reference());
            editor.reject();
        });
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(2u, countItems());
    auto &grid = screen->Box<oSGrid>("sgScheduleOfTime");
    EXPECT_EQ(2, grid.Rows());
    EXPECT_EQ(2, grid.SelectedItemData()) << "the next key goes on from the last";
    EXPECT_EQ(2u, Form->ScheduleOfTimeItemsForExportCollection().size());

    EXPECT_EQ(2u, Document().history.steps());
    EXPECT_EQ(QStringLiteral("Add 12/12/25 HFN 01:30"), Document().history.undoName());
    key(*screen, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("12/12/25 DVE AWI 00:54"), codes());
    EXPECT_EQ(QStringLiteral("Add 12/12/25 AWI 00:54"), Document().history.undoName());
    key(*screen, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(0u, countItems());
}

TEST_F(SaveAndAdd, TheFocusLeavesItsBoxFirstWithItsChecks)
{
    openSchedule();
    inModal([&] { key(*screen, Qt::Key_Insert); },
        [this](frmScreen &editor) {
            type(editor.Box("txtDate"), QStringLiteral("12/12/25"));
            type(editor.Box("txtTime"), QStringLiteral("long"));
            addNext(editor);
            EXPECT_EQ(QStringLiteral("long"), editor.Box<oTimeBox>("txtTime").Text());
            EXPECT_EQ(0u, countItems());
            type(editor.Box("txtTime"), QStringLiteral("10"));
            type(editor.Box("cmbCode"), QStringLiteral("ZZZ"));
            addNext(editor);
            expectInvalidCode();
            EXPECT_EQ(0u, countItems());
            editor.reject();
        });
    EXPECT_EQ(0u, Document().history.steps());
}

TEST_F(SaveAndAdd, AnItemThatWasOpenedIsOneStepAndTheNextAnother)
{
    addItem("01/02/26", "ACT", "01:00");
    openSchedule();
    inModal([&] { key(*screen, Qt::Key_Return); },
        [](frmScreen &editor) {
            type(editor.Box("txtTime"), QStringLiteral("2:00"));
            addNext(editor);
            EXPECT_EQ(1u, countItems());
            type(editor.Box("cmbCode"), QStringLiteral("DPL"));
            type(editor.Box("txtTime"), QStringLiteral("3:00"));
            editor.Save();
        });
    EXPECT_EQ(QStringLiteral("01/02/26 DVE ACT 02:00|01/02/26 DVE DPL 03:00"), codes());
    EXPECT_EQ(QStringLiteral("Add 01/02/26 DPL 03:00"), Document().history.undoName());
    key(*screen, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("Edit 01/02/26 ACT 02:00"), Document().history.undoName());
}

TEST_F(SaveAndAdd, OfADisbursementDateAndCounselStay)
{
    const auto counsel = Form->AddCounsel();
    counsel->Name = QStringLiteral("Ada Brook");
    const auto editor = edit(ScreenDisbursementEdit(), nullptr);
    type(editor->Box("txtDescription"), QStringLiteral("Brief fee"));
    type(editor->Box("txtAmount"), QStringLiteral("450"));
    editor->Box<oCounselBox>("oCounsel").setCounsel(true);
    type(editor->Box("txtDateOfWork"), QStringLiteral("12/12/25"));
    addNext(*editor);
    EXPECT_EQ(QStringLiteral("Brief fee"), Form->Disbursement(1)->Description());
    EXPECT_EQ(QString(), mdTextOf(editor->Box("txtDescription")));
    EXPECT_EQ(QStringLiteral("0.00"), editor->Box<oDecimalBox>("txtAmount").Text());
    EXPECT_TRUE(editor->Box<oCounselBox>("oCounsel").Counsel());
    EXPECT_EQ(QStringLiteral("12/12/25"), editor->Box<oDateBox>("txtDateOfWork").Text());
    EXPECT_TRUE(editor->Box("txtDescription").isAncestorOf(editor->focusWidget()));
    type(editor->Box("txtDescription"), QStringLiteral("Refresher"));
    editor->Save();
    EXPECT_EQ(counsel->UniqueID(), Form->Disbursement(2)->CounselUniqueID());
    EXPECT_EQ(QStringLiteral("12/12/25"), Form->Disbursement(2)->DateOfWork());
}

TEST_F(SaveAndAdd, EveryEditorOfAListBeginsTheNextItemAsANewOne)
{
    const auto counsel = Form->AddCounsel();
    counsel->Name = QStringLiteral("Ada Brook");
    Form->AddEnhancement()->Name = QStringLiteral("Speed");
    for (const clsScreen *table : {&ScreenCounselEdit(), &ScreenDisbursementEdit(), &ScreenEnhancementEdit(),
             &ScreenExpertInvoiceEdit(), &ScreenFASItemEdit(), &ScreenFeeEarnerEdit(), &ScreenFeeEarnerGroupEdit(),
             &ScreenJointInstructionEdit(), &ScreenScheduleOfTimeItemEdit()}) {
        const auto fresh = edit(*table, nullptr);
        const auto editor = edit(*table, nullptr);
        for (const clsScreenField &field : editor->Fields())
            if (auto *box = qobject_cast<oCheckBox *>(field.control); box && box->isEnabled())
                box->click();
            else if (field.row->kind == clsRowKind::Decimal)
                field.control->setProperty("Text", QStringLiteral("7"));
            else if (field.row->kind == clsRowKind::Date)
                field.control->setProperty("Text", QStringLiteral("12/12/25"));
            else if (field.row->kind == clsRowKind::Text || field.row->flags & Required)
                type(*field.control, QStringLiteral("Words"));
        addNext(*editor);
        EXPECT_FALSE(editor->Record()) << table->name;
        ASSERT_EQ(fresh->Fields().size(), editor->Fields().size());
        for (size_t i = 0; i < fresh->Fields().size(); ++i) {
            const clsScreenField &field = editor->Fields()[i];
            if (field.row->flags & Kept || field.row->kind == clsRowKind::Other)
                continue;
            const std::string where = std::string(table->name) + ' ' + field.row->control;
            EXPECT_EQ(mdTextOf(*fresh->Fields()[i].control), mdTextOf(*field.control)) << where;
            EXPECT_EQ(fresh->Fields()[i].control->isEnabled(), field.control->isEnabled()) << where;
            const auto *box = qobject_cast<const oCheckBox *>(field.control);
            EXPECT_FALSE(box && box->Checked()) << where;
        }
    }
}

TEST_F(SaveAndAdd, ThePriceFollowsTheBoxes)
{
    const auto editor = editItem();
    EXPECT_EQ(QStringLiteral("00:00 at 78.00 is 0.00"), price(*editor));
    type(editor->Box("txtTime"), QStringLiteral("3:20"));
    EXPECT_EQ(QStringLiteral("03:20 at 78.00 is 260.00"), price(*editor)); // 3 1/3 hours
    tick(*editor, "chkAdvocacy").click();
    EXPECT_EQ(QStringLiteral("03:20 at 100.00 is 333.33"), price(*editor));
    type(editor->Box("txtTime"), QStringLiteral("never"));
    EXPECT_EQ(QString(), price(*editor));
    editor->Box<oFeeEarnerCombo>("cmbFeeEarner").setCurrentIndex(-1);
    EXPECT_EQ(QStringLiteral("Choose a fee earner to see the price"), price(*editor));
    EXPECT_EQ(0u, countItems());
    EXPECT_LT(0, editor->findChild<oPriceLine *>()->height());
}

TEST_F(SaveAndAdd, ThePriceTellsTheEnhancement)
{
    const auto group = Form->FeeEarnerGroup(1);
    group->Enhance = true;
    group->EnhancementRate = QStringLiteral("40");
    const QString before = Form->XMLOutput();
    const auto editor = editItem(addItem("12/12/25", "HFN", "03:20"));
    EXPECT_EQ(QStringLiteral("03:20 at 78.00 is 260.00; with 40 %: 364.00"), price(*editor));
    EXPECT_EQ(Form->ScheduleOfTimeItem(1)->Claim(), MoneyFromText(QStringLiteral("364")));
    Form->DeleteScheduleOfTimeItem(1);
    EXPECT_EQ(before, Form->XMLOutput()) << "nothing of the claim is written for it";
}

TEST_F(SaveAndAdd, SameAgainIsANewItemThatBeginsLikeTheChosenOne)
{
    const auto first = addItem("01/02/26", "HFN", "01:00");
    first->FeeEarnerUniqueID = Form->FeeEarner(2)->UniqueID();
    first->Description = QStringLiteral("Words");
    first->Advocacy = true;
    openSchedule();
    inModal([&] { key(*screen, Qt::Key_D, Qt::ControlModifier); },
        [](frmScreen &editor) {
            EXPECT_FALSE(editor.Record());
            type(editor.Box("txtTime"), QStringLiteral("2:00"));
            editor.Save();
        });
    ASSERT_EQ(2u, countItems());
    EXPECT_EQ(QStringLiteral("01/02/26 MO HFN 01:00|01/02/26 MO HFN 02:00"), codes());
    EXPECT_EQ(QStringLiteral("Words"), Form->ScheduleOfTimeItem(2)->Description());
    EXPECT_TRUE(Form->ScheduleOfTimeItem(2)->Advocacy());
    EXPECT_EQ(QStringLiteral("Add 01/02/26 HFN 02:00"), Document().history.undoName());
    EXPECT_EQ(2, screen->Box<oSGrid>("sgScheduleOfTime").SelectedItemData());
}

TEST_F(SaveAndAdd, SameAgainIsOfTheListWithTheFocusAndGivesItsOwnIdentity)
{
    screen = opened(QStringLiteral("Fee Earners / Rates"));
    focusPart(screen->Box("sgFeeEarners"))->setFocus();
    inModal([&] { key(*screen, Qt::Key_D, Qt::ControlModifier); }, [](frmScreen &editor) { editor.Save(); });
    ASSERT_EQ(3u, Form->FeeEarnersCollection().size());
    EXPECT_EQ(Form->FeeEarner(1)->Reference(), Form->FeeEarner(3)->Reference());
    EXPECT_NE(Form->FeeEarner(1)->UniqueID(), Form->FeeEarner(3)->UniqueID());
    EXPECT_EQ(Form->FeeEarner(1)->GroupUniqueID(), Form->FeeEarner(3)->GroupUniqueID());
}

TEST_F(SaveAndAdd, WithoutAChosenItemSameAgainDoesNothing)
{
    openSchedule();
    key(*screen, Qt::Key_D, Qt::ControlModifier);
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_EQ(0u, countItems());
    screen = opened(QStringLiteral("Communications"));
    EXPECT_FALSE(screen->findChild<QAction *>(QStringLiteral("mnuSameAgain"))) << "its list takes no new items";
}
