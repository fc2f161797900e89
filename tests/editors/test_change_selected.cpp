#include "controls/mdTheme.h"
#include "controls/oContentSwitcher.h"
#include "controls/oDateBox.h"
#include "controls/oFindLine.h"
#include "controls/oLineBox.h"
#include "editors/oCodeCombo.h"
#include "editors/oEnhancementsBox.h"
#include "editors/oFeeEarnerCombo.h"
#include "editors/oListLine.h"
#include "editors/oListTotal.h"
#include "formdata/clsZR3Disbursement.h"
#include "formdata/clsZR3Enhancement.h"
#include "formdata/clsZR3ExpertInvoice.h"
#include "formdata/clsZR3FASItem.h"
#include "tests/editors/clsScheduleTest.h"

#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QMenu>

#include <iostream>

// Marked rows of a list: their sum, "Copy List" and "Change Selected". Also "Find" on the screens.

namespace {

class ChangeSelected : public clsScheduleTest {
protected:
    void SetUp() override
    {
        clsScheduleTest::SetUp();
        const auto group = addGroup("PTR");
        group->HourlyRate = QStringLiteral("60.00");
        for (const char *name : {"DVE", "MO"})
            addFeeEarner(QString::fromUtf8(name), *group);
    }
    void TearDown() override
    {
        screen.reset();
        Document().history.clear();
        clsScheduleTest::TearDown();
    }
    void addItems()
    {
        addItem("01/12/25", "ACT", "01:00");
        addItem("02/12/25", "DPL", "02:00");
        addItem("03/12/25", "HFN", "03:00");
        addItem("04/12/25", "ACL", "00:30");
    }
    void open(const char *section = "Schedule of Time")
    {
        Form->RenderScheduleOfTimeItemsForExport();
        screen = opened(QString::fromUtf8(section));
        Document().takeAsClean();
    }
    oSGrid &grid(const char *name = "sgScheduleOfTime") const { return screen->Box<oSGrid>(name); }
    /// Marks rows by keys.
    void mark(int from, int to, const char *name = "sgScheduleOfTime") const
    {
        focusPart(grid(name))->setFocus();
        grid(name).SelectRow(from);
        for (int row = from; row < to; ++row)
            key(*screen, Qt::Key_Down, Qt::ShiftModifier);
    }
    /// Whether the menu offers the entry.
    bool offers() const
    {
        auto *edit = screen->findChild<QMenu *>(QStringLiteral("mnuEdit"));
        emit edit->aboutToShow();
        const bool offered = entry(*screen, "mnuChangeSelected").isEnabled();
        emit edit->aboutToHide();
        QCoreApplication::processEvents();
        return offered;
    }
    void change(const std::function<void(frmScreen &)> &act) const
    {
        inModal([&] { entry(*screen, "mnuChangeSelected").trigger(); }, act);
    }
    /// Chooses the field by its name and focuses it.
    static void choose(frmScreen &window, const char *field)
    {
        window.Box<QComboBox>("cmbField").setCurrentText(QString::fromUtf8(field));
    }
    void undo() const { key(*screen, Qt::Key_Z, Qt::ControlModifier); }
    QStringList total(const char *name = "sgScheduleOfTime") const
    {
        QTest::qWait(20);
        const auto *found = screen->findChild<oListTotal *>(QString::fromLatin1(name) + QStringLiteral("Total"));
        return {found->Counted(), found->accessibleName()};
    }
    static QString stored()
    {
        QStringList items;
        for (const auto &item : Form->ScheduleOfTimeItemsCollection())
            items << item->dDate().left(5) + u' ' + item->FeeEarnerReference() + u' ' + item->Code();
        return items.join(u'|');
    }
    QStringList markedDates(const char *name = "sgScheduleOfTime") const
    {
        QStringList dates;
        for (const auto &item : grid(name).SelectedItemCollection())
            dates << item->field(u"dDate")->readText().left(5);
        return dates;
    }

    std::unique_ptr<frmScreen> screen;
};

} // namespace

