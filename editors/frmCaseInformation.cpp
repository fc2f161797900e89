#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// The dates and the court of the case.
const clsScreen &ScreenCaseInformation()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmCaseInformation",
        .header = "Case Information",
        .subCaption = "Enter a description of the case",
        .iconGroup = 12,
        .width = clsScreenWidth::OneColumn,
        .ending = clsScreenEnding::SaveCancel,
        .section = "Case Information",
        .record = []() -> clsXMLRecord * { return &Form->CaseInformation; },
        .frames = {
            {"bxGeneral", "Case Information", {
                {Date, "txtIssueOfProceedingsDate",     "Date of issue of proceedings:"},
                {Date, "txtDateOfFinalWorkDate",
                 "Date of final work on the case, excluding bill preparation:"},
                {Text, "txtNameOfCourt",                "Name(s) of court(s) or proposed court:", 30},
                {Date, "txtEmergencyCertificateDate",   "Date of issue of emergency certificate:"},
                {Date, "txtSubstantiveCertificateDate", "Date of issue of substantive certificate:"},
            }},
        },
    };
    // clang-format on
    return screen;
}
