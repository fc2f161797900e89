// The text box: its keys, its focus and the abbreviations that it expands.

#include "tests/controls/clsTextBoxTest.h"

#include <QDialog>
#include <QPushButton>

using TextBoxKeys = clsTextBoxTest;

// Abbreviations

TEST_F(TextBoxKeys, ASpaceExpandsTheWordBeforeIt)
{
    replace("ab", "above");
    box->setText(QStringLiteral("see ab"));
    enter();
    press(Qt::Key_Space);
    EXPECT_EQ(QStringLiteral("see above"), box->Text());
    EXPECT_EQ(9, box->SelStart());
    EXPECT_FALSE(editor()->textCursor().hasSelection());
}

TEST_F(TextBoxKeys, TheExpansionIsOnTheReleaseOfTheKey)
{
    replace("ab", "above");
    box->setText(QStringLiteral("ab"));
    enter();
    QTest::keyPress(editor(), Qt::Key_Space);
    EXPECT_EQ(QStringLiteral("ab "), box->Text());
    // Some desktops send key releases in between while a key is held.
    QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
    QCoreApplication::sendEvent(editor(), &repeated);
    EXPECT_EQ(QStringLiteral("ab "), box->Text());
    QTest::keyRelease(editor(), Qt::Key_Space);
    EXPECT_EQ(QStringLiteral("above"), box->Text());
}

TEST_F(TextBoxKeys, ShiftPlaysNoPart)
{
    replace("ab", "above");
    box->setText(QStringLiteral("ab"));
    enter();
    QTest::keyClick(editor(), Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(QStringLiteral("above"), box->Text());
}

TEST_F(TextBoxKeys, WithoutReplacementsTheSpaceIsASpace)
{
    replace("ab", "above");
    box->setAllowReplacements(false);
    box->setText(QStringLiteral("see ab"));
    enter();
    QSignalSpy changes(box, &oAllPurposeBox::Change);
    QTest::keyPress(editor(), Qt::Key_Space);
    EXPECT_EQ(1, changes.count());
    QTest::keyRelease(editor(), Qt::Key_Space);
    EXPECT_EQ(1, changes.count());
    EXPECT_EQ(QStringLiteral("see ab "), box->Text());
    EXPECT_EQ(7, box->SelStart());
}

TEST_F(TextBoxKeys, EverySpaceRaisesAChangeMore)
{
    enter();
    QSignalSpy changes(box, &oAllPurposeBox::Change);
    press(Qt::Key_Space);
    EXPECT_EQ(2, changes.count());
    EXPECT_EQ(QStringLiteral(" "), box->Text());
}

TEST_F(TextBoxKeys, ANewLineBegunWithAnAbbreviationIsExpanded)
{
    replace("ab", "above");
    box->setMultiLine(true);
    box->setText(QStringLiteral("one"));
    enter();
    press(Qt::Key_Return);
    type(QStringLiteral("ab"));
    press(Qt::Key_Space);
    EXPECT_EQ(QStringLiteral("one\r\nabove"), box->Text());
    EXPECT_EQ(10, box->SelStart());
}

TEST_F(TextBoxKeys, TwoSideBySideLoseTheBlankBetweenThem)
{
    replace("ab", "above");
    box->setText(QStringLiteral("ab ab"));
    enter();
    press(Qt::Key_Space);
    EXPECT_EQ(QStringLiteral("aboveab "), box->Text());
}

TEST_F(TextBoxKeys, AnExpansionWithLinesGoesIntoOneLineAsBlanks)
{
    replace("ad", "1 High Street\r\nOakham");
    box->setText(QStringLiteral("ad"));
    enter();
    press(Qt::Key_Space);
    EXPECT_EQ(QStringLiteral("1 High Street Oakham"), box->Text());
    EXPECT_EQ(20, box->SelStart());
}

TEST_F(TextBoxKeys, AnExpansionCanBeUndone)
{
    replace("ab", "above");
    box->setMultiLine(true);
    box->setText(QStringLiteral("first\r\nsee ab"));
    enter();
    press(Qt::Key_Space);
    ASSERT_EQ(QStringLiteral("first\r\nsee above"), box->Text());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("first\r\nsee ab "), box->Text());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("first\r\nsee ab"), box->Text());
    press(Qt::Key_Y, Qt::ControlModifier);
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("first\r\nsee above"), box->Text());
}

TEST_F(TextBoxKeys, UndoAndRedoOfAnExpansionLeaveTheCaretBehindIt)
{
    replace("ab", "above");
    replace("sol", "solicitor ");
    box->setMultiLine(true);
    for (const auto &[typed, expanded] : {std::pair("see ab", "see above"), {"the sol", "the solicitor "}}) {
        box->setText(QStringLiteral("first\r\n") + QLatin1String(typed) + QStringLiteral("\r\nlast"));
        enter();
        const int end = 7 + int(qstrlen(typed));
        box->setSelStart(end);
        press(Qt::Key_Space);
        ASSERT_EQ(7 + int(qstrlen(expanded)), box->SelStart());
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(end + 1, box->SelStart());
        press(Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(7 + int(qstrlen(expanded)), box->SelStart());
        press(Qt::Key_Z, Qt::ControlModifier);
        type(QStringLiteral("x"));
        EXPECT_EQ(QStringLiteral("first\r\n%1 x\r\nlast").arg(QLatin1String(typed)), box->Text());
    }
}

TEST_F(TextBoxKeys, UndoOfAnExpansionElsewhereLeavesTheCaretWhereItWas)
{
    box->setText(QStringLiteral("ab one two"));
    enter();
    replace("ab", "above");
    press(Qt::Key_Space);
    ASSERT_EQ(QStringLiteral("aboveone two "), box->Text());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("ab one two "), box->Text());
    EXPECT_EQ(11, box->SelStart());
}

