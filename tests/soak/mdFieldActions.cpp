#include "tests/soak/mdFieldActions.h"

#include "controls/oContentSwitcher.h"
#include "controls/oFrame.h"
#include "controls/oSGrid.h"
#include "editors/frmScreen.h"
#include "tests/soak/clsDice.h"
#include "tests/soak/clsTrail.h"
#include "tests/soak/mdActions.h"
#include "tests/soak/mdHands.h"
#include "tests/soak/mdOddInput.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <vector>

namespace {

/// Lists are not made longer than this by hand: the large claims test large lists.
constexpr int LongestList = 60;

/// One of the visible and enabled widgets of a class; null if there is none.
template <class Widget, class Fits> Widget *some(const clsScene &scene, Fits fits)
{
    std::vector<Widget *> found;
    for (Widget *widget : scene.front.findChildren<Widget *>())
        if (widget->window() == &scene.front && widget->isVisible() && widget->isEnabled() && fits(*widget))
            found.push_back(widget);
    return found.empty() ? nullptr : scene.dice.oneOf(found);
}

bool isTypedInto(const QWidget &widget)
{
    const auto *line = qobject_cast<const QLineEdit *>(&widget);
    const auto *text = qobject_cast<const QPlainTextEdit *>(&widget);
    return (line && !line->isReadOnly()) || (text && !text->isReadOnly());
}

/// The kind of a widget's row; a text if no table has it.
clsRowKind kindOf(const QWidget &widget)
{
    if (const auto *screen = qobject_cast<const frmScreen *>(widget.window()))
        for (const clsScreenField &field : screen->Fields())
            if (field.control == &widget || field.control->isAncestorOf(&widget))
                return field.row->kind;
    return widget.objectName() == QLatin1String("txtText") ? clsRowKind::Time : clsRowKind::Text;
}

/// Goes to a field like a user: by a click if it is visible, otherwise by the Tab key, which also scrolls to it.
bool goTo(QWidget &field)
{
    if (field.hasFocus() || Hands::click(field))
        return true;
    field.setFocus(Qt::TabFocusReason);
    return field.hasFocus();
}

/// Digits typed in a grid count as a row number only after a pause. Waiting for it here makes the next action
/// independent of the machine's speed.
void waitForTypedNumber(const oSGrid &grid)
{
    for (const QTimer *timer : grid.findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly))
        if (timer->isSingleShot() && timer->isActive())
            QTest::qWait(timer->remainingTime() + 1);
}

QTableView *viewOf(const oSGrid &grid)
{
    return grid.findChild<QTableView *>();
}

struct clsGridKey {
    const char *words;
    int key;
    Qt::KeyboardModifiers modifiers;
};

// clang-format off
const clsGridKey GridKeys[] = {
    {"Down",        Qt::Key_Down,     Qt::NoModifier},
    {"Up",          Qt::Key_Up,       Qt::NoModifier},
    {"Home",        Qt::Key_Home,     Qt::NoModifier},
    {"End",         Qt::Key_End,      Qt::NoModifier},
    {"PageDown",    Qt::Key_PageDown, Qt::NoModifier},
    {"Left",        Qt::Key_Left,     Qt::NoModifier},
    {"Right",       Qt::Key_Right,    Qt::NoModifier},
    {"Insert",      Qt::Key_Insert,   Qt::NoModifier},
    {"Insert",      Qt::Key_Insert,   Qt::NoModifier},
    {"Return",      Qt::Key_Return,   Qt::NoModifier},
    {"Return",      Qt::Key_Return,   Qt::NoModifier},
    {"Delete",      Qt::Key_Delete,   Qt::NoModifier},
    {"Alt+Up",      Qt::Key_Up,       Qt::AltModifier},
    {"Alt+Down",    Qt::Key_Down,     Qt::AltModifier},
    {"Alt+Down",    Qt::Key_Down,     Qt::AltModifier},
    {"Shift+Down",  Qt::Key_Down,     Qt::ShiftModifier},
    {"Ctrl+A",      Qt::Key_A,        Qt::ControlModifier},
    {"Menu",        Qt::Key_Menu,     Qt::NoModifier},
    {"Shift+F10",   Qt::Key_F10,      Qt::ShiftModifier},
    {"C",           Qt::Key_C,        Qt::NoModifier},
    {"I",           Qt::Key_I,        Qt::NoModifier},
    {"O",           Qt::Key_O,        Qt::NoModifier},
    {"Shift+C",     Qt::Key_C,        Qt::ShiftModifier},
    {"Ctrl+Shift+O", Qt::Key_O,       Qt::ShiftModifier | Qt::ControlModifier},
    {"1",           Qt::Key_1,        Qt::NoModifier},
    {"3",           Qt::Key_3,        Qt::NoModifier},
};
// clang-format on

