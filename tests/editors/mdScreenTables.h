#pragma once

#include "tests/editors/clsExpectedScreen.h"

// clang-format off
inline const std::vector<clsExpectedScreen> ExpectedScreens {
    {"Form Setup", "frmFormSetup", "Form Setup", "Define the form type and preferences", "", {
        {.control = "cmbFormType", .caption = "Form Type:", .answer = nullptr, .kind = 'l', .second = "Claim1A"},
        {"chkVAT", "VAT:", nullptr, 'x'},
        {"txtVATRate", "%", nullptr, 'm'},
        {"chkIncludePanelMembershipContSheet", "Include Panel Membership Cont. Sheet:", nullptr, 'x'},
        {"chkCostsAssessedByLSC", "Claim for costs to be assessed by the LAA:",
         nullptr, 'x', 0, false, false, "bxHeaders"},
        {"chkCostsAssessedByCourt", "Claim for costs assessed by the Court:",
         nullptr, 'x', 0, false, false, "bxHeaders"},
        {"chkExceptionalCaseFunding", "Exceptional Case Funding determination:",
         nullptr, 'x', 0, false, false, "bxHeaders"},
        {"chkMentalHealth", "Mental Health/Court of Protection:", nullptr, 'x', 0, false, false, "bxHeaders"},
        {"chkVHCC", "VHCC/HCC:", nullptr, 'x', 0, false, false, "bxHeaders"},
        {"txtStageNumber", "Stage Number:", nullptr, 't', 40, false, false, "bxHeaders"},
        {"txtTypeOfCase", "Type of Case:", nullptr, 't', 40, false, false, "bxHeaders"},
        {"chkIncludePage1", "1:", nullptr, 'x', 0, false, false, "bgPages"},
        {"chkIncludePage2", "2:", nullptr, 'x', 0, false, false, "bgPages"},
        {"chkIncludePage3", "3:", nullptr, 'x', 0, false, false, "bgPages"},
        {"chkIncludePage4", "4:", nullptr, 'x', 0, false, false, "bgPages"},
        {"chkIncludePage5", "5:", nullptr, 'x', 0, false, false, "bgPages"},
        {"chkIncludePage6", "6:", nullptr, 'x', 0, false, false, "bgPages"},
        {"chkIncludePage7", "7:", nullptr, 'x', 0, false, false, "bgPages"},
        {"chkIncludePage8", "8:", nullptr, 'x', 0, false, false, "bgPages"},
        {"chkIncludePage9", "9:", nullptr, 'x', 0, false, false, "bgPages"},
        {"chkIncludePage10", "10:", nullptr, 'x', 0, false, false, "bgPages"},
        {"chkIncludePage11", "11:", nullptr, 'x', 0, false, false, "bgPages"},
        {"chkIncludePage12", "12:", nullptr, 'x', 0, false, false, "bgPages"},
        {"chkIncludePage13", "13:", nullptr, 'x', 0, false, false, "bgPages"},
        {"txtNotes", "Notes", nullptr, 't', 0, true, true, "bxNotes"},
    }, {{"bxGeneral", "General"}, {"bxHeaders", "Form Header"}, {"bgPages", "Pages"}, {"bxNotes", "Notes"}}},
    {"Client Details", "frmClientDetails", "Client Details", "Enter details of the client", "clientdetails", {
        {"txtCaseReferenceNumber", "Our Case Reference Number:", nullptr, 't', 30},
        {"txtTitle", "Title:", nullptr, 't', 7},
        {"txtFirstName", "First Name:", nullptr, 't', 7},
        {"txtSurname", "Surname:", nullptr, 't', 17},
        {"txtDateOfBirth", "Date of Birth:", nullptr, 'd'},
        {"txtMoreThan1Certificate", "Does this claim cover more than one certificate? If so, give the other case "
         "reference numbers and the percentage apportionments between the cases:", nullptr, 't', 130, true, true},
    }, {{"bxGeneral", "Client Details"}}},
    {"Solicitor Details", "frmSolicitorDetails", "Solicitor Details", "Enter details of the solicitor",
     "solicitordetails", {
        {"txtAccountNumber", "Account Number:", nullptr, 't', 7},
        {"txtRollNumber", "Roll Number:", nullptr, 't', 7},
        {"txtNameOfFirm", "Name of Firm:", nullptr, 't', 42},
        {"txtCaseReference", "Case Reference:", nullptr, 't', 40},
        {"txtContactNameForEnquiries", "Contact Name for Enquiries:", nullptr, 't', 35},
        {"txtTelephoneForEnquiries", "Tel. No:", nullptr, 't', 17},
        {"txtEmailForEnquiries", "Email Address for Enquiries:", nullptr, 't', 35},
    }, {{"bxGeneral", "Solicitor Details"}}},
    {"Previous Advice", "frmPreviousAdvice", "Previous Advice",
     "Enter details of previous advice and related claims", "previousadvice", {
        {"chkLegalHelpYes", "Did your client receive advice under legal help, family help (lower) or help with family "
         "mediation in this matter?", "Yes:", 'x'},
        {"chkLegalHelpNo", "Did your client receive advice under legal help, family help (lower) or help with family "
         "mediation in this matter?", "No:", 'x'},
        {"txtDateLegalHelpFormSigned", "Date Legal Help form signed:", nullptr, 'd'},
        {"chkFurtherClaimsYes", "Is this the final bill on this certificate?", "Yes:", 'x'},
        {"chkFurtherClaimsNo", "Is this the final bill on this certificate?", "No:", 'x'},
        {"txtTotalCostsIncurred", "Total costs reported:", nullptr, 'm'},
        {"chkInclusiveOfAllSolicitorsYes", "Does this claim include the costs of all other providers that have been "
         "instructed?", "Yes:", 'x', 0, false, false, "bxClaim1"},
        {"chkInclusiveOfAllSolicitorsNo", "Does this claim include the costs of all other providers that have been "
         "instructed?", "No:", 'x', 0, false, false, "bxClaim1"},
        {"txtInclusiveOfAllSolicitorsReasons", "If no, give reasons:", nullptr, 't', 115, true, true, "bxClaim1"},
    }, {{"bxGeneral", "Previous Advice"}, {"bxClaim1", "Claim1 Only"}}},
    {"Case Information", "frmCaseInformation", "Case Information", "Enter a description of the case",
     "caseinformation", {
        {"txtIssueOfProceedingsDate", "Date of issue of proceedings:", nullptr, 'd'},
        {"txtDateOfFinalWorkDate", "Date of final work on the case, excluding bill preparation:", nullptr, 'd'},
        {"txtNameOfCourt", "Name(s) of court(s) or proposed court:", nullptr, 't', 30},
        {"txtEmergencyCertificateDate", "Date of issue of emergency certificate:", nullptr, 'd'},
        {"txtSubstantiveCertificateDate", "Date of issue of substantive certificate:", nullptr, 'd'},
    }, {{"bxGeneral", "Case Information"}}},
};
// clang-format on
