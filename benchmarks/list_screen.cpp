// How long the user waits on a screen with a long list: list_screen ITEMS. Opens the Schedule of Time of a claim with
// that many items, adds one by keyboard, undoes that, and prints the milliseconds of each wait as JSON. A wait lasts
// from the key press, or the call that opens the screen, until the result is painted and no event is pending.

#include "benchmarks/mdMakeClaim.h"
#include "controls/mdApplyTheme.h"
#include "controls/oSGrid.h"
#include "editors/frmScreen.h"
#include "editors/mdSections.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <vector>

namespace {

constexpr int Repetitions = 9;
constexpr int PatienceInMilliseconds = 30000;

[[noreturn]] void fail(const char *what)
{
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

/// Waits until the window of that name, with no other in front of it, has painted itself since this object was created.
class clsPaintWatch final : public QObject {
public:
    explicit clsPaintWatch(const char *window)
        : m_window(QLatin1String(window))
    {
        qApp->installEventFilter(this);
    }

    void wait()
    {
        QElapsedTimer timer;
        timer.start();
        while (!m_painted) {
            QCoreApplication::processEvents();
            if (timer.elapsed() > PatienceInMilliseconds)
                fail("Nothing was painted.");
        }
        // Includes work that the painting and the key have deferred.
        QCoreApplication::processEvents();
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && object->isWidgetType()) {
            const QWidget *window = static_cast<QWidget *>(object)->window();
            const QWidget *front = QApplication::activeModalWidget();
            m_painted = m_painted || (window->objectName() == m_window && (!front || front == window));
        }
        return false;
    }

private:
    const QLatin1String m_window;
    bool m_painted = false;
};

double median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

double milliseconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

void key(QWidget &window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, key, modifiers);
}

void type(QWidget &box, const QString &text)
{
    QWidget *part = &box;
    while (part->focusProxy())
        part = part->focusProxy();
    part->setFocus();
    QTest::keyClick(part, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(part, text);
}

struct clsTimes {
    std::vector<double> open;
    std::vector<double> editor;
    std::vector<double> save;
    std::vector<double> undo;
};

/// Opens the editor on a new item, fills it in and saves it.
void addItem(frmScreen &screen, clsTimes &times)
{
    QElapsedTimer timer;
    clsPaintWatch opened("frmScheduleOfTimeItemEdit");
    std::optional<clsPaintWatch> saved;
    // The editor has an event loop of its own, in which this runs as soon as it is open.
    QTimer::singleShot(0, &screen, [&] {
        auto *editor = qobject_cast<frmScreen *>(QApplication::activeModalWidget());
        if (!editor)
            fail("The editor of an item did not open.");
        opened.wait();
        times.editor.push_back(milliseconds(timer));
        if (!QTest::qWaitForWindowActive(editor))
            fail("The editor of an item did not become active.");
        type(editor->Box("txtDate"), QStringLiteral("01/02/24"));
        type(editor->Box("cmbCode"), QStringLiteral("ACT"));
        type(editor->Box("txtTime"), QStringLiteral("01:12"));
        saved.emplace("frmScheduleOfTime");
        timer.start();
        key(*editor, Qt::Key_S, Qt::AltModifier);
        if (editor->isVisible())
            fail("The item was not saved.");
    });
    timer.start();
    key(screen, Qt::Key_Insert);
    if (!saved)
        fail("The editor of an item was not used.");
    saved->wait();
    times.save.push_back(milliseconds(timer));
}

void round(int items, clsTimes &times)
{
    Form = std::make_unique<clsZR3Form>();
    mdMakeClaim(*Form, items);
    Form->RenderScheduleOfTimeItemsForExport();
    Form->RenderAdditionalInformationItems();
    {
        clsPaintWatch opened("frmScheduleOfTime");
        QElapsedTimer timer;
        timer.start();
        const std::unique_ptr<frmScreen> screen(
            dynamic_cast<frmScreen *>(mdCreateScreen(QStringLiteral("Schedule of Time"), nullptr)));
        screen->show();
        opened.wait();
        times.open.push_back(milliseconds(timer));

        auto &grid = screen->Box<oSGrid>("sgScheduleOfTime");
        if (!QTest::qWaitForWindowActive(screen.get()) || grid.Rows() != items)
            fail("The screen does not show the items.");
        grid.setFocus();
        addItem(*screen, times);
        if (grid.Rows() != items + 1 || grid.SelectedItemData() != items + 1)
            fail("The new item is not the one that is chosen in the list.");
        // An uncovered window is not activated again, and only the active one receives its menu's keys.
        screen->activateWindow();
        if (!QTest::qWaitForWindowActive(screen.get()))
            fail("The screen did not become active again.");
        QCoreApplication::processEvents();
        clsPaintWatch undone("frmScheduleOfTime");
        timer.start();
        key(*screen, Qt::Key_Z, Qt::ControlModifier);
        undone.wait();
        times.undo.push_back(milliseconds(timer));
        if (grid.Rows() != items)
            fail("The new item was not taken back.");
    }
    Form.reset();
}

} // namespace

int main(int argc, char **argv)
{
    const int items = argc == 2 ? QByteArray(argv[1]).toInt() : 0;
    if (items <= 0) {
        std::fputs("usage: list_screen ITEMS\n", stderr);
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Without a window manager the platform warns about each window.
    qputenv("QT_LOGGING_RULES", "default.warning=false;default.info=false;default.debug=false");
    int nameOnly = 1;
    QApplication application(nameOnly, argv);
    mdApplyTheme(application);
    clsTimes warm;
    round(items, warm);
    clsTimes times;
    for (int i = 0; i < Repetitions; ++i)
        round(items, times);
    std::printf("{\"open\": %.2f, \"editor\": %.2f, \"save\": %.2f, \"undo\": %.2f}\n", median(times.open),
        median(times.editor), median(times.save), median(times.undo));
    return 0;
}
