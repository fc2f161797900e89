#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// The claiming firm.
const clsScreen &ScreenSolicitorDetails()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmSolicitorDetails",
        .header = "Solicitor Details",
        .subCaption = "Enter details of the solicitor",
        .iconGroup = 12,
        .width = clsScreenWidth::OneColumn,
        .ending = clsScreenEnding::SaveCancel,
        .section = "Solicitor Details",
        .record = []() -> clsXMLRecord * { return &Form->SolicitorDetails; },
        .frames = {
            {"bxGeneral", "Solicitor Details", {
                {Text, "txtAccountNumber",           "Account Number:",               7},
                {Text, "txtRollNumber",              "Roll Number:",                  7},
                {Text, "txtNameOfFirm",              "Name of Firm:",                42},
                {Text, "txtCaseReference",           "Case Reference:",              40},
                {Text, "txtContactNameForEnquiries", "Contact Name for Enquiries:",  35},
                {Text, "txtTelephoneForEnquiries",   "Tel. No:",                     17},
                {Text, "txtEmailForEnquiries",       "Email Address for Enquiries:", 35},
            }},
        },
    };
    // clang-format on
    return screen;
}
