#include "costing/clsSchedulePrices.h"

#include "costing/mdTimeToMoney.h"
#include "formdata/clsZR3Form.h"
#include "shell/mdExisting.h"

namespace {

template <class Read> Money kept(std::optional<Money> &figure, Read read)
{
    if (!figure)
        figure = MoneyFromText(read());
    return *figure;
}

} // namespace

Money clsGroupRates::HourlyRate()
{
    return kept(m_hourly, [this] { return m_group->HourlyRate(); });
}

Money clsGroupRates::AdvocacyRate()
{
    return kept(m_advocacy, [this] { return m_group->AdvocacyRate(); });
}

Money clsGroupRates::CounselRate()
{
    return kept(m_counsel, [this] { return m_group->CounselRate(); });
}

Money clsGroupRates::TravelAndWaitingRate()
{
    return kept(m_travelAndWaiting, [this] { return m_group->TravelAndWaitingRate(); });
}

Money clsGroupRates::Enhancement()
{
    if (!m_enhancement)
        m_enhancement = m_group->Enhance() ? MoneyFromText(m_group->EnhancementRate()) : Money();
    return *m_enhancement;
}

clsSchedulePrices::clsSchedulePrices(const clsZR3Form &form)
    : m_form(form)
    , m_prices(form.ScheduleOfTimeItemsCollection().size())
{ }

const clsSchedulePrice &clsSchedulePrices::of(const clsZR3ScheduleOfTimeItem &item)
{
    // An item taken out of the claim since, which an export list may still hold, has no place of its own.
    const auto place = size_t(item.Index - 1);
    const auto &items = m_form.ScheduleOfTimeItemsCollection();
    if (place >= m_prices.size() || place >= items.size() || items[place].get() != &item) {
        price(item, m_strangers.emplace_back());
        return m_strangers.back();
    }
    std::optional<clsSchedulePrice> &own = m_prices[place];
    if (!own) {
        clsSchedulePrice priced;
        price(item, priced);
        own = std::move(priced);
    }
    return *own;
}

clsSchedulePrices::clsEarner &clsSchedulePrices::earnerOf(const QString &uniqueID)
{
    clsEarner &earner = m_earners[uniqueID];
    if (!earner.rates) {
        const auto feeEarner = m_form.FeeEarnerByUniqueID(uniqueID);
        earner.initials = mdExisting(feeEarner).Reference();
        m_groups.push_back(feeEarner->Group());
        m_rates.push_back(std::make_unique<clsGroupRates>(mdExisting(m_groups.back())));
        earner.rates = m_rates.back().get();
    }
    return earner;
}

void clsSchedulePrices::price(const clsZR3ScheduleOfTimeItem &item, clsSchedulePrice &result)
{
    const clsEarner &earner = earnerOf(item.FeeEarnerUniqueID());
    result.FeeEarnerInitials = earner.initials;
    result.TTime = item.TTime();
    result.TimeColumn = item.TimeColumn();
    result.Rate = item.RateBy(*earner.rates, result.TimeColumn);
    result.BasicClaim = TimeToMoney(result.TTime, result.Rate);
    result.TotalEnhancementPercentage = item.TotalEnhancementPercentageBy(*earner.rates);
    result.Claim = item.ClaimBy(result.BasicClaim, result.TotalEnhancementPercentage);
}
