#pragma once

#include "controls/oContentSwitcher.h"
#include "controls/oCustomButton.h"
#include "controls/oSGrid.h"
#include "editors/oFieldLabel.h"
#include "editors/oScreenFrame.h"
#include "tests/editors/clsScreenTest.h"
#include "tests/editors/mdWalkedScreens.h"

#include <QComboBox>
#include <QScrollArea>

#include <functional>
#include <string>

/// What is true of every screen: the test is run for each one that is written down, with that screen open, be it a
/// section or the editor of a new item.
class EveryScreen : public clsScreenTest, public testing::WithParamInterface<std::string> {
protected:
    void SetUp() override
    {
        clsScreenTest::SetUp();
        addItems();
        for (const clsExpectedScreen &row : AllExpectedScreens())
            if (row.name == GetParam())
                expected = row;
        openAgain();
    }
    void TearDown() override
    {
        screen.reset();
        clsScreenTest::TearDown();
    }

    /// Something to show in the lists, and to choose from in the editors.
    static void addItems()
    {
        const auto group = Form->AddFeeEarnerGroup();
        group->Reference = QStringLiteral("A");
        const auto feeEarner = Form->AddFeeEarner();
        feeEarner->Reference = QStringLiteral("JH");
        feeEarner->GroupUniqueID = group->UniqueID();
        Form->AddCounsel()->Name = QStringLiteral("Oak");
        Form->AddEnhancement()->Name = QStringLiteral("Fifty");
    }
    void openAgain()
    {
        if (*expected.section) {
            screen = opened(QString::fromUtf8(expected.section));
            return;
        }
        const clsScreen *editor = ItemEditorOf(GetParam());
        if (!editor)
            throw std::runtime_error("no editor " + GetParam());
        screen = std::make_unique<frmSection>(*editor);
        screen->Initialise(nullptr);
        show(*screen);
    }

    bool isEditor() const { return !*expected.section; }
    bool hasClose() const { return screen->Screen().ending == clsScreenEnding::Close; }
    QScrollArea &page() const { return *screen->findChild<QScrollArea *>(); }
    QWidget &content() const { return *page().widget(); }

    /// Does something on each page in turn, or once on a screen without pages.
    void onEachPage(const std::function<void()> &act) const
    {
        auto *switcher = screen->findChild<oContentSwitcher *>();
        if (!switcher)
            return act();
        for (int number = 1; number <= switcher->Pages(); ++number) {
            switcher->SwitchTo(number);
            act();
        }
    }
    void openPageOf(const clsScreenField &field) const
    {
        if (field.page > 0)
            screen->Switcher().SwitchTo(field.page);
    }
    bool onOpenPage(const clsScreenField &field) const
    {
        return field.page == 0 || field.page == screen->Switcher().OpenPage();
    }
    bool canEnter(const clsScreenField &field) const
    {
        return onOpenPage(field) && field.control->isEnabledTo(screen.get());
    }
    /// The fields of the open page, and of the frames that have none.
    std::vector<clsScreenField> openFields() const
    {
        std::vector<clsScreenField> result;
        for (const clsScreenField &field : screen->Fields())
            if (onOpenPage(field))
                result.push_back(field);
        return result;
    }
    static std::string nameOf(const clsScreenField &field) { return field.control->objectName().toStdString(); }

    clsExpectedScreen expected {};
    std::unique_ptr<frmSection> screen;
};
