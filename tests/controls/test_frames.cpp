#include "controls/mdTheme.h"
#include "controls/oContentSwitcher.h"
#include "controls/oCustomButton.h"
#include "controls/oFrame.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

/// The events of a frame, in their order.
std::vector<std::string> eventsOf(const oFrame &frame, const std::function<void()> &doing)
{
    std::vector<std::string> events;
    QObject listener;
    QObject::connect(&frame, &oFrame::Resized, &listener, [&] { events.push_back("Resized"); });
    QObject::connect(&frame, &oFrame::ExpandCollapse, &listener, [&] { events.push_back("ExpandCollapse"); });
    QObject::connect(&frame, &oFrame::Click, &listener, [&] { events.push_back("Click"); });
    doing();
    return events;
}

/// A switcher of three pages with a box on each, shown.
struct Pages : oContentSwitcher {
    Pages()
    {
        for (const char *caption : {"General Settings", "Replacements", "Rate Sets"}) {
            auto *container = new QWidget;
            auto *column = new QVBoxLayout(container);
            boxes.push_back(new QLineEdit(container));
            column->addWidget(boxes.back());
            AddContent(container, QLatin1String(caption));
        }
        resize(400, 400);
        show();
        activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
    }
    oFrame *frame(int page) const { return findChildren<oFrame *>()[page - 1]; }
    QWidget *caption(int page) const { return frame(page)->captionBar(); }
    /// The pages whose contents are visible.
    std::vector<int> visible() const
    {
        std::vector<int> result;
        for (int page = 1; page <= int(boxes.size()); ++page)
            if (boxes[size_t(page - 1)]->isVisible())
                result.push_back(page);
        return result;
    }
    std::vector<QLineEdit *> boxes;
};

} // namespace

TEST(Frame, ACaptionsClickRaisesClickAndThenExpandCollapse)
{
    oFrame frame;
    frame.setCaption(QStringLiteral("General"));
    frame.resize(300, 200);
    frame.show();
    EXPECT_THAT(eventsOf(frame, [&] { QTest::mouseClick(frame.captionBar(), Qt::LeftButton); }),
        ElementsAre("Click", "ExpandCollapse"));
}

TEST(Frame, AClickOnTheBodyRaisesClickOnly)
{
    oFrame frame;
    auto *label = new QLabel(QStringLiteral("Surname:"));
    frame.bodyLayout()->addWidget(label);
    frame.resize(300, 200);
    frame.show();
    EXPECT_THAT(
        eventsOf(frame, [&] { QTest::mouseClick(&frame, Qt::LeftButton, {}, QPoint(5, 190)); }), ElementsAre("Click"));
    EXPECT_THAT(
        eventsOf(frame, [&] { QTest::mouseClick(&frame, Qt::RightButton, {}, QPoint(5, 190)); }), ElementsAre());
}

TEST(Frame, ReportsThatItWasResized)
{
    oFrame frame;
    frame.resize(300, 200);
    frame.show();
    EXPECT_THAT(eventsOf(frame, [&] { frame.resize(310, 200); }), ElementsAre("Resized"));
}

TEST(Frame, WritingExpandedChangesOnlyTheIcon)
{
    oFrame frame;
    frame.setShowExpandCollapseIcon(true);
    frame.setCaption(QStringLiteral("Expert Invoices"));
    auto *box = new QLineEdit;
    frame.bodyLayout()->addWidget(box);
    frame.resize(300, 200);
    frame.show();
    const QSize hint = frame.sizeHint();
    const QImage closed = frame.captionBar()->grab().toImage();
    EXPECT_THAT(eventsOf(frame, [&] { frame.setExpanded(true); }), ElementsAre());
    EXPECT_EQ(QSize(300, 200), frame.size());
    EXPECT_EQ(hint, frame.sizeHint());
    EXPECT_TRUE(box->isVisible());
    EXPECT_NE(closed, frame.captionBar()->grab().toImage());
}

TEST(Frame, IsOfTheColoursItWasGiven)
{
    oFrame frame;
    frame.setCaption(QStringLiteral("\u2588\u2588\u2588\u2588"));
    EXPECT_EQ(Theme::Paper, frame.BackColour());
    EXPECT_EQ(Theme::Ink, frame.CaptionColour());
    frame.setBackColour(Theme::Pink);
    frame.setCaptionColour(Theme::Red);
    frame.resize(300, 100);
    const QImage picture = frame.grab().toImage();
    EXPECT_EQ(Theme::Pink, picture.pixelColor(150, 80));
    EXPECT_EQ(Theme::Red, picture.pixelColor(Theme::Space16 + 6, frame.captionBar()->geometry().bottom() - 5));
}

