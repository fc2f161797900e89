#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oContentSwitcher.h"
#include "controls/oCustomButton.h"
#include "controls/oFrame.h"
#include "controls/oSGrid.h"
#include "editors/oFieldLabel.h"
#include "tests/editors/clsScreenTest.h"

#include <QMenu>
#include <QTimer>

#include <functional>

// Lists of items on a screen, their pages, and ticks side by side, with tables made for the tests.

namespace {

using enum clsRowKind;

int changes = 0;
int actionsRun = 0;

/// The editor of a counsel, with ticks in two columns.
const clsScreen &editor()
{
    static const clsScreen screen {
        .name = "frmThingEdit",
        .header = "Thing",
        .subCaption = "",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {{"bxGeneral", "Thing",
            {
                {Text, "txtName", "Name:*", 0, Required},
                {Tick, "chkVAT", "VAT:"},
                {Tick, "chkSecond", "A longer second:", 0, Unbound},
                {.kind = Tick, .control = "chkThird", .caption = "Third:", .flags = Unbound, .beside = "chkVAT"},
                {.kind = Tick,
                    .control = "chkFourth",
                    .caption = "A longer fourth:",
                    .flags = Unbound,
                    .beside = "chkSecond"},
            }}},
        .itemWord = "Counsel",
        .add = []() -> clsXMLRecord * { return Form->AddCounsel().get(); },
        .fileMenu = false,
    };
    return screen;
}

QString noEnhancement()
{
    return Form->EnhancementsCollection().empty() ? QStringLiteral("Add an enhancement first.") : QString();
}

const clsItemList Counsels {
    .columns = {{"Name", "Name", 60}, {"Account", "AccountNumber", 0}, {"VAT", "VAT", 40, clsGridAlignment::Centre}},
    .show = [](oSGrid &grid) { grid.setItemCollection(Form->CounselCollection()); },
    .empty = "No counsel yet. Add one to begin.",
    .editor = editor,
    .item = [](int index) -> std::shared_ptr<clsXMLRecord> { return Form->Counsel(index); },
    .remove = [](int index) { Form->DeleteCounsel(index); },
    .keepsUsed = true,
    .add = "cmdAddCounsel",
    .menu = "mnuCounsel",
    .deleteEntry = "mnuDeleteCounsel",
    .actions = {{"mnuEnhance", "Enhance",
        [](frmScreen &) {
            ++actionsRun;
            Form->AddEnhancement();
        }}},
    .changed = [] { ++changes; },
};

/// Nothing can be added until there is an enhancement, and nothing can be edited or deleted.
const clsItemList Enhancements {
    .orderable = false,
    .columns = {{"Rate", "Rate", 100, clsGridAlignment::Right}},
    .show = [](oSGrid &grid) { grid.setItemCollection(Form->EnhancementsCollection()); },
    .empty = "No enhancements yet. Add one to begin.",
    .editor = editor,
    .item = [](int index) -> std::shared_ptr<clsXMLRecord> { return Form->Enhancement(index); },
    .add = "cmdAddEnhancement",
    .whyNoAdd = noEnhancement,
};

const clsScreen SideBySide {
    .name = "frmCounsel",
    .header = "Counsel",
    .subCaption = "",
    .iconGroup = 12,
    .width = clsScreenWidth::TwoColumns,
    .ending = clsScreenEnding::Close,
    .record = []() -> clsXMLRecord * { return Form.get(); },
    .frames = {{"bxCounsel", "Counsel",
                   {
                       {.kind = Items, .control = "sgCounsel", .items = &Counsels},
                       {Tick, "chkExcludeNonAdvocacy", "Exclude:", 0, SameRow},
                   }},
        {.name = "bxEnhancements",
            .caption = "Enhancements",
            .rows = {{.kind = Items, .control = "sgEnhancements", .items = &Enhancements}},
            .startsColumn = true}},
};

const clsScreen Paged {
    .name = "frmDisbursements",
    .header = "Disbursements",
    .subCaption = "",
    .iconGroup = 12,
    .width = clsScreenWidth::List,
    .ending = clsScreenEnding::Close,
    .record = []() -> clsXMLRecord * { return Form.get(); },
    .frames = {{.name = "bxGeneral",
        .caption = "",
        .switcher = "oSwitcher",
        .pages = {{"Counsel", {{.kind = Items, .control = "sgCounsel", .items = &Counsels}}},
            {"Notes", {{Text, "txtNotes", "Notes:", 0, MultiLine}, {Separator}, {Tick, "chkVAT", "VAT:"}}},
            {"Enhancements", {{.kind = Items, .control = "sgEnhancements", .items = &Enhancements}}}}}},
};

class ScreenLists : public clsScreenTest {
protected:
    void SetUp() override
    {
        clsScreenTest::SetUp();
        changes = 0;
        actionsRun = 0;
    }
    static std::unique_ptr<frmScreen> shown(const clsScreen &table)
    {
        auto screen = std::make_unique<frmScreen>(table);
        screen->Initialise();
        show(*screen);
        return screen;
    }
    static void addCounsel(const QStringList &names)
    {
        for (const QString &name : names)
            Form->AddCounsel()->Name = name;
    }
    static QStringList names()
    {
        QStringList result;
        for (int order = 1; order <= int(Form->CounselCollection().size()); ++order)
            result << Form->CounselByOrderID(order)->Name();
        return result;
    }
    /// Calls `act` on the editor that the next step opens; tests that expect none check `editorsOpened`.
    void inEditor(std::function<void(frmScreen &)> act)
    {
        QTimer::singleShot(0, qApp, [this, act = std::move(act)] {
            auto *open = dynamic_cast<frmScreen *>(QApplication::activeModalWidget());
            if (!open)
                return;
            ++editorsOpened;
            act(*open);
            if (open->isVisible())
                open->close();
        });
    }
    static oSGrid &grid(frmScreen &screen, const char *name = "sgCounsel") { return screen.Box<oSGrid>(name); }
    int editorsOpened = 0;
};

} // namespace

