// Claims with invalid values in the file: every screen opens, shows what is wrong, and can correct it.

#include "controls/oDecimalBox.h"
#include "controls/oTimeBox.h"
#include "costing/mdFigureFaults.h"
#include "editors/oEnhancementsBox.h"
#include "editors/oFeeEarnerCombo.h"
#include "tests/editors/clsScheduleTest.h"
#include "tests/editors/mdWalkedScreens.h"

#include <QComboBox>
#include <QSet>

namespace {

class BrokenRecords : public clsScheduleTest {
protected:
    /// A claim with an item in each list.
    static void addToAllLists()
    {
        Form->FormType = QStringLiteral("Claim1A");
        addFeeEarners(1);
        Form->FeeEarnerGroup(1)->HourlyRate = QStringLiteral("60.00");
        Form->AddCounsel()->Name = QStringLiteral("Oak");
        Form->AddEnhancement()->Name = QStringLiteral("Fifty");
        addItem("01/02/26");
        Form->AddExpertInvoice();
        Form->AddJointInstruction();
        Form->AddDisbursement();
        Form->AddFASItem();
    }
    /// Writes a content to every element with a value, except those that link the claim's records.
    static void spoilAll(pugi::xml_node node, const char *content)
    {
        static const QSet<QByteArray> kept {"orderid", "formtype", "idcounter", "version", "path"};
        for (pugi::xml_node child : node.children()) {
            if (child.first_child().type() == pugi::node_element)
                spoilAll(child, content);
            else if (child.type() == pugi::node_element && !kept.contains(child.name()))
                child.text().set(content);
        }
    }
    /// Opens the screen of a section, and from each list of it the editor of its first item.
    static void walk(const QString &section)
    {
        const auto screen = opened(section);
        screen->RedrawLists();
        EXPECT_FALSE(screen->grab().isNull());
        for (const clsScreenField &field : screen->Fields()) {
            if (field.row->kind != clsRowKind::Items || !field.row->items->editor)
                continue;
            edit(field.row->items->editor(), field.row->items->item(1).get());
            if (field.row->items->changed)
                field.row->items->changed();
        }
        if (screen->Screen().ending == clsScreenEnding::Close)
            screen->Store(clsStoring::Closing);
    }
    template <class Item> static QStringList wrongWith(const Item &item)
    {
        QStringList result;
        for (const clsFigureFault &fault : mdFigureFaults(*Form, item))
            result << fault.sentence;
        return result;
    }
    /// The text that a screen reader gets for a cell of a list's first row.
    static QString described(const oSGrid &grid, int column)
    {
        return grid.findChild<QAbstractItemView *>()->model()->index(0, column).data(Qt::AccessibleTextRole).toString();
    }
    /// Saves an editor, which must close.
    static void save(frmScreen &screen)
    {
        press(screen, "cmdSave");
        EXPECT_FALSE(screen.isVisible());
    }
};

} // namespace

TEST_F(BrokenRecords, EveryScreenOpensWhateverTheClaimHolds)
{
    for (const char *content : {"perhaps", "99999999999999999999", "", "-5", "ID99"}) {
        for (const QString &section : mdSectionTexts()) {
            SCOPED_TRACE(std::string(content) + " in " + section.toStdString());
            Form = std::make_unique<clsZR3Form>();
            addToAllLists();
            spoilAll(Form->XMLNode(), content);
            EXPECT_EQ(0, errorOf([&] { walk(section); }));
        }
    }
}

TEST_F(BrokenRecords, EveryScreenOpensOfAClaimThatWasLoadedSo)
{
    addToAllLists();
    spoilAll(Form->XMLNode(), "perhaps");
    Form->SaveXML(path("odd.zr3"));
    Form = std::make_unique<clsZR3Form>();
    ASSERT_TRUE(Form->LoadXML(path("odd.zr3")));
    EXPECT_EQ(QStringLiteral("perhaps"), Form->ScheduleOfTimeItem(1)->TTime());
    for (const QString &section : mdSectionTexts())
        EXPECT_EQ(0, errorOf([&] { walk(section); })) << section.toStdString();
}