TEST_F(ChangeSelected, TheTotalBecomesTheSumOfTheMarkedRows)
{
    addItems();
    open();
    EXPECT_EQ(QStringList({"4 items", "Total 390.00"}), total());
    mark(2, 3);
    EXPECT_EQ(QStringList({"2 of 4 items", "Sum 300.00"}), total());
    key(*screen, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(QStringList({"4 of 4 items", "Sum 390.00"}), total()) << "all of them are the total";
    key(*screen, Qt::Key_Up);
    EXPECT_EQ(QStringList({"4 items", "Total 390.00"}), total());
}

TEST_F(ChangeSelected, TheSumFollowsTheBill)
{
    addItems();
    Form->ScheduleOfTimeItem(2)->Advocacy = true;
    Form->FeeEarnerGroup(1)->AdvocacyRate = QStringLiteral("100.00");
    Form->FormType = QStringLiteral("Claim1A");
    Form->ExcludeNonAdvocacy = true;
    open();
    mark(1, 3);
    EXPECT_EQ(QStringList({"3 of 4 items, 2 not on the bill", "Sum 200.00"}), total());
}

TEST_F(ChangeSelected, TheSumOfDisbursementsLeavesCounselOut)
{
    for (const char *amount : {"10.50", "100.00", "20.00"})
        Form->AddDisbursement()->Amount = QString::fromLatin1(amount);
    Form->Disbursement(2)->Counsel = true;
    Form->SeparateCounselAndNonCounselDisbursements();
    open("Disbursements");
    mark(1, 3, "sgOtherDisbursements");
    EXPECT_EQ(QStringList({"3 of 3 items, without 1 counsel's fee", "Sum 30.50"}), total("sgOtherDisbursements"));
}

TEST_F(ChangeSelected, CopyListTakesTheMarkedRows)
{
    addItems();
    open();
    mark(2, 3);
    entry(*screen, "mnuCopyList").trigger();
    const QStringList lines = QGuiApplication::clipboard()->text().trimmed().split(u'\n');
    ASSERT_EQ(3, lines.size()) << "the heading and two rows";
    EXPECT_TRUE(lines[1].contains(QStringLiteral("02/12/2025"))) << lines[1].toStdString();
    EXPECT_TRUE(lines[2].contains(QStringLiteral("03/12/2025"))) << lines[2].toStdString();
    EXPECT_EQ(QStringLiteral("Copied Schedule of Time: 2 of 4"), screen->findChild<oListLine *>()->Text());
    grid().SelectRow(1);
    entry(*screen, "mnuCopyList").trigger();
    EXPECT_EQ(5, QGuiApplication::clipboard()->text().trimmed().split(u'\n').size()) << "one selected row is the list";
    EXPECT_EQ(QStringLiteral("Copied Schedule of Time: 4 in all"), screen->findChild<oListLine *>()->Text());
}

TEST_F(ChangeSelected, CopyListTakesTheMarkedRowsOfTheOpenPage)
{
    for (const char *type : {"Surveyor", "Engineer", "Psychologist"}) {
        Form->AddExpertInvoice()->ExpertType = QString::fromLatin1(type);
        Form->AddDisbursement()->Description = QStringLiteral("Fee");
    }
    open("Disbursements");
    mark(2, 3, "sgExpertInvoices");
    EXPECT_EQ(QStringLiteral("2 of 3 items"), total("sgExpertInvoices").first());
    entry(*screen, "mnuCopyList").trigger();
    const QStringList lines = QGuiApplication::clipboard()->text().trimmed().split(u'\n');
    ASSERT_EQ(3, lines.size()) << "the heading and two rows";
    EXPECT_TRUE(lines[1].contains(QStringLiteral("Engineer"))) << lines[1].toStdString();
    EXPECT_TRUE(lines[2].contains(QStringLiteral("Psychologist"))) << lines[2].toStdString();
    EXPECT_EQ(QStringLiteral("Copied Expert Invoices: 2 of 3"), screen->findChild<oListLine *>()->Text());
    screen->Switcher().SwitchTo(4);
    entry(*screen, "mnuCopyList").trigger();
    EXPECT_EQ(QStringLiteral("Copied Other Disbursements: 3 in all"), screen->findChild<oListLine *>()->Text());
}

TEST_F(ChangeSelected, SetsTheFeeEarnerOfAllMarkedRowsAsOneStep)
{
    addItems();
    open();
    mark(2, 4);
    EXPECT_TRUE(offers());
    change([](frmScreen &window) {
        EXPECT_EQ(QStringLiteral("Change Selected"), window.windowTitle());
        EXPECT_EQ(QStringLiteral("cmbField"), focused(window));
        EXPECT_TRUE(window.Box("cmbFeeEarner").isVisible());
        EXPECT_FALSE(window.Box("txtDate").isVisible());
        EXPECT_EQ(QStringLiteral("Fee Earner"), window.Box("cmbFeeEarner").accessibleName());
        key(window, Qt::Key_F2);
        window.Save();
    });
    EXPECT_EQ(QStringLiteral("01/12 DVE ACT|02/12 MO DPL|03/12 MO HFN|04/12 MO ACL"), stored());
    EXPECT_EQ(QStringList({"02/12", "03/12", "04/12"}), markedDates()) << "the list keeps its rows";
    EXPECT_EQ(4, grid().SelectedRow());
    EXPECT_EQ(QStringLiteral("Change Fee Earner of 3 items"), Document().history.undoName());
    EXPECT_TRUE(user.messages.empty());
    undo();
    EXPECT_EQ(QStringLiteral("01/12 DVE ACT|02/12 DVE DPL|03/12 DVE HFN|04/12 DVE ACL"), stored());
    EXPECT_FALSE(Document().history.canUndo()) << "it was one step";
}

TEST_F(ChangeSelected, SetsTheDateAndKeepsTheRowsWhereverItPutsThem)
{
    addItems();
    open();
    mark(1, 2);
    change([](frmScreen &window) {
        choose(window, "Date");
        EXPECT_TRUE(window.Box("txtDate").isVisible());
        EXPECT_FALSE(window.Box("cmbFeeEarner").isVisible());
        QCoreApplication::processEvents();
        const auto top = [&](const char *box) { return window.Box(box).mapTo(&window, QPoint()).y(); };
        const int gap = top("txtDate") - top("cmbField") - window.Box("cmbField").height();
        EXPECT_LE(gap, 2 * Theme::Space8) << "what is not shown leaves no room";
        EXPECT_EQ(QStringLiteral("02/12/25"), window.Box<oDateBox>("txtDate").Text()) << "that of the selected row";
        type(window.Box("txtDate"), QStringLiteral("09/12/25"));
        window.Save();
    });
    EXPECT_EQ(QStringLiteral("09/12 DVE ACT|09/12 DVE DPL|03/12 DVE HFN|04/12 DVE ACL"), stored());
    EXPECT_EQ(QStringList({"09/12", "09/12"}), markedDates());
    EXPECT_EQ(QStringLiteral("03/12/25"), Form->ScheduleOfTimeItemsForExportCollection()[0]->dDate())
        << "the bill follows";
    undo();
    EXPECT_EQ(QStringLiteral("01/12 DVE ACT|02/12 DVE DPL|03/12 DVE HFN|04/12 DVE ACL"), stored());
    EXPECT_EQ(QStringLiteral("01/12/25"), Form->ScheduleOfTimeItemsForExportCollection()[0]->dDate());
    EXPECT_FALSE(Document().history.canUndo()) << "the rows' new numbers are part of the step";
}

TEST_F(ChangeSelected, AFieldIsCheckedAsInTheEditorOfTheItem)
{
    addItems();
    open();
    mark(1, 2);
    const QString before = stored();
    change([this, &before](frmScreen &window) {
        choose(window, "Date");
        auto &date = window.Box<oDateBox>("txtDate");
        date.setText(QString());
        window.Save();
        EXPECT_TRUE(window.isVisible());
        expectMessage("Required Fields", "Please complete all fields marked with a *");
        choose(window, "Code");
        type(window.Box("cmbCode"), QStringLiteral("ZZZ"));
        window.Save();
        EXPECT_TRUE(window.isVisible());
        EXPECT_FALSE(user.messages.empty());
        EXPECT_EQ(before, stored());
        user.messages.clear();
        type(window.Box("cmbCode"), QStringLiteral("aex"));
        window.Save();
    });
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(QStringLiteral("01/12 DVE AEX|02/12 DVE AEX|03/12 DVE HFN|04/12 DVE ACL"), stored());
}

TEST_F(ChangeSelected, SetsTheEnhancement)
{
    addItems();
    Form->AddEnhancement()->Name = QStringLiteral("Complexity");
    open();
    mark(3, 4);
    change([](frmScreen &window) {
        choose(window, "Include in Enhancements");
        window.Box<oEnhancementsBox>("oEnhancement").setIncludeInEnhancements(true);
        window.Save();
    });
    QList<bool> included;
    for (const auto &item : Form->ScheduleOfTimeItemsCollection())
        included << item->IncludeInEnhancements();
    EXPECT_EQ(QList<bool>({false, false, true, true}), included);
    EXPECT_EQ(Form->Enhancement(1)->UniqueID(), Form->ScheduleOfTimeItem(3)->EnhancementUniqueID());
}

TEST_F(ChangeSelected, CancelChangesNothingAndAsksNothing)
{
    addItems();
    open();
    mark(1, 2);
    const QString before = Form->XMLOutput();
    change([](frmScreen &window) {
        key(window, Qt::Key_F2);
        window.reject();
    });
    EXPECT_EQ(before, Form->XMLOutput());
    EXPECT_FALSE(Document().history.canUndo());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(QStringList({"01/12", "02/12"}), markedDates());
    EXPECT_TRUE(NotStored().all().empty()) << "there is no item to bring it back to";
}

TEST_F(ChangeSelected, OtherCommandsKeepToTheSelectedRow)
{
    addItems();
    open();
    mark(1, 3);
    user.answers = {clsUserInterface::Yes};
    key(*screen, Qt::Key_Delete);
    EXPECT_EQ(QStringLiteral("01/12 DVE ACT|02/12 DVE DPL|04/12 DVE ACL"), stored());
    EXPECT_EQ(1u, grid().SelectedItemCollection().size()) << "the row in its place is no mark of the user's";
}

TEST_F(ChangeSelected, IsOffWithoutARowAndOnListsWithoutSuchAField)
{
    open();
    EXPECT_FALSE(offers());
    open("Disbursements");
    EXPECT_FALSE(offers()) << "experts have no such field";
    open("Counsel");
    EXPECT_FALSE(screen->findChild<QAction *>(QStringLiteral("mnuChangeSelected")));
    open("Communications");
    EXPECT_FALSE(screen->findChild<QAction *>(QStringLiteral("mnuChangeSelected")));
}

TEST_F(ChangeSelected, CommunicationsMarksNoRows)
{
    open("Communications");
    mark(1, 2, "sgCommunications");
    EXPECT_EQ(1u, grid("sgCommunications").SelectedItemCollection().size());
    EXPECT_EQ(2, grid("sgCommunications").SelectedRow());
}

TEST_F(ChangeSelected, AListWithOneSuchFieldShowsItAtOnce)
{
    for (const char *date : {"01/12/25", "02/12/25"})
        Form->AddFASItem()->dDate = QString::fromLatin1(date);
    open("Family Advocacy Scheme");
    mark(1, 2, "sgFamilyAdvocacyScheme");
    change([this](frmScreen &window) {
        EXPECT_FALSE(window.findChild<QComboBox *>(QStringLiteral("cmbField")));
        type(window.Box("txtDate"), QString());
        window.Save();
        EXPECT_TRUE(window.isVisible());
        expectMessage("Required Fields", "Please complete all fields marked with a *");
        type(window.Box("txtDate"), QStringLiteral("03/12/25"));
        window.Save();
    });
    EXPECT_EQ(QStringLiteral("03/12/25"), Form->FASItem(1)->dDate());
    EXPECT_EQ(QStringLiteral("03/12/25"), Form->FASItem(2)->dDate());
    EXPECT_EQ(QStringLiteral("Change Date of 2 items"), Document().history.undoName());
}

TEST_F(ChangeSelected, TenThousandItemsAreChangedAtOnce)
{
    for (int n = 0; n < 10000; ++n)
        addItem("01/12/25", "ACT", "00:06");
    open();
    focusPart(grid())->setFocus();
    QElapsedTimer time;
    time.start();
    key(*screen, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("10000 of 10000 items"), total().first());
    const qint64 marked = time.restart();
    qint64 changed = 0;
    change([&](frmScreen &window) {
        key(window, Qt::Key_F2);
        time.restart();
        window.Save();
    });
    changed = time.elapsed();
    std::cout << "10,000 items: marked and summed in " << marked << " ms, changed in " << changed << " ms\n";
    EXPECT_EQ(QStringLiteral("MO"), Form->ScheduleOfTimeItem(10000)->FeeEarnerReference());
    EXPECT_EQ(10000u, grid().SelectedItemCollection().size());
}

TEST_F(ChangeSelected, FindIsOnEveryScreenWithAListAndGoesToTheListWithTheFocus)
{
    addItems();
    open();
    key(*screen, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("txtFind"), focused(*screen));
    QTest::keyClicks(screen->focusWidget(), QStringLiteral("hfn"));
    EXPECT_EQ(3, grid().SelectedRow());
    key(*screen, Qt::Key_Return);
    EXPECT_TRUE(screen->isVisible()) << "Enter presses no button";
    key(*screen, Qt::Key_Escape);
    EXPECT_TRUE(screen->isVisible()) << "Esc closes the line only";
    EXPECT_EQ(3, grid().SelectedRow());

    open("Fee Earners / Rates");
    focusPart(grid("sgFeeEarners"))->setFocus();
    key(*screen, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(screen->findChild<oFindLine *>(QStringLiteral("sgFeeEarnersFind"))->isVisible());
    EXPECT_FALSE(screen->findChild<oFindLine *>(QStringLiteral("sgFeeEarnerGroupsFind"))->isVisible());

    open("Disbursements");
    entry(*screen, "mnuFind").trigger();
    EXPECT_TRUE(screen->findChild<oFindLine *>(QStringLiteral("sgExpertInvoicesFind"))->isVisible());
    open("Client Details");
    EXPECT_FALSE(screen->findChild<oFindLine *>());
}
