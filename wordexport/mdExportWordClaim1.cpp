#include "wordexport/mdExportWordClaim1.h"

#include "costing/mdBillSummary.h"
#include "costing/mdGetCounselTotals.h"
#include "costing/mdGetDisbursementsTotals.h"
#include "costing/mdPageRoom.h"
#include "formdata/mdOutcomesCollections.h"
#include "wordexport/clsExport.h"
#include "wordexport/mdExportRows.h"
#include "wordexport/mdExportSheet.h"
#include "wordexport/mdExportSources.h"
#include "wordexport/mdExportWordAdditionalInformation.h"
#include "wordexport/mdExportWordForm.h"
#include "wordexport/mdExportWordGridPage.h"
#include "wordexport/mdExportWordPlainPage.h"
#include "wordexport/mdExportWordScheduleOfTime.h"

// The ten pages of Claim 1. The rows are in the order in which they are filled in.

namespace {

// Page 1

const clsPlaceholderRow Page1ThisClaimRows[] = {
    ZR3_TICK("{1}", CostsAssessedByLSC),
    ZR3_TICK("{2}", CostsAssessedByCourt),
    ZR3_TICK("{9}", ExceptionalCaseFunding),
    ZR3_TICK("{10}", MentalHealth),
    ZR3_TICK("{11}", VHCC),
};

const clsPlaceholderRow Page1PreviousAdviceRows[] = {
    ZR3_TICK("{5}", PreviousAdvice.InclusiveOfAllSolicitorsYes),
    ZR3_TICK("{6}", PreviousAdvice.InclusiveOfAllSolicitorsNo),
    ZR3_TEXT("{inclusiveofallsolicitorsreasons}", PreviousAdvice.InclusiveOfAllSolicitorsReasons),
    ZR3_TICK("{7}", PreviousAdvice.FurtherClaimsYes),
    ZR3_TICK("{8}", PreviousAdvice.FurtherClaimsNo),
};

const clsPlainPage Page1 = {1, "Claim1 P1", {Page1ThisClaimRows, FirstPageRows, Page1PreviousAdviceRows}};

// Page 2

const clsOverRun LateSubmissionOverRun = {400, 3000, "Claim1 P2 Late Submission Cont"};

const clsPlaceholderRow Page2Rows[] = {
    ZR3_TEXT("{issueofproceedingsdate}", CaseInformation.IssueOfProceedingsDate),
    ZR3_TEXT("{dateoffinalworkdate}", CaseInformation.DateOfFinalWorkDate),
    ZR3_TEXT("{nameofcourt}", CaseInformation.NameOfCourt),
    ZR3_TEXT("{emergencycertificatedate}", CaseInformation.EmergencyCertificateDate),
    ZR3_TEXT("{substantivecertificatedate}", CaseInformation.SubstantiveCertificateDate),
    ZR3_WORDS("{g}", OutcomeCodeOf(StageOfCaseEndCollection(), form.OutcomeOfCase, form.OutcomeOfCase.StageOfCaseEnd)),
    ZR3_WORDS("{h}", OutcomeCodeOf(HowDidCaseEndCollection(), form.OutcomeOfCase, form.OutcomeOfCase.HowDidCaseEnd)),
    ZR3_WORDS("{i}", OutcomeCodeOf(ResultCollection(), form.OutcomeOfCase, form.OutcomeOfCase.Result)),
    ZR3_WORDS("{j}", OutcomeCodeOf(ADRProposedCollection(), form.OutcomeOfCase, form.OutcomeOfCase.ADRProposed)),
    ZR3_WORDS("{k}",
        OutcomeCodeOf(
            PublicBenefitsAchievedCollection(), form.OutcomeOfCase, form.OutcomeOfCase.PublicBenefitsAchieved)),
    ZR3_TICK("{l}", OutcomeOfCase.Costs),
    ZR3_TICK("{m}", OutcomeOfCase.Damages),
    ZR3_TICK("{n}", OutcomeOfCase.Property),
    ZR3_TICK("{q}", OutcomeOfCase.WastedCostsOrderYes),
    ZR3_TICK("{r}", OutcomeOfCase.WastedCostsOrderNo),
    ZR3_TEXT("{date}", LateSubmission.dDate),
    ZR3_LONG("{explanation}", LateSubmission.Explanation, LateSubmissionOverRun),
};

const clsPlainPage Page2 = {2, "Claim1 P2", {Page2Rows}};

// Page 3

const clsOverRun CaseDetailsOverRun = {770, 2750, "Claim1 P3 Case Details Cont"};
const clsOverRun EnhancementOverRun = {710, 2620, "Claim1 P3 Enhancement Cont"};

const clsPlaceholderRow Page3Rows[] = {
    ZR3_LONG("{detailsofcase}", DetailsOfWork.DetailsOfCase, CaseDetailsOverRun),
    ZR3_LONG("{detailsofenhancement}", DetailsOfWork.DetailsOfEnhancement, EnhancementOverRun),
};

const clsPlainPage Page3 = {3, "Claim1 P3", {Page3Rows}, "Claim1 P3 Panel Membership Cont"};

// Page 4: counsel's fees. The sheet counter continues from the previous page, and with it the names and marks of the
// further sheets. Required behaviour of this page; do not fix.

const clsGrid CounselFeesGrid = {mdCountOf<&clsZR3Form::CounselDisbursementsCollection>, CounselFeesCells, 32, 38, 9, 3,
    "Claim1 P4 Counsels Fees Cont", CounselFeesList};
const clsGridPage::Grid Page4Grids[] = {{&CounselFeesGrid, clsGridPage::RunsOn}};
const clsGridPage Page4 = {4, "Claim1 P4", Page4Grids, CounselFeesRows};

// Page 6: additional information and experts

const clsAdditionalInformation Page6AdditionalInformation = {6, "Claim1 P6", "Claim1 P6 Additional Info Cont", 10, 3};

/// The lines above the experts' grid without notes; each typed line moves it down by one.
constexpr int LinesAboveExperts = 20;

const clsGrid ExpertsGrid = {mdCountOf<&clsZR3Form::ExpertInvoicesCollection>, ExpertInvoiceCells, 11, 32,
    LinesAboveExperts, 4, "Claim1 P6 Expert Dibs Cont", ExpertInvoicesList};

const clsOverRun ExpertStandardsOverRun = {100, 2750, "Claim1 P6 Expert Dibs Standards Cont"};

const clsPlaceholderRow Page6Rows[] = {
    ZR3_TICK("{1}", ExpertsMeetMOJStandardYes),
    ZR3_TICK("{2}", ExpertsMeetMOJStandardNo),
    ZR3_LONG("{expertsmeetmojstandardreasons}", ExpertsMeetMOJStandardReasons, ExpertStandardsOverRun),
    ZR3_FIGURE("{exnet}", ExpertInvoicesNetTotal(form)),
    ZR3_FIGURE("{exvat}", ExpertInvoicesVATTotal(form)),
    ZR3_FIGURE("{extot}", ExpertInvoicesGrossTotal(form)),
};

void mdExportWordClaim1Page6(clsExport &run)
{
    run.ExportSheetCounter = 0;
    const auto notes = mdExportWordAdditionalInformation(run, Page6AdditionalInformation);
    clsMSWord word;
    mdOpenSheet(run, word, notes.firstSheet);
    word.PassTypedBreaks(notes.breaks);
    mdExportGrid(run, word, ExpertsGrid, notes.linesUsed + ExpertsGrid.firstOffset, notes.firstSheet, 6);
    mdReplaceFirstSheetMark(run, word);
    mdReplaceRows(run, word, Page6Rows, 6);
    mdRemoveSpareMarks(word);
    mdFinishSheet(run, word);
}

// Page 7: disbursements. The counter restarts before the second grid, so that the first further sheet of both grids is
// 7(2): the second overwrites the first, and the finished document shows it twice. Required behaviour; do not fix.

const clsGrid JointInstructionsGrid
    = {mdCountOf<&clsZR3Form::JointInstructionsCollection>, JointInstructionCells, JointInstructionsRoom.first,
        JointInstructionsRoom.further, 6, 5, "Claim1 P7 Expert Dibs Joint Instruction Cont", JointInstructionsList};
const clsGrid OtherDisbursementsGrid
    = {mdCountOf<&clsZR3Form::NonCounselDisbursementsCollection>, OtherDisbursementCells, OtherDisbursementsRoom.first,
        OtherDisbursementsRoom.further, 25, 3, "Claim1 P7 Other Dibs Cont", OtherDisbursementsList};

const clsGridPage::Grid Page7Grids[] = {
    {&JointInstructionsGrid, clsGridPage::StartsAnew},
    {&OtherDisbursementsGrid, clsGridPage::StartsAnew},
};

const clsPlaceholderRow Page7Rows[] = {
    ZR3_FIGURE("{nettotal}", NonCounselDisbursementsAmountTotal(form)),
    ZR3_FIGURE("{vattotal}", NonCounselDisbursementsVATTotal(form)),
    ZR3_FIGURE("{dibstotal}", NonCounselDisbursementsGrossTotal(form)),
};

const clsGridPage Page7 = {7, "Claim1 P7", Page7Grids, Page7Rows};

// Page 8: letters and calls, and the summary

const clsPlaceholderRow SummaryRows[] = {
    ZR3_SUMMARY("npc", Claim1Summary),
    ZR3_SUMMARY("nex", Claim1Summary),
    ZR3_SUMMARY("ndibs", Claim1Summary),
    ZR3_SUMMARY("ntotal", Claim1Summary),
    ZR3_SUMMARY("vpc", Claim1Summary),
    ZR3_SUMMARY("vex", Claim1Summary),
    ZR3_SUMMARY("vdibs", Claim1Summary),
    ZR3_SUMMARY("vtotal", Claim1Summary),
    ZR3_SUMMARY("grandtotal", Claim1Summary),
    ZR3_WORDS("{counsel}", QString::number(form.CounselCollection().size())),
    ZR3_SUMMARY("ncf", Claim1Summary),
    ZR3_SUMMARY("vcf", Claim1Summary),
    ZR3_SUMMARY("cftotal", Claim1Summary),
    ZR3_WORDS("{csl1}", CounselAccountNumberAtLine(form, 1)),
    ZR3_FIGURE("{cslamt1}", CounselGrossAtLine(form, 1)),
    ZR3_WORDS("{csl2}", CounselAccountNumberAtLine(form, 2)),
    ZR3_FIGURE("{cslamt2}", CounselGrossAtLine(form, 2)),
    ZR3_WORDS("{csl3}", CounselAccountNumberAtLine(form, 3)),
    ZR3_FIGURE("{cslamt3}", CounselGrossAtLine(form, 3)),
    ZR3_WORDS("{csl4}", CounselAccountNumberAtLine(form, 4)),
    ZR3_FIGURE("{cslamt4}", CounselGrossAtLine(form, 4)),
    ZR3_WORDS("{csl5}", CounselAccountNumberAtLine(form, 5)),
    ZR3_FIGURE("{cslamt5}", CounselGrossAtLine(form, 5)),
    ZR3_WORDS("{csl6}", CounselAccountNumberAtLine(form, 6)),
    ZR3_FIGURE("{cslamt6}", CounselGrossAtLine(form, 6)),
};

const clsPlainPage Page8 = {8, "Claim1 P8", {CommunicationsRows, SummaryRows}};

// Page 9: costs awarded

const clsPlaceholderRow MoniesRows[] = {
    ZR3_MONEY("{value}", DetailsOfMonies.Value),
    ZR3_MONEY("{dmrcvrdtodate}", DetailsOfMonies.AmountRecovered),
};

const clsPlainPage Page9 = {9, "Claim1 P9", {CostsAwardedAmountsRows, CostsAwardedRows, MoniesRows}, nullptr, false};

// Page 10: the debtor

const clsPlainPage Page10 = {10, "Claim1 P10", {DebtorsDetailsRows}};

// The exporters by name; only page 6 has additional steps.

// clang-format off
void mdExportWordClaim1Page1(clsExport &run) { mdExportWordPlainPage(run, Page1); }
void mdExportWordClaim1Page2(clsExport &run) { mdExportWordPlainPage(run, Page2); }
void mdExportWordClaim1Page3(clsExport &run) { mdExportWordPlainPage(run, Page3); }
void mdExportWordClaim1Page4(clsExport &run) { mdExportWordGridPage(run, Page4); }
void mdExportWordClaim1Page5(clsExport &run) { mdExportWordScheduleOfTime(run, QStringLiteral("Claim1 P5"), 5); }
void mdExportWordClaim1Page7(clsExport &run) { mdExportWordGridPage(run, Page7); }
void mdExportWordClaim1Page8(clsExport &run) { mdExportWordPlainPage(run, Page8); }
void mdExportWordClaim1Page9(clsExport &run) { mdExportWordPlainPage(run, Page9); }
void mdExportWordClaim1Page10(clsExport &run) { mdExportWordPlainPage(run, Page10); }
// clang-format on

const clsExportPageRow Pages[] = {
    {1, "Claim1 Page 1", mdExportWordClaim1Page1},
    {2, "Claim1 Page 2", mdExportWordClaim1Page2},
    {3, "Claim1 Page 3", mdExportWordClaim1Page3},
    {4, "Claim1 Page 4", mdExportWordClaim1Page4},
    {5, "Claim1 Page 5", mdExportWordClaim1Page5},
    {6, "Claim1 Page 6", mdExportWordClaim1Page6},
    {7, "Claim1 Page 7", mdExportWordClaim1Page7},
    {8, "Claim1 Page 8", mdExportWordClaim1Page8},
    {9, "Claim1 Page 9", mdExportWordClaim1Page9},
    {10, "Claim1 Page 10", mdExportWordClaim1Page10},
};

/// The progress bar counts to eleven although the form has ten pages. Required behaviour; do not fix.
constexpr int ProgressMaximum = 11;
constexpr int AdditionalInformationPage = 6;

} // namespace

bool mdExportWordClaim1(clsExport &run)
{
    return mdExportWordForm(run, {"Claim1", Pages, ProgressMaximum, AdditionalInformationPage});
}
