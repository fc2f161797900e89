#include "tests/soak/mdWindowActions.h"

#include "controls/oTabBarButton.h"
#include "preview/oPreviewGrid.h"
#include "tests/soak/clsDice.h"
#include "tests/soak/clsTrail.h"
#include "tests/soak/mdActions.h"
#include "tests/soak/mdHands.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

namespace {

struct clsKey {
    const char *words;
    int key;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

// clang-format off
const clsKey Keys[] = {
    {"Tab",       Qt::Key_Tab},       {"Tab",      Qt::Key_Tab},       {"Shift+Tab", Qt::Key_Backtab, Qt::ShiftModifier},
    {"Down",      Qt::Key_Down},      {"Up",       Qt::Key_Up},        {"Left",      Qt::Key_Left},
    {"Right",     Qt::Key_Right},     {"Home",     Qt::Key_Home},      {"End",       Qt::Key_End},
    {"PageDown",  Qt::Key_PageDown},  {"PageUp",   Qt::Key_PageUp},    {"Space",     Qt::Key_Space},
    {"Return",    Qt::Key_Return},    {"Backspace", Qt::Key_Backspace}, {"Delete",   Qt::Key_Delete},
    {"Esc",       Qt::Key_Escape},    {"Insert",   Qt::Key_Insert},    {"Menu",      Qt::Key_Menu},
    {"Enter",     Qt::Key_Enter, Qt::KeypadModifier},
    {"Ctrl+Z",    Qt::Key_Z, Qt::ControlModifier}, {"Ctrl+Y", Qt::Key_Y, Qt::ControlModifier},
    {"Ctrl+A",    Qt::Key_A, Qt::ControlModifier}, {"Ctrl+C", Qt::Key_C, Qt::ControlModifier},
    {"Ctrl+X",    Qt::Key_X, Qt::ControlModifier}, {"Ctrl+V", Qt::Key_V, Qt::ControlModifier},
    {"Ctrl+Home", Qt::Key_Home, Qt::ControlModifier}, {"Ctrl+End", Qt::Key_End, Qt::ControlModifier},
    {"Ctrl+PageDown", Qt::Key_PageDown, Qt::ControlModifier}, {"Ctrl+PageUp", Qt::Key_PageUp, Qt::ControlModifier},
    {"Shift+End", Qt::Key_End, Qt::ShiftModifier}, {"Alt+Down", Qt::Key_Down, Qt::AltModifier},
    {"F1",        Qt::Key_F1}, {"F2", Qt::Key_F2}, {"F4", Qt::Key_F4}, {"F10", Qt::Key_F10},
    {"Shift+F2",  Qt::Key_F2, Qt::ShiftModifier}, {"Ctrl+Alt+F3", Qt::Key_F3, Qt::ControlModifier | Qt::AltModifier},
};

const clsKey Shortcuts[] = {
    {"Ctrl+N", Qt::Key_N, Qt::ControlModifier},
    {"Ctrl+O", Qt::Key_O, Qt::ControlModifier}, {"Ctrl+O", Qt::Key_O, Qt::ControlModifier},
    {"Ctrl+S", Qt::Key_S, Qt::ControlModifier}, {"Ctrl+S", Qt::Key_S, Qt::ControlModifier},
    {"Ctrl+W", Qt::Key_W, Qt::ControlModifier},
    {"Ctrl+P", Qt::Key_P, Qt::ControlModifier},
    {"Ctrl+L", Qt::Key_L, Qt::ControlModifier},
    {"Ctrl+T", Qt::Key_T, Qt::ControlModifier}, {"Ctrl+I", Qt::Key_I, Qt::ControlModifier},
};
// clang-format on

bool isMessageBox(const QWidget &window)
{
    return window.inherits("frmMessageBox") || window.inherits("QMessageBox");
}

} // namespace

bool mdPressKeys(clsScene &scene)
{
    QStringList words;
    std::vector<clsKey> keys;
    for (int count = scene.dice.from(1, 5); count > 0; --count) {
        clsKey key = scene.dice.oneOf(Keys);
        if (scene.dice.chance(15)) {
            key = {"Alt+letter", Qt::Key_A + scene.dice.below(26), Qt::AltModifier};
            words << QStringLiteral("Alt+") + QChar(u'A' + (key.key - Qt::Key_A));
        } else {
            words << QLatin1String(key.words);
        }
        keys.push_back(key);
    }
    scene.trail.say("keys", mdNameOf(scene.front) + u' ' + words.join(u' '));
    const QPointer<QWidget> window = &scene.front;
    for (const clsKey &key : keys) {
        // Windows that opened or closed in between are left to the next action.
        if (!window || Hands::front() != window || !Hands::ready())
            break;
        Hands::key(key.key, key.modifiers);
    }
    return true;
}

bool mdPressShortcut(clsScene &scene)
{
    const clsKey &key = scene.dice.oneOf(Shortcuts);
    scene.trail.say(key.words, mdNameOf(scene.front));
    Hands::key(key.key, key.modifiers);
    return true;
}

bool mdClickTab(clsScene &scene)
{
    QList<oTabBarButton *> tabs = scene.front.findChildren<oTabBarButton *>();
    tabs.removeIf([](const oTabBarButton *tab) { return !tab->isVisible(); });
    if (tabs.isEmpty())
        return false;
    oTabBarButton *tab = scene.dice.oneOf(tabs);
    scene.trail.say("tab", tab->Caption());
    Hands::click(*tab);
    return true;
}

bool mdOpenMenu(clsScene &scene)
{
    const auto *bar = scene.front.findChild<QMenuBar *>();
    if (!bar || !bar->isVisible() || bar->actions().isEmpty())
        return false;
    QAction *menu = scene.dice.oneOf(bar->actions());
    const bool byKey = scene.dice.chance(50);
    scene.trail.say("menu", mdNameOf(scene.front) + u' ' + menu->text());
    const qsizetype mark = menu->text().indexOf(u'&');
    if (byKey && mark >= 0)
        Hands::key(menu->text().at(mark + 1).toUpper().unicode(), Qt::AltModifier);
    else
        Hands::clickAt(const_cast<QMenuBar &>(*bar), bar->actionGeometry(menu).center());
    return true;
}

bool mdResize(clsScene &scene)
{
    const QSize size(scene.dice.from(300, 1500), scene.dice.from(200, 1000));
    scene.trail.say(
        "resize", mdNameOf(scene.front) + QStringLiteral(" to %1 x %2").arg(size.width()).arg(size.height()));
    scene.front.resize(size.expandedTo(scene.front.minimumSizeHint()));
    return true;
}

bool mdLeaveScreen(clsScene &scene)
{
    constexpr const char *Ways[] = {"Esc", "Alt+S", "Alt+C", "Alt+E", "Alt+P", "its close box", "Return"};
    constexpr int KeysOfWays[] = {Qt::Key_Escape, Qt::Key_S, Qt::Key_C, Qt::Key_E, Qt::Key_P, 0, Qt::Key_Return};
    const int way = scene.dice.below(int(std::size(Ways)));
    scene.trail.say("leave", mdNameOf(scene.front) + QStringLiteral(" by ") + QLatin1String(Ways[way]));
    if (KeysOfWays[way] == 0)
        scene.front.close();
    else
        Hands::key(KeysOfWays[way], Ways[way][0] == 'A' ? Qt::AltModifier : Qt::NoModifier);
    return true;
}

bool mdSaveFromScreen(clsScene &scene)
{
    if (!scene.front.findChild<QAction *>(QStringLiteral("mnuSave")))
        return false;
    scene.trail.say("Ctrl+S", mdNameOf(scene.front));
    Hands::key(Qt::Key_S, Qt::ControlModifier);
    return true;
}

bool mdScrollPreview(clsScene &scene)
{
    auto *preview = scene.front.findChild<oPreviewGrid *>();
    if (!preview)
        return false;
    const int way = scene.dice.below(4);
    scene.trail.say("preview", QStringLiteral("way %1").arg(way));
    if (way == 0) {
        for (QWidget *part : preview->findChildren<QWidget *>())
            if (part->objectName() == QLatin1String("qt_scrollarea_viewport"))
                Hands::wheel(*part, scene.dice.from(-20, 10));
        return true;
    }
    Hands::click(*preview, way == 1 ? Qt::RightButton : Qt::LeftButton);
    constexpr int Ways[] = {Qt::Key_PageDown, Qt::Key_End, Qt::Key_Home, Qt::Key_Down, Qt::Key_PageUp};
    if (way > 1 && Hands::front() == &scene.front)
        Hands::key(scene.dice.oneOf(Ways));
    return true;
}

bool mdClickBelow(clsScene &scene)
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window == &scene.front || window->objectName() != QLatin1String("frmMain"))
            continue;
        scene.trail.say("click below", QStringLiteral("on the main window, behind ") + mdNameOf(scene.front));
        Hands::clickAt(*window, {scene.dice.below(window->width()), scene.dice.below(window->height())});
        return true;
    }
    return false;
}

