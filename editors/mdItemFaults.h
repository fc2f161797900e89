#pragma once

#include "costing/mdFigureFaults.h"
#include "editors/mdEditedForm.h"
#include "formdata/clsZR3Form.h"

/// The faults of an item, for the table of its list.
template <class Item> clsFigureFaults mdItemFaults(const clsZR3Item &item)
{
    return mdFigureFaults(mdEditedForm(), static_cast<const Item &>(item));
}