TEST_F(BrokenRecords, TheScheduleShowsWhatIsWrongAndFollowsEveryChange)
{
    const Item item = addItem("01/02/26");
    addItem("02/02/26");
    item->FeeEarnerUniqueID = QStringLiteral("ID99");
    item->TTime = QString();
    item->IncludeInEnhancements = true;
    const auto screen = opened(QStringLiteral("Schedule of Time"));
    auto &grid = screen->Box<oSGrid>("sgScheduleOfTime");
    EXPECT_EQ(QStringList({QStringLiteral("!|01/02/26|20260201|DOT|!|\u2717|\u2717|\u2717|\u2717|!||!"),
                  QStringLiteral("1|02/02/26|20260202|DOT|01:00|\u2717|\u2717|\u2717|\u2717|\u2717||0.00")}),
        rows(grid));
    EXPECT_EQ(QStringLiteral("Schedule item 1 names a fee earner that no longer exists"), described(grid, 0));
    EXPECT_EQ(QStringLiteral("Schedule item 1 has no time"), described(grid, 4));
    EXPECT_EQ(QStringLiteral("Schedule item 1 names no enhancement"), described(grid, 9));

    // Reordering, deleting and adding items still work.
    grid.SelectRow(1);
    QTest::keyClick(focusPart(grid), Qt::Key_Down, Qt::AltModifier);
    user.answers = {clsUserInterface::Yes};
    grid.SelectRow(2);
    QTest::keyClick(grid.findChild<QAbstractItemView *>(), Qt::Key_Delete);
    EXPECT_EQ(1u, countItems());
    EXPECT_EQ(1, grid.Rows());
    EXPECT_EQ(1u, Form->ScheduleOfTimeItemsForExportCollection().size());

    // Errors in the group's rates are shown beside the name.
    item->FeeEarnerUniqueID = Form->FeeEarner(1)->UniqueID();
    item->TTime = QStringLiteral("01:00");
    item->IncludeInEnhancements = false;
    Form->FeeEarnerGroup(1)->HourlyRate = QString();
    grid.Redraw(true);
    EXPECT_TRUE(rows(grid).first().startsWith(QLatin1String("! 1|01/02/26|"))) << rows(grid).first().toStdString();
    EXPECT_EQ(QStringLiteral("Schedule item 1: the hourly rate of group PTR is not an amount"), described(grid, 0));
    EXPECT_EQ(QStringLiteral("Schedule item 1: the hourly rate of group PTR is not an amount"), described(grid, 11));
}

TEST_F(BrokenRecords, TheReasonNamesTheItemByTheNumberThatItHasNow)
{
    addItem("02/02/26")->TTime = QString();
    addItem("01/02/26");
    const auto screen = opened(QStringLiteral("Schedule of Time"));
    auto &grid = screen->Box<oSGrid>("sgScheduleOfTime");
    EXPECT_EQ(2, Form->ScheduleOfTimeItem(1)->OrderID()) << "opened, the list is numbered by its dates";
    grid.SelectRow(2);
    const auto *cells = grid.findChild<QAbstractItemView *>()->model();
    EXPECT_EQ(
        QStringLiteral("Schedule item 2 has no time"), cells->index(1, 4).data(Qt::AccessibleTextRole).toString());
}

TEST_F(BrokenRecords, AnItemIsMendedInItsEditor)
{
    Form->AddEnhancement()->Name = QStringLiteral("Fifty");
    const Item item = addItem("01/02/26");
    Form->FeeEarnerGroup(1)->HourlyRate = QStringLiteral("60.00");
    item->FeeEarnerUniqueID = QStringLiteral("ID99");
    item->TTime = QStringLiteral("90");
    item->IncludeInEnhancements = true;
    item->EnhancementUniqueID = QStringLiteral("ID99");
    item->XMLNode().child("travel").text().set("perhaps");
    EXPECT_EQ(3, wrongWith(*item).size());
    auto screen = editItem(item);
    EXPECT_EQ(-1, screen->Box<oFeeEarnerCombo>("cmbFeeEarner").currentIndex());
    EXPECT_EQ(QStringLiteral("Schedule item 1: the tick Travel holds \"perhaps\", which is neither True nor False"),
        tick(*screen, "chkTravel").toolTip());
    QTest::keyClick(focusPart(screen->Box("cmbFeeEarner")), Qt::Key_F1);
    save(*screen);
    EXPECT_EQ(QStringList(), wrongWith(*item));
    EXPECT_EQ(QStringLiteral("01:30"), item->TTime()) << "as the box reads 90";
    EXPECT_FALSE(item->Travel());
    EXPECT_EQ(Form->Enhancement(1)->UniqueID(), item->EnhancementUniqueID());
    EXPECT_EQ(QStringLiteral("90"), MoneyToText(item->Claim()));
}

TEST_F(BrokenRecords, AnEnhancementThatNoClaimHasCanBeTakenBack)
{
    const Item item = addItem("01/02/26");
    item->IncludeInEnhancements = true;
    item->EnhancementUniqueID = QStringLiteral("ID99");
    const auto screen = editItem(item);
    auto &box = screen->Box<oEnhancementsBox>("oEnhancement");
    auto &ticked = *box.findChild<oCheckBox *>();
    EXPECT_TRUE(ticked.isEnabled());
    QTest::keyClick(focusPart(ticked), Qt::Key_Space);
    save(*screen);
    EXPECT_FALSE(item->IncludeInEnhancements());
    EXPECT_FALSE(wrongWith(*item).contains(QStringLiteral("Schedule item 1 names no enhancement")));
}

TEST_F(BrokenRecords, AnAmountThatWasNeverEnteredIsMendedInItsBox)
{
    const auto group = addGroup("PTR", "Partner");
    group->HourlyRate = QString();
    group->CallsRate = QString();
    EXPECT_EQ(2, wrongWith(*group).size());
    save(*edit(ScreenFeeEarnerGroupEdit(), group.get()));
    EXPECT_EQ(2, wrongWith(*group).size()) << "what was not touched is stored as it was";
    const auto screen = edit(ScreenFeeEarnerGroupEdit(), group.get());
    type(screen->Box("txtHourly"), QStringLiteral("60"));
    screen->Box("txtCalls").setFocus(Qt::TabFocusReason);
    save(*screen);
    EXPECT_EQ(QStringList(), wrongWith(*group));
    EXPECT_EQ(QStringLiteral("60.00"), group->HourlyRate());
    EXPECT_EQ(QStringLiteral("0.00"), group->CallsRate());
}

