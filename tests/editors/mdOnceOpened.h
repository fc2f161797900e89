#pragma once

#include "editors/frmScreen.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

/// Calls `use` on the window of that name as soon as it is open over the others, and expects it to be closed then.
inline void onceOpened(const char *name, std::function<void(frmScreen &)> use)
{
    auto *watch = new QTimer(qApp);
    QObject::connect(watch, &QTimer::timeout, watch, [watch, name, use, asked = 0]() mutable {
        auto *modal = qobject_cast<frmScreen *>(QApplication::activeModalWidget());
        const bool open = modal && modal->objectName() == QLatin1String(name) && modal->isVisible();
        if (!open && ++asked < 1000)
            return;
        watch->stop();
        watch->deleteLater();
        if (!open) {
            ADD_FAILURE() << name << " isn't opened";
            return;
        }
        // The first window below may still have an activation event pending.
        QCoreApplication::processEvents();
        modal->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(modal));
        use(*modal);
        if (modal->isVisible()) {
            ADD_FAILURE() << name << " stays open";
            modal->close();
        }
    });
    watch->start(5);
}
