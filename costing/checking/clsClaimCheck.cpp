#include "costing/checking/clsClaimCheck.h"

#include "base/mdDateText.h"
#include "costing/checking/mdCheckWords.h"
#include "formdata/clsBillFilter.h"

QString clsBilledItem::words() const
{
    const QString number = QStringLiteral("Item %1").arg(order);
    return date ? mdWithApposition(number, DateText(*date)) : number;
}

clsClaimCheck::clsClaimCheck(const clsBill &bill, const clsCheckFacts &facts)
    : m_bill(bill)
    , m_form(bill.form())
    , m_facts(facts)
    , m_isClaim1(m_form.FormType() == QLatin1String("Claim1"))
    , m_isClaim1A(m_form.FormType() == QLatin1String("Claim1A"))
{ }

clsFindings clsClaimCheck::run(const clsCheckRule *begin, const clsCheckRule *end)
{
    for (m_rule = begin; m_rule != end; ++m_rule)
        unlessItFails([this] { m_rule->find(*this); });
    return std::move(m_findings);
}

clsFindingCounts clsClaimCheck::count(const clsCheckRule *begin, const clsCheckRule *end)
{
    m_counts.emplace();
    for (m_rule = begin; m_rule != end; ++m_rule)
        if (m_rule->level != clsFindingLevel::Note)
            unlessItFails([this] { m_rule->find(*this); });
    return *std::exchange(m_counts, {});
}

void clsClaimCheck::countOne(clsFindingLevel level)
{
    m_counts->errors += level == clsFindingLevel::Error;
    m_counts->warnings += level == clsFindingLevel::Warning;
}

bool clsClaimCheck::isPrinted(int claim1Page, int claim1APage) const
{
    int page = 0;
    if (m_isClaim1)
        page = claim1Page;
    else if (m_isClaim1A)
        page = claim1APage;
    bool isIncluded = false;
    return page > 0 && unlessItFails([&] { isIncluded = m_form.IncludePage(page); }) && isIncluded;
}

const std::vector<clsBilledItem> &clsClaimCheck::billed()
{
    if (m_billed)
        return *m_billed;
    m_billed.emplace();
    clsBillFilter isOnBill(m_form);
    clsSchedulePrices &prices = m_bill.prices();
    each(m_form.ScheduleOfTimeItemsCollection(), [&](const clsZR3ScheduleOfTimeItem &item, int order) {
        if (isOnBill(item))
            m_billed->push_back({&item, &prices.of(item), order, mdStoredDate(item.dDate())});
    });
    return *m_billed;
}

void clsClaimCheck::add(const clsFindingPlace &place, const QString &text, clsFindingLevel level)
{
    if (m_counts) {
        countOne(level);
        return;
    }
    m_findings.push_back(
        {QString::fromLatin1(m_rule->id), level, place.screen, place.list, place.item, place.property, text});
}
