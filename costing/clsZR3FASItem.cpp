#include "costing/clsZR3FASItem.h"

#include "costing/mdDateSerial.h"
#include "costing/mdPercentageCalculate.h"
#include "shell/mdNumberText.h"
#include "costing/mdSumOf.h"

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
