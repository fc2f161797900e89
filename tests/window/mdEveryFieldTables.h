#pragma once

#include "tests/editors/clsExpectedScreen.h"

#include <QStringList>

// What the screens' tables don't say, for going through all of them: the tabs, the lists' elements in the file, and
// what is chosen and ticked. Written by hand.

struct clsTabsOfType {
    const char *formType;
    std::vector<std::pair<const char *, std::vector<const char *>>>
        rows; ///< a tab of the first row, and the second row
};

/// A list of items, on the screen and in the file.
struct clsItemsOfScreen {
    const char *grid;
    const char *add; ///< empty if its items are only opened
    const char *editor;
    const char *path; ///< of the items in the claim
    int items; ///< the number added
};

/// The elements of editors' fields that their tables don't state.
struct clsOwnElement {
    const char *screen;
    const char *control;
    const char *element;
};

/// A choice in a list: this many entries below the first.
struct clsChosen {
    const char *screen;
    int item; ///< the list's item, from 1; 0 on a section
    const char *control;
    int down;
    const char *element;
    const char *content;
    const char *shown;
    const char *flag = nullptr; ///< the element of the tick before the list, if any
};

/// Ticks that exclude each other.
struct clsExclusiveTicks {
    const char *screen;
    std::vector<const char *> controls;
};

// clang-format off
inline const std::vector<clsTabsOfType> TabsOfTypes {
    {"Claim1", {
        {"Form Options",        {"Form Setup", "Fee Earners / Rates", "Counsel", "Enhancements"}},
        {"Pre-Bill Sections",   {"Client Details", "Solicitor Details", "Previous Advice", "Case Information",
                                 "Outcome of Case", "Late Submission"}},
        {"Bill",                {"Counsel Outstanding Claims", "Details of Work", "Schedule of Time", "Disbursements",
                                 "Communications"}},
        {"Post-Bill Sections",  {"Details of Costs Awarded", "Details of Monies Awarded", "Debtor's Details"}},
    }},
    {"Claim1A", {
        {"Form Options",        {"Form Setup", "Fee Earners / Rates", "Counsel", "Enhancements"}},
        {"Pre-Bill Sections",   {"Client Details", "Solicitor Details", "Previous Advice", "Outcome of Case",
                                 "Nature of Proceedings", "Actual Costs"}},
        {"Bill",                {"Counsel Outstanding Claims", "Disbursements", "Family Advocacy Scheme",
                                 "Details of Work", "Schedule of Time", "Communications"}},
        {"Post-Bill Sections",  {"Details of Costs Awarded", "Debtor's Details"}},
    }},
};

// The identities follow from the order of the tabs: two groups, two fee earners, two counsel, four enhancements.
inline const std::vector<clsItemsOfScreen> ItemsOfScreens {
    {"sgFeeEarnerGroups",      "cmdAddFeeEarnerGroup",     "frmFeeEarnerGroupEdit",     "feeearnergroups/feeearnergroup", 2},
    {"sgFeeEarners",           "cmdAddFeeEarner",          "frmFeeEarnerEdit",          "feeearners/feeearner", 2},
    {"sgCounsel",              "cmdAddCounsel",            "frmCounselEdit",            "counsel/counsel", 2},
    {"sgEnhancements",         "cmdAddEnhancement",        "frmEnhancementEdit",        "enhancements/enhancement", 4},
    {"sgScheduleOfTime",       "cmdAddScheduleOfTimeItem", "frmScheduleOfTimeItemEdit", "scheduleoftimeitems/scheduleoftimeitem", 1},
    {"sgFamilyAdvocacyScheme", "cmdAddFASItem",            "frmFASItemEdit",            "fasitems/fasitem", 1},
    {"sgExpertInvoices",       "cmdAddExpertInvoice",      "frmExpertInvoiceEdit",      "expertinvoices/expertinvoice", 1},
    {"sgJointInstructions",    "cmdAddJointInstruction",   "frmJointInstructionEdit",   "jointinstructions/jointinstruction", 1},
    {"sgOtherDisbursements",   "cmdAddDisbursement",       "frmDisbursementEdit",       "disbursements/disbursement", 1},
    {"sgCommunications",       "",                         "frmCorrespondences",        "feeearners/feeearner", 2},
};

