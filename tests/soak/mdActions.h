#pragma once

#include <QString>

#include <span>

class QWidget;
class clsDice;
class clsTrail;

/// The user's situation, which determines what can be done.
struct clsScene {
    QWidget &front; ///< the window, box or popup in front
    clsDice &dice;
    clsTrail &trail;
};

/// A kind of action: its frequency, and its function. The function describes in the trail what it is about to do; it
/// returns false, having done nothing, if the window offers nothing to do it on.
struct clsSoakAction {
    const char *kind;
    int weight;
    bool (*act)(clsScene &scene);
};

/// The possible actions on the window in front.
std::span<const clsSoakAction> mdActionsFor(const QWidget &front);

/// A widget's name in the trail.
QString mdNameOf(const QWidget &widget);
