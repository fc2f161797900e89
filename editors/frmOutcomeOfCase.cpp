#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdOutcomesCollections.h"

/// How the case ended. A list is stored by the position of its entry, so the order of its entries is part of the file
/// format. Several kinds of award can be ticked together. The captions of the last two frames say that their dates
/// belong to one form type; they are enabled for both.
const clsScreen &ScreenOutcomeOfCase()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmOutcomeOfCase",
        .header = "Outcome of Case",
        .subCaption = "Enter details of outcome of the case",
        .iconGroup = 12,
        .width = clsScreenWidth::TwoColumns,
        .ending = clsScreenEnding::SaveCancel,
        .section = "Outcome of Case",
        .record = []() -> clsXMLRecord * { return &Form->OutcomeOfCase; },
        .frames = {
            {"bxGeneral", "Outcome of Case", {
                {.kind = List, .control = "cmbStageOfCaseEnd", .caption = "1) At what stage did case end?",
                 .entries = StageOfCaseEndCollection},
                {.kind = List, .control = "cmbHowDidCaseEnd",  .caption = "2) How did case end?",
                 .entries = HowDidCaseEndCollection},
                {.kind = List, .control = "cmbResult",         .caption = "3) What was the result?",
                 .entries = ResultCollection},
                {.kind = List, .control = "cmbADRProposed",    .caption = "4) Was ADR proposed or used?",
                 .entries = ADRProposedCollection},
                {.kind = List, .control = "cmbPublicBenefitsAchieved",
                 .caption = "5) Were significant wider public benefits achieved?",
                 .entries = PublicBenefitsAchievedCollection},
                {Separator},
                {Question, "", "Indicate which, if any, of the following were awarded:"},
                {Tick, "chkCosts",               "Costs:"},
                {Tick, "chkDamages",             "Damages:"},
                {Tick, "chkProperty",            "Property:"},
                {Question, "", "Was a wasted costs order made?"},
                {Tick, "chkWastedCostsOrderYes", "Yes:"},
                {Tick, "chkWastedCostsOrderNo",  "No:"},
            }},
            {.name = "bxClaim1A", .caption = "Claim1A Only", .rows = {
                {Date, "txtIssueOfProceedingsDate",     "Issue of Proceedings:", 0, NoteBeneath},
                {Date, "txtEmergencyCertificateDate",   "Date of issue of emergency certificate:", 0, NoteBeneath},
                {Date, "txtSubstantiveCertificateDate", "Date of issue of substantive certificate:", 0, NoteBeneath},
            }, .startsColumn = true},
            {"oFrame1", "Claim1A Only", {
                {Date, "txtDateOfFinalOrder",           "Date of Final Order:", 0, NoteBeneath},
            }},
        },
    };
    // clang-format on
    return screen;
}
