#pragma once

#include "costing/checking/clsCheckFacts.h"
#include "costing/checking/clsFinding.h"
#include "formdata/mdCostsLimit.h"

class clsZR3Form;

/// Checks a claim before it is sent. Returns the findings of all rules, in the order of the rules. Doesn't change the
/// claim. A figure that can't be computed is a finding and does not stop the check.
clsFindings mdCheckClaim(const clsZR3Form &form, const clsCheckFacts &facts);

/// Only the findings about printing, for a caller that gets the forecast later.
clsFindings mdCheckPrint(const clsZR3Form &form, const clsCheckFacts &facts);
