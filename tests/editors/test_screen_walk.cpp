#include "controls/mdCaption.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oDateBox.h"
#include "controls/oDecimalBox.h"
#include "controls/oIntegerBox.h"
#include "controls/oLeftRightButton.h"
#include "controls/oTimeBox.h"
#include "editors/mdScreenControls.h"
#include "tests/editors/clsScreenWalk.h"
#include "tests/support/mdSpokenNames.h"

#include <QAccessible>
#include <QMenu>
#include <QMenuBar>

// The keyboard on every screen.

namespace {

/// Whether text can be typed into a control.
bool isBox(const QWidget *control)
{
    return qobject_cast<const oAllPurposeBox *>(control) || qobject_cast<const oDateBox *>(control)
        || qobject_cast<const oDecimalBox *>(control) || qobject_cast<const oIntegerBox *>(control)
        || qobject_cast<const oTimeBox *>(control);
}

bool isMultiLine(const QWidget *control)
{
    const auto *box = qobject_cast<const oAllPurposeBox *>(control);
    return box && box->MultiLine();
}

/// Adds the letters marked with an ampersand in a caption.
void noteLetters(const QString &caption, std::multiset<QChar> &letters)
{
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != u'&')
            continue;
        if (caption[i + 1] != u'&')
            letters.insert(caption[i + 1].toUpper());
        ++i;
    }
}

/// The mnemonic of a label: a letter of the caption, or otherwise a digit.
QChar keyOf(const oFieldLabel &label)
{
    std::multiset<QChar> letters;
    noteLetters(label.text(), letters);
    return letters.empty() ? label.Digit() : *letters.begin();
}

/// All mnemonics that are active in a window.
std::multiset<QChar> lettersOf(const frmScreen &screen)
{
    std::multiset<QChar> letters;
    for (const QAction *menu : screen.findChild<QMenuBar *>()->actions())
        noteLetters(menu->text(), letters);
    for (const oFieldLabel *label : screen.findChildren<oFieldLabel *>())
        if (label->isVisible()) {
            noteLetters(label->text(), letters);
            if (!label->Digit().isNull())
                letters.insert(label->Digit());
        }
    for (const QAbstractButton *button : screen.findChildren<QAbstractButton *>())
        if (button->isVisible())
            noteLetters(button->text(), letters);
    for (const oFrame *frame : screen.findChildren<oFrame *>())
        if (frame->isVisible())
            noteLetters(frame->MarkedCaption(), letters);
    return letters;
}

/// Whether the open page has the button "Add"; one inside a control of several parts has no letter.
bool hasAdd(const std::vector<clsScreenField> &fields)
{
    return std::any_of(fields.begin(), fields.end(), [](const clsScreenField &field) {
        const auto *button = qobject_cast<const oCustomButton *>(field.control);
        return button && button->Caption() == QLatin1String("Add");
    });
}

} // namespace

TEST_P(EveryScreen, TabReachesEveryEnabledFieldOnceInTheOrderOfTheTable)
{
    onEachPage([this] {
        QStringList order;
        for (const clsScreenField &field : screen->Fields())
            if (canEnter(field))
                order << field.control->objectName();
        ASSERT_FALSE(order.isEmpty());
        QStringList reached;
        screen->Box(qPrintable(order.first())).setFocus(Qt::TabFocusReason);
        QWidget *const first = screen->focusWidget();
        ASSERT_TRUE(first);
        for (int step = 0; step < 300; ++step) {
            // A field of several parts is one stop.
            const QString name = focusedName(*screen);
            if (!name.isEmpty() && (reached.isEmpty() || reached.last() != name))
                reached << name;
            QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
            if (screen->focusWidget() == first)
                break;
        }
        EXPECT_EQ(first, screen->focusWidget());
        EXPECT_EQ(order, reached);
    });
}

TEST_P(EveryScreen, TabReachesTheButtonsBehindTheFields)
{
    QWidget *last = nullptr;
    for (const clsScreenField &field : screen->Fields())
        if (canEnter(field))
            last = field.control;
    last->setFocus(Qt::TabFocusReason);
    QStringList reached;
    for (int step = 0; step < 20; ++step) {
        QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
        const clsScreenField *field = focusedField(*screen);
        // The other parts of the last field come first, and so do the captions of further pages.
        if (field && field->control != last)
            break;
        if (!field && !screen->focusWidget()->inherits("oFrameCaption"))
            reached << screen->focusWidget()->objectName();
    }
    QStringList order;
    if (const auto *switcher = screen->findChild<oLeftRightButton *>()) {
        if (switcher->LeftEnabled())
            order << QStringLiteral("btnLeft");
        if (switcher->RightEnabled())
            order << QStringLiteral("btnRight");
    }
    for (const clsScreenJump &jump : screen->Screen().jumps)
        if (screen->findChild<QWidget *>(QString::fromUtf8(jump.control))->isVisible())
            order << QString::fromUtf8(jump.control);
    if (screen->findChild<QWidget *>(QStringLiteral("cmdSaveAndAdd")))
        order << QStringLiteral("cmdSaveAndAdd");
    order << (hasClose() ? QStringList {QStringLiteral("cmdClose")}
                         : QStringList {QStringLiteral("cmdSave"), QStringLiteral("cmdCancel")});
    EXPECT_EQ(order, reached);
}

