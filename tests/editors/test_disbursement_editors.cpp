#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "controls/oDateBox.h"
#include "controls/oDecimalBox.h"
#include "controls/oHeaderBar.h"
#include "editors/mdCalculateVAT.h"
#include "editors/mdScreenControls.h"
#include "editors/mdScreens.h"
#include "editors/oCounselBox.h"
#include "tests/editors/clsScreenTest.h"
#include "tests/editors/mdDisbursementTables.h"
#include "tests/support/mdExpectError.h"

#include <QMenuBar>

#include <algorithm>

namespace {

using Editor = const clsScreen &(*)();

/// What the three editors share, and what each does with VAT.
class DisbursementEditors : public clsScreenTest {
protected:
    static std::unique_ptr<frmScreen> edit(Editor editor, clsXMLRecord *item = nullptr)
    {
        auto screen = std::make_unique<frmScreen>(editor());
        screen->Initialise(item);
        show(*screen);
        return screen;
    }
    static QString text(const frmScreen &screen, const char *box) { return mdTextOf(screen.Box(box)); }
    static void addCounsel(const char *name) { Form->AddCounsel()->Name = QString::fromUtf8(name); }
};

struct clsEditorCase {
    Editor editor;
    const char *word;
    std::vector<const char *> required;
    std::vector<const char *> stored; ///< elements, in the order in which they are written
    size_t (*items)();
    std::shared_ptr<clsXMLRecord> (*add)();
};

// clang-format off
const std::vector<clsEditorCase> Editors {
    {ScreenDisbursementEdit, "Disbursement", {"txtDescription"},
     {"description", "amount", "vat", "counsel", "counseluniqueid", "dateofwork"},
     [] { return Form->DisbursementsCollection().size(); },
     []() -> std::shared_ptr<clsXMLRecord> { return Form->AddDisbursement(); }},
    {ScreenExpertInvoiceEdit, "Expert Invoice", {"txtExpertGroup", "txtExpertType"},
     {"expertgroup", "experttype", "priorauthorityobtained", "preparationhourlyrate", "totalprepcost",
      "courtattendancehourlyrate", "totalcourtcost", "traveltimecosts", "othercosts", "netamount", "vatamount"},
     [] { return Form->ExpertInvoicesCollection().size(); },
     []() -> std::shared_ptr<clsXMLRecord> { return Form->AddExpertInvoice(); }},
    {ScreenJointInstructionEdit, "Joint Instruction", {"txtExpertType"},
     {"experttype", "partyname", "solicitor", "certificatereference", "percentapportioned"},
     [] { return Form->JointInstructionsCollection().size(); },
     []() -> std::shared_ptr<clsXMLRecord> { return Form->AddJointInstruction(); }},
};
// clang-format on

const clsExpectedScreen &expectedOf(const frmScreen &screen)
{
    return *std::find_if(ExpectedDisbursementScreens.begin(), ExpectedDisbursementScreens.end(),
        [&](const clsExpectedScreen &row) { return QLatin1String(row.name) == screen.objectName(); });
}

char kindOf(const clsScreenRow &row)
{
    switch (row.kind) {
    case clsRowKind::Text: return 't';
    case clsRowKind::Date: return 'd';
    case clsRowKind::Decimal: return 'm';
    case clsRowKind::Tick: return 'x';
    case clsRowKind::Button: return 'b';
    case clsRowKind::Other: return 'o';
    default: return '?';
    }
}

} // namespace

