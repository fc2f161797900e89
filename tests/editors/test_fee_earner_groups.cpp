#include "controls/oCustomButton.h"
#include "controls/oSGrid.h"
#include "tests/editors/clsFeeEarnersTest.h"
#include "tests/editors/mdListColumns.h"

#include <QAbstractItemView>
#include <QAction>
#include <QMenu>

namespace {

class FeeEarnerGroups : public clsFeeEarnersTest {
protected:
    static std::unique_ptr<frmScreen> lists() { return opened(QStringLiteral("Fee Earners / Rates")); }
    static oSGrid &groups(const frmScreen &screen) { return screen.Box<oSGrid>("sgFeeEarnerGroups"); }
    static oSGrid &feeEarners(const frmScreen &screen) { return screen.Box<oSGrid>("sgFeeEarners"); }
    static bool canAddFeeEarner(const frmScreen &screen) { return screen.Box("cmdAddFeeEarner").isEnabled(); }
    void expectMessage(const char *title, const QString &text, clsUserInterface::Buttons buttons)
    {
        ASSERT_EQ(1u, user.messages.size());
        EXPECT_EQ(QString::fromUtf8(title), user.messages[0].title);
        EXPECT_EQ(text, user.messages[0].text);
        EXPECT_EQ(buttons, user.messages[0].buttons);
        user.messages.clear();
    }
    static QStringList references()
    {
        QStringList result;
        for (const auto &feeEarner : Form->FeeEarnersCollection())
            result << feeEarner->Reference() + u' ' + feeEarner->GroupReference();
        return result;
    }
};

} // namespace

TEST_F(FeeEarnerGroups, AFeeEarnerWhoseGroupIsMissingIsMarked)
{
    const auto partner = addGroup("PTR");
    addFeeEarner(QStringLiteral("JH"), *partner);
    addFeeEarner(QStringLiteral("AB"), *partner)->GroupUniqueID = QStringLiteral("ID99");
    EXPECT_EQ(QStringList({QStringLiteral("JH|PTR"), QStringLiteral("AB|!")}), rows(feeEarners(*lists())));
}

TEST_F(FeeEarnerGroups, ShowsTheTwoListsWithTheirColumnsInTheirOrder)
{
    const auto partner = addGroup("PTR", "Partner");
    partner->Enhance = true;
    partner->EnhancementRate = QStringLiteral("25.00");
    const auto trainee = addGroup("TRN", "Trainee");
    addFeeEarner(QStringLiteral("JH"), *partner)->OrderID = 5;
    addFeeEarner(QStringLiteral("AB"), *trainee)->OrderID = 3;
    const auto screen = lists();
    const auto headings = [](const oSGrid &grid) {
        const auto &cells = *grid.findChild<QAbstractItemView *>()->model();
        QStringList captions;
        for (int column = 0; column < cells.columnCount(); ++column)
            captions << cells.headerData(column, Qt::Horizontal).toString();
        return captions.join(u'|');
    };
    EXPECT_EQ(QStringLiteral("Ref|Name|Enh|Enh %"), headings(groups(*screen)));
    EXPECT_EQ(QStringLiteral("Ref|Group"), headings(feeEarners(*screen)));
    EXPECT_EQ(QStringList({QStringLiteral("Ref Reference 25 left"), QStringLiteral("Name Name 50 left"),
                  QStringLiteral("Enh Enhance 10 centre"), QStringLiteral("Enh % EnhancementRate 15 right")}),
        captionsOf(groups(*screen)));
    EXPECT_EQ(QStringList({QStringLiteral("Ref Reference 50 left"), QStringLiteral("Group GroupReference 50 left")}),
        captionsOf(feeEarners(*screen)));
    EXPECT_EQ(QStringList({QStringLiteral("AB|TRN"), QStringLiteral("JH|PTR")}), rows(feeEarners(*screen)));
    ASSERT_EQ(2, groups(*screen).Rows());
    EXPECT_TRUE(rows(groups(*screen))[0].startsWith(QStringLiteral("PTR|Partner|")));
    EXPECT_TRUE(rows(groups(*screen))[0].endsWith(QStringLiteral("|25.00")));
    EXPECT_TRUE(rows(groups(*screen))[1].endsWith(QStringLiteral("|0.00")));
    // Drawing numbers them without gaps.
    EXPECT_EQ(QStringLiteral("AB"), Form->FeeEarnerByOrderID(1)->Reference());
    EXPECT_EQ(QStringLiteral("JH"), Form->FeeEarnerByOrderID(2)->Reference());
    EXPECT_TRUE(groups(*screen).Orderable() && feeEarners(*screen).Orderable());
    EXPECT_EQ(QStringLiteral("mnuFeeEarnerGroups"), groups(*screen).PopupMenuName());
    EXPECT_EQ(QStringLiteral("mnuFeeEarners"), feeEarners(*screen).PopupMenuName());
}

