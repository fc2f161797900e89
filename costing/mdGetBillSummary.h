#pragma once

#include "costing/clsBill.h"

// The sums of the bill's summary: exact additions without rounding.

/// An amount's VAT at the claim's rate, at four decimals: VAT is shown without first rounding it to the penny. Ignores
/// the claim's VAT tick; for no VAT the rate must be 0.
Money VATOf(const clsZR3Form &form, Money amount);

/// The VAT on the profit costs.
Money ProfitCostsVAT(const clsBill &bill);

/// Profit costs, experts and other disbursements, net: the total of Claim 1, where counsel is separate, and the
/// subtotal of Claim 1A.
Money NetWithoutCounsel(const clsBill &bill);
/// The VAT on these.
Money VATWithoutCounsel(const clsBill &bill);
/// Net and VAT together: the grand total of Claim 1.
Money GrossWithoutCounsel(const clsBill &bill);

/// The total of Claim 1A: the subtotal, the Family Advocacy Scheme and counsel, net.
Money NetWithAdvocacyAndCounsel(const clsBill &bill);
/// The VAT on these.
Money VATWithAdvocacyAndCounsel(const clsBill &bill);

/// The amount compared with the costs limit, net: the bill and counsel's fees, for any form.
Money NetCostsWithCounsel(const clsBill &bill);

/// The applicable fixed fee; 0 if none is entered.
Money FixedFee(const clsZR3Form &form);
/// The fixed fee, other disbursements and experts, net.
Money FixedFeeNetTotal(const clsZR3Form &form);
/// The VAT on these.
Money FixedFeeVATTotal(const clsZR3Form &form);
