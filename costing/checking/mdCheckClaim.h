#pragma once

#include "costing/checking/clsCheckFacts.h"
#include "costing/checking/clsFinding.h"
#include "formdata/mdCostsLimit.h"

class clsBill;
class clsZR3Form;

/// Checks a claim before it is sent. Returns the findings of all rules, in the order of the rules. Doesn't change the
/// claim. A figure that can't be computed is a finding and does not stop the check.
clsFindings mdCheckClaim(const clsZR3Form &form, const clsCheckFacts &facts);

/// How many errors and warnings the same check would find. The bill has the figures that the claim's have been worked
/// out for already.
clsFindingCounts mdCountFindings(const clsBill &bill, const clsCheckFacts &facts);

/// The findings about printing alone, for a caller that gets the forecast later.
clsFindings mdCheckPrint(const clsZR3Form &form, const clsCheckFacts &facts);