TEST_F(DisbursementEditors, HaveTheirFieldsInOrder)
{
    for (const clsEditorCase &row : Editors) {
        const auto screen = edit(row.editor);
        const clsExpectedScreen &expected = expectedOf(*screen);
        const auto *header = screen->findChild<oHeaderBar *>();
        EXPECT_EQ(QString::fromUtf8(expected.header), header->Caption());
        EXPECT_EQ(QString::fromUtf8(expected.header), screen->windowTitle());
        EXPECT_EQ(QString::fromUtf8(expected.subCaption), header->SubCaption());
        ASSERT_EQ(1, screen->findChildren<oScreenFrame *>().size());
        EXPECT_EQ(QString::fromUtf8(expected.header), screen->findChild<oScreenFrame *>()->Caption());
        ASSERT_EQ(expected.fields.size(), screen->Fields().size());
        for (size_t i = 0; i < expected.fields.size(); ++i) {
            const clsExpectedField &field = expected.fields[i];
            const clsScreenField &found = screen->Fields()[i];
            EXPECT_EQ(QString::fromUtf8(field.control), found.control->objectName());
            EXPECT_EQ(QByteArray(field.caption), QByteArray(found.row->caption)) << field.control;
            EXPECT_EQ(field.kind, kindOf(*found.row)) << field.control;
            const auto *box = qobject_cast<oAllPurposeBox *>(found.control);
            if (!box)
                continue;
            EXPECT_EQ(field.allowance, box->CharacterAllowance()) << field.control;
            EXPECT_EQ(field.multiLine, box->MultiLine()) << field.control;
            EXPECT_EQ(field.spellCheck, box->SpellCheck()) << field.control;
            EXPECT_TRUE(box->AllowReplacements()) << field.control;
        }
    }
}

TEST_F(DisbursementEditors, HaveNoMenusAndNoWayToOtherScreens)
{
    for (const clsEditorCase &row : Editors) {
        const auto screen = edit(row.editor);
        EXPECT_TRUE(screen->findChild<QMenuBar *>()->actions().isEmpty()) << row.word;
        EXPECT_FALSE(screen->findChild<QWidget *>(QStringLiteral("oFormSwitcher"))) << row.word;
    }
}

TEST_F(DisbursementEditors, AskForEachFieldThatIsRequiredAndForNoOther)
{
    for (const clsEditorCase &row : Editors) {
        for (const char *missing : row.required) {
            user.messages.clear();
            const auto screen = edit(row.editor);
            for (const char *required : row.required)
                if (required != missing)
                    type(screen->Box(required), QStringLiteral("x"));
            press(*screen, "cmdSave");
            ASSERT_EQ(1u, user.messages.size()) << missing;
            EXPECT_EQ(QStringLiteral("Please complete all fields marked with a *"), user.messages[0].text);
            EXPECT_EQ(QStringLiteral("Required Fields"), user.messages[0].title);
            EXPECT_TRUE(screen->isVisible()) << missing;
            EXPECT_EQ(QString::fromUtf8(missing), focusedName(*screen));
            EXPECT_EQ(0u, row.items()) << missing;
            // Spaces alone are a text.
            type(screen->Box(missing), QStringLiteral(" "));
            press(*screen, "cmdSave");
            EXPECT_FALSE(screen->isVisible()) << missing;
            EXPECT_EQ(1u, user.messages.size()) << missing;
            EXPECT_EQ(1u, row.items()) << missing;
            Form = std::make_unique<clsZR3Form>();
        }
    }
}

TEST_F(DisbursementEditors, AnEmptyRequiredFieldLeavesTheItemAsItWas)
{
    for (const clsEditorCase &row : Editors) {
        const auto item = row.add();
        const QString before = item->XMLOutput();
        const auto screen = edit(row.editor, item.get());
        for (const clsScreenField &field : screen->Fields())
            if (field.row->kind == clsRowKind::Decimal)
                type(*field.control, QStringLiteral("7"));
        press(*screen, "cmdSave");
        EXPECT_TRUE(screen->isVisible()) << row.word;
        EXPECT_EQ(before, item->XMLOutput()) << row.word;
    }
}

