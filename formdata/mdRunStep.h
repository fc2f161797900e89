#pragma once

#include <QString>

#include <functional>

// Every change to the claim by the user runs through one of these, so that it can be undone. Dependent updates after
// the change, such as the order of a list, belong in the same action.

/// Runs an action; its changes to the open claim are one step with that name.
void RunStep(const QString &name, const std::function<void()> &action);
/// The same for an action that determines the step's name only afterwards.
void RunStep(const std::function<QString()> &action);
