#include "costing/checking/mdCheckRules.h"

#include "base/mdFormatMoney.h"
#include "base/mdNumberText.h"
#include "base/mdPercentageCalculate.h"
#include "base/mdSumOf.h"
#include "costing/checking/mdCheckWords.h"
#include "costing/mdGetBillSummary.h"
#include "costing/mdGetColumnTotals.h"
#include "costing/mdGetCommsInfo.h"

#include <QHash>

#include <map>

namespace {

constexpr Money Voucher = Money::fromTenThousandths(20 * Money::PerPound);
constexpr Money OnePenny = Money::fromTenThousandths(Money::PerPenny);

clsFindingPlace placeOf(const clsZR3Disbursement &, int order, const char *property)
{
    return {DisbursementsScreen, "disbursements", order, QString::fromLatin1(property)};
}

clsFindingPlace placeOf(const clsZR3ExpertInvoice &, int order, const char *property)
{
    return {DisbursementsScreen, "experts", order, QString::fromLatin1(property)};
}

/// Visits each item whose figures can be computed.
template <class Items, class Look> void eachSound(const clsClaimCheck &check, const Items &items, Look look)
{
    clsClaimCheck::each(items, [&](const auto &item, int order) {
        if (!check.hasFault(item))
            look(item, order);
    });
}

/// Preparation, court, travel, other.
Money costsOf(const clsZR3ExpertInvoice &invoice)
{
    return mdSumOf({mdStoredAmount(invoice.TotalPrepCost), mdStoredAmount(invoice.TotalCourtCost),
        mdStoredAmount(invoice.TravelTimeCosts), mdStoredAmount(invoice.OtherCosts)});
}

bool hasCosts(const clsZR3ExpertInvoice &invoice)
{
    const clsXMLField *const fields[] = {&invoice.TotalPrepCost, &invoice.TotalCourtCost, &invoice.TravelTimeCosts,
        &invoice.OtherCosts, &invoice.VATAmount};
    return std::any_of(std::begin(fields), std::end(fields),
        [](const clsXMLField *field) { return mdStoredAmount(*field) != Money(); });
}

/// The VAT that a claim charges, read once for all of its items.
struct clsChargedVAT {
    bool isCharged;
    QString rate;

    explicit clsChargedVAT(const clsZR3Form &form)
        : isCharged(form.VAT())
        , rate(isCharged ? form.VATRate() : QString())
    { }
};

template <class Item>
void checkVAT(clsClaimCheck &check, const clsChargedVAT &charged, const Item &item, int order, Money amount,
    const clsXMLField &vatField)
{
    const Money vat = mdStoredAmount(vatField);
    if (vat == Money())
        return;
    const Money right = charged.isCharged ? PercentageCalculate(amount, charged.rate) : Money();
    if (charged.isCharged && vat - right <= OnePenny && right - vat <= OnePenny)
        return;
    check.add([&] {
        const QString wrong = charged.isCharged
            ? QStringLiteral("but %1 % of %2 is %3: correct it.")
                  .arg(QString::number(TextValue(charged.rate)), mdFormatMoney(amount), mdFormatMoney(right))
            : QStringLiteral("but the claim charges no VAT: take it off, or tick VAT in Form Setup.");
        return clsToldFinding {placeOf(item, order, vatField.property().name),
            QStringLiteral("%1 has VAT of %2, %3").arg(mdInWords(item), mdFormatMoney(vat), wrong)};
    });
}

/// The two amounts of the actual costs filled by "Load From Bill".
template <class Look> void eachLoaded(const clsClaimCheck &check, Look look)
{
    if (!check.isClaim1A())
        return;
    const clsZR3ActualCostsIncurred &costs = check.form().ActualCostsIncurred;
    struct clsLoadedRow {
        const clsXMLField *field;
        const char *words;
    };
    const clsLoadedRow rows[] = {
        {&costs.CareAndSupervisionProfitCosts, "care and supervision cases"},
        {&costs.PrivateLawProfitCosts, "private law cases"},
    };
    for (const clsLoadedRow &row : rows)
        clsClaimCheck::unlessItFails([&] {
            look(clsFindingPlace {ActualCostsScreen, "", 0, QString::fromLatin1(row.field->property().name)},
                mdStoredAmount(*row.field),
                QStringLiteral("The profit costs of the %1 are %2")
                    .arg(QString::fromLatin1(row.words), mdFormatMoney(mdStoredAmount(*row.field))));
        });
}

} // namespace

void mdCheckAmountZero(clsClaimCheck &check)
{
    eachSound(check, check.form().DisbursementsCollection(), [&](const clsZR3Disbursement &item, int order) {
        if (mdStoredAmount(item.Amount) == Money())
            check.add([&] {
                return clsToldFinding {placeOf(item, order, "Amount"),
                    mdInWords(item) + QStringLiteral(" has an amount of 0.00: enter the amount, or delete it.")};
            });
    });
    eachSound(check, check.form().ExpertInvoicesCollection(), [&](const clsZR3ExpertInvoice &item, int order) {
        if (mdStoredAmount(item.NetAmount) == Money() && hasCosts(item))
            check.add(placeOf(item, order, "NetAmount"),
                mdInWords(item) + QStringLiteral(" has costs but a net amount of 0.00: enter the net amount."));
    });
}

