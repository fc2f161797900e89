#include "base/clsRunTimeError.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "controls/oDateBox.h"
#include "controls/oIntegerBox.h"
#include "controls/oTimeBox.h"
#include "editors/mdExclusiveTicks.h"
#include "editors/oFieldLabel.h"
#include "editors/oScreenList.h"
#include "tests/editors/clsScreenTest.h"
#include "tests/support/mdExpectError.h"

#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QSignalSpy>

// Features of screen tables beyond those that the screens use today, with tables made for the tests.

namespace {

using enum clsRowKind;

QStringList stages()
{
    return {QStringLiteral(" No Selection"), QStringLiteral("A) One"), QStringLiteral("B) Two")};
}

QWidget *makePair(const clsScreenRow &row, QWidget *parent)
{
    auto *box = new QLabel(parent);
    box->setMaximumWidth(row.allowance);
    box->setFocusPolicy(Qt::StrongFocus);
    return box;
}
void loadPair(const clsScreenRow &, QWidget &control, clsXMLRecord &record)
{
    static_cast<QLabel &>(control).setText(record.field(u"Reference")->readText());
}
void storePair(const clsScreenRow &, const QWidget &control, clsXMLRecord &record)
{
    record.field(u"GroupUniqueID")->writeText(static_cast<const QLabel &>(control).text() + QStringLiteral("!"));
}
constexpr clsOtherControl Pair {makePair, loadPair, storePair};

/// The editor of an item, as the lists open it.
const clsScreen Editor {
    .name = "frmThingEdit",
    .header = "Thing",
    .subCaption = "Change a thing's settings",
    .iconGroup = 12,
    .width = clsScreenWidth::Edit,
    .ending = clsScreenEnding::SaveCancel,
    .frames = {{"bxGeneral", "Thing",
        {
            {Text, "txtReference", "Reference:*", 0, Required},
            {Integer, "txtCallCount", "Calls:", 0, None, 0, "Calls"},
            {.kind = Other, .control = "oPair", .caption = "Pair:", .allowance = 123, .other = &Pair},
            {Button, "cmdCalculate", "Calculate"},
            {Text, "txtLettersIn", "Unbound:", 0, Unbound},
        }}},
    .itemWord = "Thing",
    .add = []() -> clsXMLRecord * { return Form->AddFeeEarner().get(); },
    .fileMenu = false,
};

/// A section with a list stored by index, two groups of ticks, independent ticks, and routes to other sections.
const clsScreen Outcome {
    .name = "frmOutcomeOfCase",
    .header = "Outcome of Case",
    .subCaption = "",
    .iconGroup = 12,
    .width = clsScreenWidth::OneColumn,
    .ending = clsScreenEnding::SaveCancel,
    .section = "Outcome of Case",
    .record = []() -> clsXMLRecord * { return &Form->OutcomeOfCase; },
    .frames = {{"bxGeneral", "Outcome",
        {
            {.kind = List, .control = "cmbResult", .caption = "Result:", .flags = AtCloseOnly, .entries = stages},
            {Question, "", "Which?"},
            {Tick, "chkCosts", "Costs:", 0, None, 'A'},
            {Tick, "chkDamages", "Damages:", 0, None, 'A'},
            {Tick, "chkProperty", "Property:", 0, None, 'A'},
            {ColumnBreak},
            {Tick, "chkWastedCostsOrderYes", "Yes:", 0, Independent},
            {Tick, "chkWastedCostsOrderNo", "No:", 0, Independent},
            {Date, "txtSwitchedDate", "Final:", 0, DateTick, 0, "DateOfFinalOrder"},
        }}},
    .jumps = {{"cmdCommunications", "mnuCommunications", "Communications", false},
        {"cmdDisbursements", "mnuDisbursements", "Disbursements"}},
};

class ScreenRows : public clsScreenTest {
protected:
    static std::unique_ptr<frmScreen> edit(clsXMLRecord *item)
    {
        auto screen = std::make_unique<frmScreen>(Editor);
        screen->Initialise(item);
        show(*screen);
        return screen;
    }
    static std::unique_ptr<frmScreen> outcome()
    {
        auto screen = std::make_unique<frmScreen>(Outcome);
        screen->Initialise();
        show(*screen);
        return screen;
    }
    static void click(QWidget &box) { QTest::mouseClick(&box, Qt::LeftButton, {}, box.rect().center()); }
};

} // namespace