TEST_F(TextBoxKeys, ASpaceThatExpandsNothingLeavesUndoAlone)
{
    box->setText(QStringLiteral("one"));
    enter();
    type(QStringLiteral(" two"));
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("one"), box->Text());
}

TEST_F(TextBoxKeys, ARecordThatIsLoadedCanNotBeUndone)
{
    enter();
    type(QStringLiteral("abc"));
    box->setText(QStringLiteral("loaded"));
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("loaded"), box->Text());
}

// Focus and keys

TEST_F(TextBoxKeys, TheFocusFindsTheCaretBehindTheText)
{
    box->setText(QStringLiteral("Hartwell"));
    EXPECT_EQ(0, box->SelStart());
    show();
    for (const auto reason : {Qt::TabFocusReason, Qt::BacktabFocusReason, Qt::ShortcutFocusReason, Qt::OtherFocusReason,
             Qt::MouseFocusReason}) {
        other->setFocus();
        editor()->selectAll();
        box->setFocus(reason);
        EXPECT_EQ(8, box->SelStart()) << reason;
        EXPECT_FALSE(editor()->textCursor().hasSelection()) << reason;
    }
}

TEST_F(TextBoxKeys, TheFocusThatComesBackFindsTheCaretWhereItWas)
{
    box->setText(QStringLiteral("Hartwell"));
    enter();
    for (const auto reason : {Qt::PopupFocusReason, Qt::MenuBarFocusReason, Qt::ActiveWindowFocusReason}) {
        box->setSelStart(3);
        QFocusEvent out(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(editor(), &out);
        QFocusEvent in(QEvent::FocusIn, reason);
        QCoreApplication::sendEvent(editor(), &in);
        EXPECT_EQ(3, box->SelStart()) << reason;
    }
}

TEST_F(TextBoxKeys, AClickPutsTheCaretWhereItIsAimed)
{
    box->setMultiLine(true);
    QString text;
    for (int line = 1; line <= 40; ++line)
        text += QStringLiteral("line %1\r\n").arg(line);
    box->setText(text);
    show();
    other->setFocus();
    editor()->verticalScrollBar()->setValue(0);
    QTest::mouseClick(editor()->viewport(), Qt::LeftButton, {}, QPoint(20, 8));
    EXPECT_TRUE(editor()->hasFocus());
    EXPECT_EQ(0, editor()->textCursor().blockNumber());
}

TEST_F(TextBoxKeys, TabLeavesABoxOfOneLineAndOfSeveral)
{
    enter();
    press(Qt::Key_Tab);
    EXPECT_TRUE(other->hasFocus());
    box->setMultiLine(true);
    box->setFocus();
    press(Qt::Key_Tab);
    EXPECT_TRUE(other->hasFocus());
    EXPECT_EQ(QString(), box->Text());
}

TEST_F(TextBoxKeys, ShiftAndReturnIsALineBreakLikeAnother)
{
    box->setMultiLine(true);
    enter();
    type(QStringLiteral("a"));
    press(Qt::Key_Return, Qt::ShiftModifier);
    type(QStringLiteral("b"));
    EXPECT_EQ(QStringLiteral("a\r\nb"), box->Text());
    EXPECT_EQ(2, editor()->blockCount());
}

TEST_F(TextBoxKeys, EnterInOneLinePressesTheDefaultButton)
{
    QDialog dialog;
    QVBoxLayout layout(&dialog);
    oAllPurposeBox line;
    oAllPurposeBox lines;
    lines.setMultiLine(true);
    QPushButton save;
    save.setDefault(true);
    layout.addWidget(&line);
    layout.addWidget(&lines);
    layout.addWidget(&save);
    QSignalSpy clicks(&save, &QPushButton::clicked);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        clicks.clear();
        line.setFocus();
        QTest::keyClick(line.focusProxy(), key);
        EXPECT_EQ(1, clicks.count());
        lines.setFocus();
        QTest::keyClick(lines.focusProxy(), key);
        EXPECT_EQ(1, clicks.count());
    }
    EXPECT_EQ(QString(), line.Text());
    EXPECT_EQ(QStringLiteral("\r\n\r\n"), lines.Text());
}

TEST_F(TextBoxKeys, EscReachesTheScreen)
{
    QDialog dialog;
    QVBoxLayout layout(&dialog);
    oAllPurposeBox lines;
    lines.setMultiLine(true);
    layout.addWidget(&lines);
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    lines.setFocus();
    QTest::keyClick(lines.focusProxy(), Qt::Key_Escape);
    EXPECT_EQ(1, rejected.count());
}

TEST_F(TextBoxKeys, TheEditorBearsTheNameOfTheBox)
{
    box->setAccessibleName(QStringLiteral("Surname"));
    show();
    EXPECT_EQ(QStringLiteral("Surname"), editor()->accessibleName());
}
