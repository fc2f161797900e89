#include "controls/mdCaption.h"
#include "controls/mdTheme.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "controls/oDateBox.h"
#include "controls/oDecimalBox.h"
#include "controls/oHeaderBar.h"
#include "controls/oLeftRightButton.h"
#include "editors/mdScreenControls.h"
#include "editors/oFieldLabel.h"
#include "tests/editors/clsScreenTest.h"
#include "tests/editors/mdScreenTables.h"

#include <QAccessible>
#include <QComboBox>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>

#include <map>
#include <set>

// What is true of every screen, walked through for each one that there is.

namespace {

class EveryScreen : public clsScreenTest, public testing::WithParamInterface<QString> {
protected:
    std::unique_ptr<frmSection> screen = nullptr;

    void SetUp() override
    {
        clsScreenTest::SetUp();
        screen = opened(GetParam());
    }
    bool hasClose() const { return screen->Screen().ending == clsScreenEnding::Close; }
    QWidget &content() const { return *screen->findChild<QScrollArea *>()->widget(); }

    /// Every widget that shows something of its own.
    std::vector<QWidget *> parts() const
    {
        std::vector<QWidget *> result;
        for (const clsScreenField &field : screen->Fields())
            result.push_back(field.control);
        for (oFieldLabel *label : screen->findChildren<oFieldLabel *>())
            result.push_back(label);
        for (oCustomButton *button : screen->findChildren<oCustomButton *>())
            result.push_back(button);
        return result;
    }
    void expectNothingCut(QSize size);
};

void EveryScreen::expectNothingCut(QSize size)
{
    screen->resize(size);
    QTest::qWait(20);
    ASSERT_EQ(size, screen->size());
    const QScrollArea &page = *screen->findChild<QScrollArea *>();
    EXPECT_EQ(0, page.horizontalScrollBar()->maximum());
    EXPECT_LE(content().width(), page.viewport()->width());
    for (QWidget *part : parts()) {
        const std::string name = part->objectName().toStdString() + " "
            + (qobject_cast<QLabel *>(part) ? static_cast<QLabel *>(part)->text().toStdString() : "");
        EXPECT_TRUE(part->isVisible()) << name;
        const QRect own(part->mapTo(part->parentWidget(), QPoint()), part->size());
        EXPECT_TRUE(part->parentWidget()->rect().contains(own)) << name;
        EXPECT_GE(part->width(), part->minimumSizeHint().width()) << name;
        const auto *label = qobject_cast<QLabel *>(part);
        const int needed
            = label && label->wordWrap() ? label->heightForWidth(label->width()) : part->minimumSizeHint().height();
        EXPECT_GE(part->height(), needed) << name;
        if (label && !label->wordWrap()) {
            EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(mdPlainCaption(label->text()))) << name;
        }
    }
    // Nothing lies on anything else of the same frame.
    const auto all = parts();
    const auto overlap = [](const QWidget *a, const QWidget *b) {
        return a != b && a->parentWidget() == b->parentWidget() && !qobject_cast<const QPushButton *>(a)
            && a->geometry().intersects(b->geometry());
    };
    for (const QWidget *one : all) {
        for (const QWidget *other : all) {
            // A tick has room for its ring around it, which may reach under its neighbour.
            const bool ring = qobject_cast<const oCheckBox *>(one) || qobject_cast<const oCheckBox *>(other);
            EXPECT_TRUE(ring || !overlap(one, other))
                << one->objectName().toStdString() << " and " << other->objectName().toStdString();
        }
    }
}

QStringList existing()
{
    QStringList result;
    for (const QString &text : mdSectionTexts()) {
        Form = std::make_unique<clsZR3Form>();
        if (std::unique_ptr<QDialog>(mdCreateScreen(text, nullptr)))
            result << text;
        Form.reset();
    }
    return result;
}

/// The sections whose screens stand. Reading the tables takes no widget, so that it can be done before there are any.
std::vector<QString> sections()
{
    std::vector<QString> result;
    for (const clsExpectedScreen &screen : ExpectedScreens)
        result.push_back(QString::fromUtf8(screen.section));
    return result;
}

