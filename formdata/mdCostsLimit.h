#pragma once

#include "base/Money.h"

#include <QString>

#include <optional>

class clsZR3Form;

// The limit of all costs, net of VAT. Not a property of the claim: its element exists only while a limit is set, so
// that a claim without one is saved as before.

/// The stored limit; empty if there is none.
QString mdStoredCostsLimit(const clsZR3Form &form);
/// The limit as an amount; nothing if there is none, or if its text is not an amount above zero.
std::optional<Money> mdCostsLimit(const clsZR3Form &form);
/// Sets the limit. An empty text or a zero amount removes it.
void mdSetCostsLimit(clsZR3Form &form, const QString &limit);
