#pragma once

#include "commands/clsTypedTexts.h"

#include <vector>

class clsXMLRecord;
class frmSection;

/// What is typed in a screen and not stored: the fields that differ from what they were filled with.
clsTypedTexts mdTypedIn(const frmSection &screen);

/// How many characters of it are typed.
int mdCharactersOf(const frmSection &screen, const clsTypedTexts &texts);

/// What stands for an item of a list, wherever in the list it is: its identity or, without one, its content.
QString mdItemMark(const clsXMLRecord &item);

/// The same of all open screens. One that lies over another comes after it.
std::vector<clsTypedTexts> mdTypedTexts();
