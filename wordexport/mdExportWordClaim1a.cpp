#include "wordexport/mdExportWordClaim1a.h"

#include "costing/mdBillSummary.h"
#include "costing/mdFigureFaults.h"
#include "costing/mdGetBillSummary.h"
#include "costing/mdGetColumnTotals.h"
#include "costing/mdGetDisbursementsTotals.h"
#include "costing/mdGetFASTotals.h"
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

// The thirteen pages of Claim 1A. The rows are in the order in which they are filled in.

namespace {

// Page 1

const clsPlaceholderRow Page1ThisClaimRows[] = {
    ZR3_TICK("{1}", CostsAssessedByLSC),
    ZR3_TICK("{2}", CostsAssessedByCourt),
    ZR3_TICK("{7}", ExceptionalCaseFunding),
    ZR3_TICK("{10}", MentalHealth),
    ZR3_TICK("{11}", VHCC),
};

const clsPlaceholderRow Page1PreviousAdviceRows[] = {
    ZR3_TICK("{5}", PreviousAdvice.FurtherClaimsYes),
    ZR3_TICK("{6}", PreviousAdvice.FurtherClaimsNo),
};

const clsPlainPage Page1 = {1, "Claim1A P1", {Page1ThisClaimRows, FirstPageRows, Page1PreviousAdviceRows}};

// Page 2: outcome of case

const clsPlaceholderRow Page2Rows[] = {
    ZR3_TEXT("{issueofproceedingsdate}", OutcomeOfCase.IssueOfProceedingsDate),
    ZR3_TEXT("{emergencycertificatedate}", OutcomeOfCase.EmergencyCertificateDate),
    ZR3_TEXT("{substantivecertificatedate}", OutcomeOfCase.SubstantiveCertificateDate),
    ZR3_WORDS("{1}", OutcomeCodeOf(StageOfCaseEndCollection(), form.OutcomeOfCase, form.OutcomeOfCase.StageOfCaseEnd)),
    ZR3_WORDS("{2}", OutcomeCodeOf(HowDidCaseEndCollection(), form.OutcomeOfCase, form.OutcomeOfCase.HowDidCaseEnd)),
    ZR3_WORDS("{3}", OutcomeCodeOf(ResultCollection(), form.OutcomeOfCase, form.OutcomeOfCase.Result)),
    ZR3_WORDS("{4}", OutcomeCodeOf(ADRProposedCollection(), form.OutcomeOfCase, form.OutcomeOfCase.ADRProposed)),
    ZR3_WORDS("{5}",
        OutcomeCodeOf(
            PublicBenefitsAchievedCollection(), form.OutcomeOfCase, form.OutcomeOfCase.PublicBenefitsAchieved)),
    ZR3_TEXT("{dateoffinalorder}", OutcomeOfCase.DateOfFinalOrder),
    ZR3_TICK("{6}", OutcomeOfCase.Costs),
    ZR3_TICK("{7}", OutcomeOfCase.Damages),
    ZR3_TICK("{8}", OutcomeOfCase.Property),
    ZR3_TICK("{b}", OutcomeOfCase.WastedCostsOrderYes),
    ZR3_TICK("{c}", OutcomeOfCase.WastedCostsOrderNo),
};

const clsPlainPage Page2 = {2, "Claim1A P2", {Page2Rows}};

// Page 3: nature of proceedings, and the costs of care and supervision

const clsOverRun NatureOfProceedingsOverRun = {570, 2750, "Claim1A P3 NoP Cont"};

const clsPlaceholderRow Page3Rows[] = {
    ZR3_LONG("{detailsofcase}", NatureOfProceedings.DetailsOfCase, NatureOfProceedingsOverRun),
    ZR3_TICK("{1}", NatureOfProceedings.CareAndSupervision),
    ZR3_TICK("{2}", NatureOfProceedings.OtherPubicLawChildren),
    ZR3_TICK("{3}", NatureOfProceedings.PrivateLawChildren),
    ZR3_TICK("{4}", NatureOfProceedings.Finance),
    ZR3_TICK("{5}", NatureOfProceedings.DomesticAbuse),
    ZR3_TICK("{6}", NatureOfProceedings.OtherProvidersYes),
    ZR3_TICK("{7}", NatureOfProceedings.OtherProvidersNo),
    ZR3_TICK("{8}", NatureOfProceedings.ChangeOfSolicitorHalfFeeYes),
    ZR3_TICK("{9}", NatureOfProceedings.ChangeOfSolicitorHalfFeeNo),
    ZR3_MONEY("{caspc}", ActualCostsIncurred.CareAndSupervisionProfitCosts),
    ZR3_MONEY("{caspcv}", ActualCostsIncurred.CareAndSupervisionProfitCostsVAT),
    ZR3_TICK("{a}", ActualCostsIncurred.CareAndSupervisionMidlands),
    ZR3_TICK("{b}", ActualCostsIncurred.CareAndSupervisionNorth),
    ZR3_TICK("{c}", ActualCostsIncurred.CareAndSupervisionSouth),
    ZR3_TICK("{d}", ActualCostsIncurred.CareAndSupervisionWales),
    ZR3_TICK("{e}", ActualCostsIncurred.CareAndSupervisionAChild),
    ZR3_TICK("{f}", ActualCostsIncurred.CareAndSupervisionAParent),
    ZR3_TICK("{g}", ActualCostsIncurred.CareAndSupervisionJoined),
    ZR3_TICK("{h}", ActualCostsIncurred.CareAndSupervisionActing1),
    ZR3_TICK("{i}", ActualCostsIncurred.CareAndSupervisionActing2OrMore),
    ZR3_TICK("{j}", ActualCostsIncurred.CareAndSupervisionCourtHigh),
    ZR3_TICK("{k}", ActualCostsIncurred.CareAndSupervisionCourtCounty),
    ZR3_TICK("{l}", ActualCostsIncurred.CareAndSupervisionCourtFamilyProceeding),
};

const clsPlainPage Page3 = {3, "Claim1A P3", {Page3Rows}};

// Page 4: the costs of private law work, and the fixed fee

const clsOverRun WorkAtAllLevelsOverRun = {100, 2750, "Claim1A P4 Reasons For Not Undertaking Work At All Levels Cont"};

const clsPlaceholderRow Page4Rows[] = {
    ZR3_MONEY("{plpc}", ActualCostsIncurred.PrivateLawProfitCosts),
    ZR3_MONEY("{plpcv}", ActualCostsIncurred.PrivateLawProfitCostsVAT),
    ZR3_TICK("{1}", ActualCostsIncurred.PrivateLawLondon),
    ZR3_TICK("{2}", ActualCostsIncurred.PrivateLawNonLondon),
    ZR3_TICK("{3}", ActualCostsIncurred.PrivateLawPreviousClaimYes),
    ZR3_TICK("{4}", ActualCostsIncurred.PrivateLawPreviousClaimNo),
    ZR3_TICK("{5}", ActualCostsIncurred.PrivateLawCourtHigh),
    ZR3_TICK("{6}", ActualCostsIncurred.PrivateLawCourtCounty),
    ZR3_TICK("{7}", ActualCostsIncurred.PrivateLawcourtFamilyProceeding),
    ZR3_TICK("{8}", ActualCostsIncurred.PrivateLawSettlementFeeYes),
    ZR3_TICK("{9}", ActualCostsIncurred.PrivateLawSettlementFeeNo),
    ZR3_TICK("{a}", ActualCostsIncurred.PrivateLawLevel3),
    ZR3_TICK("{b}", ActualCostsIncurred.PrivateLawLevel4),
    ZR3_TICK("{c}", ActualCostsIncurred.PrivateLawEnforcement),
    ZR3_LONG("{workatalllevelsreasons}", ActualCostsIncurred.PrivateLawWorkAtAllLevelsReasons, WorkAtAllLevelsOverRun),
    ZR3_TICK("{d}", ActualCostsIncurred.ExceptionalCaseYes),
    ZR3_TICK("{e}", ActualCostsIncurred.ExceptionalCaseNo),
    ZR3_FIGURE("{fixedfee}", FixedFee(form)),
    ZR3_FIGURE("{fixedfeevat}", VATOf(form, FixedFee(form))),
    ZR3_FIGURE("{nex}", ExpertInvoicesNetTotal(form)),
    ZR3_FIGURE("{vex}", ExpertInvoicesVATTotal(form)),
    ZR3_FIGURE("{dibs}", NonCounselDisbursementsAmountTotal(form)),
    ZR3_FIGURE("{dibsvat}", NonCounselDisbursementsVATTotal(form)),
    ZR3_FIGURE("{total}", FixedFeeNetTotal(form)),
    ZR3_FIGURE("{totalvat}", FixedFeeVATTotal(form)),
    ZR3_FIGURE("{adv}", AdvocacyTotal(bill)),
    ZR3_FIGURE("{advvat}", VATOf(form, AdvocacyTotal(bill))),
    ZR3_FIGURE("{csl}", CounselDisbursementsAmountTotal(form)),
    ZR3_FIGURE("{cslvat}", CounselDisbursementsVATTotal(form)),
};

const clsPlainPage Page4 = {4, "Claim1A P4", {Page4Rows}};

// Page 5: counsel's fees. The sheet counter continues from the previous page, and with it the names and marks of the
// further sheets, as on Claim 1. Required behaviour of this page; do not fix.

const clsGrid CounselFeesGrid = {mdCountOf<&clsZR3Form::CounselDisbursementsCollection>, CounselFeesCells, 32, 38, 9, 3,
    "Claim1A P5 Counsels Fees Cont", CounselFeesList};
const clsGridPage::Grid Page5Grids[] = {{&CounselFeesGrid, clsGridPage::RunsOn}};
const clsGridPage Page5 = {5, "Claim1A P5", Page5Grids, CounselFeesRows};

// Page 6: experts

const clsGrid ExpertsGrid = {mdCountOf<&clsZR3Form::ExpertInvoicesCollection>, ExpertInvoiceCells, 11, 32, 22, 5,
    "Claim1A P6 Expert Dibs Cont", ExpertInvoicesList};
const clsGridPage::Grid Page6Grids[] = {{&ExpertsGrid, clsGridPage::StartsAnew}};

const clsOverRun ExpertStandardsOverRun = {250, 2750, "Claim1A P6 Expert Dibs Standards Cont"};

const clsPlaceholderRow Page6Rows[] = {
    ZR3_FIGURE("{exnet}", ExpertInvoicesNetTotal(form)),
    ZR3_FIGURE("{exvat}", ExpertInvoicesVATTotal(form)),
    ZR3_FIGURE("{extot}", ExpertInvoicesGrossTotal(form)),
    ZR3_TICK("{1}", ExpertsMeetMOJStandardYes),
    ZR3_TICK("{2}", ExpertsMeetMOJStandardNo),
    ZR3_LONG("{expertsmeetmojstandardreasons}", ExpertsMeetMOJStandardReasons, ExpertStandardsOverRun),
};

const clsGridPage Page6 = {6, "Claim1A P6", Page6Grids, Page6Rows};

// Page 7: disbursements. The counter continues from the first grid to the second, so that no sheet overwrites another.

const clsGrid JointInstructionsGrid
    = {mdCountOf<&clsZR3Form::JointInstructionsCollection>, JointInstructionCells, JointInstructionsRoom.first,
        JointInstructionsRoom.further, 8, 5, "Claim1A P7 Expert Dibs Joint Instruction Cont", JointInstructionsList};
// The small a is part of the template's file name.
const clsGrid OtherDisbursementsGrid
    = {mdCountOf<&clsZR3Form::NonCounselDisbursementsCollection>, OtherDisbursementCells, OtherDisbursementsRoom.first,
        OtherDisbursementsRoom.further, 27, 3, "Claim1a P7 Other Dibs Cont", OtherDisbursementsList};

const clsGridPage::Grid Page7Grids[] = {
    {&JointInstructionsGrid, clsGridPage::StartsAnew},
    {&OtherDisbursementsGrid, clsGridPage::RunsOn},
};

const clsPlaceholderRow Page7Rows[] = {
    ZR3_FIGURE("{dibsnet}", NonCounselDisbursementsAmountTotal(form)),
    ZR3_FIGURE("{dibsvat}", NonCounselDisbursementsVATTotal(form)),
    ZR3_FIGURE("{dibstotal}", NonCounselDisbursementsGrossTotal(form)),
};

const clsGridPage Page7 = {7, "Claim1A P7", Page7Grids, Page7Rows};

// Page 8: Family Advocacy Scheme

constexpr auto hearing = mdItemAt<&clsZR3Form::FASItemByOrderID>;

/// A figure of a hearing, such as `figureOf<&clsZR3FASItem::Total>`.
template <auto Figure> QString figureOf(const clsZR3Form &form, int i)
{
    const clsZR3FASItem &item = *hearing(form, i);
    return mdExplained(form, item, [&] { return MoneyToText((item.*Figure)()); });
}

const clsZR3FASItem &boltOn(const clsZR3Form &form, int i)
{
    return *form.FASBoltOnPaymentsCollection()[size_t(i - 1)];
}

const clsZR3FASItem &travel(const clsZR3Form &form, int i)
{
    return *form.FASTravelBoltOnsCollection()[size_t(i - 1)];
}

const clsPrintedCell AdvocacyCostsCells[] = {
    ZR3_ITEM(*hearing(form, i), dDate, Text),
    ZR3_ITEM(*hearing(form, i), LevelOfCourt, Text),
    ZR3_ITEM(*hearing(form, i), FDR, Text),
    ZR3_CELL(QString::number(hearing(form, i)->ActualTimeSpent()), Text),
    ZR3_CELL(QString::number(hearing(form, i)->HearingUnits()), Text),
    ZR3_ITEM(*hearing(form, i), RateForUnits, Money),
    ZR3_CELL(figureOf<&clsZR3FASItem::UnitPayment>(form, i), Money),
    ZR3_ITEM(*hearing(form, i), BoltOnClaimed, Text),
    ZR3_CELL(figureOf<&clsZR3FASItem::BoltOn>(form, i), Money),
    ZR3_ITEM(*hearing(form, i), CourtBundlePayment, Money),
    ZR3_ITEM(*hearing(form, i), SettlementFee, Money),
    ZR3_ITEM(*hearing(form, i), ExceptionalTravel, Money),
    ZR3_CELL(figureOf<&clsZR3FASItem::Total>(form, i), Money),
    ZR3_ITEM(*hearing(form, i), VATForFAS, Money),
};

const clsPrintedCell BoltOnPaymentsCells[] = {
    ZR3_ITEM(boltOn(form, i), dDate, Text),
    ZR3_ITEM(boltOn(form, i), BoltOnDescription, Text),
};

const clsPrintedCell ExceptionalTravelCells[] = {
    ZR3_ITEM(travel(form, i), dDate, Text),
    ZR3_ITEM(travel(form, i), ExceptionalTravelDistance, Text),
    ZR3_ITEM(travel(form, i), ExceptionalTravelReason, Text),
};

constexpr clsPrintedList AdvocacyList = {"fas", [](const clsZR3Form &, int i) { return i; }};
constexpr clsPrintedList BoltOnList = {"fas", mdOrderIn<&clsZR3Form::FASBoltOnPaymentsCollection>};
constexpr clsPrintedList TravelList = {"fas", mdOrderIn<&clsZR3Form::FASTravelBoltOnsCollection>};

const clsGrid AdvocacyCostsGrid = {mdCountOf<&clsZR3Form::FASItemsCollection>, AdvocacyCostsCells, 16, 36, 7, 5,
    "Claim1A P8 Advocacy Costs Cont", AdvocacyList};
const clsGrid BoltOnPaymentsGrid = {mdCountOf<&clsZR3Form::FASBoltOnPaymentsCollection>, BoltOnPaymentsCells, 6, 46, 27,
    5, "Claim1A P8 Bolt on Payments Cont", BoltOnList};
const clsGrid ExceptionalTravelGrid = {mdCountOf<&clsZR3Form::FASTravelBoltOnsCollection>, ExceptionalTravelCells, 10,
    46, 35, 4, "Claim1A P8 Exceptional travel bolt-on Cont", TravelList};

const clsGridPage::Grid Page8Grids[] = {
    {&AdvocacyCostsGrid, clsGridPage::StartsAnew},
    {&BoltOnPaymentsGrid, clsGridPage::RunsOn},
    {&ExceptionalTravelGrid, clsGridPage::RunsOn},
};

const clsPlaceholderRow Page8Rows[] = {
    ZR3_FIGURE("{actot}", FASItemsTotal(form)),
    ZR3_FIGURE("{acvat}", FASVATTotal(form)),
};

const clsGridPage Page8 = {8, "Claim1A P8", Page8Grids, Page8Rows, true};

// Page 9: details of work

const clsOverRun CaseDetailsOverRun = {770, 2750, "Claim1A P9 Case Details Cont"};

const clsPlaceholderRow Page9Rows[] = {
    ZR3_LONG("{detailsofcase}", DetailsOfWork.DetailsOfCase, CaseDetailsOverRun),
};

const clsPlainPage Page9 = {9, "Claim1A P9", {Page9Rows}, "Claim1A P9 Panel Membership Cont"};

// Page 11: additional information, letters and calls, and the summary

const clsAdditionalInformation Page11AdditionalInformation
    = {11, "Claim1A P11", "Claim1A P11 Additional Info Cont", 25, 2};

const clsPlaceholderRow SummaryRows[] = {
    ZR3_SUMMARY("npc", Claim1ASummary),
    ZR3_SUMMARY("nex", Claim1ASummary),
    ZR3_SUMMARY("ndibs", Claim1ASummary),
    ZR3_SUMMARY("nsubtotal", Claim1ASummary),
    ZR3_SUMMARY("nfas", Claim1ASummary),
    ZR3_SUMMARY("ncsl", Claim1ASummary),
    ZR3_SUMMARY("ntotal", Claim1ASummary),
    ZR3_SUMMARY("vpc", Claim1ASummary),
    ZR3_SUMMARY("vex", Claim1ASummary),
    ZR3_SUMMARY("vdibs", Claim1ASummary),
    ZR3_SUMMARY("vsubtotal", Claim1ASummary),
    ZR3_SUMMARY("vfas", Claim1ASummary),
    ZR3_SUMMARY("vcsl", Claim1ASummary),
    ZR3_SUMMARY("vtotal", Claim1ASummary),
};

void mdExportWordClaim1aPage11(clsExport &run)
{
    run.ExportSheetCounter = 0;
    const auto notes = mdExportWordAdditionalInformation(run, Page11AdditionalInformation);
    clsMSWord word;
    mdOpenSheet(run, word, notes.firstSheet);
    mdReplaceRows(run, word, CommunicationsRows, 11);
    mdReplaceRows(run, word, SummaryRows, 11);
    // The mark has already been replaced, with the additional information.
    mdFinishSheet(run, word);
}

// Page 12: costs awarded

const clsPlaceholderRow TotalCostsAwardedRows[] = {
    ZR3_MONEY("{totalcosts}", DetailsOfCostsAwarded.TotalCostsAwarded),
};

const clsPlainPage Page12
    = {12, "Claim1A P12", {CostsAwardedAmountsRows, TotalCostsAwardedRows, CostsAwardedRows}, nullptr, false};

// Page 13: the debtor

const clsPlainPage Page13 = {13, "Claim1A P13", {DebtorsDetailsRows}};

// The exporters by name; only page 11 has additional steps.

// clang-format off
void mdExportWordClaim1aPage1(clsExport &run) { mdExportWordPlainPage(run, Page1); }
void mdExportWordClaim1aPage2(clsExport &run) { mdExportWordPlainPage(run, Page2); }
void mdExportWordClaim1aPage3(clsExport &run) { mdExportWordPlainPage(run, Page3); }
void mdExportWordClaim1aPage4(clsExport &run) { mdExportWordPlainPage(run, Page4); }
void mdExportWordClaim1aPage5(clsExport &run) { mdExportWordGridPage(run, Page5); }
void mdExportWordClaim1aPage6(clsExport &run) { mdExportWordGridPage(run, Page6); }
void mdExportWordClaim1aPage7(clsExport &run) { mdExportWordGridPage(run, Page7); }
void mdExportWordClaim1aPage8(clsExport &run) { mdExportWordGridPage(run, Page8); }
void mdExportWordClaim1aPage9(clsExport &run) { mdExportWordPlainPage(run, Page9); }
void mdExportWordClaim1aPage10(clsExport &run) { mdExportWordScheduleOfTime(run, QStringLiteral("Claim1A P10"), 10); }
void mdExportWordClaim1aPage12(clsExport &run) { mdExportWordPlainPage(run, Page12); }
void mdExportWordClaim1aPage13(clsExport &run) { mdExportWordPlainPage(run, Page13); }
// clang-format on

const clsExportPageRow Pages[] = {
    {1, "Claim1a Page 1", mdExportWordClaim1aPage1},
    {2, "Claim1a Page 2", mdExportWordClaim1aPage2},
    {3, "Claim1a Page 3", mdExportWordClaim1aPage3},
    {4, "Claim1a Page 4", mdExportWordClaim1aPage4},
    {5, "Claim1a Page 5", mdExportWordClaim1aPage5},
    {6, "Claim1a Page 6", mdExportWordClaim1aPage6},
    {7, "Claim1a Page 7", mdExportWordClaim1aPage7},
    {8, "Claim1a Page 8", mdExportWordClaim1aPage8},
    // These two log under the name of Claim 1. Required behaviour; do not fix.
    {9, "Claim1 Page 9", mdExportWordClaim1aPage9},
    {10, "Claim1 Page 10", mdExportWordClaim1aPage10},
    {11, "Claim1a Page 11", mdExportWordClaim1aPage11},
    {12, "Claim1a Page 12", mdExportWordClaim1aPage12},
    {13, "Claim1a Page 13", mdExportWordClaim1aPage13},
};

constexpr int ProgressMaximum = 13;
constexpr int AdditionalInformationPage = 11;

} // namespace

bool mdExportWordClaim1a(clsExport &run)
{
    return mdExportWordForm(run, {"Claim1a", Pages, ProgressMaximum, AdditionalInformationPage});
}
