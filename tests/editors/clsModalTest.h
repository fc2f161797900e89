#pragma once

#include "tests/editors/clsScreenTest.h"

#include <QTimer>

#include <functional>

/// A test of what opens a screen and waits until it is closed: what the user does there is told before.
class clsModalTest : public clsScreenTest {
protected:
    /// Lets `opens` open a modal screen, and `act` use it until it is closed.
    static void inModal(const std::function<void()> &opens, const std::function<void(frmSection &)> &act)
    {
        bool opened = false;
        int patience = 500;
        QTimer waiting;
        QObject::connect(&waiting, &QTimer::timeout, &waiting, [&] {
            auto *screen = qobject_cast<frmSection *>(QApplication::activeModalWidget());
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
    /// The platform of the tests has no window manager: a window that is uncovered isn't brought back, and what was
    /// asked for earlier may still arrive late.
    static void activate(QWidget &window)
    {
        QCoreApplication::processEvents();
        window.activateWindow();
        // A window over the active one counts as active there before it has the keys.
        EXPECT_TRUE(QTest::qWaitFor([&window] { return window.isActiveWindow(); }));
    }
    static void click(QWidget &widget) { QTest::mouseClick(&widget, Qt::LeftButton, {}, widget.rect().center()); }
    /// A key for whatever has the focus in a window.
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
