#include "costing/checking/mdCheckRules.h"

#include "base/mdDateText.h"
#include "base/mdTimeFormatting.h"
#include "costing/checking/mdCheckWords.h"

#include <QHash>

#include <array>
#include <climits>
#include <map>
#include <string>
#include <string_view>

namespace {

clsFindingPlace placeOf(const clsBilledItem &billed, const char *property)
{
    return {ScheduleScreen, "schedule", billed.order, QString::fromLatin1(property)};
}

/// The property and the name of the rate used by a rule.
struct clsRateRow {
    const char *property;
    const char *words;
};

constexpr clsRateRow Rates[] = {
    {"HourlyRate", "an hourly rate"},
    {"AdvocacyRate", "an advocacy rate"},
    {"CounselRate", "a counsel rate"},
    {"TravelAndWaitingRate", "a travel and waiting rate"},
};
using clsFirstItems = std::array<int, std::size(Rates)>; ///< by rate: the first item that uses it, 0 for none

size_t rateOf(clsZR3ScheduleOfTimeItem::RateRule rule)
{
    using Item = clsZR3ScheduleOfTimeItem;
    switch (rule) {
    case Item::AdvocacyRule: return 1;
    case Item::CounselRule: return 2;
    case Item::TravelAndWaitingRule: return 3;
    case Item::HourlyRule:
    case Item::UseHourlyRule: break;
    }
    return 0;
}

/// The fee earners and groups of the items, each looked up once.
class clsEarners {
public:
    explicit clsEarners(const clsZR3Form &form)
        : m_form(form)
    { }

    const clsZR3FeeEarner *of(const clsZR3ScheduleOfTimeItem &item)
    {
        // The tree's own bytes, to avoid creating a text for each item.
        const std::string_view identity = item.FeeEarnerUniqueID.content();
        const auto known = m_earners.find(identity);
        if (known != m_earners.end())
            return known->second;
        const auto *earner = m_form.FeeEarnerByUniqueID(item.FeeEarnerUniqueID()).get();
        return m_earners.emplace(identity, earner).first->second;
    }

private:
    const clsZR3Form &m_form;
    std::map<std::string, const clsZR3FeeEarner *, std::less<>> m_earners;
};

/// The same number for items with the same fee earner, day and minutes.
size_t shortLikenessOf(const clsBilledItem &billed)
{
    return qHashMulti(0, billed.item->FeeEarnerUniqueID(), billed.date->toJulianDay(), billed.price->Minutes);
}

/// The values that two entries of the same work have in common.
QStringList likenessOf(const clsBilledItem &billed)
{
    const clsZR3ScheduleOfTimeItem &item = *billed.item;
    QString ticks;
    for (const clsXMLField *tick : std::initializer_list<const clsXMLField *> {
             &item.Advocacy, &item.Counsel, &item.Travel, &item.Waiting, &item.UseHourlyRate})
        ticks += tick->readBoolean() ? u'1' : u'0';
    return {item.FeeEarnerUniqueID(), QString::number(billed.date->toJulianDay()), item.Code(),
        QString::number(billed.price->Minutes), item.Description(), ticks};
}

} // namespace

void mdCheckTimeZero(clsClaimCheck &check)
{
    check.eachBilled([&](const clsBilledItem &billed) {
        if (billed.hasTime() && billed.price->Minutes == 0)
            check.add([&] {
                return clsToldFinding {placeOf(billed, "TTime"),
                    billed.words() + QStringLiteral(" has a time of 00:00: enter the time, or delete the item.")};
            });
    });
}

