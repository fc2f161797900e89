#include "costing/checking/mdCheckClaim.h"

#include "costing/checking/mdCheckRules.h"

#include <algorithm>

namespace {

constexpr clsFindingLevel Error = clsFindingLevel::Error;
constexpr clsFindingLevel Warning = clsFindingLevel::Warning;
constexpr clsFindingLevel Note = clsFindingLevel::Note;

// clang-format off
constexpr clsCheckRule Rules[] = {
    {"figure",                   Error,   mdCheckFigures}, // first: the rules of amounts use its results
    {"date-missing",             Warning, mdCheckDateMissing},
    {"date-future",              Error,   mdCheckDateFuture},
    {"date-before-certificate",  Error,   mdCheckDateBeforeCertificate},
    {"date-after-final-work",    Warning, mdCheckDateAfterFinalWork},
    {"time-zero",                Error,   mdCheckTimeZero},
    {"rate-zero",                Error,   mdCheckRateZero},
    {"day-hours",                Warning, mdCheckDayHours},
    {"double-entry",             Warning, mdCheckDoubleEntry},
    {"long-item",                Note,    mdCheckLongItem},
    {"amount-zero",              Error,   mdCheckAmountZero},
    {"net-differs",              Warning, mdCheckNetDiffers},
    {"vat-differs",              Warning, mdCheckVATDiffers},
    {"voucher",                  Note,    mdCheckVoucher},
    {"joint-shares",             Warning, mdCheckJointShares},
    {"group-not-billed",         Error,   mdCheckGroupNotBilled},
    {"communications-rate-zero", Error,   mdCheckCommunicationsRateZero},
    {"load-negative",            Error,   mdCheckLoadNegative},
    {"load-stale",               Warning, mdCheckLoadStale},
    {"question-open",            Error,   mdCheckQuestionOpen},
    {"reasons-missing",          Error,   mdCheckReasonsMissing},
    {"missing",                  Error,   mdCheckMissing},
    {"enhancement-reasons",      Error,   mdCheckEnhancementReasons},
    {"paper",                    Warning, mdCheckPaper},
    {"lost-sheets",              Error,   mdCheckLostSheets},
    {"costs-limit",              Error,   mdCheckCostsLimit},
    {"characters",               Warning, mdCheckCharacters},
};
// clang-format on

} // namespace

std::span<const clsCheckRule> mdCheckRules()
{
    return Rules;
}

clsFindings mdCheckClaim(const clsZR3Form &form, const clsCheckFacts &facts)
{
    const clsBill bill(form);
    return clsClaimCheck(bill, facts).run(std::begin(Rules), std::end(Rules));
}

clsFindingCounts mdCountFindings(const clsBill &bill, const clsCheckFacts &facts)
{
    return clsClaimCheck(bill, facts).count(std::begin(Rules), std::end(Rules));
}

clsFindings mdCheckPrint(const clsZR3Form &form, const clsCheckFacts &facts)
{
    const auto *paper = std::find_if(
        std::begin(Rules), std::end(Rules), [](const clsCheckRule &rule) { return rule.find == mdCheckPaper; });
    const clsBill bill(form);
    return clsClaimCheck(bill, facts).run(paper, paper + 1);
}
