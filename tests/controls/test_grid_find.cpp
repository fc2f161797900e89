// Finding words in a grid, and marked rows.

#include "tests/controls/clsGridTest.h"

#include "controls/clsGridFind.h"
#include "controls/mdPaintFound.h"
#include "controls/mdTheme.h"
#include "controls/oFindLine.h"
#include "controls/oLineBox.h"

#include <QElapsedTimer>
#include <QLabel>

#include <gmock/gmock.h>

#include <iostream>

namespace {

class clsGridFindLine : public clsGridTest {
protected:
    oFindLine *line = nullptr;

    void SetUp() override
    {
        clsGridTest::SetUp();
        grid.AddColumn({.caption = "Ref", .width = 40, .property = "Reference"});
        grid.AddColumn({.caption = "Name", .width = 50, .property = "Name"});
        grid.AddColumn({.caption = "Enh", .width = 10, .property = "Enhance"});
        grid.AddColumn({.caption = "Rate", .property = "HourlyRate", .visible = false});
        grid.setAccessibleName("Groups");
        line = new oFindLine(grid, &window);
        static_cast<QVBoxLayout *>(window.layout())->insertWidget(0, line);
    }
    void addNames(const std::vector<const char *> &names)
    {
        int number = 0;
        for (const char *name : names)
            addGroup(("G" + QByteArray::number(++number)).constData(), name);
        draw();
        grid.SelectRow(1);
    }
    oLineBox &box() const { return *line->findChild<oLineBox *>(); }
    void look(const char *words)
    {
        line->Open();
        QTest::keyClicks(&box(), QString::fromUtf8(words));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers shift = {}) { QTest::keyClick(window.focusWidget(), key, shift); }

    QRect rowPlace(int row) const
    {
        return QRect(0, view()->rowViewportPosition(row - 1), view()->viewport()->width(), view()->rowHeight(row - 1));
    }
    /// The number of a row's pixels with a colour.
    int count(int row, const QColor &colour, int from = 4) const
    {
        const QImage image = view()->viewport()->grab(rowPlace(row).adjusted(from, 0, 0, 0)).toImage();
        int found = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                found += image.pixelColor(x, y) == colour;
        return found;
    }
    /// The darkest pixel of its text.
    int darkest(int row) const
    {
        const QImage image = view()->viewport()->grab(rowPlace(row).adjusted(4, 0, 0, 0)).toImage();
        int found = 255;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                found = std::min(found, qGray(image.pixel(x, y)));
        return found;
    }
};

class clsGridMarks : public clsGridTest {
protected:
    void SetUp() override
    {
        clsGridTest::SetUp();
        addGroups(6);
        addReferenceColumn();
        grid.setMarksRows(true);
        draw();
        grid.SelectRow(1);
        view()->setFocus();
    }
    QStringList marked() const
    {
        QStringList references;
        for (const auto &item : grid.SelectedItemCollection())
            references << static_cast<const clsZR3FeeEarnerGroup &>(*item).Reference();
        return references;
    }
    bool hasBar(int row) const
    {
        const int middle = view()->rowViewportPosition(row - 1) + view()->rowHeight(row - 1) / 2;
        return view()->viewport()->grab().toImage().pixelColor(1, middle) == Theme::Purple;
    }
    bool isTinted(int row) const
    {
        const int middle = view()->rowViewportPosition(row - 1) + view()->rowHeight(row - 1) / 2;
        return view()->viewport()->grab().toImage().pixelColor(view()->viewport()->width() - 3, middle)
            == Theme::Selected;
    }
};

} // namespace

TEST_F(clsGridFindLine, FindsAllWordsInAnyColumnThatIsSeen)
{
    form.AddFeeEarnerGroup()->HourlyRate = "77.00";
    addNames({"Final hearing", "Waiting", "Directions HEARING", "hear"});
    clsGridFind find(*static_cast<const clsGridModel *>(model()), &grid);
    const auto hits = [&](const char *text) {
        find.setText(QString::fromUtf8(text));
        QStringList rows;
        for (int row = 0; row < grid.Rows(); ++row)
            if (find.HitOf(row))
                rows << QString::number(row + 1);
        EXPECT_EQ(find.Hits(), rows.size()) << text;
        return rows.join(u' ');
    };
    EXPECT_EQ(QString("2 4"), hits("hearing"));
    EXPECT_EQ(QString("2 4"), hits("  HearIng "));
    EXPECT_EQ(QString("4"), hits("hearing g3")) << "each word may stand in another column";
    EXPECT_EQ(QString("2 4 5"), hits("hear"));
    EXPECT_EQ(QString(), hits("77.00")) << "a hidden column";
    EXPECT_EQ(QString(), hits("False")) << "a cross";
    EXPECT_EQ(QString(), hits(""));
    EXPECT_FALSE(find.StepsBack(0)) << "nothing is looked for";
}

