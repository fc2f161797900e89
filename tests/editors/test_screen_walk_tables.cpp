#include "controls/mdCaption.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oDateBox.h"
#include "controls/oDecimalBox.h"
#include "controls/oHeaderBar.h"
#include "controls/oIntegerBox.h"
#include "controls/oTimeBox.h"
#include "tests/editors/clsScreenWalk.h"

#include <QAccessible>

#include <set>

// Every screen against its expected content.

namespace {

std::vector<std::string> names()
{
    std::vector<std::string> result;
    for (const clsExpectedScreen &screen : AllWalkedScreens())
        result.push_back(screen.name);
    return result;
}

INSTANTIATE_TEST_SUITE_P(Screens, EveryScreen, testing::ValuesIn(names()),
    [](const testing::TestParamInfo<std::string> &test) { return test.param; });

QString frameOf(const QWidget *control)
{
    while (control && !qobject_cast<const oScreenFrame *>(control))
        control = control->parentWidget();
    return control ? control->objectName() : QString();
}

/// The frames of a screen, each with its name and caption.
QStringList framesOf(const QWidget &screen)
{
    QStringList result;
    for (const auto *frame : screen.findChildren<oScreenFrame *>())
        result << frame->objectName() + u' ' + frame->Caption();
    return result;
}

template <class Control> bool is(const QWidget *control)
{
    return qobject_cast<const Control *>(control);
}

/// 'o' for any other kind.
char kindOf(const QWidget *control)
{
    if (is<oAllPurposeBox>(control))
        return 't';
    if (is<oDateBox>(control))
        return 'd';
    if (is<oDecimalBox>(control))
        return 'm';
    if (is<oIntegerBox>(control))
        return 'i';
    if (is<oTimeBox>(control))
        return 'h';
    if (is<oCheckBox>(control))
        return 'x';
    if (is<QComboBox>(control))
        return 'l';
    if (is<oSGrid>(control))
        return 'g';
    return is<oCustomButton>(control) ? 'b' : 'o';
}

/// The caption that a field shows or, if it shows none, its accessible name.
void expectCaption(const clsExpectedField &field, const clsScreenField &found)
{
    const QString caption = QString::fromUtf8(field.answer ? field.answer : field.caption);
    QString shown = found.control->accessibleName();
    if (const auto *button = qobject_cast<const oCustomButton *>(found.control))
        shown = button->Caption();
    else if (found.label)
        shown = mdPlainCaption(found.label->text());
    const bool spoken = !found.label && field.kind != 'b';
    EXPECT_TRUE(caption == shown || (spoken && mdSpokenCaption(caption) == shown))
        << field.control << " shows " << shown.toStdString();
}

void expectText(const clsExpectedField &field, const oAllPurposeBox &box)
{
    EXPECT_EQ(field.allowance, box.CharacterAllowance()) << field.control;
    EXPECT_EQ(field.multiLine, box.MultiLine()) << field.control;
    EXPECT_EQ(field.spellCheck, box.SpellCheck()) << field.control;
    EXPECT_EQ(field.replacements, box.AllowReplacements()) << field.control;
    EXPECT_EQ(field.overRun, box.OverRun()) << field.control;
}

} // namespace

TEST(Screens, EveryScreenThatStandsIsWalked)
{
    std::set<QString> sections;
    std::set<std::string> editors;
    for (const clsExpectedScreen &screen : AllExpectedScreens()) {
        if (*screen.section)
            sections.insert(QString::fromUtf8(screen.section));
        else
            editors.insert(screen.name);
    }
    for (const QString &text : mdSectionTexts()) {
        Form = std::make_unique<clsZR3Form>();
        const std::unique_ptr<QDialog> screen(mdCreateScreen(text, nullptr));
        EXPECT_EQ(bool(screen), sections.count(text) == 1) << text.toStdString();
    }
    Form.reset();
    EXPECT_EQ(AllItemEditors().size(), editors.size());
    for (const clsScreenFunction editor : AllItemEditors())
        EXPECT_TRUE(editors.count(editor().name)) << editor().name;
    EXPECT_EQ(AllExpectedScreens().size(), sections.size() + editors.size()) << "a screen is written down twice";
}

TEST_P(EveryScreen, HoldsWhatItsTableSays)
{
    EXPECT_EQ(QString::fromUtf8(expected.name), screen->objectName());
    const auto *header = screen->findChild<oHeaderBar *>(QStringLiteral("oHeader"));
    EXPECT_EQ(QString::fromUtf8(expected.header), header->Caption());
    EXPECT_EQ(QString::fromUtf8(expected.subCaption), header->SubCaption());
    EXPECT_EQ(expected.iconGroup, header->IconGroup());
    QStringList frames;
    for (const clsExpectedFrame &frame : expected.frames)
        frames << QString::fromUtf8(frame.name) + u' ' + QString::fromUtf8(frame.caption);
    EXPECT_EQ(frames, framesOf(*screen));
    ASSERT_EQ(expected.fields.size(), screen->Fields().size());
    size_t place = 0;
    for (const clsExpectedField &field : expected.fields) {
        const clsScreenField &found = screen->Fields()[place++];
        const std::string name = field.control;
        EXPECT_EQ(QString::fromUtf8(field.control), found.control->objectName());
        EXPECT_EQ(QString::fromUtf8(field.frame), frameOf(found.control)) << name;
        EXPECT_EQ(field.kind, kindOf(found.control)) << name;
        expectCaption(field, found);
        if (const auto *date = qobject_cast<oDateBox *>(found.control)) {
            EXPECT_EQ(field.dateTick, date->ShowTickBox()) << name;
        }
        if (const auto *box = qobject_cast<oAllPurposeBox *>(found.control))
            expectText(field, *box);
    }
}

TEST_P(EveryScreen, AQuestionStandsOverItsAnswersAndItsLetterLeadsToTheFirst)
{
    QString last;
    for (size_t i = 0; i < expected.fields.size(); ++i) {
        const clsExpectedField &field = expected.fields[i];
        if (!field.answer) {
            last.clear();
            continue;
        }
        openPageOf(screen->Fields()[i]);
        QTest::qWait(20);
        QWidget &answer = *screen->Fields()[i].control;
        // "Yes" alone would tell a listener nothing.
        EXPECT_EQ(mdSpokenCaption(QString::fromUtf8(field.caption)),
            QAccessible::queryAccessibleInterface(&answer)->text(QAccessible::Description))
            << field.control;
        // Two frames may have the same question.
        oFieldLabel *question = nullptr;
        for (oFieldLabel *label : screen->findChildren<oFieldLabel *>())
            if (label->Caption() == QString::fromUtf8(field.caption) && frameOf(label) == frameOf(&answer))
                question = label;
        ASSERT_TRUE(question) << field.caption;
        EXPECT_LE(question->mapTo(screen.get(), QPoint(0, question->height())).y(),
            answer.mapTo(screen.get(), QPoint()).y() + 4);
        if (last == QString::fromUtf8(field.caption))
            continue;
        last = QString::fromUtf8(field.caption);
        EXPECT_EQ(&answer, question->buddy());
        const qsizetype mark = question->text().indexOf(u'&');
        // A screen with many captions runs out of letters.
        if (mark < 0)
            continue;
        QTest::keyClick(screen.get(), question->text()[mark + 1].toLower().toLatin1(), Qt::AltModifier);
        EXPECT_EQ(answer.objectName(), focusedName(*screen));
        EXPECT_FALSE(static_cast<const oCheckBox &>(answer).Checked());
    }
}
