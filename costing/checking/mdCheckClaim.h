#pragma once

#include "costing/checking/clsCheckFacts.h"
#include "costing/checking/clsFinding.h"

class clsZR3Form;

/// Looks through a claim before it is sent: all findings of all rules, in the order of the rules. The claim stays as it
/// is, to the byte. What can't be computed is a finding, and the rest is looked through all the same.
clsFindings mdCheckClaim(const clsZR3Form &form, const clsCheckFacts &facts);

/// The rule of the print alone, for whoever has its forecast later than the rest.
clsFindings mdCheckPrint(const clsZR3Form &form, const clsCheckFacts &facts);

/// The costs limit as the claim stores it; empty where it has none.
QString mdStoredCostsLimit(const clsZR3Form &form);