TEST_F(FeeEarnerGroups, TheFramesStandSideBySideAndTheMenusHoldTheirEntries)
{
    const auto screen = lists();
    EXPECT_EQ(groups(*screen).mapTo(screen.get(), QPoint()).y(), feeEarners(*screen).mapTo(screen.get(), QPoint()).y());
    EXPECT_LT(groups(*screen).mapTo(screen.get(), QPoint()).x(), feeEarners(*screen).mapTo(screen.get(), QPoint()).x());
    const auto entries = [&screen](const char *menu) {
        QStringList captions;
        for (const QAction *action : screen->findChild<QMenu *>(QString::fromUtf8(menu))->actions())
            captions << (action->isSeparator() ? QStringLiteral("-") : action->text().remove(u'&'));
        return captions;
    };
    EXPECT_EQ(QStringList({QStringLiteral("Create Fee Earners for Empty Groups"), QStringLiteral("-"),
                  QStringLiteral("Delete")}),
        entries("mnuFeeEarnerGroups"));
    EXPECT_EQ(QStringList {QStringLiteral("Delete")}, entries("mnuFeeEarners"));
}

TEST_F(FeeEarnerGroups, FeeEarnersCanBeAddedOnlyWhileThereIsAGroup)
{
    const auto screen = lists();
    EXPECT_FALSE(canAddFeeEarner(*screen));
    EXPECT_EQ(QStringLiteral("Add a group first."), screen->Box("cmdAddFeeEarner").toolTip());
    inModal([&] { press(*screen, "cmdAddFeeEarnerGroup"); },
        [](frmScreen &editor) {
            EXPECT_EQ(QStringLiteral("frmFeeEarnerGroupEdit"), editor.objectName());
            type(editor.Box("txtReference"), QStringLiteral("PTR"));
            type(editor.Box("txtName"), QStringLiteral("Partner"));
            key(editor, Qt::Key_Return);
        });
    EXPECT_EQ(1, groups(*screen).Rows());
    EXPECT_TRUE(canAddFeeEarner(*screen));
    EXPECT_EQ(QString(), screen->Box("cmdAddFeeEarner").toolTip());
    // The identity of an unused new group occurs once in the claim, and the group can be deleted.
    user.answers = {clsUserInterface::Yes};
    QTest::keyClick(screen->focusWidget(), Qt::Key_Delete);
    expectMessage(
        "Delete?", QStringLiteral("Are you sure you wish to delete this Fee Earner Group?"), clsUserInterface::YesNo);
    EXPECT_TRUE(Form->FeeEarnerGroupsCollection().empty());
    EXPECT_EQ(0, groups(*screen).Rows());
    EXPECT_FALSE(canAddFeeEarner(*screen));
}

TEST_F(FeeEarnerGroups, AFirmIsEnteredWithTheKeyboardAlone)
{
    const auto screen = lists();
    int n = 0;
    for (const char *reference : {"PTR", "SOL"}) {
        inModal([&] { key(*screen, Qt::Key_A, Qt::AltModifier); },
            [reference](frmScreen &editor) {
                QTest::keyClicks(editor.focusWidget(), QString::fromUtf8(reference));
                key(editor, Qt::Key_Tab);
                QTest::keyClicks(editor.focusWidget(), QStringLiteral("Grade ") + QString::fromUtf8(reference));
                key(editor, Qt::Key_Return);
            });
        EXPECT_EQ(QStringLiteral("sgFeeEarnerGroups"), focusedName(*screen));
        EXPECT_EQ(++n, groups(*screen).SelectedRow());
    }
    EXPECT_EQ(QStringLiteral("Grade SOL"), Form->FeeEarnerGroup(2)->Name());
    // To the other list: its "Add" has a different letter.
    const QString caption = screen->Box<oCustomButton>("cmdAddFeeEarner").text();
    const qsizetype mark = caption.indexOf(u'&');
    ASSERT_GE(mark, 0);
    inModal([&] { key(*screen, Qt::Key(caption[mark + 1].toUpper().unicode()), Qt::AltModifier); },
        [](frmScreen &editor) {
            EXPECT_EQ(QStringLiteral("frmFeeEarnerEdit"), editor.objectName());
            QTest::keyClicks(editor.focusWidget(), QStringLiteral("JH"));
            key(editor, Qt::Key_Tab);
            key(editor, Qt::Key_Down);
            key(editor, Qt::Key_Return);
        });
    EXPECT_EQ(QStringList {QStringLiteral("JH SOL")}, references());
    EXPECT_EQ(QStringLiteral("sgFeeEarners"), focusedName(*screen));
    key(*screen, Qt::Key_Escape);
    EXPECT_FALSE(screen->isVisible());
}

