#include "costing/clsZR3ScheduleOfTimeItem.h"

#include "costing/mdDateSerial.h"
#include "costing/mdPercentageCalculate.h"
#include "costing/mdTimeToMoney.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdReadDerived.h"
#include "shell/mdExisting.h"

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
    return mdExisting(FeeEarner()).Reference();
}

QString clsZR3ScheduleOfTimeItem::FeeEarnerInitials() const
{
    return FeeEarnerReference();
}

std::shared_ptr<clsZR3FeeEarnerGroup> clsZR3ScheduleOfTimeItem::FeeEarnerGroup() const
{
    return mdExisting(FeeEarner()).Group();
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
    const QString code = Code();
    if (code.startsWith(u'D') || code.startsWith(u'R') || code.startsWith(u'O'))
        return Documents;
    if (code.startsWith(u'H'))
        return Hearings;
    return AttendanceAndConferences;
}

Money clsZR3ScheduleOfTimeItem::Rate() const
{
    const auto group = FeeEarnerGroup();
    const clsZR3FeeEarnerGroup &rates = mdExisting(group);
    Money rate = MoneyFromText(rates.HourlyRate());
    if (Advocacy())
        rate = MoneyFromText(rates.AdvocacyRate());
    if (Counsel())
        rate = MoneyFromText(rates.CounselRate());
    if (Travel() || Waiting())
        rate = MoneyFromText(rates.TravelAndWaitingRate());
    if (UseHourlyRate())
        rate = MoneyFromText(rates.HourlyRate());
    return rate;
}

Money clsZR3ScheduleOfTimeItem::BasicClaim() const
{
    return TimeToMoney(TTime(), Rate());
}

Money clsZR3ScheduleOfTimeItem::TotalEnhancementPercentage() const
{
    Money percentage;
    const auto group = FeeEarnerGroup();
    if (const clsZR3FeeEarnerGroup &own = mdExisting(group); own.Enhance())
        percentage = percentage + MoneyFromText(own.EnhancementRate());
    if (IncludeInEnhancements()) {
        const auto listed = m_form->EnhancementByUniqueID(EnhancementUniqueID());
        percentage = percentage + MoneyFromText(mdExisting(listed).Rate());
    }
    return percentage;
}

Money clsZR3ScheduleOfTimeItem::Claim() const
{
    const QString percentage = MoneyToText(TotalEnhancementPercentage());
    const Money basic = BasicClaim();
    return RoundMoney2(basic + PercentageCalculate(basic, percentage));
}
