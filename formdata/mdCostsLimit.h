#pragma once

#include "base/Money.h"

#include <QString>

#include <optional>

class clsZR3Form;

// The limit of all costs, net of VAT. It is no property of the claim: its element is there only while a limit is set,
// so that a claim without one is written as it always was.

/// The limit as the claim stores it; empty where it has none.
QString mdStoredCostsLimit(const clsZR3Form &form);
/// The same as an amount; nothing where there is none, and for a text that is no amount above zero.
std::optional<Money> mdCostsLimit(const clsZR3Form &form);
/// Sets the limit. With a text that is empty or an amount of zero the claim has none.
void mdSetCostsLimit(clsZR3Form &form, const QString &limit);
