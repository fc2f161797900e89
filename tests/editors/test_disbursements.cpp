#include "controls/clsGridModel.h"
#include "controls/oGridView.h"
#include "editors/oCounselBox.h"
#include "editors/oEnhancementsBox.h"
#include "tests/editors/clsDisbursementTest.h"

#include <QComboBox>
#include <QMenu>

namespace {

struct clsPageCase {
    int page;
    const char *grid;
    const char *add;
    const char *menu;
    const char *editor;
    const char *word;
    std::vector<const char *> required;
    std::vector<QString> columns; ///< caption, property, width
    int (*count)();
    QString (*first)(int index); ///< the first column of an item
};

QString invoiceGroup(int index)
{
    return Form->ExpertInvoice(index)->ExpertGroup();
}
QString instructionType(int index)
{
    return Form->JointInstruction(index)->ExpertType();
}
QString disbursementText(int index)
{
    return Form->Disbursement(index)->Description();
}

// clang-format off
const std::vector<clsPageCase> Pages {
    {1, "sgExpertInvoices", "cmdAddExpertInvoice", "mnuExpertInvoices", "frmExpertInvoiceEdit", "Expert Invoice",
     {"txtExpertGroup", "txtExpertType"},
     {"Expert Group ExpertGroup 20", "Expert Type ExpertType 20", "Total Prep TotalPrepCost 20",
      "Total Court TotalCourtCost 20", "Net Amount NetAmount 20"},
     [] { return int(Form->ExpertInvoicesCollection().size()); }, invoiceGroup},
    {3, "sgJointInstructions", "cmdAddJointInstruction", "mnuJointInstructions", "frmJointInstructionEdit",
     "Joint Instruction", {"txtExpertType"},
     {"Expert Type ExpertType 20", "Party Name PartyName 20", "Solicitor Solicitor 20",
      "Cert Ref CertificateReference 20", "App'd % PercentApportioned 20"},
     [] { return int(Form->JointInstructionsCollection().size()); }, instructionType},
    {4, "sgOtherDisbursements", "cmdAddDisbursement", "mnuOtherDisbursements", "frmDisbursementEdit", "Disbursement",
     {"txtDescription"},
     {"Description Description 52", "Amount Amount 12", "VAT VAT 12", "Counsel Counsel 12", "Date DateOfWork 12"},
     [] { return int(Form->DisbursementsCollection().size()); }, disbursementText},
};
// clang-format on

class Disbursements : public clsDisbursementTest { };

} // namespace

TEST_F(Disbursements, HaveFourPagesOfWhichTheFirstIsOpenWithTheFocusInItsGrid)
{
    const auto screen = disbursements();
    QStringList captions;
    for (const oFrame *page : pages(*screen))
        captions << page->Caption();
    EXPECT_EQ(QStringList({QStringLiteral("Expert Invoices"), QStringLiteral("Experts Meet MOJ Standard"),
                  QStringLiteral("Joint Instructions"), QStringLiteral("Other Disbursements")}),
        captions);
    EXPECT_EQ(QStringLiteral("oDisbursementsSwitcher"), screen->Switcher().objectName());
    EXPECT_EQ(1, screen->Switcher().OpenPage());
    EXPECT_TRUE(hasFocus(*screen, "sgExpertInvoices"));
}

TEST_F(Disbursements, GridsHaveTheirColumnsMenusAndLines)
{
    const auto screen = disbursements();
    for (const clsPageCase &page : Pages) {
        const oSGrid &sg = grid(*screen, page.grid);
        std::vector<QString> columns;
        const auto *view = sg.findChild<oGridView *>();
        for (const clsGridColumn &column : static_cast<clsGridModel *>(view->model())->columns())
            columns.push_back(column.caption + u' ' + column.property + u' ' + QString::number(column.width));
        EXPECT_EQ(page.columns, columns) << page.grid;
        EXPECT_TRUE(sg.Orderable()) << page.grid;
        EXPECT_FALSE(sg.MultiSelect()) << page.grid;
        EXPECT_EQ(QString::fromUtf8(page.menu), sg.PopupMenuName());
        EXPECT_EQ(QStringLiteral("No items yet. Add one to begin."), view->emptyText()) << page.grid;
        const auto *menu = screen->findChild<QMenu *>(QString::fromUtf8(page.menu));
        ASSERT_TRUE(menu) << page.menu;
        ASSERT_EQ(1, menu->actions().size()) << page.menu;
        EXPECT_EQ(QStringLiteral("Delete"), menu->actions().first()->text().remove(u'&'));
    }
}

