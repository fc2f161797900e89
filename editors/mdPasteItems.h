#pragma once

#include "editors/mdListTotals.h"

#include <QString>

#include <functional>

class frmSection;
struct clsEditCommands;
struct clsPasteList;

// Rows of a table into a list of the claim, and the list as a table.

/// What follows when rows have come into the list; part of the step.
using clsPasted = std::function<void()>;

/// Shows the rows that the clipboard holds, and adds those that the user leaves ticked, as one step.
void mdPasteItems(const clsPasteList &list, const clsPasted &pasted);
/// The same for those of a file that the user chooses.
void mdImportItems(const clsPasteList &list, const clsPasted &pasted);
/// Puts the list on the clipboard as a table, or, where several are marked, those of its items; how many that were.
int mdCopyList(const clsPasteList &list, const clsMarkedItems &marked = {});
/// What the user is then told; `all` where not all were copied.
QString mdCopiedInWords(const clsPasteList &list, int count, int all = 0);

/// Gives the menu "Edit" of a screen these entries, for the first of its lists that has them; none where no list has.
void mdOfferPaste(frmSection &screen, clsEditCommands &commands, const std::function<void(const QString &)> &tell);
