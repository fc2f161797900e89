// The text box: its text, its count and its size.

#include "controls/mdTheme.h"
#include "controls/oDateBox.h"
#include "controls/oSpellText.h"
#include "tests/controls/clsTextBoxTest.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>

using AllPurposeBox = clsTextBoxTest;

TEST_F(AllPurposeBox, AFreshOneIsABoxOfOneLineThatExpandsAndCountsNothing)
{
    EXPECT_FALSE(box->MultiLine());
    EXPECT_EQ(QString(), box->Text());
    EXPECT_TRUE(box->isEnabled());
    EXPECT_FALSE(box->SpellCheck());
    EXPECT_TRUE(box->AllowReplacements());
    EXPECT_FALSE(box->OverRun());
    EXPECT_EQ(0, box->CharacterAllowance());
}

// The count

TEST_F(AllPurposeBox, WithoutAnAllowanceTheTextHasTheWholeWidth)
{
    show();
    EXPECT_FALSE(count()->isVisible());
    EXPECT_EQ(box->width(), editor()->width());
    box->setCharacterAllowance(10);
    QCoreApplication::processEvents();
    QTest::qWait(1);
    EXPECT_TRUE(count()->isVisible());
    EXPECT_EQ(44, count()->width());
    EXPECT_EQ(editor()->geometry().right() + 1 + 8, count()->x());
    EXPECT_EQ(box->width(), count()->geometry().right() + 1);
    EXPECT_EQ(editor()->height(), count()->height());
}

TEST_F(AllPurposeBox, TheCountStandsBeforeAnythingIsTyped)
{
    box->setCharacterAllowance(10);
    EXPECT_EQ(QStringLiteral("10"), count()->text());
    EXPECT_EQ(Theme::Green, countColour());
}

TEST_F(AllPurposeBox, AFullBoxCountsNoneInRedOrInBlueIfItMayRunOver)
{
    box->setCharacterAllowance(10);
    box->setText(QStringLiteral("1234567890"));
    EXPECT_EQ(QStringLiteral("0"), count()->text());
    EXPECT_EQ(Theme::Red, countColour());
    box->setOverRun(true);
    EXPECT_EQ(QStringLiteral("(0)"), count()->text());
    EXPECT_EQ(Theme::Blue, countColour());
    box->setText(QStringLiteral("1234567890123"));
    EXPECT_EQ(QStringLiteral("(3)"), count()->text());
    EXPECT_EQ(Theme::Blue, countColour());
    box->setOverRun(false);
    EXPECT_EQ(QStringLiteral("3"), count()->text());
    EXPECT_EQ(Theme::Red, countColour());
}

TEST_F(AllPurposeBox, FiveLeftKeepTheColourTheyCameFrom)
{
    box->setCharacterAllowance(10);
    box->setText(QStringLiteral("1234"));
    enter();
    type(QStringLiteral("5"));
    EXPECT_EQ(QStringLiteral("5"), count()->text());
    EXPECT_EQ(Theme::Green, countColour());
    type(QStringLiteral("6"));
    EXPECT_EQ(Theme::Orange, countColour());
    press(Qt::Key_Backspace);
    EXPECT_EQ(QStringLiteral("5"), count()->text());
    EXPECT_EQ(Theme::Orange, countColour());
}

TEST_F(AllPurposeBox, ALineBreakCountsAsTwo)
{
    box->setMultiLine(true);
    box->setCharacterAllowance(10);
    box->setText(QStringLiteral("a\r\nb"));
    EXPECT_EQ(QStringLiteral("6"), count()->text());
    enter();
    press(Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("4"), count()->text());
    EXPECT_EQ(QStringLiteral("a\r\nb\r\n"), box->Text());
}

TEST_F(AllPurposeBox, TheCountIsToldInWords)
{
    box->setCharacterAllowance(17);
    box->setText(QStringLiteral("Hartwell"));
    EXPECT_EQ(QStringLiteral("9 of 17 left"), count()->toolTip());
    EXPECT_EQ(QStringLiteral("9 of 17 left"), count()->accessibleDescription());
    EXPECT_EQ(QStringLiteral("9 of 17 left"), editor()->accessibleDescription());
    box->setCharacterAllowance(0);
    EXPECT_EQ(QString(), editor()->accessibleDescription()) << "nothing is counted any more";
}