TEST_F(Disbursements, PagesAreSwitchedByKeyboardAlone)
{
    const auto screen = disbursements();
    for (const int page : {4, 2, 3, 1})
        openPage(*screen, page);
    // The arrows stop at the first and the last caption.
    const auto all = pages(*screen);
    all[0]->captionBar()->setFocus(Qt::TabFocusReason);
    key(*screen, Qt::Key_Up);
    EXPECT_EQ(all[0]->captionBar(), screen->focusWidget());
    all[3]->captionBar()->setFocus(Qt::TabFocusReason);
    key(*screen, Qt::Key_Down);
    EXPECT_EQ(all[3]->captionBar(), screen->focusWidget());
    key(*screen, Qt::Key_Space);
    EXPECT_EQ(4, screen->Switcher().OpenPage());
    EXPECT_TRUE(screen->isVisible());
}

TEST_F(Disbursements, ItemsAreAddedEditedAndDeletedByKeyboardAlone)
{
    for (const clsPageCase &page : Pages) {
        user.messages.clear();
        const auto screen = disbursements();
        openPage(*screen, page.page);
        ASSERT_TRUE(hasFocus(*screen, page.grid)) << focusedName(*screen).toStdString();
        EXPECT_EQ(QString(), count(*screen, page.page));

        // Presses "Add" after the grid, and fills in the editor from its first field.
        for (const char *text : {"first", "second"}) {
            const auto fill = [&](frmScreen &editor) {
                for (size_t i = 0; i < page.required.size(); ++i) {
                    EXPECT_EQ(QString::fromUtf8(page.required[i]), focusedName(editor));
                    over(editor, QString::fromUtf8(text));
                    if (i + 1 < page.required.size())
                        key(editor, Qt::Key_Tab);
                }
                key(editor, Qt::Key_Return);
                EXPECT_FALSE(editor.isVisible());
            };
            const int before = page.count();
            inModal(
                [&] {
                    // A letter shows the button pressed before it clicks.
                    key(*screen, Qt::Key_A, Qt::AltModifier);
                    EXPECT_TRUE(QTest::qWaitFor([&] { return page.count() > before; }));
                },
                fill);
            ASSERT_TRUE(hasFocus(*screen, page.grid)) << page.grid;
        }
        EXPECT_EQ(2, page.count());
        EXPECT_EQ(2, grid(*screen, page.grid).SelectedRow()) << page.grid;
        EXPECT_EQ(QStringLiteral("2 items"), count(*screen, page.page));

        // Return opens the row.
        key(*screen, Qt::Key_Up);
        inModal([&] { key(*screen, Qt::Key_Return); },
            [&](frmScreen &editor) {
                over(editor, QStringLiteral("changed"));
                key(editor, Qt::Key_Return);
            });
        EXPECT_EQ(QStringLiteral("changed"), page.first(1));
        EXPECT_EQ(QStringLiteral("second"), page.first(2));
        EXPECT_TRUE(hasFocus(*screen, page.grid)) << page.grid;
        EXPECT_EQ(1, grid(*screen, page.grid).SelectedRow()) << page.grid;

        // Delete, refused and then confirmed.
        EXPECT_TRUE(user.messages.empty());
        user.answers = {clsUserInterface::No, clsUserInterface::Yes};
        key(*screen, Qt::Key_Delete);
        EXPECT_EQ(2, page.count());
        key(*screen, Qt::Key_Delete);
        ASSERT_EQ(2u, user.messages.size());
        EXPECT_EQ(QStringLiteral("Are you sure you wish to delete this %1?").arg(QLatin1String(page.word)),
            user.messages[1].text);
        EXPECT_EQ(QStringLiteral("Delete?"), user.messages[1].title);
        EXPECT_EQ(clsUserInterface::YesNo, user.messages[1].buttons);
        EXPECT_EQ(1, user.messages[1].icon);
        EXPECT_EQ(1, page.count());
        EXPECT_EQ(QStringLiteral("second"), page.first(1));
        EXPECT_TRUE(hasFocus(*screen, page.grid)) << page.grid;
        EXPECT_EQ(QStringLiteral("1 item"), count(*screen, page.page));
    }
}