TEST_F(clsGridFindLine, GoesFromHitToHitAndRoundTheEnds)
{
    addNames({"one", "two words", "three", "words", "five", "last words"});
    EXPECT_FALSE(line->isVisible());
    grid.SelectRow(3);
    look("wor");
    EXPECT_TRUE(line->isVisible());
    EXPECT_EQ(4, grid.SelectedRow()) << "the first from the selected row on";
    EXPECT_EQ(QString("hit 2 of 3"), line->State());
    press(Qt::Key_Return);
    EXPECT_EQ(6, grid.SelectedRow());
    press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(2, grid.SelectedRow());
    EXPECT_EQ(QString("hit 1 of 3"), line->State());
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(6, grid.SelectedRow());
    grid.SelectRow(1);
    EXPECT_EQ(QString("3 hits"), line->State());
    EXPECT_EQ(6, grid.Rows()) << "nothing is hidden";
}

TEST_F(clsGridFindLine, EscClosesTheLineAndKeepsTheRow)
{
    addNames({"one", "two", "three"});
    look("two");
    EXPECT_LT(darkest(2), darkest(3));
    press(Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(line->isVisible());
    EXPECT_EQ(2, grid.SelectedRow());
    EXPECT_TRUE(view()->hasFocus());
    EXPECT_NEAR(qGray(Theme::Ink.rgb()), darkest(3), 20) << "nothing steps back";
    EXPECT_EQ(0, count(2, Theme::Purple));
    line->Open();
    EXPECT_EQ(QString(), box().text());
}

TEST_F(clsGridFindLine, StandsTwelveAboveTheGridAndIsLevel)
{
    addNames({"one"});
    line->Open();
    QCoreApplication::processEvents();
    const auto middle = [&](const char *name) {
        const auto *part = line->findChild<QWidget *>(QString::fromLatin1(name));
        return part->geometry().center().y();
    };
    for (const char *name : {"cmdFindNext", "cmdFindPrevious", "lblFind", "cmdCloseFind"})
        EXPECT_NEAR(middle("txtFind"), middle(name), 1) << name;
    EXPECT_NEAR(Theme::Space12, line->height() - box().geometry().bottom() - 1, 1);
    EXPECT_EQ(Theme::scaled(30), box().height());
}

TEST_F(clsGridFindLine, WithoutAHitNothingStepsBackAndTheRowStays)
{
    addNames({"one", "two", "three"});
    grid.SelectRow(3);
    const int before = darkest(1);
    look("zzz");
    EXPECT_EQ(QString("no row holds this"), line->State());
    EXPECT_EQ(Theme::Ink2, line->findChild<QLabel *>("lblFindState")->palette().color(QPalette::WindowText));
    EXPECT_EQ(3, grid.SelectedRow());
    EXPECT_EQ(before, darkest(1));
    EXPECT_FALSE(line->findChild<QWidget *>("cmdFindNext")->isEnabled());
    press(Qt::Key_Return);
    EXPECT_EQ(3, grid.SelectedRow());
}

TEST_F(clsGridFindLine, AnEmptyListHoldsNothing)
{
    draw();
    look("one");
    EXPECT_EQ(QString("no row holds this"), line->State());
    press(Qt::Key_Return);
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(0, grid.SelectedRow());
    press(Qt::Key_Escape);
    EXPECT_FALSE(line->isVisible());
}

TEST_F(clsGridFindLine, WhatIsFoundStandsOutAndOtherRowsStepBack)
{
    addNames({"Final hearing", "Waiting", "Directions hearing"});
    grid.SelectRow(1);
    look("hearing");
    QTest::mouseMove(&window, QPoint(1, 1));
    EXPECT_GT(count(3, Theme::Purple), 20) << "the line beneath";
    EXPECT_EQ(0, count(2, Theme::Purple));
    EXPECT_NEAR(qGray(Theme::SteppedBack.rgb()), darkest(2), 3);
    EXPECT_LT(darkest(3), qGray(Theme::Ink.rgb()) + 4);
}

TEST_F(clsGridFindLine, FollowsTheListWhenItIsReadAnew)
{
    addNames({"one", "two"});
    look("one");
    EXPECT_EQ(QString("hit 1 of 1"), line->State());
    addGroup("G9", "one more");
    grid.Redraw(true);
    EXPECT_EQ(QString("hit 1 of 2"), line->State());
}

TEST_F(clsGridFindLine, SaysToAReaderOfTheScreenWhatItIs)
{
    addNames({"one", "two"});
    look("two");
    EXPECT_EQ(QString("Find in Groups"), box().accessibleName());
    EXPECT_EQ(QString("hit 1 of 1"), box().accessibleDescription());
    EXPECT_EQ(QString("Next hit"), line->findChild<QWidget *>("cmdFindNext")->accessibleName());
    EXPECT_EQ(QString("Previous hit"), line->findChild<QWidget *>("cmdFindPrevious")->accessibleName());
    EXPECT_EQ(QString("Close Find"), line->findChild<QWidget *>("cmdCloseFind")->accessibleName());
}

TEST_F(clsGridFindLine, TenThousandRowsDoNotSlowTheKeys)
{
    for (int n = 0; n < 10000; ++n)
        addGroup(("G" + QByteArray::number(n)).constData(), n % 100 ? "Attending the client" : "Final hearing");
    draw();
    grid.SelectRow(1);
    line->Open();
    qint64 worst = 0;
    for (const char letter : {'h', 'e', 'a', 'r', 'i', 'n', 'g'}) {
        QElapsedTimer time;
        time.start();
        QTest::keyClick(&box(), letter);
        view()->viewport()->repaint();
        worst = std::max(worst, time.elapsed());
    }
    EXPECT_EQ(QString("hit 1 of 100"), line->State());
    QElapsedTimer time;
    time.start();
    press(Qt::Key_Return);
    view()->viewport()->repaint();
    std::cout << "10,000 rows: slowest key " << worst << " ms, next hit " << time.elapsed() << " ms\n";
    EXPECT_EQ(101, grid.SelectedRow());
    EXPECT_LT(worst, 200);
    EXPECT_LT(time.elapsed(), 100);
}

TEST(PaintFound, PlacesThatOverlapAreOne)
{
    using Places = std::vector<std::pair<qsizetype, qsizetype>>;
    EXPECT_EQ((Places {{0, 4}}), mdPlacesOf({"fina", "ina"}, "Final"));
    EXPECT_EQ((Places {{0, 2}, {3, 2}}), mdPlacesOf({"AB"}, "ab-ab"));
    EXPECT_EQ(Places(), mdPlacesOf({"x"}, "Final"));
    EXPECT_EQ(Places(), mdPlacesOf({}, "Final"));
}

TEST(PaintFound, ATextThatIsTooLongIsShownAroundTheWord)
{
    const QFontMetrics metrics {QFont()};
    const QString text = "Attending on the Guardian before the hearing of the application to adjourn the trial";
    const int width = metrics.horizontalAdvance("Attending on the Guardian befo");
    EXPECT_EQ(text, mdShownPart(text, {"hearing"}, metrics, 10000));
    const QString around = mdShownPart(text, {"hearing"}, metrics, width);
    EXPECT_TRUE(around.startsWith(u"\u2026before the hearing")) << around.toStdString();
    EXPECT_LE(metrics.horizontalAdvance(around), width);
    EXPECT_TRUE(mdShownPart(text, {"guardian"}, metrics, width).startsWith("Attending on"));
    EXPECT_TRUE(mdShownPart(text, {"zzz"}, metrics, width).startsWith("Attending on")) << "found in another column";
}

TEST_F(clsGridMarks, ShiftMarksFromTheSelectedRowOnAndAMoveUnmarks)
{
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(QStringList({"G1", "G2", "G3"}), marked());
    EXPECT_EQ(3, grid.SelectedRow());
    press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(QStringList({"G1", "G2"}), marked());
    press(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(6, marked().size());
    press(Qt::Key_Up);
    EXPECT_EQ(QStringList({"G5"}), marked());
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(6, marked().size());
    EXPECT_EQ(5, grid.SelectedRow()) << "the selected row stays";
    press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(QStringList({"G6"}), marked()) << "Ctrl alone moves on, as without marks";
}

TEST_F(clsGridMarks, CtrlClickMarksAndUnmarksARow)
{
    click(3, Qt::LeftButton, Qt::ControlModifier);
    click(5, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(QStringList({"G1", "G3", "G5"}), marked());
    EXPECT_EQ(5, grid.SelectedRow());
    click(5, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(QStringList({"G1", "G3"}), marked());
    EXPECT_TRUE(grid.SelectedRow() == 1 || grid.SelectedRow() == 3) << "a marked row is the selected one";
    click(4, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_GT(marked().size(), 1);
    EXPECT_EQ(4, grid.SelectedRow());
    click(2);
    EXPECT_EQ(QStringList({"G2"}), marked());
}

TEST_F(clsGridMarks, ADragAndAClickBesideTheRowsMarkNothing)
{
    QTest::mousePress(view()->viewport(), Qt::LeftButton, {}, middleOf(2));
    QTest::mouseMove(view()->viewport(), middleOf(3));
    QTest::mouseMove(view()->viewport(), middleOf(4));
    QTest::mouseRelease(view()->viewport(), Qt::LeftButton, {}, middleOf(4));
    EXPECT_EQ(1, marked().size());
    press(Qt::Key_Down, Qt::ShiftModifier);
    const QStringList before = marked();
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, QPoint(30, middleOf(6).y() + 60));
    EXPECT_EQ(before, marked());
}

TEST_F(clsGridMarks, KeysActOnTheSelectedRowAlone)
{
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    const QSignalSpy activated(&grid, &oSGrid::RowActivated);
    press(Qt::Key_Return);
    ASSERT_EQ(1, activated.count());
    EXPECT_EQ(3, activated[0][0].toInt());
    EXPECT_EQ(3, grid.SelectedItemData());
    EXPECT_FALSE(grid.MultiSelect());
}

TEST_F(clsGridMarks, ARightClickOnAMarkedRowSelectsItAndKeepsTheMarks)
{
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    QSignalSpy changed(&grid, &oSGrid::SelectionChange);
    click(2, Qt::RightButton);
    EXPECT_EQ(QStringList({"G1", "G2", "G3"}), marked());
    EXPECT_EQ(2, grid.SelectedRow());
    ASSERT_EQ(1, changed.count());
    EXPECT_EQ(2, changed[0][1].toInt());
    click(5, Qt::RightButton);
    EXPECT_EQ(QStringList({"G5"}), marked());
}

TEST_F(clsGridMarks, OnlyTheSelectedOfTheMarkedRowsHasTheBar)
{
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    const bool bars[] = {hasBar(1), hasBar(2), hasBar(3), hasBar(4)};
    EXPECT_THAT(bars, testing::ElementsAre(false, false, true, false));
    EXPECT_TRUE(isTinted(1) && isTinted(2) && isTinted(3));
    EXPECT_FALSE(isTinted(4));
    press(Qt::Key_Up);
    EXPECT_TRUE(hasBar(2));
    EXPECT_FALSE(isTinted(1));
}

TEST_F(clsGridMarks, ItemsAreMarkedAgainWhereverTheyStand)
{
    press(Qt::Key_Down, Qt::ShiftModifier);
    const clsGridItems before = grid.SelectedItemCollection();
    grid.Redraw(true);
    EXPECT_EQ(1, marked().size()) << "what is read anew has the selected row only";
    grid.SelectItems(before[1].get(), before);
    EXPECT_EQ(QStringList({"G1", "G2"}), marked());
    EXPECT_EQ(2, grid.SelectedRow());
}

TEST_F(clsGridMarks, WithoutLeaveShiftMovesOnOnly)
{
    grid.setMarksRows(false);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(QStringList({"G2"}), marked());
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(QStringList({"G2"}), marked());
}
