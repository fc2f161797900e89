#include "shell/mdGlobals.h"

#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"

std::unique_ptr<clsZR3Form> Form;
std::unique_ptr<clsZR3PreferencesDatabase> Preferences;
QString CleanXML;
