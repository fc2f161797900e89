#include "controls/oCheckBox.h"
#include "controls/oGridView.h"
#include "controls/oHeaderBar.h"
#include "controls/oIntegerBox.h"
#include "controls/oSGrid.h"
#include "costing/clsZR3Enhancement.h"
#include "costing/clsZR3FeeEarner.h"
#include "editors/oEnhancementsBox.h"
#include "editors/oFieldLabel.h"
#include "shell/clsRunTimeError.h"
#include "shell/mdPlayWav.h"
#include "shell/mdProgramFolder.h"
#include "tests/editors/clsModalTest.h"
#include "tests/editors/mdCommsTables.h"
#include "tests/support/mdExpectError.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolTip>

namespace {

constexpr int NameColumn = 1;
constexpr int CallsColumn = 3;
constexpr int LettersInColumn = 4;
constexpr int LettersOutColumn = 5;

/// The counting screen of a claim with some fee earners, each with counts of its own, and two enhancements.
class Communications : public clsModalTest {
protected:
    using Counts = std::vector<int>;

    std::unique_ptr<frmSection> screen = nullptr;

    void SetUp() override
    {
        clsModalTest::SetUp();
        SetProgramFolder(QStringLiteral("/opt/program"));
        SetSoundSwitch([] { return true; });
        for (const char *name : {"Exceptional speed", "Novelty"})
            Form->AddEnhancement()->Name = QString::fromUtf8(name);
    }
    void TearDown() override
    {
        screen.reset();
        SetSoundSwitch({});
        SetProgramFolder({});
        clsModalTest::TearDown();
    }

    /// Fee earners F1, F2 ... with 3 calls, 5 letters in and 7 letters out each.
    void openWith(int feeEarners)
    {
        for (int n = 1; n <= feeEarners; ++n) {
            const auto person = Form->AddFeeEarner();
            person->Reference = QStringLiteral("F%1").arg(n);
            person->Calls = 3;
            person->LettersIn = 5;
            person->LettersOut = 7;
        }
        screen = opened(QStringLiteral("Communications"));
    }
    oSGrid &grid() const { return screen->Box<oSGrid>("sgCommunications"); }
    oGridView &view() const { return *grid().findChild<oGridView *>(); }
    QPoint middleOf(int row, int column) const
    {
        return view().visualRect(view().model()->index(row - 1, column - 1)).center();
    }
    void press(int key, Qt::KeyboardModifiers shift = {}) { QTest::keyClick(&view(), Qt::Key(key), shift); }
    void rightClick(int row, int column, Qt::KeyboardModifiers shift = {})
    {
        QTest::mouseClick(view().viewport(), Qt::RightButton, shift, middleOf(row, column));
    }
    /// What a user types, and waits for.
    void typeNumber(const QString &text)
    {
        QSignalSpy typed(&grid(), &oSGrid::TimedKeyPress);
        QTest::keyClicks(&view(), text);
        EXPECT_TRUE(typed.wait(2000));
    }

    static Counts counts(int feeEarner)
    {
        const auto person = Form->FeeEarner(feeEarner);
        return {person->Calls(), person->LettersIn(), person->LettersOut()};
    }
    QString shown(int row, int column) const { return view().model()->index(row - 1, column - 1).data().toString(); }
    QStringList takeSounds()
    {
        const QStringList heard = user.sounds;
        user.sounds.clear();
        return heard;
    }
    static QString up() { return QStringLiteral("/opt/program/Sounds/Blip.wav"); }
    static QString down() { return QStringLiteral("/opt/program/Sounds/Blip Low.wav"); }