TEST_P(EveryScreen, TheFirstFieldHasTheFocus)
{
    for (const clsScreenField &field : screen->Fields()) {
        if (!canEnter(field))
            continue;
        EXPECT_EQ(field.control->objectName(), focusedName(*screen));
        break;
    }
}

TEST_P(EveryScreen, EveryStopOfTabHasANameThatIsReadOut)
{
    onEachPage([this] {
        QWidget *const first = screen->focusWidget();
        int steps = 0;
        do {
            QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(screen->focusWidget());
            ASSERT_TRUE(spoken);
            const QString name = spoken->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty()) << screen->focusWidget()->objectName().toStdString();
            EXPECT_FALSE(name.endsWith(u':') || name.contains(u'*')) << name.toStdString();
            QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
            ASSERT_LT(++steps, 300);
        } while (screen->focusWidget() != first);
    });
}

TEST_P(EveryScreen, EverythingThatCanHaveTheFocusHasASensibleName)
{
    onEachPage([this] { EXPECT_LT(0, expectSensibleNames(*screen)); });
}

TEST_P(EveryScreen, AFieldIsReadOutWithTheWordsOfItsCaption)
{
    ASSERT_EQ(expected.fields.size(), screen->Fields().size());
    for (size_t i = 0; i < expected.fields.size(); ++i) {
        const clsScreenField &field = screen->Fields()[i];
        if (expected.fields[i].kind == 'b' || expected.fields[i].kind == 'o' || field.row->kind == clsRowKind::Items)
            continue;
        QString caption
            = QString::fromUtf8(expected.fields[i].answer ? expected.fields[i].answer : expected.fields[i].caption);
        while (caption.endsWith(u':') || caption.endsWith(u'*'))
            caption.chop(1);
        // A control without a caption has another text as its name.
        if (!saysSomething(caption))
            continue;
        openPageOf(field);
        QTest::qWait(1);
        EXPECT_EQ(caption, spokenName(*focusPart(*field.control)));
    }
}

TEST_P(EveryScreen, ALetterThatNothingHasIsNotTyped)
{
    for (const clsScreenField &field : screen->Fields()) {
        openPageOf(field);
        if (!canEnter(field) || !isBox(field.control))
            continue;
        QWidget *part = focusPart(*field.control);
        field.control->setFocus(Qt::TabFocusReason);
        const QString before = mdTextOf(*field.control);
        for (const Qt::KeyboardModifiers held :
            {Qt::KeyboardModifiers(Qt::AltModifier), Qt::AltModifier | Qt::ShiftModifier}) {
            // Sent to the box itself, like a letter that belongs to no caption or menu.
            QKeyEvent key(QEvent::KeyPress, Qt::Key_9, held, QStringLiteral("9"));
            QApplication::sendEvent(part, &key);
            EXPECT_TRUE(key.isAccepted()) << nameOf(field);
        }
        EXPECT_EQ(before, mdTextOf(*field.control)) << nameOf(field);
    }
}