std::string testName(const testing::TestParamInfo<QString> &info)
{
    std::string name;
    for (const QChar c : info.param)
        if (c.isLetterOrNumber())
            name += c.toLatin1();
    return name;
}

INSTANTIATE_TEST_SUITE_P(Screens, EveryScreen, testing::ValuesIn(sections()), testName);

} // namespace

TEST(Screens, EveryScreenThatStandsIsWalked)
{
    std::set<QString> walked;
    for (const QString &section : sections())
        walked.insert(section);
    for (const QString &section : existing())
        EXPECT_TRUE(walked.count(section)) << section.toStdString();
    EXPECT_EQ(size_t(existing().size()), walked.size());
}

TEST_P(EveryScreen, TabReachesEveryEnabledFieldOnceInTheOrderOfTheTable)
{
    QStringList expected;
    for (const clsScreenField &field : screen->Fields())
        if (field.control->isEnabledTo(screen.get()))
            expected << field.control->objectName();
    QStringList reached;
    QWidget *const first = screen->focusWidget();
    ASSERT_TRUE(first);
    for (int step = 0; step < 200; ++step) {
        if (const QString name = focusedName(*screen); !name.isEmpty())
            reached << name;
        QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
        if (screen->focusWidget() == first)
            break;
    }
    EXPECT_EQ(first, screen->focusWidget());
    EXPECT_EQ(expected, reached);
}

TEST_P(EveryScreen, TabReachesTheButtonsBehindTheFields)
{
    screen->Fields().back().control->setFocus(Qt::TabFocusReason);
    QStringList reached;
    for (int step = 0; step < 10; ++step) {
        QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
        if (focusedField(*screen))
            break;
        reached << screen->focusWidget()->objectName();
    }
    QStringList expected;
    if (const auto *switcher = screen->findChild<oLeftRightButton *>()) {
        if (switcher->LeftEnabled())
            expected << QStringLiteral("btnLeft");
        if (switcher->RightEnabled())
            expected << QStringLiteral("btnRight");
    }
    expected << (hasClose() ? QStringList {QStringLiteral("cmdClose")}
                            : QStringList {QStringLiteral("cmdSave"), QStringLiteral("cmdCancel")});
    EXPECT_EQ(expected, reached);
}

TEST_P(EveryScreen, TheFirstFieldHasTheFocus)
{
    EXPECT_EQ(screen->Fields().front().control->objectName(), focusedName(*screen));
}

TEST_P(EveryScreen, EveryStopOfTabHasANameThatIsReadOut)
{
    QWidget *const first = screen->focusWidget();
    do {
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(screen->focusWidget());
        ASSERT_TRUE(spoken);
        const QString name = spoken->text(QAccessible::Name);
        EXPECT_FALSE(name.isEmpty()) << screen->focusWidget()->objectName().toStdString();
        EXPECT_FALSE(name.endsWith(u':') || name.contains(u'*')) << name.toStdString();
        QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
    } while (screen->focusWidget() != first);
}

TEST_P(EveryScreen, ALetterThatNothingHasIsNotTyped)
{
    for (const clsScreenField &field : screen->Fields()) {
        QWidget *part = focusPart(*field.control);
        if (!field.control->isEnabledTo(screen.get()) || qobject_cast<oCheckBox *>(field.control)
            || qobject_cast<QComboBox *>(field.control))
            continue;
        field.control->setFocus(Qt::TabFocusReason);
        const QString before = mdTextOf(*field.control);
        for (const Qt::KeyboardModifiers held :
            {Qt::KeyboardModifiers(Qt::AltModifier), Qt::AltModifier | Qt::ShiftModifier}) {
            // Straight to the box, as a letter comes that no caption and no menu takes.
            QKeyEvent key(QEvent::KeyPress, Qt::Key_9, held, QStringLiteral("9"));
            QApplication::sendEvent(part, &key);
            EXPECT_TRUE(key.isAccepted()) << field.control->objectName().toStdString();
        }
        EXPECT_EQ(before, mdTextOf(*field.control)) << field.control->objectName().toStdString();
    }
}

