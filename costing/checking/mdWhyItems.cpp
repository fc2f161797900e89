#include "costing/checking/mdWhy.h"

#include "base/mdFormatMoney.h"
#include "base/mdNumberText.h"
#include "base/mdRequired.h"
#include "costing/checking/mdCheckWords.h"
#include "costing/mdFigureFaults.h"
#include "formdata/clsZR3Form.h"

#include <algorithm>

// Items of the schedule, lines of letters and calls, hearings.

namespace {

using Item = clsZR3ScheduleOfTimeItem;

clsWhySource groupSource(const clsZR3FeeEarnerGroup &group)
{
    return {QStringLiteral("Fee Earners / Rates"), QStringLiteral("groups"), group.OrderID()};
}

clsWhySource enhancementSource(const clsZR3Enhancement &enhancement)
{
    return {QStringLiteral("Enhancements"), QStringLiteral("enhancements"), enhancement.OrderID()};
}

QString inSentence(const clsZR3FeeEarnerGroup &group)
{
    const QString words = mdInWords(group);
    return words.left(1).toLower() + words.mid(1);
}

struct clsRateRow {
    Item::RateRule rule;
    const char *rate;
    const char *reason;
};

constexpr clsRateRow Rates[] = {
    {Item::HourlyRule, "Hourly rate of the group", "nothing that is ticked takes another"},
    {Item::AdvocacyRule, "Advocacy rate of the group", "Advocacy is ticked"},
    {Item::CounselRule, "Counsel rate of the group", "Counsel is ticked"},
    {Item::TravelAndWaitingRule, "Travel and waiting rate of the group", "Travel or Waiting is ticked"},
    {Item::UseHourlyRule, "Hourly rate of the group", "Use Hourly Rate is ticked"},
};

const clsRateRow &rateRow(Item::RateRule rule)
{
    return *std::find_if(
        std::begin(Rates), std::end(Rates), [rule](const clsRateRow &row) { return row.rule == rule; });
}

/// The steps of one item of the schedule.
class clsItemSteps {
public:
    clsItemSteps(clsWhy &why, const clsBill &bill, const Item &item)
        : m_form(bill.form())
        , m_item(item)
        , m_price(bill.prices().of(item))
        , m_own(why.source())
        , m_why(why)
    { }

    void add()
    {
        feeEarner();
        rate();
        basicClaim();
        m_why.addAll(QStringLiteral("Enhancements"), [this] { percentages(); });
        enhancement();
        m_why.add(QStringLiteral("Claim"), {}, m_own, [this] { return figure(Price::ClaimFigure, m_price.Claim); });
    }

private:
    using Price = clsSchedulePrice;

    /// A figure already computed, or its error.
    Money figure(Price::Figure which, Money value) const
    {
        if (const int error = m_price.errorOf(which))
            mdExplained(m_form, m_item, [error] { throw clsRunTimeError(error); });
        return value;
    }

    void feeEarner()
    {
        const auto earner = m_item.FeeEarner();
        m_group = earner ? earner->Group() : nullptr;
        m_why.add(earner ? mdInWords(*earner) : QStringLiteral("Fee earner"), m_group ? m_group->Name() : QString(),
            m_group ? groupSource(*m_group) : m_own, [this] {
                mdExplained(m_form, m_item, [this] { mdRequired(m_group); });
                return inSentence(*m_group);
            });
    }
    void rate()
    {
        const bool isKnown = !m_price.errorOf(Price::RateFigure);
        const clsRateRow *row = isKnown ? &rateRow(m_item.rateRuleFrom(m_price.TimeColumn)) : nullptr;
        m_why.add(row ? QString::fromLatin1(row->rate) : QStringLiteral("Rate"),
            row ? QString::fromLatin1(row->reason) : QString(), m_group ? groupSource(*m_group) : m_own,
            [this] { return figure(Price::RateFigure, m_price.Rate); });
    }
    void basicClaim()
    {
        m_why.add(QStringLiteral("%1 at %2").arg(m_item.TTime(), mdFormatMoney(m_price.Rate)),
            QStringLiteral("%1 minutes, rounded to the penny").arg(m_price.Minutes), m_own,
            [this] { return figure(Price::BasicClaimFigure, m_price.BasicClaim); });
    }
    void percentages()
    {
        if (m_group && m_group->Enhance())
            m_why.add(QStringLiteral("Enhancement of %1").arg(inSentence(*m_group)), {}, groupSource(*m_group), [this] {
                return mdExplained(
                    m_form, m_item, [this] { return clsPercentage {clsGroupRates(*m_group).Enhancement()}; });
            });
        if (m_item.IncludeInEnhancements()) {
            const auto listed = m_form.EnhancementByUniqueID(m_item.EnhancementUniqueID());
            m_why.add(listed ? listed->Name() : QStringLiteral("Enhancement"), {},
                listed ? enhancementSource(*listed) : m_own, [&] {
                    return mdExplained(
                        m_form, m_item, [&] { return clsPercentage {MoneyFromText(mdRequired(listed).Rate())}; });
                });
        }
        m_why.add(QStringLiteral("Percentages together"), {}, m_own,
            [this] { return clsPercentage {figure(Price::PercentageFigure, m_price.TotalEnhancementPercentage)}; });
    }
    void enhancement()
    {
        const Money percentage = m_price.TotalEnhancementPercentage;
        m_why.add(
            QStringLiteral("Enhancement of %1 % of %2").arg(MoneyToText(percentage), mdFormatMoney(m_price.BasicClaim)),
            {}, m_own, [&] {
                return mdExplained(m_form, m_item, [&] { return Item::EnhancementBy(m_price.BasicClaim, percentage); });
            });
    }