TEST_P(EveryScreen, NoLetterIsGivenTwice)
{
    onEachPage([this] {
        const std::multiset<QChar> letters = lettersOf(*screen);
        for (const QChar letter : letters)
            EXPECT_EQ(1u, letters.count(letter)) << QString(letter).toStdString();
        // The buttons have the same letters on every screen; if a button is missing its letter is free.
        const auto has = [this](const char *button) { return screen->findChild<QWidget *>(QString::fromUtf8(button)); };
        EXPECT_EQ(screen->Screen().fileMenu ? 1u : 0u, letters.count(u'F'));
        EXPECT_EQ(has("cmdSave") ? 1u : 0u, letters.count(u'S'));
        EXPECT_EQ(has("cmdCancel") ? 1u : 0u, letters.count(u'N'));
        EXPECT_EQ(has("cmdClose") ? 1u : 0u, letters.count(u'C'));
        EXPECT_EQ(hasAdd(openFields()) ? 1u : 0u, letters.count(u'A'));
        EXPECT_EQ(screen->Screen().jumps.empty() ? 0u : 1u, letters.count(u'J'));
        EXPECT_EQ(screen->findChild<QMenu *>(QStringLiteral("mnuEdit")) ? 1u : 0u, letters.count(u'E'));
    });
    QStringList fixed;
    for (const char *name : {"cmdSave", "cmdCancel", "cmdClose"})
        if (const auto *button = screen->findChild<oCustomButton *>(QString::fromUtf8(name)))
            fixed << button->text();
    EXPECT_EQ(hasClose() ? QStringList {QStringLiteral("&Close")}
                         : QStringList({QStringLiteral("&Save"), QStringLiteral("Ca&ncel")}),
        fixed);
}

TEST_P(EveryScreen, EveryCaptionHasALetterOrADigitWhereAllOfItsLettersAreTaken)
{
    onEachPage([this] {
        const std::multiset<QChar> letters = lettersOf(*screen);
        for (const oFieldLabel *label : screen->findChildren<oFieldLabel *>()) {
            if (!label->isVisible() || label->place() == oFieldLabel::Place::Answer)
                continue;
            const QChar key = keyOf(*label);
            if (!key.isNull() && key != label->Digit())
                continue;
            // A caption may have neither letter nor digit if all digits are used.
            for (const char16_t digit : std::u16string_view(key.isNull() ? u"1234567890" : u""))
                EXPECT_TRUE(letters.count(QChar(digit))) << label->Caption().toStdString();
            for (const QChar c : label->Caption())
                if (c.isLetter() && !QStringLiteral("FEJSACN").contains(c.toUpper())) {
                    EXPECT_TRUE(letters.count(c.toUpper())) << label->Caption().toStdString();
                }
        }
    });
}

TEST_P(EveryScreen, TheLetterOfALabelLeadsToItsFieldAndTicksATick)
{
    for (const clsScreenField &field : screen->Fields()) {
        openPageOf(field);
        if (!field.label || !canEnter(field))
            continue;
        if (field.label->place() == oFieldLabel::Place::Answer || keyOf(*field.label).isNull())
            continue;
        const auto *tick = qobject_cast<oCheckBox *>(field.control);
        const bool before = tick && tick->Checked();
        const char letter = keyOf(*field.label).toLower().toLatin1();
        QTest::keyClick(screen.get(), letter, Qt::AltModifier);
        EXPECT_EQ(field.control->objectName(), focusedName(*screen)) << letter;
        if (tick) {
            EXPECT_NE(before, tick->Checked()) << letter;
        }
    }
}

TEST_P(EveryScreen, EscClosesIt)
{
    QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(hasClose() ? QDialog::Accepted : QDialog::Rejected, screen->result());
}

TEST_P(EveryScreen, EnterPressesTheDefaultFromEveryFieldOfOneLine)
{
    int asked = 0;
    for (size_t i = 0; i < screen->Fields().size(); ++i) {
        openAgain();
        user.messages.clear();
        const clsScreenField &field = screen->Fields()[i];
        openPageOf(field);
        // A grid opens its row, and a button is pressed.
        if (!canEnter(field) || qobject_cast<oSGrid *>(field.control) || qobject_cast<oCustomButton *>(field.control))
            continue;
        field.control->setFocus(Qt::TabFocusReason);
        QTest::keyClick(screen->focusWidget(), Qt::Key_Return);
        // The editor of an item is empty and may refuse to save; the message shows that Save was pressed.
        const bool pressed = !screen->isVisible() || (isEditor() && !user.messages.empty());
        EXPECT_NE(isMultiLine(field.control), pressed) << nameOf(field);
        ++asked;
    }
    const bool onlyLists = std::all_of(screen->Fields().begin(), screen->Fields().end(), [](const auto &field) {
        return qobject_cast<oSGrid *>(field.control) || qobject_cast<oCustomButton *>(field.control);
    });
    EXPECT_TRUE(asked > 0 || onlyLists);
}

TEST_P(EveryScreen, EnterOnAnotherButtonPressesThatOne)
{
    auto *cancel = screen->findChild<oCustomButton *>(QStringLiteral("cmdCancel"));
    ASSERT_EQ(hasClose(), !cancel);
    if (!cancel)
        return;
    cancel->setFocus(Qt::TabFocusReason);
    QTest::keyClick(cancel, Qt::Key_Return);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QDialog::Rejected, screen->result());
}
