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

/// A test for every screen: it runs with each expected screen open, whether a section, the editor of a new item or the
/// preferences.
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

    /// Adds items for the lists to show and the editors to choose from.
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
        screen = std::make_unique<frmScreen>(*table);
        screen->Initialise(nullptr);
        show(*screen);
    }

    bool isEditor() const { return !*expected.section; }
    bool hasClose() const { return screen->Screen().ending == clsScreenEnding::Close; }
    QScrollArea &page() const { return *screen->findChild<QScrollArea *>(); }
    QWidget &content() const { return *page().widget(); }

    /// Calls `act` on each page in turn, or once on a screen without pages.
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
        // A line that only shows a text can't be entered.
        return onOpenPage(field) && field.control->isEnabledTo(screen.get())
            && !qobject_cast<const QLabel *>(field.control);
    }
    /// The fields of the open page, and of the frames without pages.
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
    std::unique_ptr<frmScreen> screen;
};
