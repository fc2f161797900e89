#pragma once

#include "base/Money.h"

class clsZR3Form;

// Sums of amounts as entered, without rounding. An amount that is not a number is the type error.

Money CounselDisbursementsAmountTotal(const clsZR3Form &form);
Money CounselDisbursementsVATTotal(const clsZR3Form &form);
Money NonCounselDisbursementsAmountTotal(const clsZR3Form &form);
Money NonCounselDisbursementsVATTotal(const clsZR3Form &form);
Money NonCounselDisbursementsGrossTotal(const clsZR3Form &form);
Money ExpertInvoicesNetTotal(const clsZR3Form &form);
Money ExpertInvoicesVATTotal(const clsZR3Form &form);
Money ExpertInvoicesGrossTotal(const clsZR3Form &form);
