#pragma once

#include "costing/comparing/clsClaimChanges.h"

class clsZR3Form;

/// The differences between a claim and a later state of it. Changes neither. Ignores positions in the order, the
/// identity counter, and values written by saving or by using the program.
///
/// List items are matched if they are equal; each of the rest is matched with the first unmatched item of the same
/// identity or its substitute (such as date and fee earner).
clsClaimChanges mdCompareClaims(const clsZR3Form &before, const clsZR3Form &after);