TEST_F(DisbursementEditors, MakeTheItemAtTheFirstSaveOnly)
{
    for (const clsEditorCase &row : Editors) {
        for (int way = 0; way < 3; ++way) {
            const auto screen = edit(row.editor);
            type(screen->Box(row.required[0]), QStringLiteral("x"));
            if (way == 0)
                press(*screen, "cmdCancel");
            else if (way == 1)
                QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
            else
                screen->close();
            EXPECT_FALSE(screen->isVisible()) << row.word;
            EXPECT_EQ(0u, row.items()) << row.word;
        }
        EXPECT_TRUE(user.messages.empty()) << row.word;
    }
}

/// A total can't be computed from an empty amount, and the boxes of a new item start empty.
TEST_F(DisbursementEditors, AmountsThatNobodyEnteredAreStoredAsZero)
{
    for (const clsEditorCase &row : Editors) {
        const auto screen = edit(row.editor);
        for (const char *required : row.required)
            type(screen->Box(required), QStringLiteral("x"));
        press(*screen, "cmdSave");
        ASSERT_TRUE(screen->Record()) << row.word;
        int amounts = 0;
        for (const clsScreenField &field : screen->Fields()) {
            if (field.row->kind != clsRowKind::Decimal)
                continue;
            EXPECT_EQ(QStringLiteral("0.00"), screen->Record()->field(mdMemberOf(*field.row))->readText())
                << field.row->control;
            ++amounts;
        }
        EXPECT_GT(amounts, 0) << row.word;
    }
}

TEST_F(DisbursementEditors, StoreTheirFieldsInOrder)
{
    addCounsel("Ms Lacey");
    for (const clsEditorCase &row : Editors)
        expectStoredInOrder(row.stored, [&row] { return edit(row.editor, row.add().get()); });
}

TEST_F(DisbursementEditors, CalculateWritesTheVATOfTheNetAmount)
{
    struct clsCase {
        const char *rate;
        const char *net;
        const char *vat;
    };
    // clang-format off
    const clsCase cases[] = {
        {"17.50", "100",     "17.50"},
        {"17.50", "33.33",   "5.83"}, // 5.83275
        {"17.50", "1",       "0.18"}, // 0.175, away from zero
        {"20",    "0",       "0.00"},
        {"0.00",  "84.10",   "0.00"},
        {"20.00", "-12.50",  "-2.50"},
        {"7.1",   "0.01",    "0.00"}, // 0.00071
        {"20.00", "9876543210.55", "1975308642.11"},
    };
    // clang-format on
    for (const clsCase &row : cases) {
        Form->VATRate = QString::fromUtf8(row.rate);
        for (const bool expert : {false, true}) {
            const auto screen = edit(expert ? ScreenExpertInvoiceEdit : ScreenDisbursementEdit);
            type(screen->Box(expert ? "txtNetAmount" : "txtAmount"), QString::fromUtf8(row.net));
            press(*screen, "cmdCalculate");
            EXPECT_EQ(QString::fromUtf8(row.vat), text(*screen, expert ? "txtVATAmount" : "txtVAT"))
                << row.net << " at " << row.rate;
        }
    }
}

TEST_F(DisbursementEditors, CalculateChangesNoOtherBoxAndNothingInTheClaim)
{
    Form->VATRate = QStringLiteral("17.50");
    for (const clsEditorCase &row : {Editors[0], Editors[1]}) {
        const auto item = row.add();
        const auto screen = edit(row.editor, item.get());
        for (const clsScreenField &field : screen->Fields())
            if (field.row->kind == clsRowKind::Decimal)
                type(*field.control, QStringLiteral("100"));
        const QString claim = Form->XMLOutput();
        press(*screen, "cmdCalculate");
        EXPECT_EQ(claim, Form->XMLOutput());
        for (const clsScreenField &field : screen->Fields()) {
            if (field.row->kind != clsRowKind::Decimal)
                continue;
            const bool vat = QByteArray(field.row->control).startsWith("txtVAT");
            EXPECT_EQ(vat ? QStringLiteral("17.50") : QStringLiteral("100.00"), mdTextOf(*field.control))
                << field.row->control;
        }
    }
}

