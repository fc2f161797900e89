#pragma once

#include "costing/mdFigureFaults.h"
#include "editors/mdEditedForm.h"
#include "formdata/clsZR3Form.h"

/// What is wrong with an item of a list of the claim, for the list's table.
template <class Item> clsFigureFaults mdItemFaults(const clsZR3Item &item)
{
    return mdFigureFaults(mdEditedForm(), static_cast<const Item &>(item));
}