TEST_P(EveryScreen, NoLetterIsGivenTwice)
{
    std::multiset<QChar> letters;
    const auto note = [&letters](const QString &caption) {
        for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
            if (caption[i] != u'&')
                continue;
            if (caption[i + 1] != u'&')
                letters.insert(caption[i + 1].toUpper());
            ++i;
        }
    };
    for (const QAction *menu : screen->findChild<QMenuBar *>()->actions())
        note(menu->text());
    for (const QLabel *label : screen->findChildren<oFieldLabel *>())
        note(label->text());
    for (const QAbstractButton *button : screen->findChildren<QAbstractButton *>())
        note(button->text());
    for (const oFrame *frame : screen->findChildren<oFrame *>())
        note(frame->MarkedCaption());
    for (const QChar letter : letters)
        EXPECT_EQ(1u, letters.count(letter)) << QString(letter).toStdString();
    EXPECT_EQ(1u, letters.count(u'F'));
    // The letters of the buttons are the same on every screen, and where a button is missing its letter is free.
    const auto has = [this](const char *button) { return screen->findChild<QWidget *>(QString::fromUtf8(button)); };
    EXPECT_EQ(has("cmdSave") ? 1u : 0u, letters.count(u'S'));
    EXPECT_EQ(has("cmdCancel") ? 1u : 0u, letters.count(u'N'));
    EXPECT_EQ(has("cmdClose") ? 1u : 0u, letters.count(u'C'));
    EXPECT_EQ(has("cmdAdd") ? 1u : 0u, letters.count(u'A'));
    EXPECT_EQ(screen->Screen().jumps.empty() ? 0u : 1u, letters.count(u'J'));
    QStringList fixed;
    for (const char *name : {"cmdSave", "cmdCancel", "cmdClose"})
        if (const auto *button = screen->findChild<oCustomButton *>(QString::fromUtf8(name)))
            fixed << button->text();
    EXPECT_EQ(hasClose() ? QStringList {QStringLiteral("&Close")}
                         : QStringList({QStringLiteral("&Save"), QStringLiteral("Ca&ncel")}),
        fixed);
}

TEST_P(EveryScreen, TheLetterOfALabelLeadsToItsFieldAndTicksATick)
{
    for (const clsScreenField &field : screen->Fields()) {
        if (!field.label || !field.control->isEnabledTo(screen.get()))
            continue;
        const qsizetype mark = field.label->text().indexOf(u'&');
        if (mark < 0)
            continue;
        const auto *tick = qobject_cast<oCheckBox *>(field.control);
        const bool before = tick && tick->Checked();
        const char letter = field.label->text()[mark + 1].toLower().toLatin1();
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
        screen = opened(GetParam());
        const clsScreenField &field = screen->Fields()[i];
        const auto *box = qobject_cast<oAllPurposeBox *>(field.control);
        if (!field.control->isEnabledTo(screen.get()))
            continue;
        field.control->setFocus(Qt::TabFocusReason);
        QTest::keyClick(screen->focusWidget(), Qt::Key_Return);
        const bool stays = box && box->MultiLine();
        EXPECT_EQ(stays, screen->isVisible()) << field.control->objectName().toStdString();
        ++asked;
    }
    EXPECT_GT(asked, 0);
}

TEST_P(EveryScreen, EnterOnAnotherButtonPressesThatOne)
{
    auto *cancel = screen->findChild<oCustomButton *>(QStringLiteral("cmdCancel"));
    if (!cancel)
        GTEST_SUCCEED();
    else {
        cancel->setFocus(Qt::TabFocusReason);
        QTest::keyClick(cancel, Qt::Key_Return);
        EXPECT_FALSE(screen->isVisible());
        EXPECT_EQ(QDialog::Rejected, screen->result());
    }
}

TEST_P(EveryScreen, NothingIsCutOnASmallScreen)
{
    expectNothingCut({960, 540});
}

TEST_P(EveryScreen, NothingIsCutOnALaptop)
{
    expectNothingCut({1366, 768});
}

