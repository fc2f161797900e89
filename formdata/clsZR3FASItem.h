#pragma once

#include "base/Money.h"
#include "formdata/clsZR3Item.h"

class clsZR3Form;

/// A hearing under the Family Advocacy Scheme, paid by units and fixed payments instead of by time.
class clsZR3FASItem : public clsZR3Item {
public:
    /// The properties read by name in addition to the fields: one row for each derived member shown in a list.
    static std::span<const clsXMLDerivedProperty> DerivedProperties();

    explicit clsZR3FASItem(clsZR3Form &)
        : clsZR3Item(clsXMLPropertyTable::of<clsZR3FASItem>(), "xmlZR3FASItem")
    { }

    clsXMLLong<"OrderID", true> OrderID {*this};
    clsXMLText<"dDate"> dDate {*this};
    clsXMLText<"LevelOfCourt"> LevelOfCourt {*this};
    clsXMLText<"FDR"> FDR {*this};
    clsXMLLong<"ActualTimeSpent"> ActualTimeSpent {*this}; ///< minutes; printed, not priced
    clsXMLLong<"HearingUnits"> HearingUnits {*this};
    clsXMLText<"RateForUnits"> RateForUnits {*this};
    clsXMLText<"BoltOnClaimed"> BoltOnClaimed {*this};
    clsXMLText<"BoltOnDescription"> BoltOnDescription {*this};
    clsXMLText<"CourtBundlePayment"> CourtBundlePayment {*this};
    clsXMLText<"SettlementFee"> SettlementFee {*this};
    clsXMLText<"ExceptionalTravel"> ExceptionalTravel {*this};
    clsXMLText<"ExceptionalTravelDistance"> ExceptionalTravelDistance {*this};
    clsXMLText<"ExceptionalTravelReason"> ExceptionalTravelReason {*this};
    clsXMLText<"VATForFAS"> VATForFAS {*this};

    /// The date as "yyyymmdd", for sorting in the grids.
    QString DDateSerial() const;
    /// Units times their rate; an empty rate is the type error.
    Money UnitPayment() const;
    /// The percentage bolt-on of the unit payment, at four decimals.
    Money BoltOn() const;
    /// Unit payment, bolt-on and fixed payments. Not rounded: fractions of a penny are included in the bill.
    Money Total() const;
};
