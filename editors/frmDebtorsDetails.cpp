#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// Who owes the costs. Unlike on every other screen, ticks are not exclusive here, neither those of the debtor's work
/// nor those of the question; the export prints them as they are. Required behaviour; do not fix.
const clsScreen &ScreenDebtorsDetails()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmDebtorsDetails",
        .header = "Debtor's Details",
        .subCaption = "Enter details of debtor",
        .iconGroup = 12,
        .width = clsScreenWidth::TwoColumns,
        .ending = clsScreenEnding::SaveCancel,
        .section = "Debtor's Details",
        .record = []() -> clsXMLRecord * { return &Form->DebtorsDetails; },
        .frames = {
            {"bxGeneral", "Debtor's Details", {
                {Text, "txtTitle",                   "Title:",                    9},
                {Text, "txtInitials",                "Initials:",                 9},
                {Text, "txtSurnameOrOrganisation",   "Surname or Organisation:", 25},
                {Text, "txtFirstName",               "First Name:",              25},
                {Date, "txtDateOfBirth",             "Date of Birth:"},
                {Text, "txtNationalInsuranceNumber", "National Insurance no:",   50},
                {Text, "txtAddress",                 "Address:",                 60, MultiLine},
                {Text, "txtPhoneWork",               "Phone (Work):",            27},
                {Text, "txtPhoneHome",               "Phone (Home):",            27},
                {Text, "txtMobile",                  "Mobile:",                  30},
                {Text, "txtFax",                     "Fax:",                     30},
                {Text, "txtEmail",                   "Email Address:",           55},
                {Text, "txtSolicitorsFirmName",      "Solicitor's firm name:",   51},
                {ColumnBreak},
                {Question, "", "Is the debtor:"},
                {Tick, "chkEmployed",                "Employed:"},
                {Tick, "chkSelfEmployed",            "Self-Employed:"},
                {.kind = Tick, .control = "chkUnemployed", .caption = "Unemployed:", .member = "UnEmployed"},
                {Text, "txtJob",                     "Job:",                     65},
                {Text, "txtEmployersName",           "Employer's name:",         55},
                {Text, "txtEmployersAddress",        "Address:",                 55, MultiLine},
                {Separator},
                {Text, "txtAssets",                  "Debtor's Assets:",        330,
                 MultiLine | SpellCheck | CaptionAbove},
                {Decimal, "txtDebtorsIncome",        "Debtor's income:", 0, NoteBeneath},
                {Separator},
                {Question, "", "Was the debtor legally aided?"},
                {Tick, "chkDebtorCLSFundedYes",      "Yes:",  0, Independent},
                {Tick, "chkDebtorCLSFundedNo",       "No:",   0, Independent},
                {Text, "txtCaseReference",           "Case reference:",          45},
                {ColumnsEnd},
                {Text, "txtInformation",             "Information:",            820,
                 MultiLine | SpellCheck | CaptionAbove},
            }},
        },
    };
    // clang-format on
    return screen;
}
