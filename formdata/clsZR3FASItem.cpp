#include "formdata/clsZR3FASItem.h"

#include "base/mdDateSerial.h"
#include "base/mdNumberText.h"
#include "base/mdPercentageCalculate.h"
#include "base/mdSumOf.h"
#include "formdata/mdReadDerived.h"

std::span<const clsXMLDerivedProperty> clsZR3FASItem::DerivedProperties()
{
    // clang-format off
    static constexpr clsXMLDerivedProperty table[] = {
        {"DDateSerial", &mdReadDerived<&clsZR3FASItem::DDateSerial>},
    };
    // clang-format on
    return table;
}

QString clsZR3FASItem::DDateSerial() const
{
    return mdDateSerial(dDate());
}

Money clsZR3FASItem::UnitPayment() const
{
    return MoneyFromDouble(DoubleFromStrictText(RateForUnits()) * double(HearingUnits()));
}

Money clsZR3FASItem::BoltOn() const
{
    return PercentageCalculate(UnitPayment(), BoltOnClaimed());
}

Money clsZR3FASItem::Total() const
{
    return mdSumOf({UnitPayment(), BoltOn(), MoneyFromText(CourtBundlePayment()), MoneyFromText(SettlementFee()),
        MoneyFromText(ExceptionalTravel())});
}
