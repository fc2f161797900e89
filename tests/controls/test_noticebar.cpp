#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"
#include "controls/oFooterBar.h"
#include "controls/oFooterLine.h"
#include "controls/oNoticeBar.h"
#include "tests/support/mdTry.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QtTest>

#include <gtest/gtest.h>

namespace {

class NoticeBar : public testing::Test {
protected:
    NoticeBar()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(bar);
        layout->addWidget(box);
        layout->addStretch();
        window.resize(900, 700);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    clsNotice notice(Sign sign, const char *sentence, const char *answer = "&Open")
    {
        return {sign, QString::fromLatin1(sentence),
            {{QString::fromLatin1(answer), [this, sentence] { pressed << QString::fromLatin1(sentence); }}}};
    }
    oCustomButton &button(const char *name) const { return *bar->findChild<oCustomButton *>(QLatin1String(name)); }
    QString count() const { return bar->findChild<QLabel *>(QStringLiteral("lblCount"))->text(); }
    QColor dot(int x, int y) const { return bar->grab().toImage().pixelColor(x, y); }

    QWidget window;
    oNoticeBar *bar = new oNoticeBar;
    QPushButton *box = new QPushButton(QStringLiteral("below"));
    QStringList pressed;
};

} // namespace

TEST_F(NoticeBar, IsNotThereWithoutANotice)
{
    EXPECT_FALSE(bar->isVisible());
    bar->setNotices({notice(Sign::Note, "One")});
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(Theme::scaled(40), bar->height());
    bar->setNotices({});
    EXPECT_FALSE(bar->isVisible());
    EXPECT_EQ(QString(), bar->Sentence());
}

TEST_F(NoticeBar, HasTheEdgeAndTheTintOfItsLevel)
{
    const struct {
        Sign sign;
        QColor edge;
        QColor tint;
    } looks[] = {{Sign::Note, QColor(0, 114, 188), QColor(0xEE, 0xF5, 0xFA)},
        {Sign::Warning, QColor(0x8F, 0x53, 0x00), QColor(0xFD, 0xF4, 0xE7)},
        {Sign::Error, QColor(177, 17, 22), QColor(255, 246, 241)}};
    for (const auto &look : looks) {
        bar->setNotices({notice(look.sign, "One")});
        for (const int x : {0, 2})
            EXPECT_EQ(look.edge, dot(x, 20));
        EXPECT_EQ(look.tint, dot(3, 20));
        EXPECT_EQ(look.tint, dot(300, 4));
    }
}

TEST_F(NoticeBar, ShowsOneOfSeveralAndGoesOn)
{
    bar->setNotices({notice(Sign::Error, "Not saved"), notice(Sign::Note, "Left", "&Discard")});
    EXPECT_EQ(QStringLiteral("Not saved"), bar->Sentence());
    EXPECT_EQ(QStringLiteral("1 of 2"), count());
    EXPECT_TRUE(button("cmdNextNotice").isVisible());
    QTest::mouseClick(&button("cmdNextNotice"), Qt::LeftButton);
    EXPECT_EQ(QStringLiteral("Left"), bar->Sentence());
    EXPECT_EQ(QStringLiteral("2 of 2"), count());
    EXPECT_EQ(QStringLiteral("Discard"), button("cmdAnswer1").Caption());
    bar->showNext();
    EXPECT_EQ(QStringLiteral("Not saved"), bar->Sentence());
    bar->setNotices({notice(Sign::Error, "Not saved")});
    EXPECT_FALSE(button("cmdNextNotice").isVisible());
}

TEST_F(NoticeBar, KeepsWhatIsReadUnlessAGraverOneComes)
{
    bar->setNotices({notice(Sign::Note, "Left"), notice(Sign::Note, "Other")});
    bar->showNext();
    bar->setNotices({notice(Sign::Note, "Left"), notice(Sign::Note, "Other")});
    EXPECT_EQ(QStringLiteral("Other"), bar->Sentence());
    bar->setNotices({notice(Sign::Error, "Not saved"), notice(Sign::Note, "Left"), notice(Sign::Note, "Other")});
    EXPECT_EQ(QStringLiteral("Not saved"), bar->Sentence());
    bar->setNotices({notice(Sign::Note, "Left"), notice(Sign::Note, "Other")});
    EXPECT_EQ(QStringLiteral("Left"), bar->Sentence());
}

