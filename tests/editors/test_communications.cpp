#include "base/clsRunTimeError.h"
#include "controls/oHeaderBar.h"
#include "controls/oIntegerBox.h"
#include "editors/oFieldLabel.h"
#include "tests/editors/clsCommunicationsTest.h"
#include "tests/editors/mdCommsTables.h"
#include "tests/support/mdExpectError.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>

// The letters and calls: their grid, and counting in it.

using Communications = clsCommunicationsTest;

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
    // Counts are added to the fee earner of the row.
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
    // At zero it plays the sound and changes nothing.
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
    // Without a row to open, Return acts on the screen.
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
    // Control-click deselects a selected row.
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
    // Two quick clicks as Qt reports them: the second press is a double click, with its own release.
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
    const QPoint below(middleOf(2, CallsColumn).x(), view().viewport()->height() - 2);
    ASSERT_GT(below.y(), middleOf(2, CallsColumn).y() + view().rowHeight(1));
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
            [name = box](frmScreen &entry) {
                EXPECT_EQ(QStringLiteral("frmCorrespondences"), entry.objectName());
                EXPECT_EQ(QString::fromUtf8(name), focusedName(entry));
                EXPECT_EQ(QStringLiteral("5"), entry.Box<oIntegerBox>("txtLettersIn").Text());
                entry.Cancel();
            });
    // The name column opens nothing.
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, middleOf(2, NameColumn));
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_EQ((Counts {3, 5, 7}), counts(2));
}

TEST_F(Communications, ReturnOpensTheTypedEntryInTheFieldOfTheGridsColumn)
{
    openWith(2);
    press(Qt::Key_Down);
    // The mark starts on the calls.
    const auto opensIn = [this](const char *box) {
        inModal([this] { press(Qt::Key_Return); },
            [box](frmScreen &entry) {
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
    // Counting doesn't move the mark.
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
    // A counting letter ends the number.
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

TEST_F(Communications, ACountHoldsAtItsLargest)
{
    openWith(1);
    Form->FeeEarner(1)->Calls = 2147483647;
    grid().Redraw(false);
    QTest::keyClick(grid().findChild<QTableView *>(), Qt::Key_C);
    EXPECT_EQ((Counts {2147483647, 5, 7}), counts(1));
    QTest::keyClick(grid().findChild<QTableView *>(), Qt::Key_C, Qt::ShiftModifier);
    EXPECT_EQ((Counts {2147483646, 5, 7}), counts(1));
}
