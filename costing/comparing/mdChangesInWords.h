#pragma once

#include "costing/comparing/clsClaimChanges.h"

class clsZR3Form;

/// What differs between two claims, for people: properties and totals by their names, ticks as yes and no, the chosen
/// entry of a list and the item that an identity refers to by its name, amounts with two decimals. An item's own
/// identity is left out, and so is a total that says the same as one before it.
clsClaimChanges mdChangesInWords(clsClaimChanges changes, const clsZR3Form &before, const clsZR3Form &after);