void mdCheckNetDiffers(clsClaimCheck &check)
{
    eachSound(check, check.form().ExpertInvoicesCollection(), [&](const clsZR3ExpertInvoice &item, int order) {
        const Money net = mdStoredAmount(item.NetAmount);
        if (net == Money())
            return;
        if (const Money costs = costsOf(item); net != costs)
            check.add(placeOf(item, order, "NetAmount"),
                QStringLiteral("%1 has a net amount of %2, but its costs add up to %3: correct one of them.")
                    .arg(mdInWords(item), mdFormatMoney(net), mdFormatMoney(costs)));
    });
}

void mdCheckVATDiffers(clsClaimCheck &check)
{
    const clsChargedVAT charged(check.form());
    eachSound(check, check.form().DisbursementsCollection(), [&](const clsZR3Disbursement &item, int order) {
        checkVAT(check, charged, item, order, mdStoredAmount(item.Amount), item.VAT);
    });
    eachSound(check, check.form().ExpertInvoicesCollection(), [&](const clsZR3ExpertInvoice &item, int order) {
        checkVAT(check, charged, item, order, mdStoredAmount(item.NetAmount), item.VATAmount);
    });
}

void mdCheckVoucher(clsClaimCheck &check)
{
    eachSound(check, check.form().DisbursementsCollection(), [&](const clsZR3Disbursement &item, int order) {
        if (item.Counsel())
            return;
        const Money gross = mdSumOf({mdStoredAmount(item.Amount), mdStoredAmount(item.VAT)});
        if (gross >= Voucher)
            check.add(placeOf(item, order, "Amount"),
                QStringLiteral("%1 is %2 with VAT: send its voucher with the claim.")
                    .arg(mdInWords(item), mdFormatMoney(gross)));
    });
}

void mdCheckJointShares(clsClaimCheck &check)
{
    constexpr Money Whole = Money::fromTenThousandths(100 * Money::PerPound);
    struct clsExpert {
        Money shares;
        int last = 0; ///< index of its last share in the list
        int order = 0;
        QString type;
    };
    QHash<QString, clsExpert> experts;
    int place = 0;
    check.each(check.form().JointInstructionsCollection(), [&](const clsZR3JointInstruction &item, int order) {
        const QString type = item.ExpertType();
        clsExpert &expert = experts[type];
        expert.shares += mdStoredAmount(item.PercentApportioned);
        expert.last = ++place;
        expert.order = order;
        expert.type = type.simplified();
    });
    std::map<int, const clsExpert *> byPlace;
    for (const clsExpert &expert : std::as_const(experts))
        if (expert.shares > Whole)
            byPlace[expert.last] = &expert;
    for (const auto &[last, expert] : byPlace)
        check.add({DisbursementsScreen, "joint", expert->order, QStringLiteral("PercentApportioned")},
            QStringLiteral("The shares in the joint expert %1 add up to %2 %: correct them to 100 or less.")
                .arg(expert->type.isEmpty() ? QStringLiteral("without a type") : expert->type,
                    MoneyToText(expert->shares)));
}

void mdCheckLoadNegative(clsClaimCheck &check)
{
    eachLoaded(check, [&](const clsFindingPlace &place, Money amount, const QString &words) {
        if (amount < Money())
            check.add(place, words + QStringLiteral(", which is below nil: enter what is claimed."));
    });
}

void mdCheckLoadStale(clsClaimCheck &check)
{
    eachLoaded(check, [&](const clsFindingPlace &place, Money amount, const QString &words) {
        if (amount == Money())
            return;
        // The button writes amounts to the penny.
        const Money loaded = RoundMoney2(ProfitCostsTotal(check.bill()) - AdvocacyTotal(check.bill()));
        if (amount != loaded)
            check.add(place,
                words
                    + QStringLiteral(", but the bill now gives %1: choose Load From Bill again.")
                          .arg(mdFormatMoney(loaded)));
    });
}

void mdCheckCostsLimit(clsClaimCheck &check)
{
    Money limit;
    if (!check.unlessItFails([&] { limit = MoneyFromText(check.facts().CostsLimit); }) || limit <= Money())
        return;
    const Money costs = NetCostsWithCounsel(check.bill());
    const Money nineTenths = limit - Money::fromTenThousandths(limit.tenThousandths() / 10);
    const QString words = QStringLiteral("The costs are %1 of the limit of %2, net with counsel: ")
                              .arg(mdFormatMoney(costs), mdFormatMoney(limit));
    if (costs > limit)
        check.add({"Costs Limit"}, words + QStringLiteral("have the limit raised before you send the claim."));
    else if (costs >= nineTenths)
        check.add({"Costs Limit"}, words + QStringLiteral("see that it will hold."), clsFindingLevel::Note);
}
