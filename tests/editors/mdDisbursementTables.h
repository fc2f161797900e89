#pragma once

#include "tests/editors/clsExpectedScreen.h"

// The screens of the disbursements and the editors of their items, whose `element` is that of the item.

// clang-format off
inline const std::vector<clsExpectedScreen> ExpectedDisbursementScreens {
    {"Disbursements", "frmDisbursements", "Disbursements", "Edit the disbursements for your form", "", {
        {"sgExpertInvoices", "Expert Invoices", nullptr, 'g'},
        {"cmdAddExpertInvoice", "Add", nullptr, 'b'},
        {"chkExpertsMeetMOJStandardYes", "If these are proceedings involving a dispute about children, are you "
         "satisfied that the experts used meet the Ministry of Justice standards for experts in England and Wales?",
         "Yes:", 'x'},
        {"chkExpertsMeetMOJStandardNo", "If these are proceedings involving a dispute about children, are you "
         "satisfied that the experts used meet the Ministry of Justice standards for experts in England and Wales?",
         "No:", 'x'},
        {"txtExpertsMeetMOJStandardReasons", "If no, give reasons:", nullptr, 't', 250, true, true, "bxGeneral", true},
        {"sgJointInstructions", "Joint Instructions", nullptr, 'g'},
        {"cmdAddJointInstruction", "Add", nullptr, 'b'},
        {"sgOtherDisbursements", "Other Disbursements", nullptr, 'g'},
        {"cmdAddDisbursement", "Add", nullptr, 'b'},
    }, {{"bxGeneral", "Disbursements"}}},
    {"", "frmDisbursementEdit", "Disbursement", "Change a disbursement's settings", "disbursement", {
        {"txtDescription", "Description:*", nullptr, 't', 35, false, true},
        {"txtAmount", "Amount:*", nullptr, 'm'},
        {"txtVAT", "VAT:*", nullptr, 'm'},
        {"cmdCalculate", "Calculate", nullptr, 'b'},
        {"oCounsel", "Counsel:", nullptr, 'o'},
        {"txtDateOfWork", "Date of Work:", nullptr, 'd'},
    }, {{"bxGeneral", "Disbursement"}}},
    {"", "frmExpertInvoiceEdit", "Expert Invoice", "Change an expert invoice's settings", "expertinvoice", {
        {"txtExpertGroup", "Expert Group:*", nullptr, 't', 0, false, true},
        {"txtExpertType", "Expert Type:*", nullptr, 't', 0, false, true},
        {"chkPriorAuthorityObtained", "Prior Authority Obtained:", nullptr, 'x'},
        {"txtPreparationHourlyRate", "Preparation Hourly Rate:", nullptr, 'm'},
        {"txtTotalPrepCost", "Total Prep Cost:", nullptr, 'm'},
        {"txtCourtAttendanceHourlyRate", "Court Attendance Hourly Rate:", nullptr, 'm'},
        {"txtTotalCourtCost", "Total Court Cost:", nullptr, 'm'},
        {"txtTravelTimeCosts", "Travel Time Costs:", nullptr, 'm'},
        {"txtOtherCosts", "Other Costs:", nullptr, 'm'},
        {"txtNetAmount", "Net Amount:", nullptr, 'm'},
        {"txtVATAmount", "VAT Amount:", nullptr, 'm'},
        {"cmdCalculate", "Calculate", nullptr, 'b'},
    }, {{"bxGeneral", "Expert Invoice"}}},
    {"", "frmJointInstructionEdit", "Joint Instruction", "Change a joint instructiuon's settings",
     "jointinstruction", {
        {"txtExpertType", "Expert Type:*", nullptr, 't', 12, false, true},
        {"txtPartyName", "Party Name:", nullptr, 't', 20, false, true},
        {"txtSolicitor", "Solicitor:", nullptr, 't', 20, false, true},
        {"txtCertificateReference", "Certificate Reference:", nullptr, 't', 20, false, true},
        {"txtPercentApportioned", "Percent Apportioned:", nullptr, 'm'},
    }, {{"bxGeneral", "Joint Instruction"}}},
};
// clang-format on
