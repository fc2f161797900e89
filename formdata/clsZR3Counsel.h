#pragma once

#include "formdata/clsZR3Item.h"

class clsZR3Form;

/// A barrister instructed in the case. `VAT` is only stored and edited: the VAT on a counsel's fee is that of the
/// disbursement.
class clsZR3Counsel : public clsZR3Item {
public:
    explicit clsZR3Counsel(clsZR3Form &)
        : clsZR3Item(clsXMLPropertyTable::of<clsZR3Counsel>(), "xmlZR3Counsel")
    { }

    clsXMLLong<"OrderID", true> OrderID {*this};
    clsXMLText<"UniqueID", true> UniqueID {*this};
    clsXMLText<"Name"> Name {*this};
    clsXMLText<"AccountNumber"> AccountNumber {*this};
    clsXMLBoolean<"VAT"> VAT {*this};
};
