#include "commands/mdFileHandling.h"
#include "tests/window/clsFieldMarks.h"
#include "tests/window/clsFieldWalk.h"

#include <QAction>

#include <pugixml.hpp>

#include <algorithm>

namespace {

/// A claim in which every field of every screen has a unique value.
class EveryField : public clsFieldWalk {
protected:
    void fillAll(const clsTabsOfType &type, clsFieldMarks &marks)
    {
        everyTab(type,
            {Items::Added,
                [&](frmScreen &screen, const auto &expected, const auto &field, int item) {
                    fill(screen, expected, field, item, marks);
                },
                [&](frmScreen &screen, const auto &expected, int) {
                    clickExclusives(screen, expected, marks);
                    // Without VAT the rate, which was typed before, can no longer be typed.
                    if (std::string_view(expected.name) == "frmFormSetup")
                        click(screen.Box("chkVAT"));
                }});
    }
    void fill(frmScreen &screen, const clsExpectedScreen &expected, const clsExpectedField &field, int item,
        clsFieldMarks &marks);
    /// In each group that was clicked through, and in which the last tick is now set, clicks the tick that should stay
    /// set.
    static void clickExclusives(frmScreen &screen, const clsExpectedScreen &expected, const clsFieldMarks &marks)
    {
        for (const clsExclusiveTicks &group : ExclusiveTicks) {
            const char *stays = marks.tickedOf(group);
            if (std::string_view(group.screen) != expected.name || stays == group.controls.back())
                continue;
            openPageOf(screen, screen.Box(stays));
            click(screen.Box(stays));
        }
    }

    /// Saves the claim to a file, starts a new one and opens the file again, each by its key.
    void saveAndOpenAgain(const QString &file)
    {
        user.files = {file};
        QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
        ASSERT_EQ(file, header());
        QTest::keyClick(window.get(), Qt::Key_N, Qt::ControlModifier);
        ASSERT_EQ(QStringLiteral("New ZR3 File"), header());
        ASSERT_TRUE(Form->FeeEarnersCollection().empty());
        user.files = {file};
        QTest::keyClick(window.get(), Qt::Key_O, Qt::ControlModifier);
        ASSERT_EQ(file, header());
    }

    static void expectStored(const clsFieldMarks &marks, const QString &file);

    void expectShown(const clsTabsOfType &type, const clsFieldMarks &marks)
    {
        int looked = 0;
        everyTab(type,
            {Items::Opened,
                [&](frmScreen &screen, const auto &expected, const auto &field, int item) {
                    const auto &values = marks.of(expected, field, item);
                    looked += values.empty() ? 0 : 1;
                    for (const clsMark &mark : values)
                        EXPECT_EQ(mark.shown, shown(part(screen.Box(field.control), mark.kind))) << mark.where;
                },
                [](frmScreen &, const auto &, int) {}});
        EXPECT_EQ(marks.fields(), looked);
    }
    /// The tick or the list of a control that has both; otherwise the control.
    static QWidget &part(QWidget &control, char kind)
    {
        if (control.inherits("oCounselBox") || control.inherits("oEnhancementsBox"))
            return kind == 'x' ? static_cast<QWidget &>(*control.findChild<oCheckBox *>())
                               : *control.findChild<QComboBox *>();
        return control;
    }

    /// One claim, from the widgets to the file and back.
    void prove(const clsTabsOfType &type, clsFieldMarks &marks, int fields, const QStringList &notFilled);

