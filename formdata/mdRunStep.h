#pragma once

#include <QString>

#include <functional>

// Whatever changes the claim at the user's word runs through one of these, and can then be undone. What stands on the
// claim's behalf and is made anew after the change, such as the order of a list, belongs into the action.

/// Runs an action; what it changes in the open claim is one step of that name.
void RunStep(const QString &name, const std::function<void()> &action);
/// The same for an action that knows only afterwards what the step is called.
void RunStep(const std::function<QString()> &action);