TEST_F(NoticeBar, TakesNoFocusAndIsFirstInTheOrder)
{
    box->setFocus();
    bar->setNotices({notice(Sign::Note, "One")});
    EXPECT_TRUE(box->hasFocus());
    QTest::keyClick(&window, Qt::Key_Tab);
    EXPECT_TRUE(button("cmdAnswer1").hasFocus());
    bar->setNotices({});
    EXPECT_TRUE(box->hasFocus());
}

TEST_F(NoticeBar, LeavesTheFocusOfAWindowThatHasNoneYetToWhatStandsBelow)
{
    QWidget fresh;
    auto *layout = new QVBoxLayout(&fresh);
    auto *first = new oNoticeBar;
    auto *below = new QPushButton;
    layout->addWidget(first);
    layout->addWidget(below);
    first->setNotices({notice(Sign::Note, "One")});
    fresh.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fresh));
    EXPECT_TRUE(below->hasFocus());
}

TEST_F(NoticeBar, ItsButtonsAnswerKeysAndMouse)
{
    bar->setNotices({notice(Sign::Note, "One")});
    QTest::mouseClick(&button("cmdAnswer1"), Qt::LeftButton);
    QTest::keyClick(&window, Qt::Key_O, Qt::AltModifier);
    button("cmdAnswer1").setFocus();
    QTest::keyClick(&button("cmdAnswer1"), Qt::Key_Return);
    EXPECT_EQ(3, pressed.size());
}

TEST_F(NoticeBar, IsAnnouncedOnce)
{
    // The offscreen platform has no screen reader, so the signal is checked instead.
    const QSignalSpy announced(bar, &oNoticeBar::Announced);
    const std::vector<clsNotice> one {notice(Sign::Warning, "Changed on disk")};
    bar->setNotices(one);
    bar->setNotices(one);
    EXPECT_EQ(1, announced.count());
    const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(bar);
    ASSERT_TRUE(spoken);
    EXPECT_EQ(QAccessible::AlertMessage, spoken->role());
    EXPECT_EQ(QStringLiteral("Warning: Changed on disk"), spoken->text(QAccessible::Name));
    bar->setNotices({});
    bar->setNotices(one);
    EXPECT_EQ(2, announced.count()) << "it came anew";
}

TEST_F(NoticeBar, CutsALongSentenceAndShowsTheWholeInTheTooltip)
{
    const QByteArray longName = QByteArray(300, 'x') + " was not closed properly";
    bar->setNotices({notice(Sign::Note, longName.constData())});
    QCoreApplication::processEvents();
    auto *sentence = bar->findChild<QLabel *>(QStringLiteral("lblSentence"));
    EXPECT_TRUE(sentence->text().contains(QChar(0x2026)));
    EXPECT_EQ(QString::fromLatin1(longName), bar->toolTip());
    EXPECT_LE(button("cmdAnswer1").geometry().right(), bar->width());
    EXPECT_EQ(900, window.width());
}

TEST_F(NoticeBar, HasLowerButtonsInALowWindow)
{
    bar->setNotices({notice(Sign::Note, "One")});
    EXPECT_EQ(Theme::scaled(28) + 2 * Theme::RingRoom, button("cmdAnswer1").height());
    window.resize(900, Theme::scaled(600));
    QTRY_COMPARE(button("cmdAnswer1").height(), Theme::scaled(24) + 2 * Theme::RingRoom);
}

TEST(FooterLine, ComesForTenSecondsAndGoes)
{
    oFooterBar footer;
    footer.resize(1000, footer.sizeHint().height());
    footer.show();
    auto *line = footer.findChild<oFooterLine *>();
    ASSERT_TRUE(line);
    EXPECT_FALSE(line->isVisible());
    footer.showLine(QStringLiteral("Saved."));
    EXPECT_TRUE(line->isVisible());
    EXPECT_EQ(QStringLiteral("Saved."), line->accessibleName());
    EXPECT_LT(400, line->width());
    auto *timer = line->findChild<QTimer *>();
    EXPECT_EQ(10000, timer->interval());
    QMetaObject::invokeMethod(timer, "timeout");
    EXPECT_FALSE(line->isVisible());
}