TEST_F(ScreenLists, TheGridHasTheFocusAndItsFirstRow)
{
    addCounsel({QStringLiteral("A"), QStringLiteral("B")});
    const auto screen = shown(SideBySide);
    EXPECT_EQ(QStringLiteral("sgCounsel"), focusedName(*screen));
    EXPECT_EQ(1, grid(*screen).SelectedRow());
    EXPECT_EQ(2, grid(*screen).Rows());
}

TEST_F(ScreenLists, AddByLetterOrInsertMakesAnItemAtSaveAndSelectsIt)
{
    addCounsel({QStringLiteral("A")});
    const auto screen = shown(SideBySide);
    inEditor([](frmScreen &open) {
        EXPECT_EQ(nullptr, open.Record());
        type(open.Box("txtName"), QStringLiteral("B"));
        QTest::keyClick(open.focusWidget(), Qt::Key_Return);
    });
    QTest::keyClick(screen->focusWidget(), Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(1, editorsOpened);
    EXPECT_EQ(QStringList({QStringLiteral("A"), QStringLiteral("B")}), names());
    EXPECT_EQ(2, grid(*screen).SelectedRow());
    EXPECT_EQ(QStringLiteral("sgCounsel"), focusedName(*screen));
    EXPECT_EQ(1, changes);
    inEditor([](frmScreen &open) { open.Cancel(); });
    QTest::keyClick(screen->focusWidget(), Qt::Key_Insert);
    EXPECT_EQ(2, editorsOpened);
    EXPECT_EQ(2, grid(*screen).Rows());
    EXPECT_EQ(2, grid(*screen).SelectedRow());
    EXPECT_EQ(QStringLiteral("sgCounsel"), focusedName(*screen));
}

TEST_F(ScreenLists, ReturnEditsTheRowsItemAndKeepsTheRow)
{
    addCounsel({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    const auto screen = shown(SideBySide);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Down);
    inEditor([](frmScreen &open) {
        EXPECT_EQ(QStringLiteral("B"), open.Box<oAllPurposeBox>("txtName").Text());
        type(open.Box("txtName"), QStringLiteral("Beta"));
        open.Save();
    });
    QTest::keyClick(screen->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(1, editorsOpened);
    EXPECT_EQ(QStringLiteral("Beta"), names()[1]);
    EXPECT_EQ(2, grid(*screen).SelectedRow());
    EXPECT_TRUE(screen->isVisible());
}

TEST_F(ScreenLists, DeletingAsksAndSelectsWhatTakesThePlace)
{
    addCounsel({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    const auto screen = shown(SideBySide);
    grid(*screen).SelectRow(2);
    user.answers = {clsUserInterface::No, clsUserInterface::Yes};
    QTest::keyClick(screen->focusWidget(), Qt::Key_Delete);
    EXPECT_EQ(3, grid(*screen).Rows());
    EXPECT_EQ(0, changes);
    auto *entry = screen->findChild<QAction *>(QStringLiteral("mnuDeleteCounsel"));
    ASSERT_TRUE(entry);
    entry->trigger();
    EXPECT_EQ(QStringList({QStringLiteral("A"), QStringLiteral("C")}), names());
    EXPECT_EQ(2, grid(*screen).SelectedRow());
    EXPECT_EQ(1, changes);
    ASSERT_EQ(2u, user.messages.size());
    for (const auto &message : user.messages) {
        EXPECT_EQ(QStringLiteral("Are you sure you wish to delete this Counsel?"), message.text);
        EXPECT_EQ(QStringLiteral("Delete?"), message.title);
    }
}

TEST_F(ScreenLists, AnItemInUseIsKeptAndTheUserTold)
{
    addCounsel({QStringLiteral("A")});
    Form->AddDisbursement()->CounselUniqueID = Form->Counsel(1)->UniqueID();
    const auto screen = shown(SideBySide);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Delete);
    EXPECT_EQ(1, grid(*screen).Rows());
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(
        QStringLiteral("This Counsel is in use. Please remove all uses of it before deleting"), user.messages[0].text);
    EXPECT_EQ(QStringLiteral("Cannot Delete"), user.messages[0].title);
}

TEST_F(ScreenLists, DeleteWithoutARowAndOnAListThatDeletesNothingDoNothing)
{
    Form->AddEnhancement();
    const auto screen = shown(SideBySide);
    screen->findChild<QAction *>(QStringLiteral("mnuDeleteCounsel"))->trigger();
    grid(*screen, "sgEnhancements").setFocus(Qt::TabFocusReason);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Delete);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(1u, Form->EnhancementsCollection().size());
}

TEST_F(ScreenLists, WhatPreventsAddingIsSaidAndAskedAgainAfterEveryChange)
{
    addCounsel({QStringLiteral("A")});
    const auto screen = shown(SideBySide);
    auto &add = screen->Box<oCustomButton>("cmdAddEnhancement");
    EXPECT_FALSE(add.isEnabled());
    EXPECT_EQ(QStringLiteral("Add an enhancement first."), add.toolTip());
    grid(*screen, "sgEnhancements").setFocus(Qt::TabFocusReason);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Insert);
    EXPECT_EQ(0, editorsOpened);
    // The other list's entry adds an item, which every list of the screen shows.
    screen->findChild<QAction *>(QStringLiteral("mnuEnhance"))->trigger();
    EXPECT_EQ(1, actionsRun);
    EXPECT_TRUE(add.isEnabled());
    EXPECT_TRUE(add.toolTip().isEmpty());
    EXPECT_EQ(1, grid(*screen, "sgEnhancements").Rows());
    EXPECT_EQ(1, changes);
}

TEST_F(ScreenLists, MovingARowTellsTheClaim)
{
    addCounsel({QStringLiteral("A"), QStringLiteral("B")});
    const auto screen = shown(SideBySide);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(QStringList({QStringLiteral("B"), QStringLiteral("A")}), names());
    EXPECT_EQ(1, changes);
    EXPECT_EQ(2, grid(*screen).SelectedRow());
}

TEST_F(ScreenLists, AFieldBehindAListStandsBesideItsAdd)
{
    const auto screen = shown(SideBySide);
    const QWidget &add = screen->Box("cmdAddCounsel");
    const QWidget &tick = screen->Box("chkExcludeNonAdvocacy");
    const QWidget &list = screen->Box("sgCounsel");
    const auto middle = [&screen](const QWidget &widget) { return widget.mapTo(screen.get(), widget.rect().center()); };
    EXPECT_NEAR(middle(add).y(), middle(tick).y(), 2);
    EXPECT_LT(add.mapTo(screen.get(), add.rect().topRight()).x(), tick.mapTo(screen.get(), QPoint()).x());
    EXPECT_GT(
        list.mapTo(screen.get(), list.rect().topRight()).x(), tick.mapTo(screen.get(), tick.rect().topRight()).x());
    EXPECT_GT(middle(add).y(), list.mapTo(screen.get(), list.rect().bottomLeft()).y());
    // The tick works like any other field.
    QTest::mouseClick(&screen->Box("chkExcludeNonAdvocacy"), Qt::LeftButton, {}, tick.rect().center());
    press(*screen, "cmdClose");
    EXPECT_TRUE(Form->ExcludeNonAdvocacy());
}

TEST_F(ScreenLists, PagesOpenOneAtATimeByTheirLettersAndCountTheirItems)
{
    addCounsel({QStringLiteral("A"), QStringLiteral("B")});
    const auto screen = shown(Paged);
    oContentSwitcher &switcher = screen->Switcher();
    EXPECT_EQ(QStringLiteral("oSwitcher"), switcher.objectName());
    EXPECT_EQ(1, switcher.OpenPage());
    EXPECT_EQ(QStringLiteral("2 items"), switcher.Page(1)->captionBar()->accessibleDescription());
    EXPECT_EQ(QString(), switcher.Page(2)->captionBar()->accessibleDescription());
    EXPECT_FALSE(screen->Box("txtNotes").isVisible());
    const QString marked = switcher.Page(2)->MarkedCaption();
    const char letter = marked[marked.indexOf(u'&') + 1].toLower().toLatin1();
    QTest::keyClick(screen->focusWidget(), letter, Qt::AltModifier);
    EXPECT_EQ(2, switcher.OpenPage());
    EXPECT_EQ(QStringLiteral("txtNotes"), focusedName(*screen));
    EXPECT_FALSE(screen->Box("sgCounsel").isVisible());
    // "Add" has the same letter on each page.
    switcher.SwitchTo(1);
    grid(*screen).setFocus(Qt::TabFocusReason);
    inEditor([](frmScreen &open) {
        type(open.Box("txtName"), QStringLiteral("C"));
        open.Save();
    });
    QTest::keyClick(screen->focusWidget(), Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(3, grid(*screen).Rows());
    EXPECT_EQ(QStringLiteral("3 items"), switcher.Page(1)->captionBar()->accessibleDescription());
    // Text typed on a page that is now closed is stored like the rest.
    type(screen->Box("txtNotes"), QStringLiteral("kept"));
    press(*screen, "cmdClose");
    EXPECT_EQ(QStringLiteral("kept"), Form->Notes());
}

TEST_F(ScreenLists, TicksOfTheSecondColumnStandInTheLinesOfTheFirstAndUnderEachOther)
{
    frmScreen screen(editor());
    screen.Initialise(nullptr);
    show(screen);
    const auto place
        = [&screen](const char *name) { return screen.Box(name).mapTo(&screen, screen.Box(name).rect().center()); };
    EXPECT_EQ(place("chkVAT").y(), place("chkThird").y());
    EXPECT_EQ(place("chkSecond").y(), place("chkFourth").y());
    EXPECT_EQ(place("chkThird").x(), place("chkFourth").x());
    EXPECT_GT(place("chkThird").x(), place("chkVAT").x());
    screen.Box("chkSecond").setFocus(Qt::TabFocusReason);
    QTest::keyClick(screen.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("chkThird"), focusedName(screen));
}
