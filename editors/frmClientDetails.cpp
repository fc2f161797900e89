#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// The client. The printed box for the first name holds seven characters.
const clsScreen &ScreenClientDetails()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmClientDetails",
        .header = "Client Details",
        .subCaption = "Enter details of the client",
        .iconGroup = 12,
        .width = clsScreenWidth::OneColumn,
        .ending = clsScreenEnding::SaveCancel,
        .section = "Client Details",
        .record = []() -> clsXMLRecord * { return &Form->ClientDetails; },
        .frames = {
            {"bxGeneral", "Client Details", {
                {Text, "txtCaseReferenceNumber", "Our Case Reference Number:", 30},
                {Text, "txtTitle",               "Title:",                      7},
                {Text, "txtFirstName",           "First Name:",                 7},
                {Text, "txtSurname",             "Surname:",                   17},
                {Date, "txtDateOfBirth",         "Date of Birth:"},
                {Separator},
                {Text, "txtMoreThan1Certificate",
                 "Does this claim cover more than one certificate? If so, give the other case reference numbers and "
                 "the percentage apportionments between the cases:", 130, MultiLine | SpellCheck},
            }},
        },
    };
    // clang-format on
    return screen;
}