inline const std::vector<clsOwnElement> OwnElements {
    {"frmFeeEarnerGroupEdit", "txtHourly",           "hourlyrate"},
    {"frmFeeEarnerGroupEdit", "txtCalls",            "callsrate"},
    {"frmFeeEarnerGroupEdit", "txtLettersIn",        "lettersinrate"},
    {"frmFeeEarnerGroupEdit", "txtLettersOut",       "lettersoutrate"},
    {"frmFeeEarnerGroupEdit", "txtAdvocacy",         "advocacyrate"},
    {"frmFeeEarnerGroupEdit", "txtCounsel",          "counselrate"},
    {"frmFeeEarnerGroupEdit", "txtTravelAndWaiting", "travelandwaitingrate"},
};

inline const std::vector<clsChosen> ChosenOnClaim1  {{"frmFormSetup", 0, "cmbFormType", 0, "formtype", "Claim1",  "Claim1"}};
inline const std::vector<clsChosen> ChosenOnClaim1A {{"frmFormSetup", 0, "cmbFormType", 1, "formtype", "Claim1A", "Claim1A"}};

inline const std::vector<clsChosen> ChosenOnBoth {
    {"frmFeeEarnerEdit", 1, "cmbGroup", 1, "groupuniqueid", "ID2", "Mark frmFeeEarnerGroupEdit txtReference 2"},
    {"frmFeeEarnerEdit", 2, "cmbGroup", 0, "groupuniqueid", "ID1", "Mark frmFeeEarnerGroupEdit txtReference 1"},
    {"frmOutcomeOfCase", 0, "cmbStageOfCaseEnd",         3, "stageofcaseend",         "3", "C) Determined at final hearing"},
    {"frmOutcomeOfCase", 0, "cmbHowDidCaseEnd",          4, "howdidcaseend",          "4", "D) Settled"},
    {"frmOutcomeOfCase", 0, "cmbResult",                 5, "result",                 "5", "E) Possession proceedings dismissed or withdrawn"},
    {"frmOutcomeOfCase", 0, "cmbADRProposed",            6, "adrproposed",            "6", "F) Mediation led to a significant narrowing of the issues or earlier settlement"},
    {"frmOutcomeOfCase", 0, "cmbPublicBenefitsAchieved", 2, "publicbenefitsachieved", "2", "N) No such wider public benefits achieved"},
    {"frmScheduleOfTimeItemEdit", 1, "cmbFeeEarner", 1, "feeearneruniqueid", "ID4", "F2 - Mark frmFeeEarnerEdit txtReference 2"},
    {"frmScheduleOfTimeItemEdit", 1, "cmbCode",      4, "code",              "AOS", "AOS"},
    {"frmScheduleOfTimeItemEdit", 1, "oEnhancement", 0, "enhancementuniqueid", "ID7", "Mark frmEnhancementEdit txtName 1", "includeinenhancements"},
    {"frmDisbursementEdit", 1, "oCounsel",           1, "counseluniqueid",   "ID6", "Mark frmCounselEdit txtName 2", "counsel"},
    {"frmCommunications", 0, "oCallsEnhancement",      1, "callsenhancementuniqueid",      "ID8",  "Mark frmEnhancementEdit txtName 2", "enhancecalls"},
    {"frmCommunications", 0, "oLettersInEnhancement",  2, "lettersinenhancementuniqueid",  "ID9",  "Mark frmEnhancementEdit txtName 3", "enhancelettersin"},
    {"frmCommunications", 0, "oLettersOutEnhancement", 3, "lettersoutenhancementuniqueid", "ID10", "Mark frmEnhancementEdit txtName 4", "enhancelettersout"},
};