TEST_F(AllPurposeBox, ADisabledCountIsDisabledText)
{
    box->setCharacterAllowance(17);
    box->setEnabled(false);
    EXPECT_FALSE(editor()->isEnabled());
    EXPECT_EQ(Theme::Ink3, count()->palette().color(QPalette::Disabled, QPalette::WindowText));
}

TEST_F(AllPurposeBox, NothingStopsTypingPastTheAllowance)
{
    box->setCharacterAllowance(2);
    enter();
    type(QStringLiteral("abcdef"));
    EXPECT_EQ(QStringLiteral("abcdef"), box->Text());
    EXPECT_EQ(QStringLiteral("4"), count()->text());
}

// The text and its change

TEST_F(AllPurposeBox, AWriteRaisesOneChangeBeforeTheCountShowsIt)
{
    box->setSpellCheck(true);
    box->setCharacterAllowance(10);
    QStringList seen;
    QObject::connect(box, &oAllPurposeBox::Change, [&] { seen << box->Text() + u'/' + count()->text(); });
    box->setText(QStringLiteral("abc"));
    EXPECT_EQ(QStringList {QStringLiteral("abc/10")}, seen);
    EXPECT_EQ(QStringLiteral("7"), count()->text());
    box->setText(QString());
    EXPECT_EQ((QStringList {QStringLiteral("abc/10"), QStringLiteral("/7")}), seen);
}

TEST_F(AllPurposeBox, EachKeyRaisesOneChange)
{
    box->setAllowReplacements(false);
    enter();
    QSignalSpy changes(box, &oAllPurposeBox::Change);
    type(QStringLiteral("abc"));
    EXPECT_EQ(3, changes.count());
    press(Qt::Key_Left);
    EXPECT_EQ(3, changes.count());
    press(Qt::Key_Backspace);
    EXPECT_EQ(4, changes.count());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(5, changes.count());
}

TEST_F(AllPurposeBox, LineBreaksAreThoseOfTheClaim)
{
    box->setMultiLine(true);
    box->setText(QStringLiteral("a\r\nb\nc\r\n"));
    EXPECT_EQ(QStringLiteral("a\r\nb\r\nc\r\n"), box->Text());
    const QString loaded = QString::fromUtf8(" £\u00a0“x” é\t ");
    box->setText(loaded);
    EXPECT_EQ(loaded, box->Text());
}

TEST_F(AllPurposeBox, TheCaretCountsALineBreakAsTwo)
{
    box->setMultiLine(true);
    box->setText(QStringLiteral("ab\r\ncd\r\ne"));
    enter();
    EXPECT_EQ(9, box->SelStart());
    for (const int place : {0, 2, 4, 5, 6, 8, 9}) {
        box->setSelStart(place);
        EXPECT_EQ(place, box->SelStart());
    }
    box->setSelStart(4);
    type(QStringLiteral("x"));
    EXPECT_EQ(QStringLiteral("ab\r\nxcd\r\ne"), box->Text());
    // Inside a break and beyond the text, the nearest position before.
    box->setSelStart(3);
    EXPECT_EQ(2, box->SelStart());
    box->setSelStart(99);
    EXPECT_EQ(10, box->SelStart());
    box->setSelStart(-7);
    EXPECT_EQ(0, box->SelStart());
}

TEST_F(AllPurposeBox, OneLineHasBlanksForLineBreaks)
{
    box->setText(QStringLiteral("a\r\nb"));
    EXPECT_EQ(QStringLiteral("a b"), box->Text());
    box->setMultiLine(true);
    box->setText(QStringLiteral("a\r\nb"));
    box->setMultiLine(false);
    EXPECT_EQ(QStringLiteral("a b"), box->Text());
}

TEST_F(AllPurposeBox, APasteIsCleaned)
{
    enter();
    QApplication::clipboard()->setText(QString::fromUtf8("one\r\ntwo\u00a0three\u200b"));
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("one two three"), box->Text());
    box->setMultiLine(true);
    box->setText(QString());
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("one\r\ntwo three"), box->Text());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(QString(), box->Text());
}

