#pragma once

#include "formdata/clsDocument.h"

class clsZR3PreferencesDatabase;

// The program's single instances. One process holds one claim at a time.

/// The current claim; null until the first New or Open, and replaced by each later one.
extern std::unique_ptr<clsZR3Form> &Form;

/// The preferences; null until the main window is loaded.
extern std::unique_ptr<clsZR3PreferencesDatabase> Preferences;

/// The claim's text as last loaded, created or saved. The claim has changes if its present text differs from this:
/// edits need not set a flag, and a manually reversed edit makes the claim clean.
extern QString &CleanXML;