inline const std::vector<clsExclusiveTicks> ExclusiveTicks {
    {"frmPreviousAdvice",      {"chkLegalHelpYes", "chkLegalHelpNo"}},
    {"frmPreviousAdvice",      {"chkFurtherClaimsYes", "chkFurtherClaimsNo"}},
    {"frmPreviousAdvice",      {"chkInclusiveOfAllSolicitorsYes", "chkInclusiveOfAllSolicitorsNo"}},
    {"frmOutcomeOfCase",       {"chkWastedCostsOrderYes", "chkWastedCostsOrderNo"}},
    {"frmNatureOfProceedings", {"chkOtherProvidersYes", "chkOtherProvidersNo"}},
    {"frmNatureOfProceedings", {"chkChangeOfSolicitorHalfFeeYes", "chkChangeOfSolicitorHalfFeeNo"}},
    {"frmActualCostsIncurred", {"chkCareAndSupervisionMidlands", "chkCareAndSupervisionNorth", "chkCareAndSupervisionSouth",
                                "chkCareAndSupervisionWales"}},
    {"frmActualCostsIncurred", {"chkCareAndSupervisionAChild", "chkCareAndSupervisionAParent", "chkCareAndSupervisionJoined"}},
    {"frmActualCostsIncurred", {"chkCareAndSupervisionActing1", "chkCareAndSupervisionActing2OrMore"}},
    {"frmActualCostsIncurred", {"chkCareAndSupervisionCourtHigh", "chkCareAndSupervisionCourtCounty",
                                "chkCareAndSupervisionCourtFamilyProceeding"}},
    {"frmActualCostsIncurred", {"chkPrivateLawLondon", "chkPrivateLawNonLondon"}},
    {"frmActualCostsIncurred", {"chkPrivateLawPreviousClaimYes", "chkPrivateLawPreviousClaimNo"}},
    {"frmActualCostsIncurred", {"chkPrivateLawCourtHigh", "chkPrivateLawCourtCounty", "chkPrivateLawCourtFamilyProceeding"}},
    {"frmActualCostsIncurred", {"chkPrivateLawSettlementFeeYes", "chkPrivateLawSettlementFeeNo"}},
    {"frmActualCostsIncurred", {"chkPrivateLawLevel3", "chkPrivateLawLevel4", "chkPrivateLawEnforcement"}},
    {"frmActualCostsIncurred", {"chkExceptionalCaseYes", "chkExceptionalCaseNo"}},
    {"frmCounselOutstandingClaims", {"chkOutstandingClaimsYes", "chkOutstandingClaimsNo"}},
    {"frmScheduleOfTimeItemEdit",   {"chkCounsel", "chkTravel", "chkWaiting"}},
    {"frmDisbursements",         {"chkExpertsMeetMOJStandardYes", "chkExpertsMeetMOJStandardNo"}},
    {"frmDetailsOfCostsAwarded", {"chkLegalHelpInPreCertificateCostsYes", "chkLegalHelpInPreCertificateCostsNo"}},
    {"frmDetailsOfCostsAwarded", {"chkLeaveYes", "chkLeaveNo"}},
    {"frmDetailsOfCostsAwarded", {"chkDeterminationYes", "chkDeterminationNo"}},
    {"frmDetailsOfCostsAwarded", {"chkOfferByDebtorYes", "chkOfferByDebtorNo"}},
};

/// The ticks set in a new claim, all on one screen; the first page's can't be clicked.
inline const std::vector<const char *> TickedInANewClaim {
    "chkVAT", "chkIncludePage2", "chkIncludePage3", "chkIncludePage4", "chkIncludePage5", "chkIncludePage6",
    "chkIncludePage7", "chkIncludePage8", "chkIncludePage9", "chkIncludePage10", "chkIncludePage11", "chkIncludePage12",
    "chkIncludePage13",
};

/// Ticks that enable or disable another field: they are clicked once.
inline const std::vector<const char *> TicksOfOthers {"chkVAT", "chkEnhance", "chkAdvocacy"};
// clang-format on
