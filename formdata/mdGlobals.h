#pragma once

#include "formdata/clsDocument.h"

class clsZR3PreferencesDatabase;

// What there is once in the program. One process holds one claim at a time.

/// The current claim; nothing until the first New or Open, and replaced whole by each later one.
extern std::unique_ptr<clsZR3Form> &Form;

/// The preferences; nothing until the main window is loaded.
extern std::unique_ptr<clsZR3PreferencesDatabase> Preferences;

/// The claim's text as it was last loaded, created or saved. The claim has changes exactly when its present text
/// differs from this one: there is no flag that an edit would have to set, and an edit undone by hand makes the claim
/// clean.
extern QString &CleanXML;
