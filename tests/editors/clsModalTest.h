#pragma once

#include "tests/editors/clsScreenTest.h"

#include <QTimer>

#include <functional>

/// Base of tests that open a modal screen: the user's actions on it are set up beforehand.
class clsModalTest : public clsScreenTest {
protected:
    /// Lets `opens` open a modal screen, and `act` use it until it is closed.
    static void inModal(const std::function<void()> &opens, const std::function<void(frmScreen &)> &act)
    {
        bool opened = false;
        int patience = 500;
        QTimer waiting;
        QObject::connect(&waiting, &QTimer::timeout, &waiting, [&] {
            auto *screen = qobject_cast<frmScreen *>(QApplication::activeModalWidget());
            if (!screen && --patience > 0)
                return;
            waiting.stop();
            if (!screen)
                return;
            opened = true;
            activate(*screen);
            act(*screen);
            EXPECT_FALSE(screen->isVisible()) << screen->objectName().toStdString() << " was left open";
            if (screen->isVisible())
                screen->close();
        });
        waiting.start(2);
        QWidget *below = QApplication::activeWindow();
        opens();
        EXPECT_TRUE(opened);
        if (below)
            activate(*below);
    }
    /// The test platform has no window manager: an uncovered window isn't activated again, and earlier requests may
    /// still arrive late.
    static void activate(QWidget &window)
    {
        QCoreApplication::processEvents();
        window.activateWindow();
        // A window over the active one counts as active before it receives keys.
        EXPECT_TRUE(QTest::qWaitFor([&window] { return window.isActiveWindow(); }));
    }
    static void click(QWidget &widget) { QTest::mouseClick(&widget, Qt::LeftButton, {}, widget.rect().center()); }
    /// Sends a key to the widget of a window that has the focus.
    static void key(const QWidget &window, int which, Qt::KeyboardModifiers modifiers = {})
    {
        ASSERT_TRUE(window.focusWidget());
        QTest::keyClick(window.focusWidget(), Qt::Key(which), modifiers);
    }
    static QString focused(const QWidget &window)
    {
        return window.focusWidget() ? window.focusWidget()->objectName() : QString();
    }
};
