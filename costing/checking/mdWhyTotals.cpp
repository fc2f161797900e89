#include "costing/checking/mdWhy.h"

#include "base/mdDateText.h"
#include "costing/checking/mdCheckWords.h"
#include "costing/checking/mdWhySums.h"
#include "costing/mdBillFigures.h"
#include "formdata/clsBillFilter.h"

#include <algorithm>
#include <array>
#include <span>

namespace {

using Form = clsZR3Form;

/// How a figure is calculated from others (their keys, and the operation) or from items.
struct clsTotalRow {
    enum Shape { Sum, Difference, VAT };

    const char *key;
    const char *words;
    const char *screen; ///< where it can be changed; empty for a sum of several screens
    std::array<const char *, 5> parts {};
    void (*addItems)(clsWhy &why, const clsBill &bill) = nullptr;
    Shape shape = Sum;
};

constexpr char Costs[] = "Profit costs";
constexpr char Experts[] = "Experts";
constexpr char Others[] = "Other disbursements";
constexpr char Scheme[] = "Family Advocacy Scheme";
constexpr char Fees[] = "Counsel's fees";
constexpr char OnCosts[] = "VAT on profit costs";
constexpr char OnExperts[] = "VAT on experts";
constexpr char OnOthers[] = "VAT on other disbursements";
constexpr char OnScheme[] = "VAT on the Family Advocacy Scheme";
constexpr char OnFees[] = "VAT on counsel's fees";
constexpr char Spent[] = "Disbursements";

// clang-format off
constexpr clsTotalRow TotalRows[] = {
    {"ScheduleTotal",                     "Schedule of time", "Schedule of Time", {}, mdAddColumns},
    {"AdvocacyTotal",                     "Advocacy", "", {}, mdAddAdvocacy},
    {"CounselDisbursementsAmountTotal",   Fees, Spent, {}, mdAddCounselAmounts},
    {"CounselDisbursementsVATTotal",      OnFees, Spent, {}, mdAddCounselVAT},
    {"NonCounselDisbursementsAmountTotal", Others, Spent, {}, mdAddOtherAmounts},
    {"NonCounselDisbursementsVATTotal",   OnOthers, Spent, {}, mdAddOtherVAT},
    {"ExpertInvoicesNetTotal",            Experts, Spent, {}, mdAddExpertAmounts},
    {"ExpertInvoicesVATTotal",            OnExperts, Spent, {}, mdAddExpertVAT},
    {"CounselFeesAmountTotal",            Fees, Spent, {}, mdAddFeeAmounts},
    {"CounselFeesVATTotal",               OnFees, Spent, {}, mdAddFeeVAT},
    {"CounselFeesTotal",                  "Counsel's fees with VAT", "",
        {"CounselFeesAmountTotal", "CounselFeesVATTotal"}},
    {"FASItemsTotal",                     Scheme, Scheme, {}, mdAddHearings},
    {"FASVATTotal",                       OnScheme, Scheme, {}, mdAddHearingsVAT},
    {"CommsTotal",                        "Letters and calls", "Communications", {}, mdAddCommunications},
    {"ProfitCostsTotal",                  Costs, "", {"ScheduleTotal", "CommsTotal"}},
    {"ProfitCostsVAT",                    OnCosts, "", {"ProfitCostsTotal"}, nullptr, clsTotalRow::VAT},
    {"AdvocacyVAT",                       "VAT on advocacy", "", {"AdvocacyTotal"}, nullptr, clsTotalRow::VAT},
    {"LoadFromBillNet",                   "Profit costs without advocacy", "",
        {"ProfitCostsTotal", "AdvocacyTotal"}, nullptr, clsTotalRow::Difference},
    {"LoadFromBillVAT",                   "VAT on profit costs without advocacy", "",
        {"LoadFromBillNet"}, nullptr, clsTotalRow::VAT},
};

// The start of both forms' summaries.
constexpr clsTotalRow SharedRows[] = {
    {"npc",        Costs, "", {"ScheduleTotal", "CommsTotal"}},
    {"nex",        Experts, Spent, {}, mdAddExpertAmounts},
    {"ndibs",      Others, Spent, {}, mdAddOtherAmounts},
    {"vpc",        OnCosts, "", {"npc"}, nullptr, clsTotalRow::VAT},
    {"vex",        OnExperts, Spent, {}, mdAddExpertVAT},
    {"vdibs",      OnOthers, Spent, {}, mdAddOtherVAT},
};

constexpr clsTotalRow Claim1Rows[] = {
    {"ntotal",     "Net total", "", {"npc", "nex", "ndibs"}},
    {"vtotal",     "VAT", "", {"vpc", "vex", "vdibs"}},
    {"grandtotal", "Total with VAT", "", {"ntotal", "vtotal"}},
    {"ncf",        Fees, Spent, {}, mdAddFeeAmounts},
    {"vcf",        OnFees, Spent, {}, mdAddFeeVAT},
    {"cftotal",    "Counsel's fees with VAT", "", {"ncf", "vcf"}},
};

constexpr clsTotalRow Claim1ARows[] = {
    {"nsubtotal",  "Net subtotal", "", {"npc", "nex", "ndibs"}},
    {"vsubtotal",  "VAT of the subtotal", "", {"vpc", "vex", "vdibs"}},
    {"nfas",       Scheme, Scheme, {}, mdAddHearings},
    {"vfas",       OnScheme, Scheme, {}, mdAddHearingsVAT},
    {"ncsl",       Fees, Spent, {}, mdAddFeeAmounts},
    {"vcsl",       OnFees, Spent, {}, mdAddFeeVAT},
    {"ntotal",     "Net total", "", {"nsubtotal", "nfas", "ncsl"}},
    {"vtotal",     "VAT", "", {"vsubtotal", "vfas", "vcsl"}},
};

constexpr clsTotalRow Claim1Columns[] = {
    {"profitcosts",   Costs, "", {"ScheduleTotal", "CommsTotal"}},
    {"disbursements", "Disbursements", "", {"nex", "ndibs"}},
    {"vat",           "VAT", "", {"vpc", "vex", "vdibs"}},
    {"total",         "Total with VAT", "", {"ntotal", "vtotal"}},
    {"counsel",       "Counsel's fees with VAT", "", {"ncf", "vcf"}},
    {"all",           "Total and counsel", "", {"total", "counsel"}},
};

constexpr clsTotalRow Claim1AColumns[] = {
    {"profitcosts",   Costs, "", {"ScheduleTotal", "CommsTotal"}},
    {"disbursements", "Disbursements", "", {"nex", "ndibs"}},
    {"fas",           Scheme, Scheme, {}, mdAddHearings},
    {"vat",           "VAT", "", {"vsubtotal", "vfas"}},
    {"total",         "Total with VAT", "", {"nsubtotal", "nfas", "vsubtotal", "vfas"}},
    {"counsel",       "Counsel's fees with VAT", "", {"ncsl", "vcsl"}},
    {"all",           "Total and counsel", "", {"total", "counsel"}},
};
// Figures only in the strip
constexpr clsTotalRow StripRows[] = {
    {"other",         "Other", "", {"CommsTotal", "ExpertInvoicesNetTotal", "NonCounselDisbursementsAmountTotal"}},
    {"fixedfee",      "Fixed fee", "Actual Costs"},
};
constexpr clsTotalRow Claim1LimitRows[] = {
    {"limit",         "Costs, net with counsel", "", {"npc", "nex", "ndibs", "ncf"}},
};
constexpr clsTotalRow Claim1ALimitRows[] = {
    {"limit",         "Costs, net with counsel", "", {"npc", "nex", "ndibs", "nfas", "ncsl"}},
};
// clang-format on

using clsRows = std::span<const clsTotalRow>;

/// The meaning of a key for a claim: the calculation, and the program's own figure.
struct clsTotal {
    const clsTotalRow *row = nullptr;
    const clsBillFigure *figure = nullptr;

