#pragma once

#include "costing/clsBill.h"

// The sums of the bill's summary. They are exact additions, with no rounding.

/// An amount's VAT at the claim's rate, at four decimals: VAT is shown as it is worked out, not rounded to the penny
/// first. The claim's VAT tick is not asked; the way to no VAT is a rate of 0.
Money VATOf(const clsZR3Form &form, Money amount);

/// The VAT of the profit costs.
Money ProfitCostsVAT(const clsBill &bill);

/// Profit costs, experts and other disbursements, net: the whole of Claim 1, where counsel stands apart, and the
/// subtotal of Claim 1A.
Money NetWithoutCounsel(const clsBill &bill);
/// The VAT of the same.
Money VATWithoutCounsel(const clsBill &bill);
/// Both together: the grand total of Claim 1.
Money GrossWithoutCounsel(const clsBill &bill);

/// The whole of Claim 1A: the subtotal, the Family Advocacy Scheme and counsel, net.
Money NetWithAdvocacyAndCounsel(const clsBill &bill);
/// The VAT of the same.
Money VATWithAdvocacyAndCounsel(const clsBill &bill);

/// What a limit of all costs is held against, net: the bill and counsel's fees, whatever the form.
Money NetCostsWithCounsel(const clsBill &bill);

/// The fixed fee that would apply; nothing where none is entered.
Money FixedFee(const clsZR3Form &form);
/// The fixed fee, other disbursements and experts, net.
Money FixedFeeNetTotal(const clsZR3Form &form);
/// The VAT of the same.
Money FixedFeeVATTotal(const clsZR3Form &form);
