#pragma once

#include "formdata/clsZR3Item.h"

class clsZR3Form;

/// A named enhancement percentage for time items or letters and calls; 50.00 means fifty per cent.
class clsZR3Enhancement : public clsZR3Item {
public:
    explicit clsZR3Enhancement(clsZR3Form &)
        : clsZR3Item(clsXMLPropertyTable::of<clsZR3Enhancement>(), "xmlZR3Enhancement")
    { }

    clsXMLLong<"OrderID", true> OrderID {*this};
    clsXMLText<"UniqueID", true> UniqueID {*this};
    clsXMLText<"Name"> Name {*this};
    clsXMLText<"Rate"> Rate {*this};
};