TEST_F(AllPurposeBox, ARichPasteBringsItsTextOnly)
{
    enter();
    auto *data = new QMimeData;
    data->setHtml(QStringLiteral("<b>bold</b>"));
    data->setText(QStringLiteral("bold"));
    QApplication::clipboard()->setMimeData(data);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("bold"), box->Text());
}

TEST_F(AllPurposeBox, WhatAnInputMethodCommitsIsCleanedToo)
{
    enter();
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8("a\nb\u00a0c"));
    QCoreApplication::sendEvent(editor(), &event);
    EXPECT_EQ(QStringLiteral("a b c"), box->Text());
}

TEST_F(AllPurposeBox, ANonBreakingBlankIsTypedAsABlank)
{
    enter();
    QTest::sendKeyEvent(QTest::Press, editor(), Qt::Key_nobreakspace, QString(QChar(0xa0)), Qt::NoModifier);
    EXPECT_EQ(QStringLiteral(" "), box->Text());
}

TEST_F(AllPurposeBox, ARewriteLeavesCharactersOfTwoHalvesWhole)
{
    auto *text = static_cast<oSpellText *>(editor());
    text->setText(QString::fromUtf8("a\U0001f600b"));
    QString written;
    QObject::connect(editor()->document(), &QTextDocument::contentsChange,
        [&](int from, int, int added) { written = editor()->document()->toRawText().mid(from, added); });
    // The surrogate pairs of the two begin with the same half, and those of the next two end with the same one.
    for (const char *next : {"a\U0001f601b", "a\U0001f201b"}) {
        text->rewriteText(QString::fromUtf8(next));
        EXPECT_EQ(QString::fromUtf8(next), text->Text());
        EXPECT_EQ(QString::fromUtf8(next).mid(1, 2), written);
    }
}

// Size

TEST_F(AllPurposeBox, OneLineHasAFixedHeightAndSeveralGrow)
{
    window.resize(600, 400);
    show();
    EXPECT_EQ(qMax(30, box->fontMetrics().height() + 12), editor()->height());
    EXPECT_FALSE(editor()->verticalScrollBar()->maximum() > 0);
    const int oneLine = box->height();
    box->setMultiLine(true);
    box->setCharacterAllowance(100);
    const int line = box->fontMetrics().height();
    EXPECT_EQ(oneLine + 2 * line, box->sizeHint().height());
    box->setCharacterAllowance(130);
    EXPECT_EQ(oneLine + 3 * line, box->sizeHint().height());
    box->setCharacterAllowance(770);
    EXPECT_EQ(oneLine + 7 * line, box->sizeHint().height());
    box->setCharacterAllowance(0);
    EXPECT_EQ(oneLine + 7 * line, box->sizeHint().height());
    QCoreApplication::processEvents();
    EXPECT_GT(box->height(), box->sizeHint().height());
}

TEST_F(AllPurposeBox, ALargerFontMakesEverythingLarger)
{
    box->setCharacterAllowance(10);
    show();
    const QSize size = box->sizeHint();
    const QFont font = QApplication::font();
    QFont larger = font;
    larger.setPointSizeF(font.pointSizeF() * 2);
    QApplication::setFont(larger);
    QCoreApplication::processEvents();
    EXPECT_GE(box->sizeHint().height(), size.height() * 3 / 2);
    EXPECT_GE(box->sizeHint().width(), size.width() * 3 / 2);
    EXPECT_EQ(88, count()->width());
    EXPECT_EQ(19, qRound(count()->font().pointSizeF()));
    EXPECT_TRUE(QTest::qWaitFor([this] { return editor()->verticalScrollBar()->maximum() == 0; }))
        << editor()->height() << " high, " << editor()->viewport()->height() << " within";
    QApplication::setFont(font);
}

