#include "formdata/clsSchedulePrices.h"

#include "base/mdTimeFormatting.h"
#include "base/mdTimeToMoney.h"
#include "formdata/clsZR3Form.h"

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
{
    // All at once, in memory order: the user's order jumps back and forth in it.
    for (size_t place = 0; place < m_prices.size(); ++place)
        price(*form.ScheduleOfTimeItemsCollection()[place], m_prices[place]);
}

const clsSchedulePrice &clsSchedulePrices::of(const clsZR3ScheduleOfTimeItem &item)
{
    // An item removed from the claim since, but possibly still in an export list, has no position.
    const auto place = size_t(item.Index - 1);
    const auto &items = m_form.ScheduleOfTimeItemsCollection();
    if (place >= m_prices.size() || place >= items.size() || items[place].get() != &item) {
        price(item, m_unlisted.emplace_back());
        return m_unlisted.back();
    }
    return m_prices[place];
}

clsSchedulePrices::clsEarner &clsSchedulePrices::earnerOf(const clsZR3ScheduleOfTimeItem &item)
{
    // By the identity as in the tree, without converting it to a text for each item.
    const std::string_view identity = item.FeeEarnerUniqueID.content();
    if (const auto known = m_earners.find(identity); known != m_earners.end())
        return known->second;
    clsEarner &earner = m_earners[std::string(identity)];
    const auto feeEarner = m_form.FeeEarnerByUniqueID(item.FeeEarnerUniqueID());
    if (!feeEarner)
        return earner;
    earner.initials = feeEarner->Reference();
    const auto group = feeEarner->Group();
    if (!group)
        return earner;
    m_groups.push_back(group);
    m_rates.push_back(std::make_unique<clsGroupRates>(*group));
    earner.rates = m_rates.back().get();
    return earner;
}

void clsSchedulePrices::price(const clsZR3ScheduleOfTimeItem &item, clsSchedulePrice &result)
{
    using Price = clsSchedulePrice;
    using enum Price::Figure;
    const auto note
        = [&result](Price::Figure figure, int error) { result.errors[size_t(figure)] = std::int16_t(error); };
    // A figure computed from others gets the first error among them.
    const auto attempt = [&](Price::Figure figure, std::initializer_list<Price::Figure> parts, auto compute) {
        for (const Price::Figure part : parts)
            if (const int error = result.errorOf(part))
                return note(figure, error);
        try {
            compute();
        } catch (const clsRunTimeError &error) {
            note(figure, error.number());
        }
    };

    const clsEarner &earner = earnerOf(item);
    if (earner.initials)
        result.FeeEarnerInitials = &*earner.initials;
    else
        note(InitialsFigure, clsRunTimeError::ObjectNotSet);
    try {
        result.Advocacy = item.Advocacy();
    } catch (const clsRunTimeError &) { }
    if (item.TTime.isEmpty()) // found without exceptions: a claim may have thousands of blank items
        note(TimeFigure, clsRunTimeError::SubscriptOutOfRange);
    else
        attempt(TimeFigure, {}, [&] { result.Minutes = TimeToMinutes(item.TTime()); });
    attempt(ColumnFigure, {}, [&] { result.TimeColumn = std::int16_t(item.TimeColumn()); });
    if (earner.rates) {
        attempt(RateFigure, {ColumnFigure}, [&] { result.Rate = item.rateFrom(*earner.rates, result.TimeColumn); });
        attempt(PercentageFigure, {},
            [&] { result.TotalEnhancementPercentage = item.totalEnhancementPercentageFrom(*earner.rates); });
    } else {
        note(RateFigure, clsRunTimeError::ObjectNotSet);
        note(PercentageFigure, clsRunTimeError::ObjectNotSet);
    }
    attempt(BasicClaimFigure, {RateFigure, TimeFigure},
        [&] { result.BasicClaim = MinutesToMoney(result.Minutes, result.Rate); });
    attempt(ClaimFigure, {PercentageFigure, BasicClaimFigure},
        [&] { result.Claim = item.claimFrom(result.BasicClaim, result.TotalEnhancementPercentage); });
}