    oEnhancementsBox &enhancement(const char *name) const { return screen->Box<oEnhancementsBox>(name); }
    static QString idOf(int enhancement) { return Form->Enhancement(enhancement)->UniqueID(); }
    /// Ticks the boxes for calls and letters out, the second enhancement for the latter.
    void changeBoxes()
    {
        for (const char *name : {"oCallsEnhancement", "oLettersOutEnhancement"})
            click(*enhancement(name).findChild<oCheckBox *>());
        enhancement("oLettersOutEnhancement").setEnhancementUniqueID(idOf(2));
    }
    static QStringList settings()
    {
        const auto &comms = Form->Communications;
        const auto shownAs = [](bool flag, const QString &id) { return (flag ? u'+' : u'-') + id; };
        return {shownAs(comms.EnhanceCalls(), comms.CallsEnhancementUniqueID()),
            shownAs(comms.EnhanceLettersIn(), comms.LettersInEnhancementUniqueID()),
            shownAs(comms.EnhanceLettersOut(), comms.LettersOutEnhancementUniqueID())};
    }
    static QStringList untouched() { return {QStringLiteral("-"), QStringLiteral("-"), QStringLiteral("-")}; }
    static QStringList changed() { return {u'+' + idOf(1), QStringLiteral("-"), u'+' + idOf(2)}; }
};

} // namespace

TEST_F(Communications, TheScreenIsAsItsTableSays)
{
    openWith(1);
    const clsExpectedScreen &expected = ExpectedCommsScreens.front();
    EXPECT_EQ(QString::fromUtf8(expected.name), screen->objectName());
    EXPECT_EQ(QString::fromUtf8(expected.header), screen->findChild<oHeaderBar *>()->Caption());
    EXPECT_EQ(QString::fromUtf8(expected.subCaption), screen->findChild<oHeaderBar *>()->SubCaption());
    ASSERT_EQ(expected.fields.size(), screen->Fields().size());
    for (size_t i = 0; i < expected.fields.size(); ++i) {
        const clsScreenField &field = screen->Fields()[i];
        EXPECT_EQ(QString::fromUtf8(expected.fields[i].control), field.control->objectName());
        if (field.label) {
            EXPECT_EQ(QString::fromUtf8(expected.fields[i].caption), field.label->Caption());
        }
        auto *frame = screen->findChild<oFrame *>(QString::fromUtf8(expected.fields[i].frame));
        ASSERT_TRUE(frame) << expected.fields[i].frame;
        EXPECT_TRUE(frame->isAncestorOf(field.control)) << expected.fields[i].control;
    }
    QStringList captions;
    for (const char *frame : {"bxGeneral", "bxCalls", "bxLettersIn", "bxLettersOut"})
        captions << screen->findChild<oFrame *>(QString::fromUtf8(frame))->Caption();
    EXPECT_EQ(QStringList({QStringLiteral("Communications"), QStringLiteral("Calls"), QStringLiteral("Letters In"),
                  QStringLiteral("Letters Out")}),
        captions);
}

TEST_F(Communications, TheGridShowsTheCountsOfEachFeeEarnerAndCannotBeOrdered)
{
    openWith(2);
    EXPECT_FALSE(grid().Orderable());
    EXPECT_TRUE(grid().PopupMenuName().isEmpty());
    EXPECT_FALSE(screen->findChild<QWidget *>(QStringLiteral("udUpDown"))->isVisible());
    struct Column {
        const char *caption;
        const char *text;
        int width;
        Qt::Alignment alignment;
    };
    const Column columns[] = {
        {"Fee Earner", "F2", 16, Qt::AlignLeft},
        {"OrderID", "2", 0, {}},
        {"Calls", "3", 28, Qt::AlignRight},
        {"Letters In", "5", 28, Qt::AlignRight},
        {"Letters Out", "7", 28, Qt::AlignRight},
    };
    const QAbstractItemModel &model = *view().model();
    ASSERT_EQ(5, model.columnCount());
    for (int i = 0; i < 5; ++i) {
        const Column &column = columns[i];
        EXPECT_EQ(QString::fromUtf8(column.caption), model.headerData(i, Qt::Horizontal).toString());
        EXPECT_EQ(QString::fromUtf8(column.text), shown(2, i + 1)) << column.caption;
        EXPECT_EQ(column.width == 0, view().isColumnHidden(i)) << column.caption;
        if (column.width == 0)
            continue;
        const int share = (view().width() - 20) * column.width / 100;
        EXPECT_GE(view().columnWidth(i) + 1, share) << column.caption;
        EXPECT_LE(view().columnWidth(i), share + 20) << column.caption;
        for (const QVariant &alignment :
            {model.index(1, i).data(Qt::TextAlignmentRole), model.headerData(i, Qt::Horizontal, Qt::TextAlignmentRole)})
            EXPECT_EQ(column.alignment, Qt::Alignment(alignment.toInt()) & Qt::AlignHorizontal_Mask) << column.caption;
    }
}

