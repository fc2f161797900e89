#pragma once

#include "formdata/clsZR3Item.h"

class clsZR3Form;

/// An expert's invoice. `NetAmount` is entered, not derived: the cost fields are only reported on the form, and only
/// `NetAmount` and `VATAmount` are included in the totals. Amounts are pounds, as text.
class clsZR3ExpertInvoice : public clsZR3Item {
public:
    explicit clsZR3ExpertInvoice(clsZR3Form &)
        : clsZR3Item(clsXMLPropertyTable::of<clsZR3ExpertInvoice>(), "xmlZR3ExpertInvoice")
    { }

    clsXMLLong<"OrderID", true> OrderID {*this};
    clsXMLText<"ExpertGroup"> ExpertGroup {*this};
    clsXMLText<"ExpertType"> ExpertType {*this};
    clsXMLBoolean<"PriorAuthorityObtained"> PriorAuthorityObtained {*this};
    clsXMLText<"PreparationHourlyRate"> PreparationHourlyRate {*this};
    clsXMLText<"TotalPrepCost"> TotalPrepCost {*this};
    clsXMLText<"CourtAttendanceHourlyRate"> CourtAttendanceHourlyRate {*this};
    clsXMLText<"TotalCourtCost"> TotalCourtCost {*this};
    clsXMLText<"TravelTimeCosts"> TravelTimeCosts {*this};
    clsXMLText<"OtherCosts"> OtherCosts {*this};
    clsXMLText<"NetAmount"> NetAmount {*this};
    clsXMLText<"VATAmount"> VATAmount {*this};
};
