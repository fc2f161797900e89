#pragma once

#include "base/Money.h"
#include "formdata/clsZR3ScheduleOfTimeItem.h"
#include "formdata/mdFetch.h"

#include <QString>

#include <array>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class clsZR3FeeEarnerGroup;
class clsZR3Form;

/// The rates of a fee earner group, each read on first use and then cached: a rate that no item uses may be invalid.
class clsGroupRates {
public:
    explicit clsGroupRates(const clsZR3FeeEarnerGroup &group)
        : m_group(&group)
    { }

    Money HourlyRate();
    Money AdvocacyRate();
    Money CounselRate();
    Money TravelAndWaitingRate();
    /// The group's enhancement of every item: its rate if it has one, otherwise 0.
    Money Enhancement();

private:
    const clsZR3FeeEarnerGroup *m_group;
    std::optional<Money> m_hourly;
    std::optional<Money> m_advocacy;
    std::optional<Money> m_counsel;
    std::optional<Money> m_travelAndWaiting;
    std::optional<Money> m_enhancement;
};

/// The figures of one schedule item. If the item's own member raises an error, its number is stored in `errors` and the
/// figure must not be used. Exactly one cache line, because a bill read in the user's order accesses these at random.
struct alignas(64) clsSchedulePrice {
    enum Figure {
        InitialsFigure,
        TimeFigure,
        ColumnFigure,
        RateFigure,
        BasicClaimFigure,
        PercentageFigure,
        ClaimFigure
    };
    static constexpr int Figures = ClaimFigure + 1;

    Money Rate;
    Money BasicClaim;
    Money TotalEnhancementPercentage;
    Money Claim;
    const QString *FeeEarnerInitials = nullptr; ///< lives as long as the prices; null if they fail
    int Minutes = 0; ///< of the time
    std::int16_t TimeColumn = 0;
    std::optional<bool> Advocacy; ///< unset if the item's tick is neither value
    std::array<std::int16_t, Figures> errors {}; ///< by figure: its error number, 0 for none

    int errorOf(Figure figure) const { return errors[size_t(figure)]; }
    bool fails() const { return errors != decltype(errors) {}; }
};

static_assert(sizeof(clsSchedulePrice) == 64);

/// Prices each item of a schedule once, for views of all items and their totals; the figures are the same as the items'
/// own. Must not outlive the drawing that it is made for, since the claim may change afterwards.
class clsSchedulePrices {
public:
    explicit clsSchedulePrices(const clsZR3Form &form);

    const clsSchedulePrice &of(const clsZR3ScheduleOfTimeItem &item);
    /// Prefetches the price of an item that will be needed soon; does nothing for null.
    [[gnu::always_inline]] void fetch(const clsZR3ScheduleOfTimeItem *item) const
    {
        if (item && item->Index >= 1 && size_t(item->Index) <= m_prices.size())
            mdFetch(&m_prices[size_t(item->Index - 1)]);
    }
    const clsZR3Form &form() const { return m_form; }

private:
    struct clsEarner {
        std::optional<QString> initials; ///< none if no fee earner has the identity
        clsGroupRates *rates = nullptr; ///< none without a group
    };
    clsEarner &earnerOf(const clsZR3ScheduleOfTimeItem &item);
    void price(const clsZR3ScheduleOfTimeItem &item, clsSchedulePrice &result);

    const clsZR3Form &m_form;
    std::vector<clsSchedulePrice> m_prices; ///< by the item's position in the claim
    std::deque<clsSchedulePrice> m_unlisted;
    std::map<std::string, clsEarner, std::less<>> m_earners; ///< by identity as in the tree
    std::vector<std::shared_ptr<clsZR3FeeEarnerGroup>> m_groups;
    std::vector<std::unique_ptr<clsGroupRates>> m_rates;
};