TEST(Frame, CaptionsOfGroupsAreTextAndThoseOfPagesAreButtons)
{
    oFrame frame;
    frame.setCaption(QStringLiteral("Expert Invoices"));
    QAccessibleInterface *caption = QAccessible::queryAccessibleInterface(frame.captionBar());
    EXPECT_EQ(QAccessible::StaticText, caption->role());
    EXPECT_EQ(Qt::NoFocus, frame.captionBar()->focusPolicy());
    frame.setShowExpandCollapseIcon(true);
    frame.setCount(2);
    EXPECT_EQ(QAccessible::Button, caption->role());
    EXPECT_EQ(QStringLiteral("Expert Invoices"), caption->text(QAccessible::Name));
    EXPECT_EQ(QStringLiteral("2 items"), caption->text(QAccessible::Description));
    EXPECT_TRUE(caption->state().collapsed);
    frame.setExpanded(true);
    EXPECT_TRUE(caption->state().expanded);
    frame.setCount(0);
    EXPECT_EQ(QString(), caption->text(QAccessible::Description));
    EXPECT_EQ(QStringLiteral("Expert Invoices"), frame.accessibleName());
}

TEST(Frame, APageCanBePressedByTheKeyboardAndByAScreenReader)
{
    oFrame frame;
    frame.setShowExpandCollapseIcon(true);
    frame.show();
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        EXPECT_THAT(
            eventsOf(frame, [&] { QTest::keyClick(frame.captionBar(), key); }), ElementsAre("Click", "ExpandCollapse"));
    QAccessibleActionInterface *action = QAccessible::queryAccessibleInterface(frame.captionBar())->actionInterface();
    ASSERT_TRUE(action->actionNames().contains(QAccessibleActionInterface::pressAction()));
    EXPECT_THAT(eventsOf(frame, [&] { action->doAction(QAccessibleActionInterface::pressAction()); }),
        ElementsAre("Click", "ExpandCollapse"));
}

TEST(Frame, AKeyHeldDownPressesACaptionOnceAndNothingAroundIt)
{
    QDialog dialogue;
    oFrame frame(&dialogue);
    frame.setShowExpandCollapseIcon(true);
    oCustomButton save(&dialogue);
    save.setLook(oCustomButton::Look::Default);
    dialogue.show();
    const QSignalSpy saved(&save, &oCustomButton::Click);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter})
        EXPECT_THAT(eventsOf(frame,
                        [&] {
                            for (const bool isRepeat : {false, true, true}) {
                                QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("\r"), isRepeat);
                                QApplication::sendEvent(frame.captionBar(), &press);
                            }
                        }),
            ElementsAre("Click", "ExpandCollapse"));
    EXPECT_EQ(0, saved.count());
}

TEST(Frame, NumbersStandAtTheRightEndOfAPagesCaption)
{
    oFrame frame;
    frame.setShowExpandCollapseIcon(true);
    frame.resize(300, 40);
    const QImage without = frame.captionBar()->grab().toImage();
    frame.setCount(7);
    const QImage with = frame.captionBar()->grab().toImage();
    const QRect left(0, 0, 250, with.height());
    EXPECT_EQ(without.copy(left), with.copy(left));
    EXPECT_NE(without, with);
    frame.setCount(0);
    EXPECT_EQ(without, frame.captionBar()->grab().toImage());
}

TEST(Frame, TheLetterOfACaptionIsUnderlinedWhileAltIsHeldOfAPageToo)
{
    const Pages pages;
    oFrame group;
    group.setCaption(QStringLiteral("Rates"));
    group.resize(300, 100);
    group.show();
    for (const bool page : {true, false}) {
        oFrame &frame = page ? *pages.frame(2) : group;
        frame.setMarkedCaption(page ? QStringLiteral("Re&placements") : QStringLiteral("R&ates"));
        QWidget &caption = *frame.captionBar();
        const QImage plain = caption.grab().toImage();
        QTest::keyPress(&caption, Qt::Key_Alt);
        const QImage held = caption.grab().toImage();
        QTest::keyRelease(&caption, Qt::Key_Alt);
        QRect changed;
        for (int y = 0; y < plain.height(); ++y)
            for (int x = 0; x < plain.width(); ++x)
                if (plain.pixel(x, y) != held.pixel(x, y))
                    changed |= QRect(x, y, 1, 1);
        // Only a line as long as the letter is wide.
        EXPECT_EQ(1, changed.height()) << page;
        EXPECT_GE(changed.width(), 5) << page;
        EXPECT_LE(changed.width(), 11) << page;
        EXPECT_EQ(plain, caption.grab().toImage()) << page;
    }
}