TEST_P(EveryScreen, NothingIsCutAtItsOwnSize)
{
    expectNothingCut(screen->sizeHint());
    // And nothing needs scrolling.
    EXPECT_EQ(0, screen->findChild<QScrollArea *>()->verticalScrollBar()->maximum());
}

TEST_P(EveryScreen, NothingIsCutInALargeFont)
{
    screen.reset();
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(16);
    QApplication::setFont(large);
    screen = opened(GetParam());
    expectNothingCut({1366, 768});
    screen.reset();
    QApplication::setFont(before);
}

TEST_P(EveryScreen, TheBoxesOfAColumnBeginAtOneEdge)
{
    for (const QSize size : {screen->sizeHint(), QSize(1366, 768), QSize(960, 540)}) {
        screen->resize(size);
        QTest::qWait(20);
        std::map<int, std::set<int>> edges;
        for (const clsScreenField &field : screen->Fields()) {
            if (!field.label || field.label->place() != oFieldLabel::Place::Beside || field.row->flags & SameRow)
                continue;
            const int frame = field.control->parentWidget()->mapTo(screen.get(), QPoint()).x();
            // A tick's visible edge lies inside the room for its ring.
            const int ring = qobject_cast<oCheckBox *>(field.control) ? Theme::RingRoom : 0;
            edges[frame].insert(field.control->mapTo(screen.get(), QPoint()).x() + ring);
        }
        for (const auto &[frame, ofColumn] : edges)
            EXPECT_EQ(1u, ofColumn.size()) << frame << " at " << size.width();
    }
}

TEST_P(EveryScreen, ACaptionWiderThanTheColumnOfLabelsStandsOverItsFieldAtTheLeft)
{
    for (const clsScreenField &field : screen->Fields()) {
        if (!field.label || field.label->place() == oFieldLabel::Place::Answer
            || qobject_cast<oCheckBox *>(field.control))
            continue;
        const std::string name = field.control->objectName().toStdString();
        const QRect label(field.label->mapTo(screen.get(), QPoint()), field.label->size());
        const QRect box(field.control->mapTo(screen.get(), QPoint()), field.control->size());
        const int caption = field.label->fontMetrics().horizontalAdvance(field.label->Caption());
        if (caption > Theme::scaled(300)) {
            EXPECT_LT(label.bottom(), box.top()) << name;
            EXPECT_EQ(label.left(), box.left()) << name;
            EXPECT_TRUE(field.label->alignment() & Qt::AlignLeft) << name;
        } else if (caption < Theme::scaled(290)) {
            EXPECT_LT(label.right(), box.left()) << name;
            EXPECT_FALSE(field.label->wordWrap()) << name;
        }
    }
}

TEST_P(EveryScreen, HasACloseBoxAndNoOtherButtonsInItsTitle)
{
    const Qt::WindowFlags flags = screen->windowFlags();
    EXPECT_TRUE(flags & Qt::WindowCloseButtonHint);
    EXPECT_FALSE(flags & Qt::WindowMinMaxButtonsHint);
}

TEST_P(EveryScreen, WhateverHasTheFocusIsInViewWithSomeRoomAroundIt)
{
    screen->resize(960, 400);
    QTest::qWait(20);
    const QScrollArea &page = *screen->findChild<QScrollArea *>();
    for (const clsScreenField &field : screen->Fields()) {
        if (!field.control->isEnabledTo(screen.get()))
            continue;
        field.control->setFocus(Qt::TabFocusReason);
        const QRect place(field.control->mapTo(page.viewport(), QPoint()), field.control->size());
        const int first = field.control->mapTo(page.widget(), QPoint()).y();
        EXPECT_GE(place.top(), qMin(24, first)) << field.control->objectName().toStdString();
        if (place.height() + 48 <= page.viewport()->height()) {
            EXPECT_LE(place.bottom(), page.viewport()->height() - 16) << field.control->objectName().toStdString();
        }
    }
}

