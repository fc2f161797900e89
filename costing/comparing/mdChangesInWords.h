#pragma once

#include "costing/comparing/clsClaimChanges.h"

class clsZR3Form;

/// The differences between two claims in words: properties and totals by their names, ticks as yes and no, the chosen
/// entry of a list and the referenced item by name, amounts with two decimals. Omits an item's own identity, and a
/// total that repeats an earlier one.
clsClaimChanges mdChangesInWords(clsClaimChanges changes, const clsZR3Form &before, const clsZR3Form &after);
