#include "costing/checking/clsClaimCheck.h"

#include "base/mdDateText.h"
#include "costing/checking/mdCheckWords.h"
#include "formdata/clsOnBill.h"

QString clsBilledItem::words() const
{
    const QString number = QStringLiteral("Item %1").arg(order);
    return date ? mdWithApposition(number, DateText(*date)) : number;
}

clsClaimCheck::clsClaimCheck(const clsZR3Form &form, const clsCheckFacts &facts)
    : m_form(form)
    , m_facts(facts)
    , m_bill(form)
    , m_isClaim1(form.FormType() == QLatin1String("Claim1"))
    , m_isClaim1A(form.FormType() == QLatin1String("Claim1A"))
{ }

clsFindings clsClaimCheck::run(const clsCheckRule *begin, const clsCheckRule *end)
{
    for (m_rule = begin; m_rule != end; ++m_rule)
        unlessItFails([this] { m_rule->find(*this); });
    return std::move(m_findings);
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
    clsOnBill isOnBill(m_form);
    clsSchedulePrices &prices = m_bill.prices();
    each(m_form.ScheduleOfTimeItemsCollection(), [&](const clsZR3ScheduleOfTimeItem &item, int order) {
        if (isOnBill(item))
            m_billed->push_back({&item, &prices.of(item), order, mdStoredDate(item.dDate())});
    });
    return *m_billed;
}

void clsClaimCheck::add(const clsFindingPlace &place, const QString &text, clsFindingLevel level)
{
    m_findings.push_back(
        {QString::fromLatin1(m_rule->id), level, place.screen, place.list, place.item, place.property, text});
}
