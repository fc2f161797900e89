#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// The kind of family proceedings. A case can be of several kinds, whose ticks are independent; only the two questions
/// are pairs.
const clsScreen &ScreenNatureOfProceedings()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmNatureOfProceedings",
        .header = "Nature of Proceedings",
        .subCaption = "Enter details of the nature of proceedings",
        .iconGroup = 12,
        .width = clsScreenWidth::OneColumn,
        .ending = clsScreenEnding::SaveCancel,
        .section = "Nature of Proceedings",
        .record = []() -> clsXMLRecord * { return &Form->NatureOfProceedings; },
        .frames = {
            {"bxGeneral", "Nature of Proceedings", {
                {Text, "txtDetailsOfCase",
                 "Give details of the case, including any factors in support of time spent in attendance and "
                 "preparation:", 570, MultiLine | SpellCheck | OverRun},
                {Separator},
                {Tick, "chkCareAndSupervision",         "Care and supervision proceedings:"},
                {.kind = Tick, .control = "chkOtherPublicLawChildren", .caption = "Other public law children case:",
                 .member = "OtherPubicLawChildren"},
                {Tick, "chkPrivateLawChildren",         "Private law children case:"},
                {Tick, "chkFinance",                    "Finance case:"},
                {Tick, "chkDomesticAbuse",              "Domestic Abuse case:"},
                {Separator},
                {Question, "", "Have any other providers acted in this matter?"},
                {Tick, "chkOtherProvidersYes",          "Yes:"},
                {Tick, "chkOtherProvidersNo",           "No:"},
                {Question, "", "Is this a change of solicitor half fee?"},
                {Tick, "chkChangeOfSolicitorHalfFeeYes", "Yes:"},
                {Tick, "chkChangeOfSolicitorHalfFeeNo", "No:"},
            }},
        },
    };
    // clang-format on
    return screen;
}