oSGrid *someGrid(const clsScene &scene)
{
    return some<oSGrid>(scene, [](const oSGrid &grid) { return viewOf(grid) != nullptr; });
}

} // namespace

QString mdNameOf(const QWidget &widget)
{
    QStringList names;
    for (const QWidget *at = &widget; at && names.size() < 2; at = at->parentWidget()) {
        if (!at->objectName().isEmpty() && !at->objectName().startsWith(QLatin1String("qt_")))
            names.prepend(at->objectName());
        if (at->isWindow())
            break;
    }
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    const QString caption
        = button && !button->text().isEmpty() ? QStringLiteral(" \"") + button->text() + u'"' : QString();
    return (names.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : names.join(u'.')) + caption;
}

bool mdTypeIntoField(clsScene &scene)
{
    QWidget *field = some<QWidget>(scene, isTypedInto);
    if (!field)
        return false;
    const clsRowKind kind = kindOf(*field);
    const QString text = mdOddInput(scene.dice, kind);
    const bool over = scene.dice.chance(85);
    const bool leaves = scene.dice.chance(70);
    const bool undoes = scene.dice.chance(6);
    scene.trail.say("type",
        mdNameOf(scene.front) + u' ' + mdNameOf(*field) + QStringLiteral(" <") + text.left(60) + u'>'
            + (text.size() > 60 ? QStringLiteral(" of %1").arg(text.size()) : QString())
            + (leaves ? QStringLiteral(" Tab") : QString()));
    const QPointer<QWidget> window = &scene.front;
    if (!goTo(*field))
        return true;
    if (over)
        Hands::key(Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        Hands::key(Qt::Key_Delete);
    else
        Hands::type(text);
    if (undoes)
        Hands::key(Qt::Key_Z, Qt::ControlModifier);
    if (leaves && window && Hands::front() == window)
        Hands::key(Qt::Key_Tab);
    return true;
}

bool mdUseList(clsScene &scene)
{
    auto *list = some<QComboBox>(scene, [](const QComboBox &) { return true; });
    if (!list)
        return false;
    const int way = scene.dice.below(4);
    const int steps = scene.dice.from(1, 4);
    scene.trail.say("choose", mdNameOf(scene.front) + u' ' + mdNameOf(*list) + QStringLiteral(" way %1").arg(way));
    if (way == 0) {
        Hands::wheel(*list, scene.dice.from(-2, 2));
        return true;
    }
    if (!goTo(*list) || way == 1)
        return true;
    const int key = scene.dice.chance(50) ? Qt::Key_Down : Qt::Key_Up;
    for (int step = 0; step < steps; ++step)
        Hands::key(way == 2 ? key : Qt::Key_A + scene.dice.below(26));
    return true;
}

bool mdClickButton(clsScene &scene)
{
    auto *button = some<QAbstractButton>(scene, [&scene](const QAbstractButton &candidate) {
        const bool adds = candidate.objectName().startsWith(QLatin1String("cmdAdd"));
        const auto *grid = adds ? scene.front.findChild<oSGrid *>() : nullptr;
        return !grid || grid->Rows() < LongestList;
    });
    if (!button)
        return false;
    const bool byKey = scene.dice.chance(30);
    scene.trail.say(
        "click", mdNameOf(scene.front) + u' ' + mdNameOf(*button) + QLatin1String(byKey ? " by Space" : ""));
    if (!byKey && Hands::click(*button))
        return true;
    if (goTo(*button) && byKey)
        Hands::key(Qt::Key_Space);
    return true;
}

bool mdUseGridByKeys(clsScene &scene)
{
    oSGrid *grid = someGrid(scene);
    const clsGridKey &key = scene.dice.oneOf(GridKeys);
    if (!grid || (key.key == Qt::Key_Insert && grid->Rows() >= LongestList))
        return false;
    const int times = key.key == Qt::Key_Down || key.key == Qt::Key_C ? scene.dice.from(1, 6) : 1;
    scene.trail.say("grid by keys",
        mdNameOf(scene.front) + u' ' + mdNameOf(*grid) + QStringLiteral(" of %1: ").arg(grid->Rows())
            + QLatin1String(key.words) + QStringLiteral(" x%1").arg(times));
    if (!goTo(*viewOf(*grid)))
        return true;
    for (int i = 0; i < times; ++i)
        Hands::key(key.key, key.modifiers);
    if (key.key == Qt::Key_1 || key.key == Qt::Key_3)
        waitForTypedNumber(*grid);
    return true;
}

bool mdUseGridByMouse(clsScene &scene)
{
    oSGrid *grid = someGrid(scene);
    if (!grid || grid->Rows() == 0)
        return false;
    QTableView &view = *viewOf(*grid);
    const QModelIndex cell
        = view.model()->index(scene.dice.below(grid->Rows()), scene.dice.below(view.model()->columnCount()));
    const QPoint at = view.visualRect(cell).center();
    if (!Hands::canClick(*view.viewport(), at))
        return false;
    constexpr const char *Ways[]
        = {"click", "click", "double click", "right click", "Ctrl click", "Shift click", "Shift right click"};
    const int way = scene.dice.below(int(std::size(Ways)));
    scene.trail.say("grid by mouse",
        mdNameOf(scene.front) + u' ' + mdNameOf(*grid)
            + QStringLiteral(" row %1 of %2 ").arg(cell.row() + 1).arg(grid->Rows()) + QLatin1String(Ways[way]));
    const Qt::KeyboardModifiers held = way == 4 ? Qt::ControlModifier : way >= 5 ? Qt::ShiftModifier : Qt::NoModifier;
    Hands::clickAt(*view.viewport(), at, way == 3 || way == 6 ? Qt::RightButton : Qt::LeftButton, held, way == 2);
    return true;
}

bool mdSortGrid(clsScene &scene)
{
    oSGrid *grid = someGrid(scene);
    if (!grid)
        return false;
    QHeaderView &header = *viewOf(*grid)->horizontalHeader();
    const QPoint at(scene.dice.below(header.width()), header.height() / 2);
    if (!Hands::canClick(*header.viewport(), at))
        return false;
    scene.trail.say("grid heading", mdNameOf(scene.front) + u' ' + mdNameOf(*grid));
    Hands::clickAt(*header.viewport(), at, Qt::LeftButton, Qt::NoModifier, scene.dice.chance(20));
    return true;
}

bool mdTurnWheel(clsScene &scene)
{
    auto *widget = some<QWidget>(scene, [](const QWidget &candidate) { return !candidate.visibleRegion().isEmpty(); });
    if (!widget)
        return false;
    const int notches = scene.dice.from(-8, 5);
    scene.trail.say("wheel", mdNameOf(scene.front) + u' ' + mdNameOf(*widget) + QStringLiteral(" %1").arg(notches));
    Hands::wheel(*widget, notches, scene.dice.chance(10) ? Qt::ControlModifier : Qt::NoModifier);
    return true;
}

bool mdOpenPage(clsScene &scene)
{
    auto *switcher = some<oContentSwitcher>(scene, [](const oContentSwitcher &) { return true; });
    if (!switcher || switcher->Pages() == 0)
        return false;
    const int page = scene.dice.from(1, switcher->Pages());
    scene.trail.say("page", mdNameOf(scene.front) + QStringLiteral(" page %1").arg(page));
    Hands::click(*switcher->Page(page)->captionBar());
    return true;
}
