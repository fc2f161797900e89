#include "controls/oCloseButton.h"
#include "controls/oTotalsStrip.h"
#include "preview/oPreviewGrid.h"
#include "tests/support/mdSpokenNames.h"
#include "tests/window/clsCheckPanelTest.h"

#include <QContextMenuEvent>
#include <QScrollBar>

#include <cmath>

// The panel with the findings of the check, by keyboard.

namespace {

using CheckPanel = clsCheckPanelTest;

} // namespace

TEST_F(CheckPanel, IsClosedUntilTheUserOpensIt)
{
    startWithFindings();
    EXPECT_FALSE(panel().isVisible());
    EXPECT_TRUE(state().Findings().empty()) << "and nothing is looked at";
    openPanel();
    EXPECT_TRUE(panel().isVisible());
    EXPECT_EQ(360, panel().width());
    EXPECT_EQ(window->width(), panel().geometry().right() + 1);
    EXPECT_TRUE(list().hasFocus());
    EXPECT_EQ(QStringLiteral("2 errors, 1 warning, 5 notes"), counts());
    EXPECT_EQ(
        QStringList({QStringLiteral("Errors 2"), QStringLiteral("Warnings 1"), QStringLiteral("Notes 5")}), groups());
    const auto &sheet = control<QWidget>(*window, "pctPreview");
    EXPECT_EQ(window->width() - 360, sheet.width()) << "beside the preview";
    EXPECT_EQ(window->width(), row("tbSection").width()) << "and below the tabs, which keep their length";
}

TEST_F(CheckPanel, IsLeftOpenFromOneStartToTheNext)
{
    startWithFindings();
    openPanel();
    window.reset();
    start();
    EXPECT_TRUE(panel().isVisible());
    QTest::mouseClick(&control<oCloseButton>(panel(), "cmdCloseCheck"), Qt::LeftButton);
    EXPECT_FALSE(panel().isVisible());
    window.reset();
    start();
    EXPECT_FALSE(panel().isVisible());
}

TEST_F(CheckPanel, IsWalkedByKeys)
{
    startWithFindings();
    openPanel();
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Item 1, 01/06/27"))) << qPrintable(chosen());
    press(Qt::Key_Down);
    EXPECT_EQ(NoTime, chosen());
    press(Qt::Key_Down);
    EXPECT_EQ(QStringLiteral("Warnings"), chosen());
    press(Qt::Key_Left);
    EXPECT_EQ(QStringLiteral("Warnings 1 folded"), groups()[1]);
    press(Qt::Key_Down);
    EXPECT_EQ(QStringLiteral("Notes"), chosen());
    press(Qt::Key_Up);
    press(Qt::Key_Right);
    EXPECT_EQ(QStringLiteral("Warnings 1"), groups()[1]);
    press(Qt::Key_End);
    EXPECT_EQ(QStringLiteral("5 disbursements need a voucher."), chosen());
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Disbursement 1, Fee 1"))) << qPrintable(chosen());
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    EXPECT_FALSE(list().isExpanded(list().currentIndex()));
}

TEST_F(CheckPanel, F8GoesFromFindingToFindingFromAnywhereInTheWindow)
{
    startWithFindings();
    control<QWidget>(*window, "sgPreview").setFocus();
    press(Qt::Key_F8);
    EXPECT_TRUE(panel().isVisible());
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Item 1,"))) << qPrintable(chosen());
    row("tbSection").setFocus();
    QTest::keyClick(window.get(), Qt::Key_F8);
    EXPECT_EQ(NoTime, chosen());
    QTest::keyClick(window.get(), Qt::Key_F8);
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Item 2"))) << qPrintable(chosen());
    QTest::keyClick(window.get(), Qt::Key_F8);
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Disbursement 1,"))) << "out of the folded row";
    for (int i = 0; i < 9; ++i)
        QTest::keyClick(window.get(), Qt::Key_F8);
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Disbursement 5,"))) << "and stays at the last";
    for (int i = 0; i < 9; ++i)
        QTest::keyClick(window.get(), Qt::Key_F8, Qt::ShiftModifier);
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Item 1,")));
}

