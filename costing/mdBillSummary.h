#pragma once

#include "costing/mdGetBillSummary.h"
#include "costing/mdGetCommsInfo.h"
#include "costing/mdGetCounselTotals.h"
#include "costing/mdGetDisbursementsTotals.h"
#include "costing/mdGetFASTotals.h"

#include <initializer_list>
#include <span>
#include <string_view>

// The summary of each form: its figures, each under the key that names it in the report of the totals and, in braces,
// on the printed page.

struct clsBillFigure {
    const char *key;
    Money (*figure)(const clsBill &bill);
};

/// A figure that needs nothing of the schedule's, such as `mdOfForm<CommsTotal>`.
template <Money (*Figure)(const clsZR3Form &form)> Money mdOfForm(const clsBill &bill)
{
    return Figure(bill.form());
}

/// What both forms begin with.
inline constexpr clsBillFigure SharedSummary[] = {
    {"npc", ProfitCostsTotal},
    {"nex", mdOfForm<ExpertInvoicesNetTotal>},
    {"ndibs", mdOfForm<NonCounselDisbursementsAmountTotal>},
    {"vpc", ProfitCostsVAT},
    {"vex", mdOfForm<ExpertInvoicesVATTotal>},
    {"vdibs", mdOfForm<NonCounselDisbursementsVATTotal>},
};

inline constexpr clsBillFigure Claim1Summary[] = {
    {"ntotal", NetWithoutCounsel},
    {"vtotal", VATWithoutCounsel},
    {"grandtotal", GrossWithoutCounsel},
    {"ncf", mdOfForm<CounselFeesAmountTotal>},
    {"vcf", mdOfForm<CounselFeesVATTotal>},
    {"cftotal", mdOfForm<CounselFeesTotal>},
};

inline constexpr clsBillFigure Claim1ASummary[] = {
    {"nsubtotal", NetWithoutCounsel},
    {"vsubtotal", VATWithoutCounsel},
    {"nfas", mdOfForm<FASItemsTotal>},
    {"vfas", mdOfForm<FASVATTotal>},
    {"ncsl", mdOfForm<CounselFeesAmountTotal>},
    {"vcsl", mdOfForm<CounselFeesVATTotal>},
    {"ntotal", NetWithAdvocacyAndCounsel},
    {"vtotal", VATWithAdvocacyAndCounsel},
};

/// The figure of that key in a form's summary; one that the form does not have does not compile.
consteval auto mdSummaryFigure(std::span<const clsBillFigure> ofForm, std::string_view key)
{
    for (const std::span<const clsBillFigure> rows : {std::span<const clsBillFigure>(SharedSummary), ofForm})
        for (const clsBillFigure &row : rows)
            if (std::string_view(row.key) == key)
                return row.figure;
    throw "no figure of that key";
}
