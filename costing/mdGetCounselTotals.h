#pragma once

#include "base/Money.h"

#include <QString>

class clsZR3Form;

/// Net, VAT and gross of all disbursements that are counsel's fees, including those without a counsel.
Money CounselFeesAmountTotal(const clsZR3Form &form);
Money CounselFeesVATTotal(const clsZR3Form &form);
Money CounselFeesTotal(const clsZR3Form &form);

/// Claim 1 has room for the fees of six counsel.
constexpr int CounselPositions = 6;

// The breakdown is shown only for two or more counsel: for one, the total is enough. Positions are by order, from 1.

/// The account number of the counsel at a position; empty beyond the last.
QString CounselAccountNumberAtLine(const clsZR3Form &form, int position);
/// Net and VAT of that counsel's fees; 0 beyond the last.
Money CounselGrossAtLine(const clsZR3Form &form, int position);