TEST_F(Communications, TheGridTellsHowToCount)
{
    openWith(1);
    QWidget &headings = *view().horizontalHeader()->viewport();
    const QPoint middle = headings.rect().center();
    QHelpEvent hovered(QEvent::ToolTip, middle, headings.mapToGlobal(middle));
    QApplication::sendEvent(&headings, &hovered);
    EXPECT_TRUE(QToolTip::text().startsWith(QLatin1String("C, I and O count"))) << QToolTip::text().toStdString();
    EXPECT_EQ(QToolTip::text(), view().accessibleDescription());
    QToolTip::hideText();
}

TEST_F(Communications, FeeEarnersStandInTheUsersOrder)
{
    openWith(12);
    screen.reset();
    Form->FeeEarner(12)->OrderID = 1;
    Form->FeeEarner(1)->OrderID = 12;
    screen = opened(QStringLiteral("Communications"));
    EXPECT_EQ(QStringLiteral("F12"), shown(1, NameColumn));
    EXPECT_EQ(QStringLiteral("F2"), shown(2, NameColumn));
    EXPECT_EQ(QStringLiteral("F10"), shown(10, NameColumn));
    EXPECT_EQ(QStringLiteral("F1"), shown(12, NameColumn));
    // And what is counted belongs to the fee earner of the row.
    press(Qt::Key_C);
    EXPECT_EQ((Counts {4, 5, 7}), counts(12));
    EXPECT_EQ((Counts {3, 5, 7}), counts(1));
}

TEST_F(Communications, TheKeysCountForTheSelectedRowAtOnce)
{
    openWith(3);
    press(Qt::Key_Down);
    press(Qt::Key_C);
    EXPECT_EQ((Counts {4, 5, 7}), counts(2));
    EXPECT_EQ(QStringLiteral("4"), shown(2, CallsColumn));
    press(Qt::Key_I);
    press(Qt::Key_I);
    press(Qt::Key_O);
    EXPECT_EQ((Counts {4, 7, 8}), counts(2));
    EXPECT_EQ(QStringLiteral("7"), shown(2, LettersInColumn));
    EXPECT_EQ(QStringLiteral("8"), shown(2, LettersOutColumn));
    EXPECT_EQ((Counts {3, 5, 7}), counts(1));
    EXPECT_EQ((Counts {3, 5, 7}), counts(3));
    EXPECT_EQ(QStringList({up(), up(), up(), up()}), takeSounds());
    EXPECT_EQ(2, grid().SelectedRow());
    EXPECT_EQ(QStringLiteral("sgCommunications"), focusedName(*screen));
}

TEST_F(Communications, ShiftAloneCountsDownAndStopsAtNothing)
{
    openWith(2);
    grid().SelectRow(2);
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_C, Qt::ShiftModifier);
    EXPECT_EQ((Counts {0, 5, 7}), counts(2));
    EXPECT_EQ(QStringList({down(), down(), down()}), takeSounds());
    // At nothing it sounds and changes nothing.
    press(Qt::Key_C, Qt::ShiftModifier);
    EXPECT_EQ((Counts {0, 5, 7}), counts(2));
    EXPECT_EQ(QStringLiteral("0"), shown(2, CallsColumn));
    EXPECT_EQ(QStringList {down()}, takeSounds());
    press(Qt::Key_I, Qt::ShiftModifier);
    press(Qt::Key_O, Qt::ShiftModifier);
    EXPECT_EQ((Counts {0, 4, 6}), counts(2));
}

