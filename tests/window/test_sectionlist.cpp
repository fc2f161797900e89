#include "preview/oPreviewGrid.h"
#include "tests/window/clsSectionListTest.h"

#include <cmath>

// The section list at the left of the main window: its place, its keys, and the screens it opens.

namespace {

using SectionList = clsSectionListTest;

} // namespace

TEST_F(SectionList, IsClosedUntilTheUserOpensItAndStaysAsItWasLeft)
{
    startOn("empty.zr3");
    EXPECT_FALSE(sections().isVisible());
    EXPECT_FALSE(entry("mnuSectionList").isChecked());
    EXPECT_TRUE(state().Findings().empty()) << "and nothing is looked at";
    openList();
    EXPECT_TRUE(sections().isVisible());
    EXPECT_TRUE(entry("mnuSectionList").isChecked());
    EXPECT_TRUE(list().hasFocus());
    window.reset();
    start();
    window->resize(1400, 760);
    EXPECT_TRUE(sections().isVisible());
    EXPECT_TRUE(entry("mnuSectionList").isChecked());
    list().setFocus();
    openList();
    EXPECT_FALSE(sections().isVisible());
    EXPECT_TRUE(control<QWidget>(*window, "sgPreview").hasFocus());
    window.reset();
    start();
    window->resize(1400, 760);
    EXPECT_FALSE(sections().isVisible());
}

TEST_F(SectionList, StandsFromTheHeaderToTheStripBesideTheTabs)
{
    startOn("empty.zr3");
    const int tabs = clsMainWindowTest::row("tbSection").width();
    openList();
    const auto top
        = [this](const char *name) { return control<QWidget>(*window, name).mapTo(window.get(), QPoint()).y(); };
    EXPECT_EQ(232, sections().width());
    EXPECT_EQ(0, sections().mapTo(window.get(), QPoint()).x());
    EXPECT_EQ(top("oHeader") + control<QWidget>(*window, "oHeader").height(), top("oSectionPanel"));
    EXPECT_EQ(top("tbSection"), top("oSectionPanel"));
    EXPECT_EQ(top("oTotalsStrip"), top("oSectionPanel") + sections().height());
    EXPECT_EQ(tabs - 232, clsMainWindowTest::row("tbSection").width());
    EXPECT_EQ(28, list().visualRect(row("Bill")).height());
    EXPECT_EQ(23, list().visualRect(row("Counsel")).height());
}

TEST_F(SectionList, IsWalkedByKeysPastTheCaptions)
{
    startOn("empty.zr3");
    openList();
    const auto after = [this](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        press(key, modifiers);
        return list().Chosen();
    };
    EXPECT_EQ(QStringLiteral("Form Setup"), list().Chosen());
    EXPECT_EQ(QStringLiteral("Form Setup"), after(Qt::Key_Up));
    EXPECT_EQ(QStringLiteral("Debtor's Details"), after(Qt::Key_End));
    EXPECT_EQ(QStringLiteral("Debtor's Details"), after(Qt::Key_Down));
    EXPECT_EQ(QStringLiteral("Details of Monies Awarded"), after(Qt::Key_Up));
    EXPECT_EQ(QStringLiteral("Details of Costs Awarded"), after(Qt::Key_Up));
    EXPECT_EQ(QStringLiteral("Communications"), after(Qt::Key_Up)) << "in the group before";
    EXPECT_EQ(QStringLiteral("Details of Costs Awarded"), after(Qt::Key_Down));
    EXPECT_EQ(QStringLiteral("Form Setup"), after(Qt::Key_Home));
    EXPECT_EQ(QStringLiteral("Previous Advice"), after(Qt::Key_P)) << "and not the caption Pre-Bill Sections";
    EXPECT_EQ(QStringLiteral("Form Setup"), after(Qt::Key_Home));
    EXPECT_EQ(QStringLiteral("Fee Earners / Rates"), after(Qt::Key_PageDown, Qt::ControlModifier));
    EXPECT_EQ(QStringLiteral("Form Setup"), after(Qt::Key_PageUp, Qt::ControlModifier));
    EXPECT_EQ(QStringLiteral("Form Setup"), after(Qt::Key_PageUp, Qt::ControlModifier)) << "the end";
    EXPECT_EQ(QStringLiteral("Form Setup"), after(Qt::Key_PageUp));
    EXPECT_EQ(QStringLiteral("Debtor's Details"), after(Qt::Key_PageDown));
}

TEST_F(SectionList, TheWalkingKeysGoThereFromAnywhereInTheWindowWhileItIsOpen)
{
    startOn("empty.zr3");
    auto &grid = control<QWidget>(*window, "sgPreview");
    grid.setFocus();
    press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_TRUE(grid.hasFocus()) << "closed, and so it stays";
    EXPECT_FALSE(sections().isVisible());
    openList();
    grid.setFocus();
    press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_TRUE(list().hasFocus());
    EXPECT_EQ(QStringLiteral("Fee Earners / Rates"), list().Chosen());
}

TEST_F(SectionList, EnterAndAClickOpenTheScreen)
{
    startOn("empty.zr3");
    openList();
    list().Choose(QStringLiteral("Outcome of Case"));
    EXPECT_EQ(QStringLiteral("frmOutcomeOfCase"), screenAfter([this] { press(Qt::Key_Return); }));
    EXPECT_EQ(&list(), window->focusWidget());
    EXPECT_EQ(QStringLiteral("Outcome of Case"), list().Chosen());
    const auto click = [this](const char *text) {
        return screenAfter(
            [&] { QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualRect(row(text)).center()); });
    };
    EXPECT_EQ(QStringLiteral("frmCounsel"), click("Counsel"));
    EXPECT_EQ(QString(), click("Pre-Bill Sections"));
    EXPECT_EQ(QStringLiteral("Counsel"), list().Chosen());
}

