#pragma once

#include "costing/mdFigureFaults.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// What is wrong with an item of a list of the claim, for the list's table.
template <class Item> clsFigureFaults mdItemFaults(const clsZR3Item &item)
{
    return mdFigureFaults(*Form, static_cast<const Item &>(item));
}
