#pragma once

#include "shell/clsWindowUserInterface.h"
#include "tests/window/clsWindowTest.h"

#include <QTimer>

#include <functional>

/// Base of tests of the real user interface. Its windows are modal, so actions on them are set up beforehand.
class clsInterfaceTest : public clsWindowTest {
protected:
    template <class Window> void whenShown(std::function<void(Window &)> step)
    {
        m_watch.disconnect();
        QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this, step] {
            QWidget *modal = QApplication::activeModalWidget();
            if (!modal)
                return;
            m_watch.stop();
            ++shown;
            auto *expected = qobject_cast<Window *>(modal);
            EXPECT_NE(nullptr, expected) << modal->metaObject()->className();
            if (expected)
                step(*expected);
            if (modal->isVisible())
                modal->close();
        });
        m_watch.start(1);
    }

    clsWindowUserInterface windows;
    int shown = 0;

private:
    QTimer m_watch;
};
