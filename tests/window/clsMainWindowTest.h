#pragma once

#include "commands/mdFileHandling.h"
#include "controls/oFooterBar.h"
#include "controls/oHeaderBar.h"
#include "controls/oTabBar.h"
#include "controls/oTabBarButton.h"
#include "shell/frmMain.h"
#include "tests/window/clsWindowTest.h"

/// Base of tests of the main window.
class clsMainWindowTest : public clsWindowTest {
protected:
    void TearDown() override
    {
        window.reset();
        clsWindowTest::TearDown();
    }

    /// Creates the window like the program, on a claim or a new one.
    void start(const QString &claimPath = {})
    {
        window = std::make_unique<frmMain>();
        window->Load(claimPath);
        window->setWindowState(Qt::WindowNoState);
        window->resize(1200, 760);
        show(*window);
    }

    /// A claim as this program saved it.
    QString savedClaim()
    {
        const QString claim = sample("empty.zr3");
        start(claim);
        entry("mnuSave").trigger();
        EXPECT_FALSE(FormIsDirty());
        return claim;
    }

    QString header() const { return control<oHeaderBar>(*window, "oHeader").Caption(); }
    QAction &entry(const char *name) const { return control<QAction>(*window, name); }
    oTabBar &row(const char *name) const { return control<oTabBar>(*window, name); }

    /// The captions of a row of tabs.
    QStringList tabs(const char *name) const
    {
        QStringList captions;
        for (const oTabBarButton *button : row(name).findChildren<oTabBarButton *>())
            captions << button->Caption();
        return captions;
    }
    void clickTab(const char *name, const char *text) const
    {
        for (oTabBarButton *button : row(name).findChildren<oTabBarButton *>())
            if (button->Caption() == QLatin1String(text)) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        ADD_FAILURE() << "no tab " << text;
    }

    std::unique_ptr<frmMain> window;
};