TEST_F(ScreenRows, AnEditorOfANewItemMakesItAtTheFirstSaveAndNotBefore)
{
    auto screen = edit(nullptr);
    EXPECT_EQ(nullptr, screen->Record());
    press(*screen, "cmdSave");
    EXPECT_TRUE(screen->isVisible());
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Required Fields"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("txtReference"), focusedName(*screen));
    EXPECT_TRUE(Form->FeeEarnersCollection().empty());
    type(screen->Box("txtReference"), QStringLiteral("JH"));
    type(screen->Box("txtCallCount"), QStringLiteral("1 2"));
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    ASSERT_EQ(1u, Form->FeeEarnersCollection().size());
    EXPECT_EQ(QStringLiteral("JH"), Form->FeeEarner(1)->Reference());
    EXPECT_EQ(12, Form->FeeEarner(1)->Calls());
    EXPECT_EQ(QStringLiteral("ID1"), Form->FeeEarner(1)->UniqueID());
}

TEST_F(ScreenRows, CancellingANewItemMakesNone)
{
    const auto screen = edit(nullptr);
    type(screen->Box("txtReference"), QStringLiteral("JH"));
    press(*screen, "cmdCancel");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_TRUE(Form->FeeEarnersCollection().empty());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(ScreenRows, AnEditorOfAnItemShowsAndChangesThatItem)
{
    const auto item = Form->AddFeeEarner();
    item->Reference = QStringLiteral("old");
    item->Calls = 7;
    item->LettersIn = 3;
    const auto screen = edit(item.get());
    EXPECT_EQ(QStringLiteral("old"), screen->Box<oAllPurposeBox>("txtReference").Text());
    EXPECT_EQ(QStringLiteral("7"), screen->Box<oIntegerBox>("txtCallCount").Text());
    EXPECT_EQ(QStringLiteral("old"), screen->Box<QLabel>("oPair").text());
    type(screen->Box("txtReference"), QStringLiteral("new"));
    type(screen->Box("txtLettersIn"), QStringLiteral("9"));
    press(*screen, "cmdSave");
    EXPECT_EQ(QStringLiteral("new"), item->Reference());
    // A control with its own code stores as that says, an unbound one not at all.
    EXPECT_EQ(QStringLiteral("old!"), item->GroupUniqueID());
    EXPECT_EQ(3, item->LettersIn());
    EXPECT_EQ(1u, Form->FeeEarnersCollection().size());
}

TEST_F(ScreenRows, AWholeNumberIsStoredAsItsBoxTakesIt)
{
    struct clsCase {
        const char *typed;
        int stored;
    };
    const auto item = Form->AddFeeEarner();
    item->Reference = QStringLiteral("JH");
    for (const clsCase &row : {clsCase {"1,000", 1000}, {" 1 2 ", 12}, {"-3", -3}, {"2.5", 2}, {"", 0}}) {
        const auto screen = edit(item.get());
        type(screen->Box("txtCallCount"), QString::fromUtf8(row.typed));
        press(*screen, "cmdSave");
        EXPECT_FALSE(screen->isVisible()) << row.typed;
        EXPECT_EQ(row.stored, item->Calls()) << row.typed;
    }
    // Text set by the program is not validated.
    const auto screen = edit(item.get());
    auto &box = screen->Box<oIntegerBox>("txtCallCount");
    box.setText(QString());
    item->Calls = 7;
    screen->Store(clsStoring::Closing);
    EXPECT_EQ(0, item->Calls());
    box.setText(QStringLiteral("2147483648"));
    EXPECT_EQ(clsRunTimeError::Overflow, errorOf([&screen] { screen->Store(clsStoring::Closing); }));
    EXPECT_EQ(0, item->Calls());
}

TEST_F(ScreenRows, AButtonAmongTheFieldsIsNeitherStoredNorTheDefault)
{
    const auto screen = edit(nullptr);
    auto &button = screen->Box<oCustomButton>("cmdCalculate");
    QSignalSpy clicked(&button, &oCustomButton::Click);
    type(screen->Box("txtReference"), QStringLiteral("JH"));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(0, clicked.count());
    EXPECT_FALSE(screen->isVisible());
}

TEST_F(ScreenRows, AListIsStoredByItsPlaceAndStartsOnTheFirst)
{
    auto screen = outcome();
    EXPECT_EQ(0, screen->Box<QComboBox>("cmbResult").currentIndex());
    EXPECT_EQ(QStringLiteral(" No Selection"), screen->Box<QComboBox>("cmbResult").currentText());
    QTest::keyClick(&screen->Box("cmbResult"), Qt::Key_End);
    press(*screen, "cmdSave");
    EXPECT_EQ(2, Form->OutcomeOfCase.Result());
    EXPECT_EQ(2, outcome()->Box<QComboBox>("cmbResult").currentIndex());
}

TEST_F(ScreenRows, AClosedListEndsATextThatItHasNoRoomForInAnEllipsis)
{
    oScreenList cut;
    const QString text = QStringLiteral("Judicial review of a decision of the local housing authority");
    cut.addItem(text);
    cut.resize(200, cut.sizeHint().height());
    // A list with this shortened text looks the same.
    const auto looksLike = [&](const QString &shorter) {
        oScreenList list;
        list.addItem(shorter);
        list.resize(cut.size());
        return list.grab().toImage() == cut.grab().toImage();
    };
    bool ends = false;
    for (qsizetype length = 1; length < text.size(); ++length)
        ends = ends || looksLike(text.left(length) + QChar(0x2026));
    EXPECT_TRUE(ends);
    EXPECT_FALSE(looksLike(QString(QChar(0x2026))));
    cut.resize(900, cut.height());
    EXPECT_TRUE(looksLike(text));
    EXPECT_FALSE(looksLike(text + QChar(0x2026)));
}

TEST_F(ScreenRows, APlaceThatTheListLacksIsLeftAlone)
{
    Form->OutcomeOfCase.Result = 99;
    const auto screen = outcome();
    EXPECT_EQ(-1, screen->Box<QComboBox>("cmbResult").currentIndex());
    press(*screen, "cmdSave");
    EXPECT_EQ(99, Form->OutcomeOfCase.Result());
}

TEST_F(ScreenRows, TickingOneOfAGroupClearsTheRestOfIt)
{
    const auto screen = outcome();
    const auto ticked = [&screen] {
        QString result;
        for (const char *name : {"chkCosts", "chkDamages", "chkProperty"})
            result += screen->Box<oCheckBox>(name).Checked() ? u'x' : u'-';
        return result;
    };
    click(screen->Box("chkCosts"));
    click(screen->Box("chkProperty"));
    EXPECT_EQ(QStringLiteral("--x"), ticked());
    click(screen->Box("chkProperty"));
    EXPECT_EQ(QStringLiteral("---"), ticked());
}

TEST_F(ScreenRows, TicksThatAreMarkedIndependentAreNoPair)
{
    const auto screen = outcome();
    click(screen->Box("chkWastedCostsOrderYes"));
    click(screen->Box("chkWastedCostsOrderNo"));
    press(*screen, "cmdSave");
    EXPECT_TRUE(Form->OutcomeOfCase.WastedCostsOrderYes());
    EXPECT_TRUE(Form->OutcomeOfCase.WastedCostsOrderNo());
}

TEST_F(ScreenRows, ADateCanHaveATick)
{
    const auto screen = outcome();
    EXPECT_TRUE(screen->Box<oDateBox>("txtSwitchedDate").ShowTickBox());
    press(*screen, "cmdSave");
    EXPECT_EQ(QStringLiteral("31/12/29"), Form->OutcomeOfCase.DateOfFinalOrder());
}

TEST_F(ScreenRows, TheButtonOfAJumpStoresAndItsMenuAsTheTableSays)
{
    QString target;
    SetOpenSection([&target](const QString &text) { target = text; });
    auto screen = outcome();
    click(screen->Box("chkCosts"));
    screen->findChild<QAction *>(QStringLiteral("mnuCommunications"))->trigger();
    EXPECT_EQ(QStringLiteral("Communications"), target);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_FALSE(Form->OutcomeOfCase.Costs());
    screen = outcome();
    click(screen->Box("chkDamages"));
    screen->findChild<QAction *>(QStringLiteral("mnuDisbursements"))->trigger();
    EXPECT_EQ(QStringLiteral("Disbursements"), target);
    EXPECT_TRUE(Form->OutcomeOfCase.Damages());
    screen = outcome();
    click(screen->Box("chkProperty"));
    press(*screen, "cmdCommunications");
    EXPECT_EQ(QStringLiteral("Communications"), target);
    EXPECT_TRUE(Form->OutcomeOfCase.Property());
}

TEST_F(ScreenRows, WhatIsStoredAtTheCloseOnlyIsNotOnTheWayToAnotherSection)
{
    for (const bool byMenu : {true, false}) {
        const auto screen = outcome();
        QTest::keyClick(&screen->Box("cmbResult"), Qt::Key_End);
        if (byMenu)
            screen->findChild<QAction *>(QStringLiteral("mnuDisbursements"))->trigger();
        else
            press(*screen, "btnRight");
        EXPECT_FALSE(screen->isVisible());
        EXPECT_EQ(0, Form->OutcomeOfCase.Result());
    }
    const auto screen = outcome();
    QTest::keyClick(&screen->Box("cmbResult"), Qt::Key_End);
    press(*screen, "cmdSave");
    EXPECT_EQ(2, Form->OutcomeOfCase.Result());
}

TEST_F(ScreenRows, ARuleMayRefuseASaveBeforeAnythingIsMade)
{
    const auto screen = edit(nullptr);
    int asked = 0;
    bool agrees = false;
    screen->setMayStore([&] {
        ++asked;
        return agrees;
    });
    // Required fields are checked first.
    press(*screen, "cmdSave");
    EXPECT_EQ(0, asked);
    type(screen->Box("txtReference"), QStringLiteral("JH"));
    press(*screen, "cmdSave");
    EXPECT_EQ(1, asked);
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(nullptr, screen->Record());
    EXPECT_TRUE(Form->FeeEarnersCollection().empty());
    agrees = true;
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(1u, Form->FeeEarnersCollection().size());
}

TEST_F(ScreenRows, OnlyAScreenWithTheFileMenuHasAMenuBar)
{
    const auto editor = edit(nullptr);
    EXPECT_FALSE(editor->findChild<QMenuBar *>()->isVisible());
    EXPECT_FALSE(editor->findChild<QAction *>(QStringLiteral("mnuSave")));
    EXPECT_EQ(0, editor->findChild<QWidget *>(QStringLiteral("oHeader"))->y());
    const auto section = outcome();
    EXPECT_TRUE(section->findChild<QMenuBar *>()->isVisible());
    EXPECT_TRUE(section->findChild<QAction *>(QStringLiteral("mnuSave")));
}

TEST_F(ScreenRows, AControlOfItsOwnIsMadeFromItsRowAndIsAsWideAsItAsksFor)
{
    EXPECT_EQ(123, edit(nullptr)->Box("oPair").maximumWidth());
    clsScreen table = Editor;
    table.frames = {{"bxGeneral", "Thing",
        {{.kind = Other,
            .control = "oBare",
            .caption = "Bare",
            .allowance = 9999,
            .flags = NoCaption,
            .other = &Pair}}}};
    frmScreen screen(table);
    show(screen);
    EXPECT_EQ(screen.Box("oBare").sizeHint().width(), screen.Box("oBare").width());
}

TEST_F(ScreenRows, JumpsFoldIntoTheirMenuOnANarrowWindow)
{
    const auto screen = outcome();
    auto *button = screen->findChild<QWidget *>(QStringLiteral("cmdDisbursements"));
    screen->resize(1000, 600);
    EXPECT_TRUE(button->isVisible());
    screen->resize(760, 600);
    EXPECT_FALSE(button->isVisible());
    screen->resize(1000, 600);
    EXPECT_TRUE(button->isVisible());
    EXPECT_EQ(QStringLiteral("&Jump To"), screen->findChild<QMenuBar *>()->actions().at(1)->text());
}

TEST_F(ScreenRows, ALongFramePartsIntoTwoColumnsWhereThereIsRoom)
{
    const auto screen = outcome();
    const auto at = [&screen](const char *name) { return screen->Box(name).mapTo(screen.get(), QPoint()); };
    screen->resize(1200, 600);
    QTest::qWait(10);
    EXPECT_GT(at("chkWastedCostsOrderYes").x(), at("chkProperty").x());
    EXPECT_LT(at("chkWastedCostsOrderYes").y(), at("chkProperty").y());
    screen->resize(900, 600);
    QTest::qWait(10);
    EXPECT_GT(at("chkWastedCostsOrderYes").y(), at("chkProperty").y());
}

TEST_F(ScreenRows, ANameThatTheScreenLacksAndAPropertyThatTheRecordLacksAreErrors)
{
    const auto screen = outcome();
    EXPECT_EQ(clsRunTimeError::ObjectNotSet, errorOf([&screen] { screen->Box("txtNothing"); }));
    clsScreen wrong = Outcome;
    wrong.record = []() -> clsXMLRecord * { return &Form->ClientDetails; };
    frmScreen other(wrong);
    EXPECT_EQ(clsRunTimeError::ObjectNotSet, errorOf([&other] { other.Initialise(); }));
}

TEST_F(ScreenRows, PairsAreKnownByTheirNames)
{
    EXPECT_EQ(QStringLiteral("chkLegalHelp"), mdPairOf(QStringLiteral("chkLegalHelpYes")));
    EXPECT_EQ(QStringLiteral("chkLegalHelp"), mdPairOf(QStringLiteral("chkLegalHelpNo")));
    EXPECT_EQ(QString(), mdPairOf(QStringLiteral("chkNorth")));
    EXPECT_EQ(QString(), mdPairOf(QStringLiteral("txtYes")));
}