void mdCheckRateZero(clsClaimCheck &check)
{
    clsEarners earners(check.form());
    QHash<const clsZR3FeeEarnerGroup *, clsFirstItems> taken;
    QHash<const clsZR3FeeEarner *, const clsZR3FeeEarnerGroup *> groups;
    check.eachBilled([&](const clsBilledItem &billed) {
        const clsSchedulePrice &price = *billed.price;
        if (!billed.hasTime() || price.Minutes <= 0 || price.errorOf(clsSchedulePrice::RateFigure)
            || price.Rate != Money())
            return;
        const clsZR3FeeEarner *earner = earners.of(*billed.item);
        if (!groups.contains(earner))
            groups[earner] = earner->Group().get();
        const size_t rate = rateOf(billed.item->rateRuleFrom(price.TimeColumn));
        int &first = taken[groups[earner]][rate];
        if (first == 0)
            first = billed.order;
    });
    check.each(check.form().FeeEarnerGroupsCollection(), [&](const clsZR3FeeEarnerGroup &group, int order) {
        const clsFirstItems items = taken.value(&group);
        for (size_t rate = 0; rate < items.size(); ++rate)
            if (items[rate] != 0)
                check.add({RatesScreen, "groups", order, QString::fromLatin1(Rates[rate].property)},
                    QStringLiteral("%1 has %2 of 0.00, which item %3 takes: enter the rate.")
                        .arg(mdInWords(group), QString::fromLatin1(Rates[rate].words))
                        .arg(items[rate]));
    });
}

void mdCheckDayHours(clsClaimCheck &check)
{
    constexpr qint64 Hour = 60;
    constexpr qint64 WholeDay = 24 * Hour;
    constexpr qint64 LongDay = 12 * Hour;
    struct clsDay {
        qint64 minutes = 0;
        const clsBilledItem *last = nullptr;
        const clsZR3FeeEarner *earner = nullptr;
    };
    clsEarners earners(check.form());
    QHash<std::pair<const clsZR3FeeEarner *, qint64>, clsDay> days;
    check.eachBilled([&](const clsBilledItem &billed) {
        if (!billed.date || !billed.hasTime())
            return;
        const clsZR3FeeEarner *earner = earners.of(*billed.item);
        if (!earner)
            return;
        clsDay &day = days[{earner, billed.date->toJulianDay()}];
        day.minutes += billed.price->Minutes;
        day.last = &billed;
        day.earner = earner;
    });
    std::map<const clsBilledItem *, const clsDay *> longDays; // by address: the items are stored in order
    for (const clsDay &day : std::as_const(days))
        if (day.minutes > LongDay)
            longDays[day.last] = &day;
    for (const auto &[last, day] : longDays)
        check.add(placeOf(*last, "TTime"),
            QStringLiteral("%1 has %2 hours on %3, item %4 the last: correct the times or the dates.")
                .arg(mdInWords(*day->earner), MinutesToTime(int(std::min<qint64>(day->minutes, INT_MAX))),
                    DateText(*last->date))
                .arg(last->order),
            day->minutes > WholeDay ? clsFindingLevel::Error : clsFindingLevel::Warning);
}

void mdCheckDoubleEntry(clsClaimCheck &check)
{
    // Few items share fee earner, day and minutes: only their other values are read.
    QHash<size_t, int> sharers;
    std::vector<std::pair<const clsBilledItem *, size_t>> withTime;
    check.eachBilled([&](const clsBilledItem &billed) {
        if (!billed.date || !billed.hasTime())
            return;
        const size_t likeness = shortLikenessOf(billed);
        ++sharers[likeness];
        withTime.emplace_back(&billed, likeness);
    });
    std::erase_if(withTime, [&](const auto &row) { return sharers.value(row.second) < 2; });
    QHash<QStringList, int> earlier;
    const auto look = [&](const clsBilledItem &billed) {
        const QStringList likeness = likenessOf(billed);
        const auto known = earlier.constFind(likeness);
        if (known == earlier.constEnd())
            earlier.insert(likeness, billed.order);
        else
            check.add([&] {
                return clsToldFinding {placeOf(billed, ""),
                    QStringLiteral("%1 equals item %2: delete one, or say what differs.")
                        .arg(billed.words())
                        .arg(*known)};
            });
    };
    for (const auto &row : withTime)
        check.unlessItFails([&] { look(*row.first); });
}

void mdCheckLongItem(clsClaimCheck &check)
{
    constexpr int Long = 3 * 60;
    check.eachBilled([&](const clsBilledItem &billed) {
        if (billed.hasTime() && billed.price->Minutes >= Long && mdIsEmptyText(billed.item->Description()))
            check.add(placeOf(billed, "Description"),
                QStringLiteral("%1 takes %2 and has no description: say what was done.")
                    .arg(billed.words(), MinutesToTime(billed.price->Minutes)));
    });
}