TEST_F(Communications, WithAnotherKeyBesideShiftTheCountGoesUp)
{
    openWith(1);
    press(Qt::Key_C, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ((Counts {4, 5, 7}), counts(1));
    press(Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ((Counts {4, 5, 8}), counts(1));
    rightClick(1, LettersInColumn, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ((Counts {4, 6, 8}), counts(1));
    EXPECT_EQ(QStringList({up(), up(), up()}), takeSounds());
}

TEST_F(Communications, OtherKeysCountNothing)
{
    openWith(1);
    for (const int key : {int(Qt::Key_A), int(Qt::Key_L), int(Qt::Key_Space), int(Qt::Key_Delete), int(Qt::Key_Insert)})
        press(key);
    EXPECT_EQ((Counts {3, 5, 7}), counts(1));
    EXPECT_TRUE(user.sounds.isEmpty());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(1, grid().Rows());
}

TEST_F(Communications, WithTheSoundOffItCountsInSilence)
{
    SetSoundSwitch([] { return false; });
    openWith(1);
    press(Qt::Key_C);
    EXPECT_EQ((Counts {4, 5, 7}), counts(1));
    EXPECT_TRUE(user.sounds.isEmpty());
}

TEST_F(Communications, AnEmptyGridSaysWhatToDoAndCountsNothing)
{
    openWith(0);
    EXPECT_EQ(QStringLiteral("Add a fee earner under Fee Earners / Rates first."), view().emptyText());
    EXPECT_EQ(QStringLiteral("sgCommunications"), focusedName(*screen));
    press(Qt::Key_C);
    press(Qt::Key_I, Qt::ShiftModifier);
    QTest::mouseClick(view().viewport(), Qt::RightButton, {}, QPoint(view().columnWidth(0) + 20, 10));
    typeNumber(QStringLiteral("1"));
    EXPECT_TRUE(user.sounds.isEmpty());
    EXPECT_TRUE(screen->isVisible());
    // With no row to open, Return is the screen's.
    press(Qt::Key_Return);
    EXPECT_FALSE(screen->isVisible());
}

TEST_F(Communications, WithoutASelectedRowNothingHappens)
{
    openWith(1);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::ControlModifier, middleOf(1, CallsColumn));
    ASSERT_EQ(0, grid().SelectedRow());
    press(Qt::Key_C);
    EXPECT_EQ((Counts {3, 5, 7}), counts(1));
    EXPECT_TRUE(user.sounds.isEmpty());
}

TEST_F(Communications, ARightClickCountsInItsColumnAndRow)
{
    openWith(3);
    rightClick(2, CallsColumn);
    EXPECT_EQ((Counts {4, 5, 7}), counts(2));
    rightClick(2, LettersInColumn);
    rightClick(2, LettersOutColumn);
    EXPECT_EQ((Counts {4, 6, 8}), counts(2));
    EXPECT_EQ(2, grid().SelectedRow());
    EXPECT_EQ(QStringList({up(), up(), up()}), takeSounds());
    rightClick(3, LettersOutColumn, Qt::ShiftModifier);
    EXPECT_EQ((Counts {3, 5, 6}), counts(3));
    EXPECT_EQ(QStringList {down()}, takeSounds());
    EXPECT_EQ((Counts {3, 5, 7}), counts(1));
    EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(Communications, ARightClickWithControlCountsForItsOwnRow)
{
    // Control takes the selection from a row that has it.
    openWith(2);
    rightClick(1, CallsColumn, Qt::ControlModifier);
    EXPECT_EQ((Counts {4, 5, 7}), counts(1));
    EXPECT_EQ(1, grid().SelectedRow());
    rightClick(2, CallsColumn, Qt::ControlModifier);
    EXPECT_EQ((Counts {4, 5, 7}), counts(2));
    EXPECT_EQ(2, grid().SelectedRow());
}

TEST_F(Communications, QuickRightClicksCountEachAndOpenNothing)
{
    openWith(1);
    // As the toolkit tells of two quick clicks: the second press is a double click, with a release of its own.
    for (int i = 0; i < 3; ++i) {
        rightClick(1, CallsColumn);
        QTest::mouseDClick(view().viewport(), Qt::RightButton, {}, middleOf(1, CallsColumn));
        QTest::mouseRelease(view().viewport(), Qt::RightButton, {}, middleOf(1, CallsColumn));
    }
    EXPECT_EQ((Counts {9, 5, 7}), counts(1));
    EXPECT_EQ(6, takeSounds().size());
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(Communications, OtherClicksCountNothing)
{
    openWith(2);
    rightClick(2, NameColumn);
    EXPECT_EQ(2, grid().SelectedRow());
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, middleOf(1, CallsColumn));
    QTest::mouseClick(view().viewport(), Qt::MiddleButton, {}, middleOf(1, CallsColumn));
    const QPoint below = middleOf(2, CallsColumn) + QPoint(0, 200);
    ASSERT_TRUE(view().viewport()->rect().contains(below));
    QTest::mouseClick(view().viewport(), Qt::RightButton, {}, below);
    EXPECT_EQ((Counts {3, 5, 7}), counts(1));
    EXPECT_EQ((Counts {3, 5, 7}), counts(2));
    EXPECT_TRUE(user.sounds.isEmpty());
    EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(Communications, ADoubleClickOpensTheTypedEntryInTheFieldOfItsColumn)
{
    openWith(2);
    const std::pair<int, const char *> columns[]
        = {{CallsColumn, "txtCalls"}, {LettersInColumn, "txtLettersIn"}, {LettersOutColumn, "txtLettersOut"}};
    for (const auto &[column, box] : columns)
        inModal([this, at = column] { QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, middleOf(2, at)); },
            [name = box](frmSection &entry) {
                EXPECT_EQ(QStringLiteral("frmCorrespondences"), entry.objectName());
                EXPECT_EQ(QString::fromUtf8(name), focusedName(entry));
                EXPECT_EQ(QStringLiteral("5"), entry.Box<oIntegerBox>("txtLettersIn").Text());
                entry.Cancel();
            });
    // The name opens nothing.
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, middleOf(2, NameColumn));
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_EQ((Counts {3, 5, 7}), counts(2));
}

TEST_F(Communications, ReturnOpensTheTypedEntryInTheFieldOfTheGridsColumn)
{
    openWith(2);
    press(Qt::Key_Down);
    // It starts on the calls.
    const auto opensIn = [this](const char *box) {
        inModal([this] { press(Qt::Key_Return); },
            [box](frmSection &entry) {
                EXPECT_EQ(QString::fromUtf8(box), focusedName(entry));
                QTest::keyClicks(entry.focusWidget(), QStringLiteral("40"));
                QTest::keyClick(entry.focusWidget(), Qt::Key_Return);
            });
        EXPECT_EQ(2, grid().SelectedRow());
        EXPECT_EQ(QStringLiteral("sgCommunications"), focusedName(*screen));
    };
    opensIn("txtCalls");
    EXPECT_EQ((Counts {40, 5, 7}), counts(2));
    EXPECT_EQ(QStringLiteral("40"), shown(2, CallsColumn));
    press(Qt::Key_Right);
    opensIn("txtLettersIn");
    // Counting leaves the column alone.
    press(Qt::Key_C);
    press(Qt::Key_Right);
    opensIn("txtLettersOut");
    EXPECT_EQ((Counts {41, 40, 40}), counts(2));
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Left);
    press(Qt::Key_Return);
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_TRUE(screen->isVisible());
    EXPECT_TRUE(user.sounds.size() == 1) << "what is typed makes no sound";
}

TEST_F(Communications, ATypedNumberSelectsTheRow)
{
    openWith(12);
    typeNumber(QStringLiteral("3"));
    EXPECT_EQ(3, grid().SelectedRow());
    typeNumber(QStringLiteral("12"));
    EXPECT_EQ(12, grid().SelectedRow());
    EXPECT_EQ(CallsColumn, grid().SelectedColumn());
    for (const char *nowhere : {"0", "13", "x", "0.4", "-2", "99999999999"}) {
        typeNumber(QString::fromUtf8(nowhere));
        EXPECT_EQ(12, grid().SelectedRow()) << nowhere;
    }
    typeNumber(QStringLiteral("2b"));
    EXPECT_EQ(2, grid().SelectedRow());
    // Letters that count belong to no number.
    press(Qt::Key_C);
    typeNumber(QStringLiteral("5"));
    EXPECT_EQ(5, grid().SelectedRow());
    EXPECT_EQ((Counts {4, 5, 7}), counts(2));
}

TEST_F(Communications, ALongListStandsStillWhileItIsCountedIn)
{
    openWith(2000);
    typeNumber(QStringLiteral("1500"));
    EXPECT_EQ(1500, grid().SelectedRow());
    EXPECT_TRUE(view().viewport()->rect().contains(middleOf(1500, CallsColumn)));
    QScrollBar &bar = *view().verticalScrollBar();
    bar.setValue(bar.value() - 2);
    const int scrolled = bar.value();
    ASSERT_GT(scrolled, 0);
    for (const int key : {int(Qt::Key_C), int(Qt::Key_I), int(Qt::Key_O)}) {
        press(key);
        QTest::qWait(1);
        EXPECT_EQ(scrolled, bar.value());
        EXPECT_EQ(1500, grid().SelectedRow());
    }
    EXPECT_EQ((Counts {4, 6, 8}), counts(1500));
}

TEST_F(Communications, ACountBeyond32BitsIsTheOverflowError)
{
    openWith(1);
    Form->FeeEarner(1)->Calls = 2147483647;
    grid().Redraw(false);
    EXPECT_EQ(clsRunTimeError::Overflow, errorOf([this] {
        bool doDefault = true;
        emit grid().KeyDown(Qt::Key_C, Qt::NoModifier, &doDefault);
    }));
    EXPECT_EQ((Counts {2147483647, 5, 7}), counts(1));
    EXPECT_TRUE(user.sounds.isEmpty());
}

TEST_F(Communications, TheBoxesShowTheClaimsSettings)
{
    Form->Communications.EnhanceLettersIn = true;
    Form->Communications.LettersInEnhancementUniqueID = idOf(2);
    openWith(1);
    EXPECT_FALSE(enhancement("oCallsEnhancement").IncludeInEnhancements());
    EXPECT_TRUE(enhancement("oLettersInEnhancement").IncludeInEnhancements());
    EXPECT_EQ(idOf(2), enhancement("oLettersInEnhancement").EnhancementUniqueID());
    EXPECT_FALSE(enhancement("oLettersOutEnhancement").IncludeInEnhancements());
}

TEST_F(Communications, EveryWayOutButTheCloseBoxStoresTheBoxes)
{
    struct Way {
        const char *name; ///< a button's or a menu entry's, or of a key
        const char *section;
    };
    const Way ways[] = {
        {"cmdClose", ""},
        {"Esc", ""},
        {"btnLeft", "Disbursements"},
        {"btnRight", "Details of Costs Awarded"},
        {"cmdScheduleOfTime", "Schedule of Time"},
        {"cmdDisbursements", "Disbursements"},
        {"mnuScheduleOfTime", "Schedule of Time"},
        {"mnuDisbursements", "Disbursements"},
    };
    QString target;
    SetOpenSection([&target](const QString &text) { target = text; });
    openWith(1);
    for (const Way &way : ways) {
        for (const char *flag : {"EnhanceCalls", "EnhanceLettersIn", "EnhanceLettersOut"})
            Form->Communications.field(QString::fromUtf8(flag))->writeBoolean(false);
        for (const char *id :
            {"CallsEnhancementUniqueID", "LettersInEnhancementUniqueID", "LettersOutEnhancementUniqueID"})
            Form->Communications.field(QString::fromUtf8(id))->writeText({});
        target.clear();
        screen = opened(QStringLiteral("Communications"));
        changeBoxes();
        EXPECT_EQ(untouched(), settings()) << way.name;
        const QString name = QString::fromUtf8(way.name);
        if (auto *entry = screen->findChild<QAction *>(name))
            entry->trigger();
        else if (auto *button = screen->findChild<QWidget *>(name))
            click(*button);
        else
            QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(screen->isVisible()) << way.name;
        EXPECT_EQ(changed(), settings()) << way.name;
        EXPECT_EQ(QString::fromUtf8(way.section), target) << way.name;
    }
}

TEST_F(Communications, WhatIsUntickedIsStoredWithoutAnEnhancement)
{
    Form->Communications.EnhanceCalls = true;
    Form->Communications.CallsEnhancementUniqueID = idOf(2);
    openWith(1);
    click(*enhancement("oCallsEnhancement").findChild<oCheckBox *>());
    clsScreenTest::press(*screen, "cmdClose");
    EXPECT_EQ(untouched(), settings());
}

TEST_F(Communications, TheCloseBoxDropsTheBoxesAndKeepsTheCounts)
{
    openWith(1);
    press(Qt::Key_C);
    changeBoxes();
    screen->close();
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(untouched(), settings());
    EXPECT_EQ((Counts {4, 5, 7}), counts(1));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Communications, TheMenuSaveWritesTheCountsAndNotTheBoxes)
{
    Form->path = path("claim.vzf");
    openWith(1);
    press(Qt::Key_C);
    changeBoxes();
    QTest::keyClick(screen->focusWidget(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(untouched(), settings());
    const QByteArray saved = bytesOf(path("claim.vzf"));
    EXPECT_TRUE(saved.contains("<calls>4</calls>"));
    EXPECT_TRUE(saved.contains("<enhancecalls>False</enhancecalls>"));
}

TEST_F(Communications, PrevLeadsByTheFormType)
{
    QString target;
    SetOpenSection([&target](const QString &text) { target = text; });
    openWith(1);
    const std::pair<const char *, const char *> types[]
        = {{"Claim1", "Disbursements"}, {"Claim1A", "Schedule of Time"}};
    for (const auto &[type, section] : types) {
        Form->FormType = QString::fromUtf8(type);
        screen = opened(QStringLiteral("Communications"));
        screen->Prev();
        EXPECT_EQ(QString::fromUtf8(section), target);
        screen = opened(QStringLiteral("Communications"));
        screen->Next();
        EXPECT_EQ(QStringLiteral("Details of Costs Awarded"), target);
    }
}

TEST_F(Communications, OnANarrowWindowTheJumpsAreInTheirMenuOnly)
{
    QString target;
    SetOpenSection([&target](const QString &text) { target = text; });
    openWith(1);
    auto *button = screen->findChild<QWidget *>(QStringLiteral("cmdDisbursements"));
    EXPECT_TRUE(button->isVisible());
    screen->resize(800, 600);
    QTest::qWait(10);
    EXPECT_FALSE(button->isVisible());
    QAction *menu = screen->findChild<QMenuBar *>()->actions().at(1);
    EXPECT_EQ(QStringLiteral("&Jump To"), menu->text());
    QTest::keyClick(screen->focusWidget(), Qt::Key_J, Qt::AltModifier);
    ASSERT_TRUE(menu->menu()->isVisible());
    const QList<QAction *> entries = menu->menu()->actions();
    ASSERT_EQ(2, entries.size());
    EXPECT_EQ(QStringLiteral("&Schedule of Time"), entries[0]->text());
    EXPECT_EQ(QStringLiteral("&Disbursements"), entries[1]->text());
    QTest::keyClick(menu->menu(), Qt::Key_D);
    EXPECT_EQ(QStringLiteral("Disbursements"), target);
}

TEST_F(Communications, TheBoxesStandBesideTheGridOrBelowItAndNothingIsCut)
{
    openWith(20);
    const auto place = [this](const char *name) {
        const QWidget &box = screen->Box(name);
        return QRect(box.mapTo(screen.get(), QPoint()), box.size());
    };
    for (const QSize size : {QSize(1100, 680), QSize(1284, 722), QSize(902, 507), QSize(760, 640)}) {
        screen->resize(size);
        QTest::qWait(20);
        const bool wide = size.width() >= 1100;
        EXPECT_EQ(wide, place("oCallsEnhancement").left() > place("sgCommunications").right()) << size.width();
        EXPECT_EQ(!wide, place("oCallsEnhancement").top() > place("sgCommunications").bottom()) << size.width();
        EXPECT_GT(place("oLettersInEnhancement").top(), place("oCallsEnhancement").bottom());
        EXPECT_GT(place("oLettersOutEnhancement").top(), place("oLettersInEnhancement").bottom());
        const QScrollArea &page = *screen->findChild<QScrollArea *>();
        EXPECT_EQ(0, page.horizontalScrollBar()->maximum());
        EXPECT_LE(page.widget()->width(), page.viewport()->width());
        for (const clsScreenField &field : screen->Fields()) {
            EXPECT_GE(field.control->width(), field.control->minimumSizeHint().width()) << size.width();
            EXPECT_GE(field.control->height(), field.control->minimumSizeHint().height()) << size.width();
        }
        // With everything in sight there is no need to scroll.
        if (wide) {
            EXPECT_EQ(0, page.verticalScrollBar()->maximum()) << size.height();
        }
    }
}
