#pragma once

#include <QString>

#include <span>

class QWidget;
class clsDice;
class clsTrail;

/// Where the user is, and what decides on what is done there.
struct clsScene {
    QWidget &front; ///< the window, box or popup in front
    clsDice &dice;
    clsTrail &trail;
};

/// One kind of action: how often it comes, and what it does. It says in words what it is about to do before it does it,
/// and is false, with nothing said or done, where the window has nothing to do it on.
struct clsSoakAction {
    const char *kind;
    int weight;
    bool (*act)(clsScene &scene);
};

/// What a user can do with the window in front.
std::span<const clsSoakAction> mdActionsFor(const QWidget &front);

/// What a widget is called in the trail.
QString mdNameOf(const QWidget &widget);
