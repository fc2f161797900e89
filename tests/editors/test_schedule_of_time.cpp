#include "commands/mdFileHandling.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCustomButton.h"
#include "controls/oHeaderBar.h"
#include "controls/oOrderArrows.h"
#include "editors/oFieldLabel.h"
#include "tests/editors/clsScheduleTest.h"

#include <QHeaderView>
#include <QMenu>
#include <QTableView>

namespace {

class ScheduleOfTime : public clsScheduleTest {
protected:
    static std::unique_ptr<frmScreen> schedule() { return opened(QStringLiteral("Schedule of Time")); }
    static oSGrid &grid(const frmScreen &screen) { return screen.Box<oSGrid>("sgScheduleOfTime"); }
    static QTableView &view(const frmScreen &screen) { return *grid(screen).findChild<QTableView *>(); }
    /// The dates shown in the grid, from the top.
    static QStringList dates(const frmScreen &screen)
    {
        QStringList result;
        for (const QString &row : rows(grid(screen)))
            result << row.section(u'|', 1, 1);
        return result;
    }
    /// The codes of all items, in their order.
    static QString codes()
    {
        QStringList result;
        for (int order = 1; order <= int(countItems()); ++order)
            result << Form->ScheduleOfTimeItemByOrderID(order)->Code();
        return result.join(u' ');
    }
    static QString exported()
    {
        QStringList result;
        for (const Item &item : Form->ScheduleOfTimeItemsForExportCollection())
            result << QString::number(item->SOTItemNumber) + item->Code();
        return result.join(u' ');
    }
    static oCheckBox &exclude(const frmScreen &screen) { return tick(screen, "chkExcludeNonAdvocacy"); }
};

} // namespace

TEST_F(ScheduleOfTime, ShowsItsColumns)
{
    const Item item = addItem("04/03/26", "DST", "01:50");
    item->Advocacy = true;
    item->IncludeInEnhancements = true;
    item->EnhancementUniqueID = Form->AddEnhancement()->UniqueID();
    const auto screen = schedule();
    const struct {
        const char *caption;
        int width;
    } columns[] = {{"Fee Earner", 15}, {"Date", 15}, {"DateSerial", 0}, {"Code", 10}, {"Time", 15}, {"Adv", 9},
        {"Csl", 9}, {"Trv", 9}, {"Wtg", 9}, {"Enh", 9}};
    const QTableView &cells = view(*screen);
    ASSERT_GE(cells.model()->columnCount(), 10);
    const int whole = cells.columnWidth(0) * 100 / 15;
    for (int column = 0; column < 10; ++column) {
        const auto &expected = columns[column];
        EXPECT_EQ(QString::fromUtf8(expected.caption), cells.model()->headerData(column, Qt::Horizontal).toString());
        EXPECT_EQ(expected.width == 0, cells.isColumnHidden(column)) << expected.caption;
        if (expected.width) {
            EXPECT_NEAR(whole * expected.width / 100, cells.columnWidth(column), 2) << expected.caption;
        }
    }
    EXPECT_EQ(QStringLiteral("1|04/03/26|20260304|DST|01:50|\u2713|\u2717|\u2717|\u2717|\u2713||0.00"),
        rows(grid(*screen))[0]);
    EXPECT_TRUE(grid(*screen).Orderable());
    EXPECT_EQ(QStringLiteral("mnuScheduleOfTime"), grid(*screen).PopupMenuName());
}