    explicit operator bool() const { return row && figure; }
};

const clsTotalRow *rowOf(std::initializer_list<clsRows> tables, QLatin1String key)
{
    for (const clsRows rows : tables)
        for (const clsTotalRow &row : rows)
            if (key == QLatin1String(row.key))
                return &row;
    return nullptr;
}

bool isClaim1A(const Form &form)
{
    return form.FormType() == QLatin1String("Claim1A");
}

clsTotal totalOf(const Form &form, QLatin1String key)
{
    const clsBillFigure *figure = mdFigureOf(mdTotalFigures(), key);
    return {rowOf({TotalRows, SharedRows, isClaim1A(form) ? clsRows(Claim1ARows) : clsRows(Claim1Rows)}, key),
        figure ? figure : mdFigureOf(mdSummaryFigures(form), key)};
}

clsTotal columnOf(const Form &form, QLatin1String key)
{
    return {rowOf({isClaim1A(form) ? clsRows(Claim1AColumns) : clsRows(Claim1Columns)}, key),
        mdFigureOf(mdListFigures(form), key)};
}

clsTotal ofStrip(const Form &form, QLatin1String key)
{
    return {rowOf({StripRows, isClaim1A(form) ? clsRows(Claim1ALimitRows) : clsRows(Claim1LimitRows)}, key),
        mdFigureOf(mdStripFigures(), key)};
}

clsWhySource vatRate()
{
    return {QStringLiteral("Form Setup"), {}, 0, QStringLiteral("VATRate")};
}

void addFigure(clsWhy &why, const QString &words, const clsTotal &total, const clsBill &bill)
{
    clsWhySource source;
    source.Screen = QString::fromLatin1(total.row->screen);
    if (total.row->shape == clsTotalRow::VAT)
        source = vatRate();
    why.add(words, {}, source, [&] { return total.figure->figure(bill); });
}

void addParts(clsWhy &why, const clsTotalRow &row, const clsBill &bill)
{
    for (const char *key : row.parts) {
        if (!key)
            continue;
        const clsTotal total = totalOf(bill.form(), QLatin1String(key));
        const clsTotal part = total ? total : columnOf(bill.form(), QLatin1String(key));
        const QString words = QString::fromLatin1(part.row->words);
        const bool isTakenOff = row.shape == clsTotalRow::Difference && key != row.parts.front();
        addFigure(why, isTakenOff ? QStringLiteral("Less: ") + words : words, part, bill);
        why.lastCanBeAsked(total ? QStringLiteral("total") : QStringLiteral("list"), QString::fromLatin1(key));
    }
    if (row.shape == clsTotalRow::VAT)
        why.add(QStringLiteral("Rate of VAT, per cent"), {}, vatRate(), [&] { return bill.form().VATRate(); });
}

std::optional<clsWhy> whyTotal(const clsBill &bill, const clsTotal &total)
{
    if (!total)
        return {};
    const clsKeptHearingsVAT kept(bill.form());
    clsWhy why;
    const QString words = QString::fromLatin1(total.row->words);
    why.addAll(words, [&] {
        addParts(why, *total.row, bill);
        if (total.row->addItems)
            total.row->addItems(why, bill);
    });
    addFigure(why, words, total, bill);
    return why;
}

clsWhy whyItems(const clsBill &bill)
{
    const auto &items = bill.form().ScheduleOfTimeItemsCollection();
    const clsWhySource source = {QStringLiteral("Schedule of Time"), QStringLiteral("schedule")};
    clsWhy why(source);
    why.add(QStringLiteral("Items of the schedule"), {}, source, [&] { return QString::number(items.size()); });
    why.add(QStringLiteral("Items on the bill"), {}, source, [&] {
        clsBillFilter isOnBill(bill.form());
        return QString::number(
            std::count_if(items.begin(), items.end(), [&](const auto &item) { return isOnBill(*item); }));
    });
    return why;
}

} // namespace

std::optional<clsWhy> mdWhyTotal(const clsBill &bill, const QString &key)
{
    return whyTotal(bill, totalOf(bill.form(), QLatin1String(key.toLatin1())));
}

QString mdTotalInWords(const clsZR3Form &form, const QString &key)
{
    const clsTotal total = totalOf(form, QLatin1String(key.toLatin1()));
    return total ? QString::fromLatin1(total.row->words) : QString();
}

std::optional<clsWhy> mdWhyListColumn(const clsBill &bill, const QString &column)
{
    if (column == QLatin1String("items"))
        return whyItems(bill);
    return whyTotal(bill, columnOf(bill.form(), QLatin1String(column.toLatin1())));
}

std::optional<clsWhy> mdWhyClaimTotal(const clsBill &bill, const QString &key)
{
    const QByteArray word = key.toLatin1();
    for (const auto find : {totalOf, columnOf, ofStrip})
        if (const clsTotal total = find(bill.form(), QLatin1String(word)))
            return whyTotal(bill, total);
    return {};
}
