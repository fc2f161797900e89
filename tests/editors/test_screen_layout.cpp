#include "controls/mdTheme.h"
#include "tests/editors/clsScreenTest.h"

#include <QScrollArea>
#include <QScrollBar>

// Placement of the rows of a table, tested with tables made for it.

namespace {

using enum clsRowKind;

class ScreenLayout : public clsScreenTest {
protected:
    /// The number of receivers of the application's focus signal.
    static int focusListeners()
    {
        struct Listeners : QObject {
            static int of(const QObject &sender, const char *signal)
            {
                return (sender.*(&Listeners::receivers))(signal);
            }
        };
        return Listeners::of(*qApp, SIGNAL(focusChanged(QWidget *, QWidget *)));
    }
};

} // namespace

TEST_F(ScreenLayout, ButtonsOfOneLineStandCloserThanAFieldAndItsButton)
{
    const clsScreen table = editorOf({
        {Text, "txtReference", "Reference:"},
        {Button, "cmdFirst", "First", 0, SameRow},
        {Button, "cmdSecond", "Second", 0, SameRow},
        {Button, "cmdThird", "Third", 0, SameRow},
        {Tick, "chkLast", "Last:", 0, SameRow | Unbound | NoCaption},
    });
    frmScreen screen(table);
    show(screen);
    const auto gap = [&screen](const char *left, const char *right) {
        return screen.Box(right).geometry().left() - screen.Box(left).geometry().right() - 1;
    };
    EXPECT_EQ(gap("cmdFirst", "cmdSecond"), gap("cmdSecond", "cmdThird"));
    EXPECT_GT(gap("txtReference", "cmdFirst"), gap("cmdFirst", "cmdSecond"));
    EXPECT_EQ(Theme::Space24 - Theme::Space8, gap("cmdThird", "chkLast") - gap("cmdFirst", "cmdSecond"));
}

TEST_F(ScreenLayout, APageThatGoesHearsNothingOfTheFocusOfItsFields)
{
    const clsScreen table = editorOf({{Text, "txtReference", "Reference:"}});
    const int before = focusListeners();
    int whileItGoes = -1;
    {
        frmScreen screen(table);
        show(screen);
        EXPECT_EQ(before + 1, focusListeners());
        QObject::connect(
            &screen.Box("txtReference"), &QObject::destroyed, qApp, [&] { whileItGoes = focusListeners(); });
    }
    EXPECT_EQ(before, whileItGoes);
}

TEST_F(ScreenLayout, WhatHasTheFocusStaysInViewWhenTheWindowShrinks)
{
    std::vector<clsScreenRow> rows(30, {Text, "txtReference", "Reference:"});
    rows.push_back({Text, "txtGroupUniqueID", "Last:"});
    const clsScreen table = editorOf(rows);
    frmScreen screen(table);
    show(screen);
    screen.resize(640, 2000);
    QTest::qWait(20);
    QWidget &last = screen.Box("txtGroupUniqueID");
    last.setFocus(Qt::TabFocusReason);
    const QScrollArea &page = *screen.findChild<QScrollArea *>();
    const auto inView = [&] {
        const QRect place(last.mapTo(page.viewport(), QPoint()), last.size());
        return place.top() >= Theme::Space24 && place.bottom() + 1 + Theme::Space24 <= page.viewport()->height();
    };
    ASSERT_EQ(0, page.verticalScrollBar()->maximum());
    for (const int height : {700, 400}) {
        screen.resize(640, height);
        EXPECT_TRUE(QTest::qWaitFor(inView, 1000)) << height;
    }
}

TEST_F(ScreenLayout, BoxesGrowToTwelveLinesAndWhatIsLeftOverLiesBelow)
{
    const clsScreen table = editorOf({
        {Text, "txtReference", "Reference:"},
        {Text, "txtFirst", "First:", 60, MultiLine | Unbound},
        {Text, "txtSecond", "Second:", 60, MultiLine | Unbound | CaptionAbove},
        {Text, "txtLast", "Last:", 0, Unbound},
    });
    frmScreen screen(table);
    show(screen);
    const auto top = [&screen](const char *name) { return screen.Box(name).mapTo(&screen, QPoint()).y(); };
    const auto bottom = [&](const char *name) { return top(name) + screen.Box(name).height(); };
    const int gap = top("txtFirst") - bottom("txtReference");
    const int captioned = top("txtSecond") - bottom("txtFirst");
    const int below = top("txtLast") - bottom("txtSecond");
    const int height = screen.Box("txtFirst").height();
    const int line = screen.Box("txtFirst").fontMetrics().height();
    for (const int more : {50, 2000}) {
        screen.resize(screen.width(), screen.sizeHint().height() + more);
        QTest::qWait(20);
        const int grown = more == 50 ? height + 25 : height + 9 * line;
        EXPECT_NEAR(grown, screen.Box("txtFirst").height(), 1);
        EXPECT_NEAR(grown, screen.Box("txtSecond").height(), 1);
        EXPECT_EQ(gap, top("txtFirst") - bottom("txtReference"));
        EXPECT_EQ(captioned, top("txtSecond") - bottom("txtFirst"));
        EXPECT_EQ(below, top("txtLast") - bottom("txtSecond"));
    }
}
