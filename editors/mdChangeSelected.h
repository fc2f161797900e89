#pragma once

#include "editors/mdListTotals.h"

#include <QString>

class frmScreen;
struct clsItemList;

/// Asks which field of a list's marked items to set and to what, checks the value as the item's editor does, and stores
/// it in all of them. Starts with the selected item's value. Returns the step's name; empty if cancelled.
QString mdChangeSelected(frmScreen &owner, const clsItemList &list, clsZR3Item &selected, const clsMarkedItems &marked);
