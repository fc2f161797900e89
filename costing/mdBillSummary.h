#pragma once

#include "costing/mdGetBillSummary.h"
#include "costing/mdGetCommsInfo.h"
#include "costing/mdGetCounselTotals.h"
#include "costing/mdGetDisbursementsTotals.h"
#include "costing/mdGetFASTotals.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

// The summary of each form: its figures, with the keys used in the report of the totals and, in braces, on the printed
// page.

/// A single figure of the bill, with its key.
struct clsBillFigure {
    const char *key;
    Money (*figure)(const clsBill &bill);
};

/// A figure that doesn't need the schedule, such as `mdOfForm<CommsTotal>`.
template <Money (*Figure)(const clsZR3Form &form)> Money mdOfForm(const clsBill &bill)
{
    return Figure(bill.form());
}

/// The start of both forms' summaries.
inline constexpr std::array SharedSummary = std::to_array<clsBillFigure>({
    {"npc", ProfitCostsTotal},
    {"nex", mdOfForm<ExpertInvoicesNetTotal>},
    {"ndibs", mdOfForm<NonCounselDisbursementsAmountTotal>},
    {"vpc", ProfitCostsVAT},
    {"vex", mdOfForm<ExpertInvoicesVATTotal>},
    {"vdibs", mdOfForm<NonCounselDisbursementsVATTotal>},
});

/// The summary of a form: the common start and its own figures.
template <size_t Count> consteval auto mdSummaryWith(const clsBillFigure (&own)[Count])
{
    std::array<clsBillFigure, SharedSummary.size() + Count> all {};
    std::copy(std::begin(own), std::end(own), std::copy(SharedSummary.begin(), SharedSummary.end(), all.begin()));
    return all;
}

inline constexpr std::array Claim1Summary = mdSummaryWith({
    {"ntotal", NetWithoutCounsel},
    {"vtotal", VATWithoutCounsel},
    {"grandtotal", GrossWithoutCounsel},
    {"ncf", mdOfForm<CounselFeesAmountTotal>},
    {"vcf", mdOfForm<CounselFeesVATTotal>},
    {"cftotal", mdOfForm<CounselFeesTotal>},
});

inline constexpr std::array Claim1ASummary = mdSummaryWith({
    {"nsubtotal", NetWithoutCounsel},
    {"vsubtotal", VATWithoutCounsel},
    {"nfas", mdOfForm<FASItemsTotal>},
    {"vfas", mdOfForm<FASVATTotal>},
    {"ncsl", mdOfForm<CounselFeesAmountTotal>},
    {"vcsl", mdOfForm<CounselFeesVATTotal>},
    {"ntotal", NetWithAdvocacyAndCounsel},
    {"vtotal", VATWithAdvocacyAndCounsel},
});

/// The figure with that key in a form's summary; a missing one is a compile-time error.
consteval auto mdSummaryFigure(std::span<const clsBillFigure> summary, std::string_view key)
{
    for (const clsBillFigure &row : summary)
        if (std::string_view(row.key) == key)
            return row.figure;
    throw "no figure of that key";
}
