#include "formdata/mdGlobals.h"

#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"

namespace {

// The one document of the program.
clsDocument document;

} // namespace

clsDocument &Document()
{
    return document;
}

std::unique_ptr<clsZR3Form> &Form = document.form;
// One file, read by the whole program.
std::unique_ptr<clsZR3PreferencesDatabase> Preferences;
QString &CleanXML = document.cleanXML;