bool mdAnswerBox(clsScene &scene)
{
    QList<QAbstractButton *> buttons = scene.front.findChildren<QAbstractButton *>();
    buttons.removeIf([](const QAbstractButton *button) { return !button->isVisible(); });
    const int way = scene.dice.below(5);
    const QString title = isMessageBox(scene.front) ? scene.front.windowTitle() : mdNameOf(scene.front);
    if (way < 3 && !buttons.isEmpty()) {
        QAbstractButton *button = scene.dice.oneOf(buttons);
        scene.trail.say("answer", title + u' ' + mdNameOf(*button));
        if (Hands::click(*button))
            return true;
    } else {
        scene.trail.say("answer", title + QLatin1String(way == 3 ? " Esc" : " Return"));
    }
    Hands::key(way == 3 ? Qt::Key_Escape : Qt::Key_Return);
    return true;
}

bool mdUsePopup(clsScene &scene)
{
    const int downs = scene.dice.below(8);
    constexpr int Last[] = {Qt::Key_Return, Qt::Key_Return, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Left};
    constexpr const char *Words[] = {"Return", "Return", "Return", "Esc", "Left"};
    const int last = scene.dice.below(int(std::size(Last)));
    scene.trail.say(
        "popup", mdNameOf(scene.front) + QStringLiteral(" Down x%1 ").arg(downs) + QLatin1String(Words[last]));
    const QPointer<QWidget> popup = &scene.front;
    for (int i = 0; i < downs && popup && Hands::front() == popup; ++i)
        Hands::key(Qt::Key_Down);
    Hands::key(Last[last]);
    return true;
}

bool mdEndProgram(clsScene &scene)
{
    if (!scene.dice.chance(10))
        return false;
    scene.trail.say("end", QStringLiteral("Ctrl+Q"));
    Hands::key(Qt::Key_Q, Qt::ControlModifier);
    return true;
}
