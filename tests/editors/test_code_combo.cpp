#include "controls/oAllPurposeBox.h"
#include "editors/oCodeCombo.h"
#include "editors/oFieldLabel.h"
#include "formdata/mdScheduleOfTimeCodesCollection.h"
#include "tests/editors/clsScheduleTest.h"

#include <QLineEdit>

namespace {

class CodeCombo : public clsScheduleTest {
protected:
    static oCodeCombo &code(const frmScreen &screen) { return screen.Box<oCodeCombo>("cmbCode"); }
    /// An item's editor, with a text typed in its code box.
    std::unique_ptr<frmScreen> typed(const char *text)
    {
        item = addItem("01/02/26", "AOT");
        auto screen = editItem(item);
        type(code(*screen), QString::fromUtf8(text));
        return screen;
    }
    void expectHeld(const frmScreen &screen, const char *text)
    {
        expectInvalidCode();
        EXPECT_TRUE(screen.isVisible());
        EXPECT_EQ(QStringLiteral("cmbCode"), focusedName(screen));
        EXPECT_EQ(QString::fromUtf8(text), code(screen).Code());
        EXPECT_EQ(code(screen).Code(), code(screen).lineEdit()->selectedText()) << "to be typed over";
        EXPECT_EQ(QStringLiteral("AOT"), item->Code());
    }
    Item item;
};

} // namespace

TEST_F(CodeCombo, OffersTheCodesInTheirOrderAndSaysTheirColumns)
{
    const oCodeCombo list;
    ASSERT_EQ(32, list.count());
    for (int entry = 0; entry < 32; ++entry)
        EXPECT_EQ(mdScheduleOfTimeCodesCollection()[entry], list.itemText(entry));
    EXPECT_EQ(QStringLiteral("DOT"), list.Code());
    EXPECT_EQ(QStringLiteral("Docs"), list.toolTip());
    const auto column = [&list](const char *code) {
        return list.itemData(list.findText(QString::fromUtf8(code)), Qt::ToolTipRole).toString();
    };
    EXPECT_EQ(QStringLiteral("Docs"), column("DOT"));
    EXPECT_EQ(QStringLiteral("Docs"), column("REX"));
    EXPECT_EQ(QStringLiteral("Docs"), column("OOT"));
    EXPECT_EQ(QStringLiteral("Hrng"), column("HFN"));
    EXPECT_EQ(QStringLiteral("Att / Conf"), column("ACT"));
}

TEST_F(CodeCombo, TheTooltipFollowsTheCode)
{
    oCodeCombo list;
    list.setCode(QStringLiteral("HIN"));
    EXPECT_EQ(QStringLiteral("Hrng"), list.toolTip());
    list.setCode(QStringLiteral("XYZ"));
    EXPECT_EQ(QString(), list.toolTip());
}

TEST_F(CodeCombo, LowerCaseIsAcceptedAndStoredAsUpperCase)
{
    for (const bool byTab : {true, false}) {
        const auto screen = typed("dot");
        if (byTab) {
            key(*screen, Qt::Key_Tab);
            EXPECT_EQ(QStringLiteral("txtDescription"), focusedName(*screen));
            EXPECT_EQ(QStringLiteral("DOT"), code(*screen).Code());
        }
        key(*screen, Qt::Key_Return);
        EXPECT_FALSE(screen->isVisible());
        EXPECT_EQ(QStringLiteral("DOT"), item->Code()) << byTab;
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CodeCombo, WhatOnlyOneCodeBeginsWithIsCompleted)
{
    auto screen = typed("rm");
    EXPECT_EQ(QStringLiteral("rmD"), code(*screen).Code());
    EXPECT_EQ(QStringLiteral("D"), code(*screen).lineEdit()->selectedText());
    // One Return is enough, even while the completion is selected.
    key(*screen, Qt::Key_Return);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("RMD"), item->Code());
    // Typing another letter, or Backspace, removes an unwanted completion.
    screen = typed("rm");
    QTest::keyClick(&code(*screen), Qt::Key_P);
    EXPECT_EQ(QStringLiteral("rmp"), code(*screen).Code());
    screen = typed("rm");
    QTest::keyClick(&code(*screen), Qt::Key_Backspace);
    EXPECT_EQ(QStringLiteral("rm"), code(*screen).Code());
    // A letter in the middle of the text completes nothing either.
    screen = typed("m");
    QTest::keyClick(&code(*screen), Qt::Key_Home);
    QTest::keyClick(&code(*screen), Qt::Key_R);
    EXPECT_EQ(QStringLiteral("rm"), code(*screen).Code());
    screen->close();
}

TEST_F(CodeCombo, WhatSeveralCodesBeginWithStaysAsItIsAndIsNoCode)
{
    for (const char *text : {"d", "h", "da", "a"}) {
        const auto screen = typed(text);
        EXPECT_EQ(QString::fromUtf8(text), code(*screen).Code());
        key(*screen, Qt::Key_Tab);
        expectHeld(*screen, QByteArray(text).toUpper().constData());
    }
    const auto screen = typed("da");
    QTest::keyClick(&code(*screen), Qt::Key_P);
    key(*screen, Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("DAP"), item->Code());
}

