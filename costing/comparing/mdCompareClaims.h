#pragma once

#include "costing/comparing/clsClaimChanges.h"

class clsZR3Form;

/// What differs between a claim and a later state of it. Both are the same afterwards. Places in the order, identities
/// that are yet to be given, and what a save or the use of the program writes are no differences.
///
/// Items of a list belong together where they are equal; then where they have the same identity, or what stands for it
/// (date and fee earner, say), each with the first that is left.
clsClaimChanges mdCompareClaims(const clsZR3Form &before, const clsZR3Form &after);