TEST_P(EveryScreen, HoldsWhatItsTableSays)
{
    const auto expected = std::find_if(ExpectedScreens.begin(), ExpectedScreens.end(),
        [](const clsExpectedScreen &row) { return QString::fromUtf8(row.section) == GetParam(); });
    ASSERT_NE(ExpectedScreens.end(), expected);
    EXPECT_EQ(QString::fromUtf8(expected->name), screen->objectName());
    const auto *header = screen->findChild<oHeaderBar *>(QStringLiteral("oHeader"));
    EXPECT_EQ(QString::fromUtf8(expected->header), header->Caption());
    EXPECT_EQ(QString::fromUtf8(expected->subCaption), header->SubCaption());
    EXPECT_EQ(12, header->IconGroup());
    ASSERT_EQ(expected->fields.size(), screen->Fields().size());
    QString question;
    size_t place = 0;
    for (const clsExpectedField &field : expected->fields) {
        const clsScreenField &found = screen->Fields()[place++];
        const std::string name = field.control;
        EXPECT_EQ(QString::fromUtf8(field.control), found.control->objectName());
        EXPECT_EQ(QString::fromUtf8(field.frame), found.control->parentWidget()->objectName()) << name;
        if (*field.caption && !field.answer) {
            EXPECT_EQ(QString::fromUtf8(field.caption), mdPlainCaption(found.label->text())) << name;
        } else if (field.answer) {
            EXPECT_EQ(QString::fromUtf8(field.answer), mdPlainCaption(found.label->text())) << name;
        } else
            EXPECT_FALSE(found.label) << name;
        EXPECT_EQ(field.kind == 't', bool(qobject_cast<oAllPurposeBox *>(found.control))) << name;
        EXPECT_EQ(field.kind == 'd', bool(qobject_cast<oDateBox *>(found.control))) << name;
        EXPECT_EQ(field.kind == 'm', bool(qobject_cast<oDecimalBox *>(found.control))) << name;
        EXPECT_EQ(field.kind == 'x', bool(qobject_cast<oCheckBox *>(found.control))) << name;
        EXPECT_EQ(field.kind == 'l', bool(qobject_cast<QComboBox *>(found.control))) << name;
        if (const auto *date = qobject_cast<oDateBox *>(found.control)) {
            EXPECT_FALSE(date->ShowTickBox()) << name;
        }
        const auto *box = qobject_cast<oAllPurposeBox *>(found.control);
        if (!box)
            continue;
        EXPECT_EQ(field.allowance, box->CharacterAllowance()) << name;
        EXPECT_EQ(field.multiLine, box->MultiLine()) << name;
        EXPECT_EQ(field.spellCheck, box->SpellCheck()) << name;
        EXPECT_TRUE(box->AllowReplacements()) << name;
        EXPECT_FALSE(box->OverRun()) << name;
    }
}

TEST_P(EveryScreen, AQuestionStandsOverItsAnswersAndItsLetterLeadsToTheFirst)
{
    const auto expected = std::find_if(ExpectedScreens.begin(), ExpectedScreens.end(),
        [](const clsExpectedScreen &row) { return QString::fromUtf8(row.section) == GetParam(); });
    QString last;
    for (size_t i = 0; i < expected->fields.size(); ++i) {
        const clsExpectedField &field = expected->fields[i];
        if (!field.answer)
            continue;
        oFieldLabel *question = nullptr;
        for (oFieldLabel *label : screen->findChildren<oFieldLabel *>())
            if (label->Caption() == QString::fromUtf8(field.caption))
                question = label;
        ASSERT_TRUE(question) << field.caption;
        const QWidget &answer = *screen->Fields()[i].control;
        EXPECT_LE(question->mapTo(screen.get(), QPoint(0, question->height())).y(),
            answer.mapTo(screen.get(), QPoint()).y() + 4);
        if (last == QString::fromUtf8(field.caption))
            continue;
        last = QString::fromUtf8(field.caption);
        EXPECT_EQ(&answer, question->buddy());
        const qsizetype mark = question->text().indexOf(u'&');
        ASSERT_GE(mark, 0);
        QTest::keyClick(screen.get(), question->text()[mark + 1].toLower().toLatin1(), Qt::AltModifier);
        EXPECT_EQ(answer.objectName(), focusedName(*screen));
        EXPECT_FALSE(static_cast<const oCheckBox &>(answer).Checked());
    }
}