TEST_F(FeeEarnerGroups, ADoubleClickEditsTheRowAndAGroupsNewReferenceShowsInBothLists)
{
    addGroup("PTR", "Partner");
    const auto solicitor = addGroup("SOL", "Solicitor");
    addFeeEarner(QStringLiteral("JH"), *solicitor);
    const auto screen = lists();
    auto &view = *groups(*screen).findChild<QAbstractItemView *>();
    const QPoint second = view.visualRect(view.model()->index(1, 0)).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, second);
    inModal([&] { QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, second); },
        [&solicitor](frmScreen &editor) {
            EXPECT_EQ(solicitor.get(), editor.Record());
            type(editor.Box("txtReference"), QStringLiteral("ASO"));
            press(editor, "cmdSave");
        });
    EXPECT_EQ(QStringList {QStringLiteral("JH|ASO")}, rows(feeEarners(*screen)));
    EXPECT_TRUE(rows(groups(*screen))[1].startsWith(QStringLiteral("ASO|")));
    EXPECT_EQ(2, groups(*screen).SelectedRow());
}

TEST_F(FeeEarnerGroups, AGroupThatAFeeEarnerNamesIsInUse)
{
    const auto group = addGroup("PTR");
    addFeeEarner(QStringLiteral("JH"), *group);
    const auto screen = lists();
    const QString before = Form->XMLOutput();
    QTest::keyClick(screen->focusWidget(), Qt::Key_Delete);
    expectMessage("Cannot Delete",
        QStringLiteral("This Fee Earner Group is in use. Please remove all uses of it before deleting"),
        clsUserInterface::OKOnly);
    entry(*screen, "mnuDeleteFeeEarnerGroup").trigger();
    expectMessage("Cannot Delete",
        QStringLiteral("This Fee Earner Group is in use. Please remove all uses of it before deleting"),
        clsUserInterface::OKOnly);
    EXPECT_EQ(before, Form->XMLOutput());
}

TEST_F(FeeEarnerGroups, AFeeEarnerOfAScheduleItemIsInUseAndFreeOnceTheItemHasAnother)
{
    const auto group = addGroup("PTR");
    const auto feeEarner = addFeeEarner(QStringLiteral("JH"), *group);
    const auto other = addFeeEarner(QStringLiteral("AB"), *group);
    const auto item = Form->AddScheduleOfTimeItem();
    item->FeeEarnerUniqueID = feeEarner->UniqueID();
    const auto screen = lists();
    feeEarners(*screen).setFocus(Qt::TabFocusReason);
    for (int way = 0; way < 2; ++way) {
        if (way == 0)
            QTest::keyClick(screen->focusWidget(), Qt::Key_Delete);
        else
            entry(*screen, "mnuDeleteFeeEarner").trigger();
        expectMessage("Cannot Delete",
            QStringLiteral("This Fee Earner is in use. Please remove all uses of it before deleting"),
            clsUserInterface::OKOnly);
        EXPECT_EQ(2u, Form->FeeEarnersCollection().size());
    }
    item->FeeEarnerUniqueID = other->UniqueID();
    user.answers = {clsUserInterface::No, clsUserInterface::Yes};
    for (const size_t left : {2u, 1u}) {
        QTest::keyClick(screen->focusWidget(), Qt::Key_Delete);
        expectMessage(
            "Delete?", QStringLiteral("Are you sure you wish to delete this Fee Earner?"), clsUserInterface::YesNo);
        EXPECT_EQ(left, Form->FeeEarnersCollection().size());
        EXPECT_EQ(int(left), feeEarners(*screen).Rows());
    }
    EXPECT_EQ(QStringList {QStringLiteral("AB PTR")}, references());
}

TEST_F(FeeEarnerGroups, AnIdentityThatIsTheWholeTextOfAnotherFieldCountsAsAUse)
{
    const auto group = addGroup("PTR");
    const auto feeEarner = addFeeEarner(QStringLiteral("JH"), *group);
    const auto disbursement = Form->AddDisbursement();
    disbursement->Description = feeEarner->UniqueID();
    const auto screen = lists();
    feeEarners(*screen).setFocus(Qt::TabFocusReason);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Delete);
    expectMessage("Cannot Delete",
        QStringLiteral("This Fee Earner is in use. Please remove all uses of it before deleting"),
        clsUserInterface::OKOnly);
    // Part of a longer text doesn't count.
    disbursement->Description = feeEarner->UniqueID() + QStringLiteral(" lunch");
    user.answers = {clsUserInterface::Yes};
    QTest::keyClick(screen->focusWidget(), Qt::Key_Delete);
    EXPECT_TRUE(Form->FeeEarnersCollection().empty());
}

