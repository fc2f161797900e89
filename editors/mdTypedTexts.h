#pragma once

#include "commands/clsTypedTexts.h"

#include <vector>

class clsXMLRecord;
class frmScreen;

/// The text typed in a screen and not stored: the fields that have changed since they were filled.
clsTypedTexts mdTypedIn(const frmScreen &screen);

/// How many characters of it are typed.
int mdCharactersOf(const frmScreen &screen, const clsTypedTexts &texts);

/// Identifies an item wherever it is in its list: its identity or, without one, its content.
QString mdItemMark(const clsXMLRecord &item);

/// The same for all open screens, a screen after those below it.
std::vector<clsTypedTexts> mdTypedTexts();
