#pragma once

#include "controls/oContentSwitcher.h"
#include "controls/oCustomButton.h"
#include "controls/oSGrid.h"
#include "editors/oFieldLabel.h"
#include "editors/oScreenFrame.h"
#include "tests/editors/clsPreferencesTest.h"
#include "tests/editors/mdWalkedScreens.h"

#include <QComboBox>
#include <QLabel>
#include <QScrollArea>

#include <functional>
#include <string>

/// What is true of every screen: the test is run for each one that is written down, with that screen open, be it a
/// section, the editor of a new item or the preferences.
class EveryScreen : public clsPreferencesTest, public testing::WithParamInterface<std::string> {
protected:
    void SetUp() override
    {
        clsPreferencesTest::SetUp();
        addItems();
        for (const clsExpectedScreen &row : AllWalkedScreens())
            if (row.name == GetParam())
                expected = row;
        openAgain();
    }
    void TearDown() override
    {
        screen.reset();
        clsPreferencesTest::TearDown();
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
        addReplacement("pc", "Police constable");
        addRateSet("London", "50.00");
    }
    void openAgain()
    {
        if (*expected.section) {
            screen = opened(QString::fromUtf8(expected.section));
            return;
        }
        const clsScreen *table = ScreenNamed(GetParam());
        if (!table)
            throw std::runtime_error("no screen " + GetParam());
        screen = std::make_unique<frmSection>(*table);
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
        // A line that only tells something isn't entered.
        return onOpenPage(field) && field.control->isEnabledTo(screen.get())
            && !qobject_cast<const QLabel *>(field.control);
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
