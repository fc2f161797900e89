#pragma once

#include "editors/clsScreenTable.h"

// The tables of the screens, each in a file named after its window.

// Sections
const clsScreen &ScreenFormSetup();
const clsScreen &ScreenFeeEarnerGroups();
const clsScreen &ScreenCounsel();
const clsScreen &ScreenEnhancements();
const clsScreen &ScreenScheduleOfTime();
const clsScreen &ScreenDisbursements();
const clsScreen &ScreenFamilyAdvocacyScheme();
const clsScreen &ScreenCommunications();
const clsScreen &ScreenClientDetails();
const clsScreen &ScreenSolicitorDetails();
const clsScreen &ScreenPreviousAdvice();
const clsScreen &ScreenCaseInformation();
const clsScreen &ScreenOutcomeOfCase();
const clsScreen &ScreenLateSubmission();
const clsScreen &ScreenNatureOfProceedings();
const clsScreen &ScreenActualCostsIncurred();
const clsScreen &ScreenDetailsOfWork();
const clsScreen &ScreenCounselOutstandingClaims();
const clsScreen &ScreenDetailsOfMonies();
const clsScreen &ScreenDetailsOfCostsAwarded();
const clsScreen &ScreenDebtorsDetails();

// Editors of one item
const clsScreen &ScreenFeeEarnerGroupEdit();
const clsScreen &ScreenFeeEarnerEdit();
const clsScreen &ScreenCounselEdit();
const clsScreen &ScreenEnhancementEdit();
const clsScreen &ScreenScheduleOfTimeItemEdit();
const clsScreen &ScreenDisbursementEdit();
const clsScreen &ScreenExpertInvoiceEdit();
const clsScreen &ScreenJointInstructionEdit();
const clsScreen &ScreenFASItemEdit();
const clsScreen &ScreenCorrespondences();
const clsScreen &ScreenCostsLimit();
const clsScreen &ScreenCodeWords();
const clsScreen &ScreenReplacementEdit();
const clsScreen &ScreenPreferencesRateSetEdit();

// Not part of a claim
const clsScreen &ScreenPreferences();
const clsScreen &ScreenFirmAndTeam();