TEST_F(CheckPanel, WhatIsNoMistakeIsPutAsideAndTakenBack)
{
    startWithFindings();
    openPanel();
    press(Qt::Key_Down);
    chooseFromMenu("mnuPutAside");
    EXPECT_EQ(QStringList({QStringLiteral("Errors 1"), QStringLiteral("Warnings 1"), QStringLiteral("Notes 5"),
                  QStringLiteral("Put aside 1 folded")}),
        groups());
    EXPECT_EQ(QStringLiteral("1 error, 1 warning, 5 notes"), counts());
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Item 2"))) << "the next one: " << qPrintable(chosen());
    press(Qt::Key_End); // the group
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    EXPECT_EQ(NoTime, chosen());
    chooseFromMenu("mnuPutAside");
    EXPECT_EQ(QStringLiteral("2 errors, 1 warning, 5 notes"), counts());
    EXPECT_EQ(3, model().rowCount());
}

TEST_F(CheckPanel, WhatWasPutAsideIsKeptForTheClaimUntilItsItemChanges)
{
    const QString claim = sample("housing-typical.zr3");
    start(claim);
    window->resize(1400, 760);
    Form->ScheduleOfTimeItem(1)->dDate = QString();
    openPanel();
    const QString before = counts();
    press(Qt::Key_F8);
    const QString text = chosen();
    chooseFromMenu("mnuPutAside");
    const QString after = counts();
    EXPECT_NE(before, after);
    EXPECT_TRUE(QFile::exists(StateFolder() + QStringLiteral("/Put aside.json")));
    state().Forget();
    window->CheckClaim();
    EXPECT_EQ(after, counts()) << "read anew";
}

TEST_F(CheckPanel, TheMenuOpensByKeysAndByItsSign)
{
    startWithFindings();
    openPanel();
    const auto menu = [this] { return list().findChild<QMenu *>(QStringLiteral("mnuFinding")); };
    const auto closed = [&] {
        const bool shown = menu() && menu()->isVisible();
        delete menu();
        return shown;
    };
    press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(closed());
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(list().viewport(), &key);
    EXPECT_TRUE(closed());
    const QRect row = list().visualRect(list().currentIndex());
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, QPoint(row.right() - 20, row.center().y()));
    EXPECT_TRUE(closed());
    press(Qt::Key_Home); // a group has no menu
    press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_FALSE(closed());
}

TEST_F(CheckPanel, ManyNotesAreFoldedTogetherAndPutAsideTogether)
{
    startWithFindings();
    openPanel();
    press(Qt::Key_End);
    chooseFromMenu("mnuPutAside");
    EXPECT_EQ(QStringLiteral("2 errors, 1 warning"), counts());
    EXPECT_EQ(QStringLiteral("Put aside 5 folded"), groups().last());
}

TEST_F(CheckPanel, TheChosenFindingIsReadWhole)
{
    startWithFindings();
    Form->Disbursement(1)->Description = QStringLiteral("A very long description of what was paid for ").repeated(3);
    Form->Disbursement(1)->Amount = QStringLiteral("0.00");
    openPanel();
    const auto rowOf = [this](const QString &beginning) {
        const QModelIndex errors = model().index(0, 0);
        for (int row = 0; row < model().rowCount(errors); ++row)
            if (const QModelIndex at = model().index(row, 0, errors); at.data().toString().startsWith(beginning))
                return at;
        return QModelIndex();
    };
    const QModelIndex longOne = rowOf(QStringLiteral("Disbursement 1"));
    ASSERT_TRUE(longOne.isValid());
    const int cut = list().visualRect(longOne).height();
    list().selectionModel()->setCurrentIndex(longOne, QItemSelectionModel::ClearAndSelect);
    EXPECT_GT(list().visualRect(longOne).height(), cut);
    press(Qt::Key_Home);
    EXPECT_EQ(cut, list().visualRect(longOne).height());
}

TEST_F(CheckPanel, ABrokenFileIsToldInOneLine)
{
    writeBroken("Put aside.json");
    startWithFindings();
    openPanel();
    const auto &line = control<QLabel>(panel(), "lblCheckTrouble");
    EXPECT_TRUE(line.isVisible());
    EXPECT_EQ(QStringLiteral("What was put aside could not be read. Its file has been set aside."), line.text());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CheckPanel, ABrokenFileOfOpenPanelsIsToldInOneLine)
{
    writeBroken("Panels.json");
    startWithFindings();
    EXPECT_EQ(
        QStringList(QStringLiteral("Which panels were open could not be read. The file was set aside")), user.lines);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(QFile::exists(StateFolder() + QStringLiteral("/Panels.json.broken")));
    openPanel();
    EXPECT_EQ(1, user.lines.size()) << "told once";
}