    QStringList disabled;
};

void EveryField::fill(
    frmScreen &screen, const clsExpectedScreen &expected, const clsExpectedField &field, int item, clsFieldMarks &marks)
{
    QWidget &control = screen.Box(field.control);
    if (!control.isEnabledTo(&screen)) {
        disabled << QLatin1String(expected.name) + u' ' + QLatin1String(field.control);
        return;
    }
    if (const clsChosen *row = marks.choiceOf(expected, field, item)) {
        if (row->flag)
            click(part(control, 'x'));
        choose(static_cast<QComboBox &>(part(control, 'l')), row->down);
        return marks.chosen(expected, *row);
    }
    if (field.kind != 'x')
        return type(control, marks.typed(expected, field, item));
    if (std::string_view(field.control) != "chkVAT" || std::string_view(expected.name) != "frmFormSetup")
        for (int clicks = marks.clicksOf(expected, field); clicks > 0; --clicks)
            click(control);
    marks.clicked(expected, field, item);
}

void EveryField::expectStored(const clsFieldMarks &marks, const QString &file)
{
    QFile stored(file);
    ASSERT_TRUE(stored.open(QIODevice::ReadOnly));
    const QByteArray bytes = stored.readAll();
    pugi::xml_document document;
    ASSERT_TRUE(document.load_buffer(bytes.constData(), size_t(bytes.size())));
    for (const auto &[where, values] : marks.all())
        for (const clsMark &mark : values) {
            const pugi::xml_node element = document.select_node(("/vzrform/" + mark.path).c_str()).node();
            EXPECT_TRUE(element) << mark.where << ": no " << mark.path;
            EXPECT_EQ(mark.content, QByteArray(element.child_value())) << mark.where << " in " << mark.path;
            // Ticks and choices have no unique value.
            if (std::string_view("xl").find(mark.kind) == std::string_view::npos) {
                EXPECT_EQ(1, bytes.count('>' + mark.content + '<')) << mark.where;
            }
        }
    for (const clsItemsOfScreen &list : ItemsOfScreens) {
        const size_t items = document.select_nodes((std::string("/vzrform/") + list.path).c_str()).size();
        EXPECT_EQ(marks.knows(list.editor) ? size_t(list.items) : 0, items) << list.path;
    }
    // The fee earner that was chosen last, from 0.
    EXPECT_STREQ("1", document.child("vzrform").child_value("defaultfeeearnerlistindex"));
}

void EveryField::prove(const clsTabsOfType &type, clsFieldMarks &marks, int fields, const QStringList &notFilled)
{
    window.reset();
    Form.reset();
    disabled.clear();
    start();
    fillAll(type, marks);
    EXPECT_EQ(fields, marks.fields());
    EXPECT_EQ(notFilled, disabled);
    const QString file = path("claims/every field.zr3");
    QFile::remove(file);
    ASSERT_NO_FATAL_FAILURE(saveAndOpenAgain(file));
    expectStored(marks, file);
    expectShown(type, marks);
    // Every screen was stored on the way, without any typing.
    EXPECT_EQ(file, header());
    EXPECT_FALSE(FormIsDirty());
    EXPECT_TRUE(user.messages.empty());
}

} // namespace

// The first page is always exported; a Claim1 has ten pages. Each of the ticks that exclude each other is set in turn:
// a group has up to three on a Claim1, and up to four on a Claim1A. The bits distinguish sixteen fields of a screen on
// a Claim1A, and together with those of a Claim1 all fields of the first screen, which is the longest.

TEST_F(EveryField, OfAClaim1IsStoredInItsElementAndShownAgain)
{
    for (unsigned place = 0; place < 3; ++place) {
        SCOPED_TRACE("ticked is the one at place " + std::to_string(place));
        clsFieldMarks marks(place, 3 + place, ChosenOnClaim1);
        prove(TabsOfTypes[0], marks, 203,
            {QStringLiteral("frmFormSetup chkIncludePage1"), QStringLiteral("frmFormSetup chkIncludePage11"),
                QStringLiteral("frmFormSetup chkIncludePage12"), QStringLiteral("frmFormSetup chkIncludePage13")});
    }
}

TEST_F(EveryField, OfAClaim1AIsStoredInItsElementAndShownAgain)
{
    for (unsigned place = 0; place < 4; ++place) {
        SCOPED_TRACE("ticked is the one at place " + std::to_string(place));
        clsFieldMarks marks(place, place, ChosenOnClaim1A);
        prove(TabsOfTypes[1], marks, 253, {QStringLiteral("frmFormSetup chkIncludePage1")});
    }
}
