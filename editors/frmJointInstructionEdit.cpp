#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// A party's share of a jointly instructed expert.
const clsScreen &ScreenJointInstructionEdit()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmJointInstructionEdit",
        .header = "Joint Instruction",
        // The misspelling is required: users know the screen by this line. Do not fix.
        .subCaption = "Change a joint instructiuon's settings",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxGeneral", "Joint Instruction", {
                {Text,    "txtExpertType",           "Expert Type:*", 12, Required | SpellCheck},
                {Text,    "txtPartyName",            "Party Name:", 20, SpellCheck},
                {Text,    "txtSolicitor",            "Solicitor:", 20, SpellCheck},
                {Text,    "txtCertificateReference", "Certificate Reference:", 20, SpellCheck},
                {Decimal, "txtPercentApportioned",   "Percent Apportioned:"},
            }},
        },
        .itemWord = "Joint Instruction",
        .add = []() -> clsXMLRecord * { return Form->AddJointInstruction().get(); },
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}