TEST(ContentSwitcher, OpensItsFirstPage)
{
    const oContentSwitcher empty;
    EXPECT_EQ(0, empty.OpenPage());
    const Pages pages;
    EXPECT_EQ(1, pages.OpenPage());
    EXPECT_THAT(pages.visible(), ElementsAre(1));
}

TEST(ContentSwitcher, TakesTheContainersOver)
{
    const Pages pages;
    for (int page = 1; page <= 3; ++page)
        EXPECT_TRUE(pages.frame(page)->isAncestorOf(pages.boxes[size_t(page - 1)]));
    EXPECT_EQ(QStringLiteral("Replacements"), pages.frame(2)->Caption());
}

TEST(ContentSwitcher, ButtonsAtTheEdgeOfAPageAlignWithItsBoxes)
{
    oContentSwitcher pages;
    auto *container = new QWidget;
    auto *column = new QVBoxLayout(container);
    column->setContentsMargins(0, 0, 0, 0);
    auto *box = new QLineEdit;
    auto *button = new oCustomButton;
    column->addWidget(box);
    column->addWidget(button, 0, Qt::AlignLeft);
    pages.AddContent(container, QStringLiteral("Rate Sets"));
    pages.show();
    EXPECT_EQ(box->x() - Theme::RingRoom, button->x());
    EXPECT_GE(button->x(), 0) << "its ring is not cut";
}

TEST(ContentSwitcher, SwitchToLeavesThePageOpenWhenItReturns)
{
    Pages pages;
    pages.SwitchTo(3);
    EXPECT_EQ(3, pages.OpenPage());
    EXPECT_THAT(pages.visible(), ElementsAre(3));
}

TEST(ContentSwitcher, SwitchToOnTheOpenPageLeavesItOpen)
{
    Pages pages;
    pages.SwitchTo(2);
    pages.SwitchTo(2);
    EXPECT_EQ(2, pages.OpenPage());
    EXPECT_THAT(pages.visible(), ElementsAre(2));
}

TEST(ContentSwitcher, ANumberWithoutAPageChangesNothing)
{
    Pages pages;
    pages.SwitchTo(2);
    for (const int index : {0, -1, 4})
        pages.SwitchTo(index);
    EXPECT_EQ(2, pages.OpenPage());
    EXPECT_THAT(pages.visible(), ElementsAre(2));
}

TEST(ContentSwitcher, AClickOnACaptionOpensItsPage)
{
    Pages pages;
    QTest::mouseClick(pages.caption(2), Qt::LeftButton);
    EXPECT_THAT(pages.visible(), ElementsAre(2));
    QTest::mouseClick(pages.caption(2), Qt::LeftButton);
    EXPECT_THAT(pages.visible(), ElementsAre(2));
}

TEST(ContentSwitcher, WithIgnoreClicksOnlySwitchToChangesThePage)
{
    Pages pages;
    EXPECT_FALSE(pages.IgnoreClicks());
    pages.setIgnoreClicks(true);
    QTest::mouseClick(pages.caption(2), Qt::LeftButton);
    QTest::keyClick(pages.caption(2), Qt::Key_Return);
    EXPECT_EQ(1, pages.OpenPage());
    pages.SwitchTo(3);
    EXPECT_EQ(3, pages.OpenPage());
}

TEST(ContentSwitcher, UpAndDownWalkTheCaptionsAndEnterOpens)
{
    Pages pages;
    pages.caption(1)->setFocus();
    QTest::keyClick(pages.caption(1), Qt::Key_Up);
    EXPECT_TRUE(pages.caption(1)->hasFocus());
    QTest::keyClick(pages.caption(1), Qt::Key_Down);
    EXPECT_TRUE(pages.caption(2)->hasFocus());
    QTest::keyClick(pages.caption(2), Qt::Key_Down);
    QTest::keyClick(pages.caption(3), Qt::Key_Down);
    EXPECT_TRUE(pages.caption(3)->hasFocus());
    EXPECT_EQ(1, pages.OpenPage()) << "walking opens nothing";
    QTest::keyClick(pages.caption(3), Qt::Key_Up);
    QTest::keyClick(pages.caption(2), Qt::Key_Space);
    EXPECT_EQ(2, pages.OpenPage());
    EXPECT_TRUE(pages.caption(2)->hasFocus());
}

TEST(ContentSwitcher, TheOpenPageTakesAllTheRoom)
{
    Pages pages;
    pages.SwitchTo(2);
    QCoreApplication::processEvents();
    const int closed = pages.frame(1)->height();
    EXPECT_EQ(pages.caption(1)->height() + 2, closed);
    EXPECT_EQ(closed, pages.frame(3)->height());
    EXPECT_EQ(pages.height(), pages.frame(2)->height() + 2 * (closed + Theme::Space8));
    EXPECT_EQ(36, pages.caption(1)->height());
}