TEST_F(Disbursements, AMenuDeletesAndADoubleClickEdits)
{
    add("one");
    add("two");
    const auto screen = disbursements();
    openPage(*screen, 4);
    oSGrid &sg = grid(*screen, "sgOtherDisbursements");
    auto *view = sg.findChild<oGridView *>();
    const QPoint second = view->visualRect(view->model()->index(1, 0)).center();
    inModal(
        [&] {
            QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, second);
            QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, second);
        },
        [](frmScreen &editor) {
            EXPECT_EQ(QStringLiteral("two"), editor.Box<oAllPurposeBox>("txtDescription").Text());
            press(editor, "cmdCancel");
        });
    user.answers = {clsUserInterface::Yes};
    entry(*screen, "mnuDeleteDisbursement")->trigger();
    EXPECT_EQ(QStringList {QStringLiteral("one")}, others());
}

TEST_F(Disbursements, ACancelledAddLeavesNothing)
{
    for (const clsPageCase &page : Pages) {
        const auto screen = disbursements();
        openPage(*screen, page.page);
        inModal([&] { key(*screen, Qt::Key_Insert); },
            [](frmScreen &editor) { QTest::keyClick(editor.focusWidget(), Qt::Key_Escape); });
        EXPECT_EQ(0, page.count()) << page.editor;
        EXPECT_TRUE(hasFocus(*screen, page.grid)) << page.grid;
    }
}

TEST_F(Disbursements, ADisbursementSavedAsCounselsMovesToTheFeesAtOnceAndBack)
{
    Form->AddCounsel()->Name = QStringLiteral("Ms Lacey");
    add("Court fee");
    add("Brief fee");
    add("Copies");
    const auto screen = disbursements();
    openPage(*screen, 4);
    const auto setCounsel = [&](bool counsel) {
        grid(*screen, "sgOtherDisbursements").SelectRow(2);
        inModal([&] { key(*screen, Qt::Key_Return); },
            [counsel](frmScreen &editor) {
                editor.Box<oCounselBox>("oCounsel").setCounsel(counsel);
                press(editor, "cmdSave");
            });
    };
    setCounsel(true);
    EXPECT_EQ(QStringList {QStringLiteral("Brief fee")}, counselFees());
    EXPECT_EQ(QStringList({QStringLiteral("Court fee"), QStringLiteral("Copies")}), others());
    EXPECT_EQ(Form->Counsel(1)->UniqueID(), Form->Disbursement(2)->CounselUniqueID());
    setCounsel(false);
    EXPECT_TRUE(counselFees().isEmpty());
    EXPECT_EQ(3, others().size());
}

TEST_F(Disbursements, BothCollectionsFollowAddDeleteAndOrder)
{
    add("a");
    add("fee 1", true);
    add("b");
    add("fee 2", true);
    const auto screen = disbursements();
    openPage(*screen, 4);
    oSGrid &sg = grid(*screen, "sgOtherDisbursements");
    sg.SelectRow(4);
    for (int up = 0; up < 3; ++up)
        key(*screen, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(QStringList({QStringLiteral("fee 2"), QStringLiteral("fee 1")}), counselFees());
    key(*screen, Qt::Key_Down, Qt::AltModifier);
    key(*screen, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(QStringList({QStringLiteral("fee 1"), QStringLiteral("fee 2")}), counselFees());
    EXPECT_EQ(QStringList({QStringLiteral("a"), QStringLiteral("b")}), others());

    inModal([&] { key(*screen, Qt::Key_Insert); },
        [](frmScreen &editor) {
            over(editor, QStringLiteral("c"));
            press(editor, "cmdSave");
        });
    EXPECT_EQ(QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}), others());

    user.answers = {clsUserInterface::Yes, clsUserInterface::Yes};
    sg.SelectRow(1);
    key(*screen, Qt::Key_Delete);
    sg.SelectRow(1);
    key(*screen, Qt::Key_Delete);
    EXPECT_EQ(QStringList {QStringLiteral("fee 2")}, counselFees());
    EXPECT_EQ(QStringList({QStringLiteral("b"), QStringLiteral("c")}), others());
    for (int n = 1; n <= 3; ++n)
        EXPECT_EQ(n, Form->DisbursementByOrderID(n)->OrderID());
}

