#include "formdata/mdGlobals.h"

#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"

namespace {

clsDocument document;

}

clsDocument &Document()
{
    return document;
}

std::unique_ptr<clsZR3Form> &Form = document.form;
std::unique_ptr<clsZR3PreferencesDatabase> Preferences;
QString &CleanXML = document.cleanXML;