    const clsZR3Form &m_form;
    const Item &m_item;
    const Price &m_price;
    const clsWhySource m_own;
    clsWhy &m_why;
    std::shared_ptr<clsZR3FeeEarnerGroup> m_group;
};

constexpr const char *KindsInWords[] = {"calls", "letters in", "letters out"};

/// The steps of a line with a group.
void addLine(clsWhy &why, const clsZR3Form &form, const clsZR3FeeEarnerGroup &group, clsCommsKind kind, int line)
{
    const clsWhySource own = why.source();
    const QString words = QString::fromLatin1(KindsInWords[int(kind)]);
    const auto figure = [&](const QString &text, const clsWhySource &source, auto compute) {
        why.add(
            text, {}, source, [&] { return mdExplained(form, line, kind, [&] { return compute(form, line, kind); }); });
    };
    why.add(QStringLiteral("Line %1 of the %2").arg(line).arg(words), group.Name(), groupSource(group),
        [&] { return inSentence(group); });
    why.add(QStringLiteral("Number of %1").arg(words), {}, own, [&] { return CommsCountAtLine(form, line, kind); });
    figure(QStringLiteral("Rate of %1 for each of the %2").arg(inSentence(group), words), groupSource(group),
        CommsRateAtLine);
    figure(QStringLiteral("Number times rate, rounded to the penny"), own, CommsBasicAtLine);
    if (const auto listed = CommsEnhancement(form, kind))
        figure(QStringLiteral("%1, %2 %").arg(listed->Name(), listed->Rate()), enhancementSource(*listed),
            CommsListedEnhancement);
    if (group.EnhanceComms())
        figure(QStringLiteral("Enhancement of %1, %2 %").arg(inSentence(group), group.EnhancementRate()),
            groupSource(group), CommsGroupEnhancement);
    figure(QStringLiteral("Enhancement"), own, CommsEnhancementAtLine);
    figure(QStringLiteral("Claim"), own, CommsClaimAtLine);
}

} // namespace

std::optional<clsWhy> mdWhyScheduleItem(const clsBill &bill, int orderID)
{
    const auto item = bill.form().ScheduleOfTimeItemByOrderID(orderID);
    if (!item)
        return {};
    clsWhy why({QStringLiteral("Schedule of Time"), QStringLiteral("schedule"), orderID});
    why.addAll(QStringLiteral("Claim"), [&] { clsItemSteps(why, bill, *item).add(); });
    return why;
}

std::optional<clsWhy> mdWhyCommunications(const clsBill &bill, clsCommsKind kind, int line)
{
    if (line < 1 || line > CommsLines)
        return {};
    const clsZR3Form &form = bill.form();
    clsWhy why({QStringLiteral("Communications"), QStringLiteral("communications")});
    why.addAll(QStringLiteral("Claim"), [&] {
        const auto group = mdExplained(form, line, kind, [&] { return CommsGroupAtLine(form, line, kind); });
        if (group)
            addLine(why, form, *group, kind, line);
        else
            why.add(QStringLiteral("No group takes this line"), {}, why.source(),
                [&] { return CommsClaimAtLine(form, line, kind); });
    });
    return why;
}

std::optional<clsWhy> mdWhyFASItem(const clsBill &bill, int orderID)
{
    const clsZR3Form &form = bill.form();
    const auto item = form.FASItemByOrderID(orderID);
    if (!item)
        return {};
    clsWhy why({QStringLiteral("Family Advocacy Scheme"), QStringLiteral("fas"), orderID});
    const auto step = [&](const QString &text, auto compute) {
        why.add(text, {}, why.source(), [&] { return mdExplained(form, *item, [&] { return compute(); }); });
    };
    why.addAll(QStringLiteral("Total"), [&] {
        step(
            QStringLiteral("Hearing units at their rate, %1 at %2").arg(item->HearingUnits()).arg(item->RateForUnits()),
            [&] { return item->UnitPayment(); });
        if (TextValue(item->BoltOnClaimed()) != 0)
            step(QStringLiteral("Bolt-on of %1 %").arg(item->BoltOnClaimed()), [&] { return item->BoltOn(); });
        step(QStringLiteral("Court bundle payment"), [&] { return MoneyFromText(item->CourtBundlePayment()); });
        step(QStringLiteral("Settlement fee"), [&] { return MoneyFromText(item->SettlementFee()); });
        step(QStringLiteral("Exceptional travel"), [&] { return MoneyFromText(item->ExceptionalTravel()); });
        step(QStringLiteral("Total"), [&] { return item->Total(); });
    });
    return why;
}