TEST_F(CheckPanel, F8GoesOnFromTheHeadingOfAGroup)
{
    startWithFindings();
    openPanel();
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    ASSERT_EQ(QStringLiteral("Warnings"), chosen());
    press(Qt::Key_F8);
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Item 2"))) << qPrintable(chosen());
    press(Qt::Key_Up);
    ASSERT_EQ(QStringLiteral("Warnings"), chosen());
    press(Qt::Key_F8, Qt::ShiftModifier);
    EXPECT_EQ(NoTime, chosen());
}

TEST_F(CheckPanel, StandsBetweenThePreviewAndTheTotalsForTheTabKey)
{
    startWithFindings();
    openPanel();
    auto &strip = control<oTotalsStrip>(*window, "oTotalsStrip");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !strip.Shown().isEmpty(); }, 5000));
    control<QWidget>(*window, "sgPreview").setFocus();
    press(Qt::Key_Tab);
    EXPECT_TRUE(list().hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(control<oCloseButton>(panel(), "cmdCloseCheck").hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(strip.isAncestorOf(QApplication::focusWidget()));
    press(Qt::Key_Tab);
    EXPECT_TRUE(window->footer()->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(CheckPanel, LiesOverThePreviewOfANarrowWindow)
{
    startWithFindings(1200);
    auto &sheet = control<QWidget>(*window, "pctPreview");
    openPanel();
    EXPECT_EQ(window->width(), sheet.width());
    EXPECT_EQ(360, panel().width());
    press(Qt::Key_Escape);
    EXPECT_FALSE(panel().isVisible());
    EXPECT_TRUE(control<QWidget>(*window, "sgPreview").hasFocus());
    openPanel();
    window->resize(1280, 760);
    EXPECT_EQ(1280 - 360, sheet.width());
    const auto &grid = control<oPreviewGrid>(*window, "sgPreview");
    EXPECT_EQ(std::lround(grid.width() / 103.0 * 10), grid.ColumnWidth(13)) << "fitted to what is left";
    press(Qt::Key_Escape);
    EXPECT_TRUE(panel().isVisible()) << "beside the preview it hides nothing";
}

TEST_F(CheckPanel, FitsTheColumnsOfThePreviewToWhatIsLeft)
{
    start(sample("housing-typical.zr3"));
    window->resize(1400, 760);
    window->PreviewScheduleOfTime();
    auto &grid = control<oPreviewGrid>(*window, "sgPreview");
    const int before = grid.ColumnWidth(13);
    const int rows = grid.Rows();
    grid.verticalScrollBar()->setValue(60);
    openPanel();
    EXPECT_LT(grid.ColumnWidth(13), before);
    EXPECT_EQ(std::lround(grid.width() / 103.0 * 10), grid.ColumnWidth(13));
    EXPECT_EQ(rows, grid.Rows());
    EXPECT_EQ(60, grid.verticalScrollBar()->value());
    window->CloseCheck();
    EXPECT_EQ(before, grid.ColumnWidth(13));
}

TEST_F(CheckPanel, SaysThatNothingIsFound)
{
    start(sample("empty.zr3"));
    window->resize(1400, 760);
    for (int page = 1; page <= 13; ++page)
        Form->field(QStringLiteral("IncludePage%1").arg(page))->writeBoolean(false);
    openPanel();
    const auto &nothing = control<QLabel>(panel(), "lblCheckNothing");
    EXPECT_TRUE(nothing.isVisible());
    EXPECT_EQ(QStringLiteral("Nothing found."), nothing.text());
    EXPECT_FALSE(list().isVisible());
    EXPECT_EQ(QString(), counts());
    EXPECT_TRUE(control<oCloseButton>(panel(), "cmdCloseCheck").hasFocus());
    fill(*Form);
    window->Activate();
    EXPECT_TRUE(list().isVisible());
    EXPECT_TRUE(list().hasFocus());
    user.answers = {clsUserInterface::No};
    entry("mnuNew").trigger();
    EXPECT_NE(QStringLiteral("2 errors, 1 warning, 5 notes"), counts()) << "another claim";
}

TEST_F(CheckPanel, IsReadOut)
{
    startWithFindings();
    openPanel();
    EXPECT_LT(4, expectSensibleNames(*window));
    EXPECT_EQ(QStringLiteral("Findings"), list().accessibleName());
    EXPECT_EQ(counts(), list().accessibleDescription());
    EXPECT_EQ(QStringLiteral("Errors, 2"), model().index(0, 0).data(Qt::AccessibleTextRole).toString());
    EXPECT_EQ(QStringLiteral("Error: ") + NoTime + QStringLiteral(" Schedule of Time, item 3"),
        model().index(1, 0, model().index(0, 0)).data(Qt::AccessibleTextRole).toString());
}
