#pragma once

#include "editors/mdListTotals.h"

#include <QString>

#include <functional>

class frmScreen;
struct clsEditCommands;
struct clsPasteList;

// Imports rows of a table into a list of the claim, and copies the list as a table.

/// Called after the rows are added, within the same step.
using clsPasted = std::function<void()>;

/// Shows the rows on the clipboard and adds those the user leaves ticked, as one step.
void mdPasteItems(const clsPasteList &list, const clsPasted &pasted);
/// The same for a file that the user chooses.
void mdImportItems(const clsPasteList &list, const clsPasted &pasted);
/// Copies the list to the clipboard as a table, or only its marked items if several are marked; returns the number of
/// items.
int mdCopyList(const clsPasteList &list, const clsMarkedItems &marked = {});
/// The message after copying; `all` is given if not all were copied.
QString mdCopiedInWords(const clsPasteList &list, int count, int all = 0);

/// Adds these commands for the screen's first list that supports them; none if no list does.
void mdOfferPaste(frmScreen &screen, clsEditCommands &commands, const std::function<void(const QString &)> &tell);
