#pragma once

#include "costing/checking/clsWhy.h"
#include "costing/clsBill.h"

#include <memory>
#include <vector>

class clsZR3FASItem;

// The steps of the totals over items: one for each item, in the order of the addition, so that the first one that fails
// has the total's error.

void mdAddColumns(clsWhy &why, const clsBill &bill);
void mdAddAdvocacy(clsWhy &why, const clsBill &bill);
void mdAddCounselAmounts(clsWhy &why, const clsBill &bill);
void mdAddCounselVAT(clsWhy &why, const clsBill &bill);
void mdAddOtherAmounts(clsWhy &why, const clsBill &bill);
void mdAddOtherVAT(clsWhy &why, const clsBill &bill);
void mdAddExpertAmounts(clsWhy &why, const clsBill &bill);
void mdAddExpertVAT(clsWhy &why, const clsBill &bill);
void mdAddFeeAmounts(clsWhy &why, const clsBill &bill);
void mdAddFeeVAT(clsWhy &why, const clsBill &bill);
void mdAddHearings(clsWhy &why, const clsBill &bill);
void mdAddHearingsVAT(clsWhy &why, const clsBill &bill);
void mdAddCommunications(clsWhy &why, const clsBill &bill);

/// Preserves the empty VAT of hearings: computing their total writes "0" to it, but explaining a figure must not change
/// the claim.
class clsKeptHearingsVAT {
public:
    explicit clsKeptHearingsVAT(const clsZR3Form &form);
    ~clsKeptHearingsVAT();
    clsKeptHearingsVAT(const clsKeptHearingsVAT &) = delete;
    clsKeptHearingsVAT &operator=(const clsKeptHearingsVAT &) = delete;

private:
    std::vector<std::shared_ptr<clsZR3FASItem>> m_empty;
};
