#pragma once

#include "base/Money.h"
#include "formdata/clsZR3Item.h"

#include <memory>

class clsGroupRates;
class clsZR3FeeEarner;
class clsZR3FeeEarnerGroup;
class clsZR3Form;

/// A dated piece of work. Each read prices it from its fee earner's group, with no stored result, so that a changed
/// rate or enhancement immediately reprices the whole bill.
class clsZR3ScheduleOfTimeItem : public clsZR3Item {
public:
    /// The columns of the bill for times.
    enum Column { AttendanceAndConferences = 0, Documents = 1, Hearings = 2, TravelTime = 3, WaitingTime = 4 };
    static constexpr int Columns = 5;

    /// The properties read by name in addition to the fields: one row for each derived member shown in a list.
    static std::span<const clsXMLDerivedProperty> DerivedProperties();

    explicit clsZR3ScheduleOfTimeItem(clsZR3Form &form)
        : clsZR3Item(clsXMLPropertyTable::of<clsZR3ScheduleOfTimeItem>(), "xmlZR3ScheduleOfTimeItem")
        , m_form(&form)
    { }

    /// The number on the exported schedule, set by the export list; not stored in the file.
    int SOTItemNumber = 0;
    clsXMLLong<"OrderID", true> OrderID {*this};
    clsXMLText<"FeeEarnerUniqueID"> FeeEarnerUniqueID {*this};
    clsXMLText<"dDate"> dDate {*this};
    clsXMLText<"Code"> Code {*this};
    clsXMLText<"Description"> Description {*this};
    clsXMLText<"TTime"> TTime {*this};
    /// Declared but unused: no template has its element and nothing reads it.
    clsXMLLong<"TypeOfCase"> TypeOfCase {*this};
    clsXMLBoolean<"Advocacy"> Advocacy {*this};
    clsXMLBoolean<"Counsel"> Counsel {*this};
    clsXMLBoolean<"Travel"> Travel {*this};
    clsXMLBoolean<"Waiting"> Waiting {*this};
    clsXMLBoolean<"UseHourlyRate"> UseHourlyRate {*this};
    clsXMLBoolean<"IncludeInEnhancements"> IncludeInEnhancements {*this};
    clsXMLText<"EnhancementUniqueID"> EnhancementUniqueID {*this};

    /// The fee earner with the identity `FeeEarnerUniqueID`, or null.
    std::shared_ptr<clsZR3FeeEarner> FeeEarner() const;
    /// That fee earner's reference; without a fee earner the object error, as in all the figures below.
    QString FeeEarnerReference() const;
    QString FeeEarnerInitials() const;
    std::shared_ptr<clsZR3FeeEarnerGroup> FeeEarnerGroup() const;
    /// The date as "yyyymmdd", for sorting in the grids.
    QString DDateSerial() const;

    /// The column of the bill, 0 to 4.
    int TimeColumn() const;
    /// The column for a code alone, for work that is neither travel nor waiting.
    static Column ColumnOfCode(QStringView code);
    /// Pounds per hour: a later rule overrides an earlier one, so that an advocate's journey is priced as travel.
    Money Rate() const;
    /// The time at the rate, to the penny.
    Money BasicClaim() const;
    /// The group's and the listed enhancement added, as a percentage: they do not compound.
    Money TotalEnhancementPercentage() const;
    /// Basic claim plus its uplift; only the sum is rounded to the penny.
    Money Claim() const;

    // The rules of the four figures, for callers that already have the preceding figures.
    Money rateFrom(clsGroupRates &rates, int timeColumn) const;
    Money totalEnhancementPercentageFrom(clsGroupRates &rates) const;
    static Money claimFrom(Money basicClaim, Money percentage);
    /// The uplift included in the claim, at four decimals.
    static Money EnhancementBy(Money basicClaim, Money percentage);

    /// The rule that decides the rate.
    enum RateRule { HourlyRule, AdvocacyRule, CounselRule, TravelAndWaitingRule, UseHourlyRule };
    /// The rule behind the result of `rateFrom`.
    RateRule rateRuleFrom(int timeColumn) const;

private:
    template <class Visit> void forEachRateRule(int timeColumn, Visit visit) const;

    clsZR3Form *m_form;
};