TEST_F(DisbursementEditors, CalculateByItsLetterFormatsTheResultAtOnceWhereverTheFocusIs)
{
    Form->VATRate = QStringLiteral("17.50");
    for (const char *focused : {"txtAmount", "txtVAT", "txtDescription"}) {
        const auto screen = edit(ScreenDisbursementEdit);
        type(screen->Box("txtAmount"), QStringLiteral("33.33"));
        screen->Box(focused).setFocus(Qt::TabFocusReason);
        const QString marked = screen->Box<oCustomButton>("cmdCalculate").text();
        ASSERT_TRUE(marked.contains(u'&'));
        const char letter = marked[marked.indexOf(u'&') + 1].toLower().toLatin1();
        QTest::keyClick(screen->focusWidget(), letter, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return text(*screen, "txtVAT") == QLatin1String("5.83"); })) << focused;
    }
}

TEST_F(DisbursementEditors, ACalculatedVATCanBeTypedOver)
{
    Form->VATRate = QStringLiteral("17.50");
    const auto screen = edit(ScreenDisbursementEdit);
    type(screen->Box("txtDescription"), QStringLiteral("Fee"));
    type(screen->Box("txtAmount"), QStringLiteral("100"));
    press(*screen, "cmdCalculate");
    type(screen->Box("txtVAT"), QStringLiteral("250"));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("250.00"), Form->Disbursement(1)->VAT());
    EXPECT_EQ(QStringLiteral("100.00"), Form->Disbursement(1)->Amount());
}

TEST_F(DisbursementEditors, CalculateWithARateThatIsNoNumberIsTheTypeError)
{
    for (const char *rate : {"", "abc"}) {
        Form->VATRate = QString::fromUtf8(rate);
        const auto screen = edit(ScreenDisbursementEdit);
        const auto &net = screen->Box<oDecimalBox>("txtAmount");
        auto &vat = screen->Box<oDecimalBox>("txtVAT");
        EXPECT_EQ(int(clsRunTimeError::TypeMismatch), errorOf([&] { mdCalculateVAT(net, vat); })) << rate;
        EXPECT_EQ(QStringLiteral("0.00"), vat.Text()) << rate;
    }
}

TEST_F(DisbursementEditors, TheDateHasNoTickAndMayBeEmpty)
{
    const auto screen = edit(ScreenDisbursementEdit);
    EXPECT_FALSE(screen->Box<oDateBox>("txtDateOfWork").ShowTickBox());
    type(screen->Box("txtDescription"), QStringLiteral("Fee"));
    press(*screen, "cmdSave");
    EXPECT_EQ(QString(), Form->Disbursement(1)->DateOfWork());
}

TEST_F(DisbursementEditors, ACounselIsStoredWithTheTickAndShownAgain)
{
    addCounsel("Ms Lacey");
    addCounsel("Mr Odell");
    const QString second = Form->Counsel(2)->UniqueID();
    const auto item = Form->AddDisbursement();
    {
        const auto screen = edit(ScreenDisbursementEdit, item.get());
        type(screen->Box("txtDescription"), QStringLiteral("Brief fee"));
        auto &counsel = screen->Box<oCounselBox>("oCounsel");
        counsel.setCounsel(true);
        counsel.setCounselUniqueID(second);
        press(*screen, "cmdSave");
    }
    EXPECT_TRUE(item->Counsel());
    EXPECT_EQ(second, item->CounselUniqueID());
    {
        const auto screen = edit(ScreenDisbursementEdit, item.get());
        auto &counsel = screen->Box<oCounselBox>("oCounsel");
        EXPECT_TRUE(counsel.Counsel());
        EXPECT_EQ(second, counsel.CounselUniqueID());
        counsel.setCounsel(false);
        press(*screen, "cmdSave");
    }
    EXPECT_FALSE(item->Counsel());
    EXPECT_EQ(QString(), item->CounselUniqueID());
}
