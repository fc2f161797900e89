#pragma once

class clsZR3Form;

/// Copies the firm and its people from another claim: VAT, the solicitor's details without the case reference, groups,
/// fee earners without their counts, counsel and enhancements. Identities are kept, and the counter continues after the
/// other claim's. Only for a claim that has none of these yet.
void mdCopySetup(const clsZR3Form &from, clsZR3Form &to);