TEST_F(CodeCombo, ALetterUnderAltThatBelongsToNothingIsNotTyped)
{
    item = addItem("01/02/26", "DOT");
    const auto screen = editItem(item);
    focus(*screen, "cmbCode");
    for (const Qt::Key letter : {Qt::Key_A, Qt::Key_Z}) {
        QTest::keyClick(&code(*screen), letter, Qt::AltModifier);
        focus(*screen, "cmbCode");
        EXPECT_EQ(QStringLiteral("DOT"), code(*screen).Code()) << char(letter);
    }
    key(*screen, Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("DOT"), item->Code());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CodeCombo, TheArrowsWalkThroughTheCodes)
{
    const auto screen = typed("DAF");
    key(*screen, Qt::Key_Down);
    EXPECT_EQ(QStringLiteral("DAG"), code(*screen).Code());
    key(*screen, Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("DAG"), item->Code());
}

TEST_F(CodeCombo, TheKeyboardDoesNotLeaveAWrongCodeAndTellsItOnce)
{
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    } ways[] = {{Qt::Key_Tab, {}}, {Qt::Key_Backtab, Qt::ShiftModifier}, {Qt::Key_Return, {}}, {Qt::Key_Enter, {}},
        {Qt::Key_S, Qt::AltModifier}};
    for (const auto &way : ways) {
        const auto screen = typed("xyz");
        key(*screen, way.key, way.modifiers);
        QTest::qWait(10);
        expectHeld(*screen, "XYZ");
        // Every further attempt shows one message.
        key(*screen, way.key, way.modifiers);
        QTest::qWait(10);
        expectHeld(*screen, "XYZ");
    }
}

TEST_F(CodeCombo, TheMouseDoesNotLeaveAWrongCodeAndTellsItOnce)
{
    for (const char *target : {"cmdSave", "cmdCancel", "chkAdvocacy", "cmbFeeEarner"}) {
        const auto screen = typed("xyz");
        auto *widget = screen->findChild<QWidget *>(QString::fromUtf8(target));
        ASSERT_TRUE(widget) << target;
        click(*widget);
        QTest::qWait(10);
        expectHeld(*screen, "XYZ");
        EXPECT_FALSE(tick(*screen, "chkAdvocacy").Checked());
        EXPECT_FALSE(QApplication::activePopupWidget());
    }
    // Moving between its parts is not leaving it.
    const auto screen = typed("xyz");
    click(*code(*screen).lineEdit());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CodeCombo, TheLettersOfCaptionsDoNotLeaveAWrongCodeEither)
{
    const auto screen = typed("xyz");
    int tried = 0;
    for (const char *target : {"txtDescription", "chkAdvocacy"}) {
        for (const clsScreenField &field : screen->Fields()) {
            if (field.control != &screen->Box(target))
                continue;
            const QString caption = field.label->text();
            ASSERT_GE(caption.indexOf(u'&'), 0) << target;
            key(*screen, caption[caption.indexOf(u'&') + 1].toUpper().unicode(), Qt::AltModifier);
            QTest::qWait(10);
            expectHeld(*screen, "XYZ");
            ++tried;
        }
    }
    EXPECT_EQ(2, tried);
    EXPECT_FALSE(tick(*screen, "chkAdvocacy").Checked());
}

TEST_F(CodeCombo, WhatTakesTheFocusAwayWithoutAskingIsToldOnceAndTheFocusComesBack)
{
    const auto screen = typed("xyz");
    screen->Box("txtDescription").setFocus(Qt::OtherFocusReason);
    EXPECT_TRUE(user.messages.empty()) << "not in the middle of it";
    ASSERT_TRUE(QTest::qWaitFor([this] { return !user.messages.empty(); }));
    QTest::qWait(10);
    expectHeld(*screen, "XYZ");
}

TEST_F(CodeCombo, EscAndTheCloseBoxLeaveAWrongCode)
{
    for (const bool byKey : {true, false}) {
        const auto screen = typed("xyz");
        if (byKey)
            key(*screen, Qt::Key_Escape);
        else
            screen->close();
        QTest::qWait(10);
        EXPECT_FALSE(screen->isVisible()) << byKey;
        EXPECT_EQ(QStringLiteral("AOT"), item->Code());
        EXPECT_TRUE(user.messages.empty()) << byKey;
    }
}

TEST_F(CodeCombo, ACodeIsComparedExactly)
{
    for (const char *text : {"DOT ", " DOT", "DO", "DOTT", ""}) {
        const auto screen = typed("");
        code(*screen).lineEdit()->setText(QString::fromUtf8(text));
        key(*screen, Qt::Key_Tab);
        expectHeld(*screen, text);
    }
}

TEST_F(CodeCombo, ACorrectedCodeLetsGo)
{
    const auto screen = typed("xyz");
    key(*screen, Qt::Key_Tab);
    expectInvalidCode();
    QTest::keyClicks(&code(*screen), QStringLiteral("act"));
    key(*screen, Qt::Key_Return);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("ACT"), item->Code());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CodeCombo, ACodeOfAFileIsShownAsItIsAndCheckedWhereTheUserHasBeen)
{
    const Item old = addItem("01/02/26", "OLD");
    auto screen = editItem(old);
    EXPECT_EQ(QStringLiteral("OLD"), code(*screen).Code());
    type(screen->Box("txtDescription"), QStringLiteral("Changed"));
    key(*screen, Qt::Key_Return);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("OLD"), old->Code());
    EXPECT_TRUE(user.messages.empty());
    screen = editItem(old);
    focus(*screen, "cmbCode");
    key(*screen, Qt::Key_Tab);
    expectInvalidCode();
}

TEST_F(CodeCombo, AFunctionKeyChecksNothing)
{
    const auto screen = typed("xyz");
    key(*screen, Qt::Key_F4);
    EXPECT_EQ(QStringLiteral("xyz"), code(*screen).Code());
    EXPECT_EQ(QStringLiteral("cmbCode"), focusedName(*screen));
    EXPECT_TRUE(user.messages.empty());
}