TEST_F(ScheduleOfTime, HoldsItsButtonsAndMenus)
{
    const auto screen = schedule();
    QStringList captions;
    for (const char *name : {"btnLeft", "btnRight", "cmdDisbursements", "cmdCommunications", "cmdClose"}) {
        const auto *button = screen->findChild<oCustomButton *>(QString::fromUtf8(name));
        ASSERT_TRUE(button) << name;
        captions << button->Caption();
    }
    EXPECT_EQ(QStringLiteral("<< Prev,Next >>,Disbursements,Communications,Close"), captions.join(u','));
    EXPECT_EQ(QStringLiteral("Disbursements"), entry(*screen, "mnuDisbursements").text().remove(u'&'));
    EXPECT_EQ(QStringLiteral("Communications"), entry(*screen, "mnuCommunications").text().remove(u'&'));
    QStringList entries;
    for (const QAction *action : screen->findChild<QMenu *>(QStringLiteral("mnuScheduleOfTime"))->actions())
        entries << action->text().remove(u'&');
    EXPECT_EQ(QStringList {QStringLiteral("Delete")}, entries);
    EXPECT_EQ(QStringLiteral("Edit the schedule of time for your form"),
        screen->findChild<oHeaderBar *>(QStringLiteral("oHeader"))->SubCaption());
}

TEST_F(ScheduleOfTime, TheTickStandsBesideAddInOneLine)
{
    const auto screen = schedule();
    const auto place
        = [&screen](const QWidget &widget) { return QRect(widget.mapTo(screen.get(), QPoint()), widget.size()); };
    const QRect add = place(screen->Box("cmdAddScheduleOfTimeItem"));
    const QRect box = place(exclude(*screen));
    const QRect list = place(grid(*screen));
    EXPECT_LE(qAbs(add.center().y() - box.center().y()), 1);
    EXPECT_LT(box.right(), list.center().x() + list.width() / 4) << "the right is the total's";
    EXPECT_LT(list.bottom(), add.top());
    const oFieldLabel *caption = screen->Fields().back().label;
    ASSERT_TRUE(caption);
    EXPECT_FALSE(caption->wordWrap());
    EXPECT_GE(caption->width(), caption->sizeHint().width()) << "and nothing of it is cut";
    EXPECT_LT(add.right(), place(*caption).left());
}

TEST_F(ScheduleOfTime, NothingCanBeAddedWithoutAFeeEarner)
{
    const auto screen = schedule();
    EXPECT_FALSE(screen->Box("cmdAddScheduleOfTimeItem").isEnabled());
    EXPECT_EQ(QStringLiteral("Add a fee earner under Fee Earners / Rates first."),
        screen->Box("cmdAddScheduleOfTimeItem").toolTip());
    EXPECT_EQ(
        QStringLiteral("Add a fee earner under Fee Earners / Rates first."), view(*screen).accessibleDescription());
    key(*screen, Qt::Key_Insert);
    key(*screen, Qt::Key_A, Qt::AltModifier);
    EXPECT_FALSE(QApplication::activeModalWidget());
    addFeeEarners(1);
    const auto again = schedule();
    EXPECT_TRUE(again->Box("cmdAddScheduleOfTimeItem").isEnabled());
    EXPECT_EQ(QStringLiteral("No items yet. Add one to begin."), view(*again).accessibleDescription());
}

TEST_F(ScheduleOfTime, IsSortedByDateAndNumberedSo)
{
    addItem("04/03/26", "ACL");
    addItem("31/12/29", "ACO"); // no date
    addItem("05/02/26", "ACT");
    addItem("04/03/26", "AEX");
    const auto screen = schedule();
    EXPECT_EQ(QStringLiteral("ACT ACL AEX ACO"), codes());
    EXPECT_EQ(QStringLiteral("05/02/26 04/03/26 04/03/26 31/12/29"), dates(*screen).join(u' '));
}

