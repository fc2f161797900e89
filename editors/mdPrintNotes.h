#pragma once

#include <vector>

struct clsScreen;
struct clsScreenField;

/// Makes the text boxes of a section's screen show how a text that doesn't fit its printed box will be printed.
void mdShowPrintNotes(const clsScreen &screen, const std::vector<clsScreenField> &fields);