TEST_F(AllPurposeBox, ABoxOfSomeLinesShowsSoManyWithoutScrolling)
{
    box->setMultiLine(true);
    const QFont font = QApplication::font();
    for (const char *family : {"Liberation Sans", "DejaVu Sans"}) {
        for (const int points : {8, 9, 10, 11, 12, 14, 16, 20}) {
            QApplication::setFont(QFont(QLatin1String(family), points));
            for (const int allowance : {100, 300, 0}) { // boxes of 3, 5 and 8 lines
                const int lines = allowance == 0 ? 8 : 3 + allowance / 130;
                box->setCharacterAllowance(allowance);
                box->setText(QStringList(lines, QStringLiteral("lg")).join(QStringLiteral("\r\n")));
                window.resize(600, 10);
                enter();
                QCoreApplication::processEvents();
                box->setFixedHeight(box->sizeHint().height());
                QCoreApplication::processEvents();
                other->setFocus();
                box->setFocus();
                EXPECT_EQ(0, editor()->verticalScrollBar()->maximum()) << family << ' ' << points << ' ' << lines;
                EXPECT_EQ(0, editor()->verticalScrollBar()->value()) << family << ' ' << points << ' ' << lines;
                box->setMinimumHeight(0);
            }
        }
    }
    QApplication::setFont(font);
}

TEST_F(AllPurposeBox, ALongerTextOpensAtItsBeginning)
{
    const QFont font = QApplication::font();
    for (const int points : {9, 10, 11, 12, 16, 20}) {
        QApplication::setFont(QFont(font.family(), points));
        QWidget screen;
        QVBoxLayout rows(&screen);
        QPushButton first;
        oAllPurposeBox longer;
        longer.setMultiLine(true);
        longer.setCharacterAllowance(60);
        longer.setText(QStringLiteral("12 The Long Row\r\nEastmere\r\nNorthbridge\r\nNB8 3QX\r\nEngland"));
        longer.setMaximumHeight(longer.sizeHint().height());
        rows.addWidget(&first);
        rows.addWidget(&longer);
        screen.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
        const auto *bar = longer.findChild<QPlainTextEdit *>()->verticalScrollBar();
        EXPECT_LT(0, bar->maximum()) << points;
        EXPECT_EQ(0, bar->value()) << points;
    }
    QApplication::setFont(font);
}

TEST_F(AllPurposeBox, SeveralLinesGrowToTwelveAndNoFurther)
{
    box->setMultiLine(true);
    const QFont font = QApplication::font();
    for (const int points : {10, 16}) {
        QApplication::setFont(QFont(font.family(), points));
        box->setText(QStringList(12, QStringLiteral("lg")).join(QStringLiteral("\r\n")));
        window.resize(600, 1200);
        show();
        EXPECT_TRUE(QTest::qWaitFor([this] { return editor()->verticalScrollBar()->maximum() == 0; })) << points;
        box->setText(box->Text() + QStringLiteral("\r\nlg"));
        EXPECT_TRUE(QTest::qWaitFor([this] { return editor()->verticalScrollBar()->maximum() == 1; })) << points;
    }
    QApplication::setFont(font);
}

TEST_F(AllPurposeBox, ALongTextInOneLineDoesNotScrollDown)
{
    box->setText(QString(500, u'x'));
    enter();
    EXPECT_EQ(0, editor()->verticalScrollBar()->maximum());
    EXPECT_TRUE(editor()->viewport()->rect().contains(editor()->cursorRect()));
}

TEST_F(AllPurposeBox, ItsTextStandsWhereThatOfTheOtherBoxesStands)
{
    auto *date = new oDateBox(&window);
    window.layout()->addWidget(date);
    show();
    const auto ink = [](QWidget &whole) {
        const QImage image = whole.grab().toImage();
        QRect result;
        // Within the edges.
        for (int y = 4; y < image.height() - 4; ++y)
            for (int x = 4; x < 60; ++x)
                if (image.pixelColor(x, y).lightness() < 128)
                    result |= QRect(x, y, 1, 1);
        return result;
    };
    box->setText(QStringLiteral("11"));
    date->findChild<QLineEdit *>()->setText(QStringLiteral("11"));
    // No caret.
    other->setFocus();
    ASSERT_EQ(box->height(), date->height());
    ASSERT_FALSE(ink(*box).isEmpty());
    EXPECT_EQ(ink(*date), ink(*box));
    // The text of a multi-line box starts at the same place.
    box->setMultiLine(true);
    box->resize(box->sizeHint());
    QCoreApplication::processEvents();
    EXPECT_EQ(ink(*date), ink(*box));
}
