#include "formdata/clsZR3ScheduleOfTimeItem.h"

#include "base/mdDateSerial.h"
#include "base/mdPercentageCalculate.h"
#include "base/mdRequired.h"
#include "base/mdTimeToMoney.h"
#include "formdata/clsSchedulePrices.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdReadDerived.h"

namespace {

Money rateOf(clsGroupRates &rates, clsZR3ScheduleOfTimeItem::RateRule rule)
{
    switch (rule) {
    case clsZR3ScheduleOfTimeItem::AdvocacyRule: return rates.AdvocacyRate();
    case clsZR3ScheduleOfTimeItem::CounselRule: return rates.CounselRate();
    case clsZR3ScheduleOfTimeItem::TravelAndWaitingRule: return rates.TravelAndWaitingRate();
    case clsZR3ScheduleOfTimeItem::HourlyRule:
    case clsZR3ScheduleOfTimeItem::UseHourlyRule: break;
    }
    return rates.HourlyRate();
}

} // namespace

std::span<const clsXMLDerivedProperty> clsZR3ScheduleOfTimeItem::DerivedProperties()
{
    // clang-format off
    static constexpr clsXMLDerivedProperty table[] = {
        {"SOTItemNumber",      &mdReadDerived<&clsZR3ScheduleOfTimeItem::SOTItemNumber>},
        {"FeeEarnerReference", &mdReadDerived<&clsZR3ScheduleOfTimeItem::FeeEarnerReference>},
        {"FeeEarnerInitials",  &mdReadDerived<&clsZR3ScheduleOfTimeItem::FeeEarnerInitials>},
        {"DDateSerial",        &mdReadDerived<&clsZR3ScheduleOfTimeItem::DDateSerial>},
        {"TimeColumn",         &mdReadDerived<&clsZR3ScheduleOfTimeItem::TimeColumn>},
    };
    // clang-format on
    return table;
}

std::shared_ptr<clsZR3FeeEarner> clsZR3ScheduleOfTimeItem::FeeEarner() const
{
    return m_form->FeeEarnerByUniqueID(FeeEarnerUniqueID());
}

QString clsZR3ScheduleOfTimeItem::FeeEarnerReference() const
{
    return mdRequired(FeeEarner()).Reference();
}

QString clsZR3ScheduleOfTimeItem::FeeEarnerInitials() const
{
    return FeeEarnerReference();
}

std::shared_ptr<clsZR3FeeEarnerGroup> clsZR3ScheduleOfTimeItem::FeeEarnerGroup() const
{
    return mdRequired(FeeEarner()).Group();
}

QString clsZR3ScheduleOfTimeItem::DDateSerial() const
{
    return mdDateSerial(dDate());
}

int clsZR3ScheduleOfTimeItem::TimeColumn() const
{
    if (Travel())
        return TravelTime;
    if (Waiting())
        return WaitingTime;
    return ColumnOfCode(Code());
}

clsZR3ScheduleOfTimeItem::Column clsZR3ScheduleOfTimeItem::ColumnOfCode(QStringView code)
{
    if (code.startsWith(u'D') || code.startsWith(u'R') || code.startsWith(u'O'))
        return Documents;
    if (code.startsWith(u'H'))
        return Hearings;
    return AttendanceAndConferences;
}

Money clsZR3ScheduleOfTimeItem::Rate() const
{
    const auto group = FeeEarnerGroup();
    clsGroupRates rates(mdRequired(group));
    return rateFrom(rates, TimeColumn());
}

Money clsZR3ScheduleOfTimeItem::rateFrom(clsGroupRates &rates, int timeColumn) const
{
    Money rate;
    forEachRateRule(timeColumn, [&](RateRule rule) { rate = rateOf(rates, rule); });
    return rate;
}

clsZR3ScheduleOfTimeItem::RateRule clsZR3ScheduleOfTimeItem::rateRuleFrom(int timeColumn) const
{
    RateRule last = HourlyRule;
    forEachRateRule(timeColumn, [&](RateRule rule) { last = rule; });
    return last;
}

/// Visits the rules that apply, each overriding the one before it.
template <class Visit> void clsZR3ScheduleOfTimeItem::forEachRateRule(int timeColumn, Visit visit) const
{
    visit(HourlyRule);
    if (Advocacy())
        visit(AdvocacyRule);
    if (Counsel())
        visit(CounselRule);
    if (timeColumn == TravelTime || timeColumn == WaitingTime)
        visit(TravelAndWaitingRule);
    if (UseHourlyRate())
        visit(UseHourlyRule);
}

Money clsZR3ScheduleOfTimeItem::BasicClaim() const
{
    return TimeToMoney(TTime(), Rate());
}

Money clsZR3ScheduleOfTimeItem::TotalEnhancementPercentage() const
{
    const auto group = FeeEarnerGroup();
    clsGroupRates rates(mdRequired(group));
    return totalEnhancementPercentageFrom(rates);
}

Money clsZR3ScheduleOfTimeItem::totalEnhancementPercentageFrom(clsGroupRates &rates) const
{
    Money percentage = rates.Enhancement();
    if (IncludeInEnhancements()) {
        const auto listed = m_form->EnhancementByUniqueID(EnhancementUniqueID());
        percentage = percentage + MoneyFromText(mdRequired(listed).Rate());
    }
    return percentage;
}

Money clsZR3ScheduleOfTimeItem::Claim() const
{
    const Money percentage = TotalEnhancementPercentage();
    return claimFrom(BasicClaim(), percentage);
}

Money clsZR3ScheduleOfTimeItem::claimFrom(Money basicClaim, Money percentage)
{
    return RoundMoney2(basicClaim + EnhancementBy(basicClaim, percentage));
}

Money clsZR3ScheduleOfTimeItem::EnhancementBy(Money basicClaim, Money percentage)
{
    return PercentageCalculate(basicClaim, MoneyToText(percentage));
}
