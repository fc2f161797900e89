#pragma once

#include "editors/mdListTotals.h"

#include <QString>

class frmSection;
struct clsItemList;

/// Asks which field of the marked items of a list is to be set and to what, checks that as the item's editor does, and
/// stores it in all of them. It begins with what the selected one holds. Returns the name of the step; nothing where
/// the user has cancelled it.
QString mdChangeSelected(
    frmSection &owner, const clsItemList &list, clsZR3Item &selected, const clsMarkedItems &marked);
