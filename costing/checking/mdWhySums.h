#pragma once

#include "costing/checking/clsWhy.h"
#include "costing/clsBill.h"

#include <memory>
#include <vector>

class clsZR3FASItem;

// The steps of the totals that are sums over items: one for each, in the order in which the total adds them up, so that
// the first that fails is the one whose error the total takes.

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

/// Leaves the VAT of hearings that have none as it is: their total writes "0" into it, and who only asks for a figure
/// must not change the claim.
class clsKeptHearingsVAT {
public:
    explicit clsKeptHearingsVAT(const clsZR3Form &form);
    ~clsKeptHearingsVAT();
    clsKeptHearingsVAT(const clsKeptHearingsVAT &) = delete;
    clsKeptHearingsVAT &operator=(const clsKeptHearingsVAT &) = delete;

private:
    std::vector<std::shared_ptr<clsZR3FASItem>> m_empty;
};