TEST_F(Disbursements, ClosePartsThemOnceMore)
{
    add("a");
    const auto screen = disbursements();
    Form->Disbursement(1)->Counsel = true;
    EXPECT_TRUE(counselFees().isEmpty());
    press(*screen, "cmdClose");
    EXPECT_EQ(QStringList {QStringLiteral("a")}, counselFees());
}

TEST_F(Disbursements, NothingRefersToThemSoThatNoneIsRefused)
{
    const auto counsel = Form->AddCounsel();
    const auto item = add("Brief fee", true);
    item->CounselUniqueID = counsel->UniqueID();
    // The same text in another element.
    add("twin")->Description = counsel->UniqueID();
    const auto screen = disbursements();
    openPage(*screen, 4);
    user.answers = {clsUserInterface::Yes, clsUserInterface::Yes};
    key(*screen, Qt::Key_Delete);
    key(*screen, Qt::Key_Delete);
    ASSERT_EQ(2u, user.messages.size());
    for (const auto &message : user.messages)
        EXPECT_EQ(QStringLiteral("Delete?"), message.title);
    EXPECT_TRUE(Form->DisbursementsCollection().empty());
}

TEST_F(Disbursements, WithoutCounselTheTickIsDisabledUntilOneIsAddedInTheBox)
{
    const auto screen = disbursements();
    openPage(*screen, 4);
    inModal([&] { key(*screen, Qt::Key_Insert); },
        [](frmScreen &editor) {
            over(editor, QStringLiteral("Brief fee"));
            auto &box = editor.Box<oCounselBox>("oCounsel");
            const auto *tick = box.findChild<oCheckBox *>(QStringLiteral("chkCounsel"));
            ASSERT_TRUE(tick);
            EXPECT_FALSE(tick->isEnabled());
            inModal([&] { press(editor, "cmdAddCounsel"); },
                [](frmScreen &counsel) {
                    over(counsel, QStringLiteral("Ms Lacey"));
                    key(counsel, Qt::Key_Return);
                });
            EXPECT_TRUE(tick->isEnabled());
            EXPECT_FALSE(tick->Checked());
            box.setCounsel(true);
            EXPECT_EQ(QStringLiteral("Ms Lacey"), box.findChild<QComboBox *>()->currentText());
            press(editor, "cmdSave");
        });
    ASSERT_EQ(1u, Form->CounselDisbursementsCollection().size());
    EXPECT_EQ(Form->Counsel(1)->UniqueID(), Form->CounselDisbursement(1)->CounselUniqueID());
}

TEST_F(Disbursements, AnUntickedEnhancementHasNoIdentityAlthoughOneIsSelected)
{
    Form->AddEnhancement()->Name = QStringLiteral("Speed");
    oEnhancementsBox box;
    box.setIncludeInEnhancements(true);
    EXPECT_EQ(Form->Enhancement(1)->UniqueID(), box.EnhancementUniqueID());
    box.setIncludeInEnhancements(false);
    EXPECT_EQ(0, box.findChild<QComboBox *>()->currentIndex());
    EXPECT_EQ(QString(), box.EnhancementUniqueID());
}

TEST_F(Disbursements, ClosedPagesTellHowManyItemsTheyHold)
{
    Form->AddExpertInvoice();
    Form->AddExpertInvoice();
    add("one");
    const auto screen = disbursements();
    EXPECT_EQ(QStringLiteral("2 items"), count(*screen, 1));
    EXPECT_EQ(QString(), count(*screen, 2));
    EXPECT_EQ(QString(), count(*screen, 3));
    EXPECT_EQ(QStringLiteral("1 item"), count(*screen, 4));
}
