#pragma once

#include "controls/oAllPurposeBox.h"
#include "tests/support/mdTestPrinting.h"
#include "tests/window/clsProgramTest.h"

#include <QScopedValueRollback>
#include <QTest>

#include <optional>
#include <source_location>

/// A user with only a keyboard in front of the program's real windows: each step is taken as soon as the previous one
/// has had its effect.
class clsWholeWayTest : public clsProgramTest {
protected:
    void SetUp() override
    {
        clsProgramTest::SetUp();
        ASSERT_TRUE(QFile::link(QStringLiteral(ZR3_TEMPLATES), path("program/Templates")));
        ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("export")));
    }

    /// A step: what the user does, and the result that is then awaited.
    using Place = std::source_location;
    void step(std::function<void()> does, std::function<bool()> waitsFor, Place place = Place::current())
    {
        m_steps.push_back({std::move(does), std::move(waitsFor), place.line()});
    }
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, std::function<bool()> waitsFor = always,
        Place place = Place::current())
    {
        step([=] { press(key, modifiers); }, std::move(waitsFor), place);
    }
    /// Types a text, in which a tab character and a down arrow mean these keys.
    void type(const QString &text, Place place = Place::current())
    {
        step([=] { pressAll(text); }, always, place);
    }
    static void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        ++pressed;
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key(key), modifiers);
    }
    static void pressAll(const QString &text)
    {
        for (const QChar c : text) {
            if (c == u'\t')
                press(Qt::Key_Tab);
            else if (c == u'↓')
                press(Qt::Key_Down);
            else {
                ++pressed;
                QTest::keyClick(QGuiApplication::focusWindow(), c.toLatin1());
            }
        }
    }
    /// The number of keys pressed so far; a letter with Alt counts as one.
    inline static int pressed = 0;

    /// Looks at the present state without doing anything.
    void look(std::function<void()> at, Place place = Place::current()) { step(std::move(at), always, place); }

    static bool always() { return true; }
    /// The offscreen platform has no window manager that would activate the window below one that closes.
    static bool isActive(QWidget &window)
    {
        const auto hasKeys
            = [&window] { return window.isActiveWindow() && QGuiApplication::focusWindow() == window.windowHandle(); };
        if (!hasKeys())
            window.activateWindow();
        return hasKeys();
    }
    /// Between two windows, none may be active for a moment. A user does not type then.
    static bool somethingHasKeys()
    {
        QWidget *window = QApplication::activeModalWidget();
        if (!window)
            window = topLevel<frmMain>();
        return QGuiApplication::focusWindow() || !window || !window->isVisible() || isActive(*window);
    }
    static std::function<bool()> screenIs(const char *name)
    {
        return [name] { return modalName() == QLatin1String(name) && isActive(*QApplication::activeModalWidget()); };
    }
    static std::function<bool()> boxIs(const char *title)
    {
        return [title] { return screenIs("frmMessageBox")() && modalTitle() == QLatin1String(title); };
    }
    /// Back at the main window.
    static bool noScreen()
    {
        return modalName().isEmpty() && topLevel<frmMain>()->isVisible() && isActive(*topLevel<frmMain>());
    }

    static QString modalName()
    {
        const QWidget *modal = QApplication::activeModalWidget();
        return modal ? modal->objectName() : QString();
    }
    static QString modalTitle() { return QApplication::activeModalWidget()->windowTitle(); }
    template <class Control> static Control *onScreen(const char *name)
    {
        QWidget *modal = QApplication::activeModalWidget();
        return modal ? modal->findChild<Control *>(QString::fromLatin1(name)) : nullptr;
    }
    /// Whether the focus is in that control or a part of it.
    static bool focusIn(const char *name)
    {
        for (const QWidget *part = QApplication::focusWidget(); part; part = part->parentWidget())
            if (part->objectName() == QLatin1String(name))
                return true;
        return false;
    }
    static QString textOf(const char *name)
    {
        const auto *box = onScreen<oAllPurposeBox>(name);
        return box ? box->Text() : QStringLiteral("(no box)");
    }

    /// Takes all steps; returns the status of the program.
    int walk(const std::vector<QByteArray> &arguments)
    {
        size_t next = 0;
        bool taken = false;
        const int status = run(arguments, [&, this] {
            if (next == m_steps.size())
                return true;
            const clsStep &now = m_steps[next];
            if (!taken) {
                if (!somethingHasKeys())
                    return false;
                taken = true;
                take(now);
                // The last one ends the program, so its result can't be checked.
                if (next + 1 < m_steps.size())
                    return false;
                ++next;
                return true;
            }
            if (isBeingTaken())
                return false;
            // If another word processor is running on the tester's machine, a question appears before the export.
            if (boxIs("Word Instances")())
                QTimer::singleShot(0, QCoreApplication::instance(),
                    [] { QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Return); });
            if (!now.waitsFor())
                return false;
            ++next;
            taken = false;
            return next == m_steps.size();
        });
        if (next < m_steps.size())
            ADD_FAILURE() << "the step of line " << m_steps[next].line << " had no effect; on the screen was "
                          << (m_shown.isEmpty() ? "the main window" : qPrintable(m_shown));
        return status;
    }

private:
    struct clsStep {
        std::function<void()> does;
        std::function<bool()> waitsFor;
        unsigned line;
    };

    /// From a separate timer, because the step may open a nested event loop.
    void take(const clsStep &now)
    {
        m_begun = false;
        QTimer::singleShot(0, QCoreApplication::instance(), [this, &now] {
            m_begun = true;
            const QScopedValueRollback<std::optional<const QWidget *>> pressing(
                m_pressing, QApplication::activeModalWidget());
            now.does();
        });
    }
    /// Events are handled between two keys of a step; the next step must wait for its end. A key that opens a window
    /// returns only when that is closed, but steps in that window may go ahead.
    bool isBeingTaken() const { return !m_begun || m_pressing == QApplication::activeModalWidget(); }

    QString m_shown;
    std::vector<clsStep> m_steps;
    bool m_begun = false;
    std::optional<const QWidget *> m_pressing; ///< the screen on which the keys of a step are being pressed
};
