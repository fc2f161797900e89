#include "formdata/clsZR3PreferencesDatabase.h"
#include "shell/frmAbout.h"
#include "shell/frmExportToWord.h"
#include "tests/support/mdSpokenNames.h"
#include "tests/window/clsMainWindowTest.h"

// The accessible names of everything that can have the focus, on the program's own windows.

namespace {

using SpokenNames = clsMainWindowTest;

} // namespace

TEST_F(SpokenNames, OfTheMainWindow)
{
    start();
    EXPECT_LT(3, expectSensibleNames(*window));
}

TEST_F(SpokenNames, OfTheRowsOfTabs)
{
    start();
    for (const auto &[name, called] :
        {std::pair("tbSection", "Groups of sections"), {"tbSubSection", "Sections of the group"}}) {
        const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(&row(name));
        ASSERT_TRUE(spoken);
        EXPECT_EQ(QAccessible::PageTabList, spoken->role());
        EXPECT_EQ(QLatin1String(called), spoken->text(QAccessible::Name));
    }
}

TEST_F(SpokenNames, OfTheDialogs)
{
    Preferences = std::make_unique<clsZR3PreferencesDatabase>();
    Form = std::make_unique<clsZR3Form>();
    frmAbout about(true);
    show(about);
    EXPECT_LT(0, expectSensibleNames(about));
    frmExportToWord exporting;
    show(exporting);
    EXPECT_LT(0, expectSensibleNames(exporting));
}
