#include "controls/oCustomButton.h"
#include "controls/oTypeAheadBox.h"
#include "tests/support/mdTestPrinting.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QCompleter>
#include <QDialog>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

/// A box in a window with a default button, which Return presses.
class TypeAhead : public testing::Test {
protected:
    void SetUp() override
    {
        save.setLook(oCustomButton::Look::Default);
        auto *rows = new QVBoxLayout(&window);
        rows->addWidget(&box);
        rows->addWidget(&save);
        box.setSuggestions({QStringLiteral("Partner"), QStringLiteral("Trainee"), QStringLiteral("Paralegal")});
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        box.setFocus(Qt::TabFocusReason);
    }
    QAbstractItemView &popup() { return *box.completer()->popup(); }
    QStringList suggested()
    {
        QStringList texts;
        if (popup().isVisible())
            for (int row = 0; row < popup().model()->rowCount(); ++row)
                texts << popup().model()->index(row, 0).data().toString();
        return texts;
    }

    QDialog window;
    oTypeAheadBox box;
    oCustomButton save;
};

} // namespace

TEST_F(TypeAhead, SuggestsWhatBeginsWithTheTypedTextWhateverTheCapitals)
{
    QTest::keyClicks(&box, QStringLiteral("pa"));
    EXPECT_EQ(QStringList({QStringLiteral("Partner"), QStringLiteral("Paralegal")}), suggested());
    QTest::keyClicks(&box, QStringLiteral("rt"));
    EXPECT_EQ(QStringList {QStringLiteral("Partner")}, suggested());
    EXPECT_EQ(QStringLiteral("part"), box.Text()) << "nothing is completed by itself";
    QTest::keyClicks(&box, QStringLiteral("y"));
    EXPECT_EQ(QStringList(), suggested());
    EXPECT_EQ(QStringLiteral("party"), box.Text());
}

TEST_F(TypeAhead, APasteIsOneLineWithPlainBlanks)
{
    QApplication::clipboard()->setText(QString::fromUtf8("Senior\u00a0\r\npartner"));
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("Senior  partner"), box.Text());
}

TEST_F(TypeAhead, ATextThatComesTwiceIsSuggestedOnceAtItsFirstPlace)
{
    box.setSuggestions({QStringLiteral("B"), QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("b")});
    EXPECT_EQ(QStringList({QStringLiteral("B"), QStringLiteral("A"), QStringLiteral("b")}), box.Suggestions());
}

TEST_F(TypeAhead, DownShowsAllInAnEmptyBoxAndThoseThatFitInAnother)
{
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(3, suggested().size());
    popup().hide();
    QTest::keyClicks(&box, QStringLiteral("t"));
    popup().hide();
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(QStringList {QStringLiteral("Trainee")}, suggested());
    EXPECT_EQ(QStringLiteral("t"), box.Text());
}

TEST_F(TypeAhead, DownOnATextThatNobodyTypedShowsAll)
{
    box.setText(QStringLiteral("Trainee"));
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(3, suggested().size());
    EXPECT_EQ(QStringLiteral("Trainee"), box.Text());
    QTest::keyClick(&popup(), Qt::Key_Escape);
    // After further typing the text counts again.
    QTest::keyClick(&box, Qt::Key_Backspace);
    popup().hide();
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(QStringList {QStringLiteral("Trainee")}, suggested());
}

TEST_F(TypeAhead, TheArrowShowsAllToTheMouseAndIsThereOnlyForSuggestions)
{
    auto *arrow = box.findChild<QToolButton *>();
    ASSERT_TRUE(arrow);
    EXPECT_TRUE(arrow->isVisible());
    EXPECT_EQ(Qt::NoFocus, arrow->focusPolicy());
    EXPECT_GT(arrow->x(), box.width() / 2);
    QTest::keyClicks(&box, QStringLiteral("Tr"));
    popup().hide();
    save.setFocus(Qt::TabFocusReason);
    QTest::mouseClick(arrow, Qt::LeftButton);
    EXPECT_EQ(3, suggested().size());
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(QStringLiteral("Tr"), box.Text());
    popup().hide();
    box.setSuggestions({});
    EXPECT_FALSE(arrow->isVisible());
}

TEST_F(TypeAhead, TheSuggestionsCloseWhenTheFocusGoesElsewhere)
{
    QLineEdit other;
    window.layout()->addWidget(&other);
    other.show();
    QTest::keyClicks(&box, QStringLiteral("pa"));
    ASSERT_TRUE(popup().isVisible());
    other.setFocus(Qt::ShortcutFocusReason);
    EXPECT_FALSE(popup().isVisible());
    EXPECT_TRUE(other.hasFocus());
    EXPECT_FALSE(box.hasFocus());
    EXPECT_EQ(QStringLiteral("pa"), box.Text());
}

TEST_F(TypeAhead, ASuggestionIsChosenByDownAndReturnWhichPressesNothing)
{
    QSignalSpy pressed(&save, &oCustomButton::Click);
    QTest::keyClicks(&box, QStringLiteral("pa"));
    QTest::keyClick(&popup(), Qt::Key_Down);
    QTest::keyClick(&popup(), Qt::Key_Down);
    EXPECT_EQ(QStringLiteral("Paralegal"), box.Text());
    QTest::keyClick(&popup(), Qt::Key_Return);
    EXPECT_FALSE(popup().isVisible());
    EXPECT_EQ(QStringLiteral("Paralegal"), box.Text());
    EXPECT_EQ(0, pressed.size());
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(1, pressed.size());
}

TEST_F(TypeAhead, ReturnOnATypedTextPressesTheDefaultButtonAtOnceAndKeepsTheText)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QSignalSpy pressed(&save, &oCustomButton::Click);
        box.clear();
        QTest::keyClicks(&box, QStringLiteral("Pa"));
        ASSERT_TRUE(popup().isVisible());
        QTest::keyClick(&popup(), key);
        EXPECT_EQ(1, pressed.size());
        EXPECT_EQ(QStringLiteral("Pa"), box.Text());
        EXPECT_FALSE(popup().isVisible());
    }
}

TEST_F(TypeAhead, EscClosesTheSuggestionsBeforeTheWindow)
{
    QTest::keyClicks(&box, QStringLiteral("Pa"));
    QTest::keyClick(&popup(), Qt::Key_Escape);
    EXPECT_FALSE(popup().isVisible());
    EXPECT_TRUE(window.isVisible());
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(TypeAhead, TheProgramsTextSuggestsNothing)
{
    box.setText(QStringLiteral("Pa"));
    EXPECT_EQ(QStringList(), suggested());
    EXPECT_EQ(QStringLiteral("Pa"), box.property("Text").toString());
}

TEST_F(TypeAhead, TheCaretStandsAtTheEndOnEntering)
{
    box.setText(QStringLiteral("Partner"));
    save.setFocus(Qt::TabFocusReason);
    box.setCursorPosition(2);
    QTest::keyClick(&save, Qt::Key_Tab);
    ASSERT_TRUE(box.hasFocus());
    EXPECT_EQ(7, box.cursorPosition());
    EXPECT_FALSE(box.hasSelectedText());
}