TEST_F(SectionList, EachSectionOpensItsOwnScreen)
{
    startOn("empty-1a.zr3");
    QStringList asked;
    window->createScreen = [&](const QString &text, QWidget *) {
        asked << text;
        return nullptr;
    };
    openList();
    QStringList all;
    for (int tab = 1; tab <= 4; ++tab)
        all += mdSubSectionTabs(tab, QStringLiteral("Claim1A"));
    for (int i = 0; i < all.size(); ++i) {
        press(Qt::Key_Enter);
        press(Qt::Key_Down);
    }
    EXPECT_EQ(all, asked);
}

TEST_F(SectionList, TheSectionToWhichTheUserHasGoneOnIsTheChosenOne)
{
    startOn("empty.zr3");
    openList();
    list().Choose(QStringLiteral("Client Details"));
    QTimer::singleShot(
        200, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_PageDown, Qt::ControlModifier); });
    QStringList screens;
    QTimer::singleShot(600, [&] {
        auto *screen = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        ASSERT_TRUE(screen);
        screens << screen->objectName();
        screen->reject();
    });
    press(Qt::Key_Return);
    EXPECT_EQ(QStringList(QStringLiteral("frmSolicitorDetails")), screens);
    EXPECT_EQ(QStringLiteral("Solicitor Details"), list().Chosen());
}

TEST_F(SectionList, MarksARowWithTheFocusOnly)
{
    startOn("empty.zr3");
    openList();
    list().Choose(QStringLiteral("Case Information"));
    EXPECT_TRUE(isMarked("Case Information"));
    EXPECT_FALSE(isMarked("Outcome of Case"));
    control<QWidget>(*window, "sgPreview").setFocus();
    EXPECT_FALSE(isMarked("Case Information"));
}

TEST_F(SectionList, IsOneStopOfTheTabKeyBeforeTheTabs)
{
    startOn("empty.zr3");
    openList();
    press(Qt::Key_Tab);
    EXPECT_TRUE(clsMainWindowTest::row("tbSection").isAncestorOf(QApplication::focusWidget()));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(list().hasFocus());
}

TEST_F(SectionList, ItsCrossShowsWithTheFocusAndUnderThePointer)
{
    startOn("empty.zr3");
    openList();
    EXPECT_TRUE(QTest::qWaitFor([this] { return cross().isVisible(); }, 1000));
    control<QWidget>(*window, "sgPreview").setFocus();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !cross().isVisible(); }, 1000));
    list().setFocus();
    EXPECT_TRUE(QTest::qWaitFor([this] { return cross().isVisible(); }, 1000));
    QTest::mouseClick(&cross(), Qt::LeftButton);
    EXPECT_FALSE(sections().isVisible());
    EXPECT_FALSE(entry("mnuSectionList").isChecked());
    EXPECT_TRUE(control<QWidget>(*window, "sgPreview").hasFocus());
}

TEST_F(SectionList, GivesWayInANarrowWindow)
{
    startOn("housing-typical.zr3", 1280);
    window->PreviewScheduleOfTime();
    openList();
    const auto &grid = control<oPreviewGrid>(*window, "sgPreview");
    const auto fitted = [&](int width) {
        EXPECT_EQ(width, control<QWidget>(*window, "pctPreview").width());
        EXPECT_EQ(std::lround(grid.width() / 103.0 * 10), grid.ColumnWidth(13));
    };
    fitted(1280 - 232);
    openList();
    fitted(1280);
    openList();
    window->resize(1100, 700);
    EXPECT_EQ(232, sections().width());
    window->resize(1099, 700);
    EXPECT_EQ(44, sections().width());
    fitted(1099 - 44);
    EXPECT_EQ(QStringLiteral("Late Submission, begun"), row("Late Submission").data(Qt::ToolTipRole).toString());
    EXPECT_FALSE(cross().isVisible());
    EXPECT_LT(list().visualRect(row("Client Details")).top() - list().visualRect(row("Enhancements")).bottom(), 20);
    window->resize(960, 700);
    EXPECT_TRUE(sections().isVisible());
    EXPECT_TRUE(entry("mnuSectionList").isEnabled());
    window->resize(959, 700);
    EXPECT_FALSE(sections().isVisible());
    EXPECT_FALSE(entry("mnuSectionList").isEnabled());
    fitted(959);
    window->resize(1280, 700);
    EXPECT_EQ(232, sections().width()) << "it was closed for the room only";
    fitted(1280 - 232);
}

TEST_F(SectionList, LeavesTheCheckAndTheFormPagesTheirPlaces)
{
    startWithFindings(1280);
    openList();
    openPanel();
    EXPECT_EQ(1280 - 232 - 360, control<QWidget>(*window, "pctPreview").width());
    EXPECT_EQ(1280, panelRight());
    window->FormPages();
    openList();
    EXPECT_FALSE(sections().isVisible());
    EXPECT_TRUE(control<QWidget>(*window, "oFormPages").isVisible());
    const auto &pages = control<QWidget>(*window, "oFormPages");
    EXPECT_TRUE(QTest::qWaitFor([&] { return pages.width() == 1280 - 360; }, 1000)) << pages.width();
}

TEST_F(SectionList, StaysOpenForThisStartWhereTheStateFolderCanNotBeWritten)
{
    startOn("empty.zr3");
    QFile::remove(StateFolder() + QStringLiteral("/Panels.json"));
    ASSERT_TRUE(QDir().mkpath(StateFolder() + QStringLiteral("/Panels.json/in the way")));
    openList();
    EXPECT_TRUE(sections().isVisible());
    EXPECT_TRUE(user.messages.empty());
}