TEST_F(FeeEarnerGroups, DeletingARowOfTheMiddleTakesThatRowsItem)
{
    const auto group = addGroup("PTR");
    for (const char *reference : {"A", "B", "C"})
        addFeeEarner(QString::fromUtf8(reference), *group);
    // Shown as C, A, B.
    Form->FeeEarner(3)->OrderID = 0;
    const auto screen = lists();
    feeEarners(*screen).setFocus(Qt::TabFocusReason);
    feeEarners(*screen).SelectRow(2);
    user.answers = {clsUserInterface::Yes};
    QTest::keyClick(screen->focusWidget(), Qt::Key_Delete);
    EXPECT_EQ(QStringList({QStringLiteral("C|PTR"), QStringLiteral("B|PTR")}), rows(feeEarners(*screen)));
    EXPECT_EQ(2, feeEarners(*screen).SelectedRow());
}

TEST_F(FeeEarnerGroups, FeeEarnersAreCreatedForEmptyGroupsOnce)
{
    const auto full = addGroup("FULL");
    addFeeEarner(QStringLiteral("JH"), *full);
    addGroup("A");
    addGroup("B");
    // The order of the claim, not of the list.
    Form->FeeEarnerGroup(2)->OrderID = 9;
    const auto screen = lists();
    const QString question = QStringLiteral("Fee Earners will be created for the following groups\r\n\r\nA, "
                                            "B\r\n\r\nContinue?");
    user.answers = {clsUserInterface::No};
    EXPECT_FALSE(entry(*screen, "mnuCreateFeeEarners").icon().isNull());
    entry(*screen, "mnuCreateFeeEarners").trigger();
    expectMessage("Continue?", question, clsUserInterface::YesNo);
    EXPECT_EQ(QStringList {QStringLiteral("JH FULL")}, references());
    user.answers = {clsUserInterface::Yes};
    entry(*screen, "mnuCreateFeeEarners").trigger();
    expectMessage("Continue?", question, clsUserInterface::YesNo);
    EXPECT_EQ(QStringList({QStringLiteral("JH FULL"), QStringLiteral("A A"), QStringLiteral("B B")}), references());
    EXPECT_EQ(QStringList({QStringLiteral("JH|FULL"), QStringLiteral("A|A"), QStringLiteral("B|B")}),
        rows(feeEarners(*screen)));
    entry(*screen, "mnuCreateFeeEarners").trigger();
    expectMessage("No Empty Groups", QStringLiteral("No Fee Earners were created"), clsUserInterface::OKOnly);
    EXPECT_EQ(3u, Form->FeeEarnersCollection().size());
}

TEST_F(FeeEarnerGroups, WithoutGroupsNoFeeEarnersAreCreated)
{
    const auto screen = lists();
    entry(*screen, "mnuCreateFeeEarners").trigger();
    expectMessage("No Empty Groups", QStringLiteral("No Fee Earners were created"), clsUserInterface::OKOnly);
}

TEST_F(FeeEarnerGroups, TheMenuOfAGroupIsReachedByKeysToo)
{
    addGroup("A");
    const auto screen = lists();
    QTest::keyClick(screen->focusWidget(), Qt::Key_F10, Qt::ShiftModifier);
    auto *menu = screen->findChild<QMenu *>(QStringLiteral("mnuFeeEarnerGroups"));
    ASSERT_TRUE(QTest::qWaitFor([menu] { return menu->isVisible(); }));
    user.answers = {clsUserInterface::Yes};
    QTest::keyClick(menu, Qt::Key_C);
    EXPECT_FALSE(menu->isVisible());
    EXPECT_EQ(QStringList {QStringLiteral("A A")}, references());
}

TEST_F(FeeEarnerGroups, EmptyListsSayWhatToDo)
{
    const auto screen = lists();
    const auto said = [](const oSGrid &grid) { return grid.findChild<QAbstractItemView *>()->accessibleDescription(); };
    EXPECT_EQ(QStringLiteral("No groups yet. Add one to begin."), said(groups(*screen)));
    EXPECT_EQ(QStringLiteral("Add a group first."), said(feeEarners(*screen)));
    addGroup("PTR");
    screen->RedrawLists();
    EXPECT_EQ(QStringLiteral("No fee earners yet. Add one to begin."), said(feeEarners(*screen)));
}

TEST_F(FeeEarnerGroups, AnEditorThatIsLeftByItsCloseBoxMakesNothing)
{
    addGroup("PTR");
    const auto screen = lists();
    inModal([&] { press(*screen, "cmdAddFeeEarner"); }, [](frmScreen &editor) { editor.close(); });
    EXPECT_TRUE(Form->FeeEarnersCollection().empty());
    EXPECT_EQ(QStringLiteral("sgFeeEarners"), focusedName(*screen));
}