TEST_F(BrokenRecords, AnAmountThatIsNoneHoldsTheEditorUntilItIsOne)
{
    const auto group = addGroup("PTR", "Partner");
    group->HourlyRate = QStringLiteral("much");
    group->CounselRate = QStringLiteral("more");
    const auto screen = edit(ScreenFeeEarnerGroupEdit(), group.get());
    for (const char *box : {"txtCounsel", "txtHourly"}) {
        press(*screen, "cmdSave");
        EXPECT_TRUE(screen->isVisible());
        EXPECT_EQ(QString::fromLatin1(box), focusedName(*screen));
        type(screen->Box(box), QStringLiteral("60"));
    }
    EXPECT_EQ(QStringLiteral("much"), group->HourlyRate()) << "nothing is stored before";
    save(*screen);
    EXPECT_EQ(QStringList(), wrongWith(*group));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(BrokenRecords, ACountThatIsTooLargeIsTypedAnew)
{
    addFeeEarners(1);
    Form->FeeEarner(1)->XMLNode().child("calls").text().set("99999999999");
    const auto screen = opened(QStringLiteral("Communications"));
    auto &grid = screen->Box<oSGrid>("sgCommunications");
    EXPECT_EQ(QStringList({QStringLiteral("1|1|!|0|0")}), rows(grid));
    QTest::keyClick(grid.findChild<QAbstractItemView *>(), Qt::Key_C);
    EXPECT_EQ(QStringList({QStringLiteral("1|1|!|0|0")}), rows(grid)) << "nothing to count on from";
    const auto editor = edit(ScreenCorrespondences(), Form->FeeEarner(1).get());
    press(*editor, "cmdSave");
    EXPECT_TRUE(editor->isVisible());
    EXPECT_EQ(QStringLiteral("txtCalls"), focusedName(*editor));
    type(editor->Box("txtCalls"), QStringLiteral("7"));
    save(*editor);
    EXPECT_EQ(7, Form->FeeEarner(1)->Calls());
}

TEST_F(BrokenRecords, TheOtherListsShowWhatIsWrong)
{
    addToAllLists();
    const auto disbursement = Form->Disbursement(1);
    disbursement->Amount = QStringLiteral("abc");
    disbursement->Counsel = true;
    Form->ExpertInvoice(1)->VATAmount = QStringLiteral("x");
    Form->FASItem(1)->dDate = QStringLiteral("01/02/26");
    Form->FeeEarnerGroup(1)->CallsRate = QString();
    Form->Enhancement(1)->Rate = QString();
    Form->Counsel(1)->XMLNode().child("vat").text().set("perhaps");
    const auto shown = [](const char *section, const char *grid) {
        const auto screen = opened(QString::fromLatin1(section));
        return rows(screen->Box<oSGrid>(grid)).join(u'/');
    };
    EXPECT_EQ(QStringLiteral("|!|0.00|!|"), shown("Disbursements", "sgOtherDisbursements"));
    EXPECT_EQ(QStringLiteral("! ||0.00|0.00|0.00"), shown("Disbursements", "sgExpertInvoices"));
    EXPECT_EQ(
        QStringLiteral("01/02/26|20260201|||0|0|!||!|!|!"), shown("Family Advocacy Scheme", "sgFamilyAdvocacyScheme"));
    EXPECT_EQ(QStringLiteral("! PTR||\u2717|0.00"), shown("Fee Earners / Rates", "sgFeeEarnerGroups"));
    EXPECT_EQ(QStringLiteral("Fifty|!"), shown("Enhancements", "sgEnhancements"));
    EXPECT_EQ(QStringLiteral("Oak||!"), shown("Counsel", "sgCounsel"));
}

TEST_F(BrokenRecords, TheTickOfTheScheduleIsMendedByClosing)
{
    Form->FormType = QStringLiteral("Claim1A");
    addItem("01/02/26");
    Form->XMLNode().child("excludenonadvocacy").text().set("perhaps");
    auto screen = opened(QStringLiteral("Schedule of Time"));
    EXPECT_FALSE(tick(*screen, "chkExcludeNonAdvocacy").Checked());
    EXPECT_EQ(
        QStringLiteral("The claim: the tick Exclude Non Advocacy holds \"perhaps\", which is neither True nor False"),
        tick(*screen, "chkExcludeNonAdvocacy").toolTip());
    screen->reject(); // Esc does the same as Close here
    EXPECT_FALSE(Form->ExcludeNonAdvocacy());
    Form->CheckDerivedCollections();
    EXPECT_EQ(1, Form->ScheduleOfTimeItem(1)->SOTItemNumber);
}
