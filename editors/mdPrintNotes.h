#pragma once

#include <vector>

struct clsScreen;
struct clsScreenField;

/// Lets the text boxes of a section's screen tell what their printed boxes do with a text that doesn't fit.
void mdShowPrintNotes(const clsScreen &screen, const std::vector<clsScreenField> &fields);
