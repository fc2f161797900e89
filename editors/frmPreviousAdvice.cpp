#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// Advice under legal help before the certificate. The second frame's caption says that its question belongs to one
/// form type: its fields stay enabled for both, and so does the box for the reasons, whatever is ticked above it.
const clsScreen &ScreenPreviousAdvice()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmPreviousAdvice",
        .header = "Previous Advice",
        .subCaption = "Enter details of previous advice and related claims",
        .iconGroup = 12,
        .width = clsScreenWidth::OneColumn,
        .ending = clsScreenEnding::SaveCancel,
        .section = "Previous Advice",
        .record = []() -> clsXMLRecord * { return &Form->PreviousAdvice; },
        .frames = {
            {"bxGeneral", "Previous Advice", {
                {Question, "", "Did your client receive advice under legal help, family help (lower) or help with "
                               "family mediation in this matter?"},
                {Tick,    "chkLegalHelpYes",           "Yes:"},
                {Tick,    "chkLegalHelpNo",            "No:"},
                {Date,    "txtDateLegalHelpFormSigned", "Date Legal Help form signed:"},
                {Separator},
                {Question, "", "Is this the final bill on this certificate?"},
                {Tick,    "chkFurtherClaimsYes",       "Yes:"},
                {Tick,    "chkFurtherClaimsNo",        "No:"},
                {Decimal, "txtTotalCostsIncurred",     "Total costs reported:"},
            }},
            {"bxClaim1", "Claim1 Only", {
                {Question, "", "Does this claim include the costs of all other providers that have been instructed?"},
                {Tick,    "chkInclusiveOfAllSolicitorsYes",     "Yes:"},
                {Tick,    "chkInclusiveOfAllSolicitorsNo",      "No:"},
                {Text,    "txtInclusiveOfAllSolicitorsReasons", "If no, give reasons:", 115, MultiLine | SpellCheck},
            }},
        },
    };
    // clang-format on
    return screen;
}
