#pragma once

#include "formdata/clsZR3Item.h"

class clsZR3Form;

/// A payment made by the firm; with `Counsel` set it is a counsel's fee. Amounts are pounds, as text.
class clsZR3Disbursement : public clsZR3Item {
public:
    explicit clsZR3Disbursement(clsZR3Form &)
        : clsZR3Item(clsXMLPropertyTable::of<clsZR3Disbursement>(), "xmlZR3Disbursement")
    { }

    clsXMLLong<"OrderID", true> OrderID {*this};
    clsXMLBoolean<"Counsel"> Counsel {*this};
    clsXMLText<"CounselUniqueID"> CounselUniqueID {*this};
    clsXMLText<"DateOfWork"> DateOfWork {*this};
    clsXMLText<"Description"> Description {*this};
    clsXMLText<"Amount"> Amount {*this};
    clsXMLText<"VAT"> VAT {*this};
};