TEST_F(ScheduleOfTime, TheArrowsChangeTheOrderWithinADay)
{
    addItem("05/02/26", "ACL");
    addItem("04/03/26", "ACO");
    addItem("04/03/26", "ACT");
    const auto screen = schedule();
    grid(*screen).SelectRow(2);
    key(*screen, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(QStringLiteral("ACL ACT ACO"), codes());
    EXPECT_EQ(3, grid(*screen).SelectedRow());
    EXPECT_EQ(QStringLiteral("1ACL 2ACT 3ACO"), exported()) << "at once on the bill, too";
    auto *arrows = screen->findChild<oOrderArrows *>();
    ASSERT_TRUE(arrows);
    emit arrows->UpClick();
    EXPECT_EQ(QStringLiteral("ACL ACO ACT"), codes());
    EXPECT_EQ(2, grid(*screen).SelectedRow());
    // Items are sorted by day first: an item can't move past one of another day.
    key(*screen, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(QStringLiteral("ACL ACO ACT"), codes());
    // Only the selection moves, and the next move applies to that item: required behaviour; do not fix.
    EXPECT_EQ(1, grid(*screen).SelectedRow());
    key(*screen, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(QStringLiteral("ACL ACO ACT"), codes());
    EXPECT_EQ(2, grid(*screen).SelectedRow());
}

TEST_F(ScheduleOfTime, ADoubleClickEditsTheRowsItemAndFollowsIt)
{
    addItem("01/02/26", "ACL");
    addItem("02/02/26", "ACO");
    addItem("03/02/26", "ACT");
    const auto screen = schedule();
    QTableView &cells = view(*screen);
    const QPoint second = cells.visualRect(cells.model()->index(1, 0)).center();
    inModal(
        [&] {
            QTest::mouseClick(cells.viewport(), Qt::LeftButton, {}, second);
            QTest::mouseDClick(cells.viewport(), Qt::LeftButton, {}, second);
        },
        [](frmScreen &editor) {
            EXPECT_EQ(QStringLiteral("frmScheduleOfTimeItemEdit"), editor.objectName());
            type(editor.Box("txtDate"), QStringLiteral("9.2.26"));
            key(editor, Qt::Key_Return);
        });
    EXPECT_EQ(3u, countItems());
    EXPECT_EQ(QStringLiteral("ACL ACT ACO"), codes());
    EXPECT_EQ(3, grid(*screen).SelectedRow()) << "where its new date puts it";
    EXPECT_EQ(QStringLiteral("09/02/26"), dates(*screen)[2]);
    EXPECT_EQ(QStringLiteral("1ACL 2ACT 3ACO"), exported());
    EXPECT_EQ(QStringLiteral("sgScheduleOfTime"), focusedName(*screen));
}

TEST_F(ScheduleOfTime, ANewItemIsSelectedWhereItsDatePutsIt)
{
    addItem("01/02/26", "ACL");
    addItem("09/02/26", "ACO");
    const auto screen = schedule();
    inModal([&] { key(*screen, Qt::Key_Insert); },
        [](frmScreen &editor) {
            EXPECT_EQ(QStringLiteral("cmbFeeEarner"), focusedName(editor));
            type(editor.Box("txtDate"), QStringLiteral("5.2.26"));
            type(editor.Box("txtDescription"), QStringLiteral("Told"));
            key(editor, Qt::Key_Return);
        });
    EXPECT_EQ(QStringLiteral("ACL DOT ACO"), codes());
    EXPECT_EQ(2, grid(*screen).SelectedRow());
    EXPECT_EQ(QStringLiteral("sgScheduleOfTime"), focusedName(*screen));
    EXPECT_EQ(QStringLiteral("1ACL 2DOT 3ACO"), exported());
    ASSERT_EQ(1u, Form->AdditionalInformationItemsCollection().size());
    EXPECT_EQ(QStringLiteral("Told"), Form->AdditionalInformationItemsCollection()[0]->Description());
    inModal([&] { press(*screen, "cmdAddScheduleOfTimeItem"); }, [](frmScreen &editor) { editor.close(); });
    EXPECT_EQ(3u, countItems());
    EXPECT_EQ(2, grid(*screen).SelectedRow());
}

TEST_F(ScheduleOfTime, TwentyItemsInARowNeedNoMouseAndNoNeedlessKey)
{
    addFeeEarners(13);
    const auto screen = schedule();
    int keys = 0;
    const auto press = [&keys](QWidget *window, int which, Qt::KeyboardModifiers modifiers = {}) {
        ++keys;
        key(*window, which, modifiers);
    };
    const auto write = [&keys](QWidget *window, const QString &text) {
        keys += int(text.size());
        QTest::keyClicks(window->focusWidget(), text);
    };
    int typed = 0;
    for (int n = 1; n <= 20; ++n) {
        const QString day = QStringLiteral("%1/3").arg(n);
        const QString time = QString::number(6 * n);
        typed += int(day.size()) + 3 + int(time.size());
        inModal([&] { press(screen.get(), Qt::Key_A, Qt::AltModifier); },
            [&](frmScreen &editor) {
                press(&editor, Qt::Key_F1 + (n - 1) % 12, n > 12 ? Qt::ShiftModifier : Qt::NoModifier);
                press(&editor, Qt::Key_Tab);
                write(&editor, day);
                press(&editor, Qt::Key_Tab);
                write(&editor, n % 2 ? QStringLiteral("hin") : QStringLiteral("dst"));
                press(&editor, Qt::Key_Tab);
                press(&editor, Qt::Key_Tab);
                write(&editor, time);
                press(&editor, Qt::Key_Return);
            });
        ASSERT_EQ(size_t(n), countItems());
        EXPECT_EQ(QStringLiteral("sgScheduleOfTime"), focusedName(*screen));
        EXPECT_EQ(n, grid(*screen).SelectedRow());
    }
    // Besides the typed characters: Add, the fee earner, four steps and Save.
    EXPECT_EQ(20 * 7 + typed, keys);
    EXPECT_TRUE(user.messages.empty());
    for (int n = 1; n <= 20; ++n) {
        const Item item = Form->ScheduleOfTimeItemByOrderID(n);
        // Beyond the thirteenth the key does nothing, and the choice stays.
        EXPECT_EQ(QString::number(n <= 13 ? n : 13), item->FeeEarnerReference());
        EXPECT_TRUE(item->dDate().startsWith(QStringLiteral("%1/03/").arg(n, 2, 10, QLatin1Char('0'))));
        EXPECT_EQ(n % 2 ? QStringLiteral("HIN") : QStringLiteral("DST"), item->Code());
        EXPECT_EQ(
            QStringLiteral("%1:%2").arg(6 * n / 60, 2, 10, QLatin1Char('0')).arg(6 * n % 60, 2, 10, QLatin1Char('0')),
            item->TTime());
    }
}

TEST_F(ScheduleOfTime, DeletesByKeyAndByMenuAfterTheQuestion)
{
    addItem("01/02/26", "ACL")->Description = QStringLiteral("first");
    addItem("02/02/26", "ACO")->Description = QStringLiteral("second");
    addItem("03/02/26", "ACT");
    const auto screen = schedule();
    const char *question = "Are you sure you wish to delete this Schedule of Time Item?";
    user.answers = {clsUserInterface::No};
    key(*screen, Qt::Key_Delete);
    expectMessage("Delete?", question, clsUserInterface::YesNo);
    EXPECT_EQ(3u, countItems());
    user.answers = {clsUserInterface::Yes};
    key(*screen, Qt::Key_Delete);
    expectMessage("Delete?", question, clsUserInterface::YesNo);
    EXPECT_EQ(QStringLiteral("ACO ACT"), codes());
    EXPECT_EQ(QStringLiteral("1ACO 2ACT"), exported());
    ASSERT_EQ(1u, Form->AdditionalInformationItemsCollection().size());
    EXPECT_EQ(QStringLiteral("ACO"), Form->AdditionalInformationItemsCollection()[0]->Code());
    EXPECT_EQ(1, grid(*screen).SelectedRow());
    user.answers = {clsUserInterface::Yes, clsUserInterface::Yes};
    entry(*screen, "mnuDeleteScheduleOfTimeItem").trigger();
    expectMessage("Delete?", question, clsUserInterface::YesNo);
    EXPECT_EQ(QStringLiteral("ACT"), codes());
    key(*screen, Qt::Key_Delete);
    user.messages.clear();
    EXPECT_EQ(0u, countItems());
    key(*screen, Qt::Key_Delete);
    EXPECT_TRUE(user.messages.empty()) << "with no row there is nothing to ask";
    EXPECT_TRUE(Form->ScheduleOfTimeItemsForExportCollection().empty());
}

TEST_F(ScheduleOfTime, TheTickTakesEffectAtCloseOnly)
{
    QString opened;
    SetOpenSection([&opened](const QString &text) { opened = text; });
    for (const char *way : {"btnLeft", "btnRight", "cmdDisbursements", "cmdCommunications", "mnuDisbursements",
             "mnuCommunications", "close box"}) {
        const auto screen = schedule();
        EXPECT_FALSE(exclude(*screen).Checked()) << way;
        click(exclude(*screen));
        EXPECT_FALSE(Form->ExcludeNonAdvocacy()) << way;
        if (QByteArray(way).startsWith("mnu"))
            entry(*screen, way).trigger();
        else if (QByteArray(way) == "close box")
            screen->close();
        else
            press(*screen, way);
        EXPECT_FALSE(screen->isVisible()) << way;
        EXPECT_FALSE(Form->ExcludeNonAdvocacy()) << way;
    }
    EXPECT_EQ(QStringLiteral("Communications"), opened);
    for (const bool byButton : {true, false}) {
        const bool before = Form->ExcludeNonAdvocacy();
        const auto screen = schedule();
        EXPECT_EQ(before, exclude(*screen).Checked());
        click(exclude(*screen));
        if (byButton)
            press(*screen, "cmdClose");
        else
            key(*screen, Qt::Key_Escape);
        EXPECT_FALSE(screen->isVisible());
        EXPECT_EQ(!before, Form->ExcludeNonAdvocacy());
    }
}

TEST_F(ScheduleOfTime, CloseNumbersWhatIsOnTheBill)
{
    for (const char *code : {"ACL", "ACO", "ACT", "AEX"})
        addItem("01/02/26", code)->Description = QStringLiteral("x");
    Form->ScheduleOfTimeItem(2)->Advocacy = true;
    Form->ScheduleOfTimeItem(4)->Advocacy = true;
    for (const char *type : {"Claim1A", "Claim1"}) {
        Form->FormType = QString::fromUtf8(type);
        Form->ExcludeNonAdvocacy = false;
        const auto screen = schedule();
        click(exclude(*screen));
        press(*screen, "cmdClose");
        const bool excludes = QByteArray(type) == "Claim1A";
        EXPECT_EQ(excludes ? QStringLiteral("1ACO 2AEX") : QStringLiteral("1ACL 2ACO 3ACT 4AEX"), exported()) << type;
        EXPECT_EQ(excludes ? 2u : 4u, Form->AdditionalInformationItemsCollection().size());
    }
}

TEST_F(ScheduleOfTime, PrevNextAndTheJumpsLeadToTheirSections)
{
    QString opened;
    SetOpenSection([&opened](const QString &text) { opened = text; });
    const auto leads = [&opened](const char *button) {
        press(*schedule(), button);
        return opened;
    };
    for (const char *type : {"Claim1", "Claim1A"}) {
        Form->FormType = QString::fromUtf8(type);
        EXPECT_EQ(QStringLiteral("Details of Work"), leads("btnLeft"));
        EXPECT_EQ(QByteArray(type) == "Claim1" ? QStringLiteral("Counsel Outstanding Claims")
                                               : QStringLiteral("Communications"),
            leads("btnRight"));
        EXPECT_EQ(QStringLiteral("Disbursements"), leads("cmdDisbursements"));
        EXPECT_EQ(QStringLiteral("Communications"), leads("cmdCommunications"));
    }
}

TEST_F(ScheduleOfTime, CtrlSSavesTheClaimAndLeavesTheTickOut)
{
    user.files = {path("claim.zr3")};
    addItem("01/02/26", "REX");
    const auto screen = schedule();
    click(exclude(*screen));
    key(*screen, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(screen->isVisible());
    const QByteArray file = bytesOf(path("claim.zr3"));
    EXPECT_TRUE(file.contains("<code>REX</code>"));
    EXPECT_TRUE(file.contains("<excludenonadvocacy>False</excludenonadvocacy>"));
    EXPECT_TRUE(exclude(*screen).Checked());
}
