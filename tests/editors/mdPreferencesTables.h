#pragma once

#include "tests/editors/clsExpectedScreen.h"

// clang-format off
// Opened from the menu, so neither a section nor the editor of an item.
inline const std::vector<clsExpectedScreen> ExpectedPreferences {
    {"", "frmPreferences", "Preferences", "Default settings", "", {
        {"txtDefaultVATRate", "Default VAT Rate:*", nullptr, 'm', 0, false, false, "bxPreferences"},
        {"chkAutoBackup", "Auto Backup:", nullptr, 'x', 0, false, false, "bxPreferences"},
        {.control = "txtAutoBackupPath", .caption = "Auto Backup Path:", .answer = nullptr, .kind = 't',
         .frame = "bxPreferences", .replacements = false},
        {"cmdAutoBackupPathBrowse", "Browse...", nullptr, 'b', 0, false, false, "bxPreferences"},
        {"chkAutoDeleteBackups", "Auto-delete Backups:", nullptr, 'x', 0, false, false, "bxPreferences"},
        {"chkAutoRefreshPreview", "Auto-refresh Preview:", nullptr, 'x', 0, false, false, "bxPreferences"},
        {"chkPlaySound", "Play Sound:", nullptr, 'x', 0, false, false, "bxPreferences"},
        {"chkLog", "Log Mode:", nullptr, 'x', 0, false, false, "bxPreferences"},
        {"lblSpelling", "", nullptr, 'o', 0, false, false, "bxPreferences"},
        {"sgReplacements", "Replacements", nullptr, 'g', 0, false, false, "bxPreferences"},
        {"cmdAddReplacement", "Add", nullptr, 'b', 0, false, false, "bxPreferences"},
        {"sgRateSets", "Rate Sets", nullptr, 'g', 0, false, false, "bxPreferences"},
        {"cmdAddRateSet", "Add", nullptr, 'b', 0, false, false, "bxPreferences"},
    }, {{"bxPreferences", ""}}},
};

inline const std::vector<clsExpectedScreen> ExpectedFirm {
    {"", "frmFirmAndTeam", "Firm and Team", "What new claims of your firm begin with", "solicitordetails", {
        {"txtNameOfFirm", "Name of Firm:", nullptr, 't', 42, false, false, "bxFirm"},
        {"txtAccountNumber", "Account Number:", nullptr, 't', 7, false, false, "bxFirm"},
        {"txtRollNumber", "Roll Number:", nullptr, 't', 7, false, false, "bxFirm"},
        {"txtContactNameForEnquiries", "Contact Name for Enquiries:", nullptr, 't', 35, false, false, "bxFirm"},
        {"txtTelephoneForEnquiries", "Tel. No:", nullptr, 't', 17, false, false, "bxFirm"},
        {"txtEmailForEnquiries", "Email Address for Enquiries:", nullptr, 't', 35, false, false, "bxFirm"},
        {"chkVAT", "VAT:", nullptr, 'x', 0, false, false, "bxFirm"},
        {"txtVATRate", "%", nullptr, 'm', 0, false, false, "bxFirm"},
        {"chkFillNewClaims", "Fill new claims with these:", nullptr, 'x', 0, false, false, "bxFirm"},
        {"sgFeeEarnerGroups", "Fee Earner Groups", nullptr, 'g', 0, false, false, "bxFirm"},
        {"cmdAddFeeEarnerGroup", "Add", nullptr, 'b', 0, false, false, "bxFirm"},
        {"sgFeeEarners", "Fee Earners", nullptr, 'g', 0, false, false, "bxFirm"},
        {"cmdAddFeeEarner", "Add", nullptr, 'b', 0, false, false, "bxFirm"},
        {"sgCounsel", "Counsel", nullptr, 'g', 0, false, false, "bxFirm"},
        {"cmdAddCounsel", "Add", nullptr, 'b', 0, false, false, "bxFirm"},
    }, {{"bxFirm", ""}}},
};

inline clsExpectedField ExpectedCode(const char *control, const char *caption, const char *frame)
{
    return {.control = control, .caption = caption, .answer = nullptr, .kind = 't', .frame = frame,
        .replacements = false};
}

inline const std::vector<clsExpectedScreen> ExpectedCodes {
    {"", "frmCodeWords", "Codes", "Your firm's words for the codes, for all users of the database folder", "", {
        ExpectedCode("txtACL", "ACL:", "bxAttendances"),
        ExpectedCode("txtACO", "ACO:", "bxAttendances"),
        ExpectedCode("txtACT", "ACT:", "bxAttendances"),
        ExpectedCode("txtAEX", "AEX:", "bxAttendances"),
        ExpectedCode("txtAOS", "AOS:", "bxAttendances"),
        ExpectedCode("txtAOT", "AOT:", "bxAttendances"),
        ExpectedCode("txtASI", "ASI:", "bxAttendances"),
        ExpectedCode("txtASO", "ASO:", "bxAttendances"),
        ExpectedCode("txtAWI", "AWI:", "bxAttendances"),
        ExpectedCode("txtHDI", "HDI:", "bxHearings"),
        ExpectedCode("txtHFN", "HFN:", "bxHearings"),
        ExpectedCode("txtHIN", "HIN:", "bxHearings"),
        ExpectedCode("txtHOT", "HOT:", "bxHearings"),
        ExpectedCode("txtDAF", "DAF:", "bxDocuments"),
        ExpectedCode("txtDAG", "DAG:", "bxDocuments"),
        ExpectedCode("txtDAN", "DAN:", "bxDocuments"),
        ExpectedCode("txtDAP", "DAP:", "bxDocuments"),
        ExpectedCode("txtDBL", "DBL:", "bxDocuments"),
        ExpectedCode("txtDCN", "DCN:", "bxDocuments"),
        ExpectedCode("txtDFL", "DFL:", "bxDocuments"),
        ExpectedCode("txtDIC", "DIC:", "bxDocuments"),
        ExpectedCode("txtDNO", "DNO:", "bxDocuments"),
        ExpectedCode("txtDOT", "DOT:", "bxDocuments"),
        ExpectedCode("txtDPL", "DPL:", "bxDocuments"),
        ExpectedCode("txtDST", "DST:", "bxDocuments"),
        ExpectedCode("txtOOT", "OOT:", "bxDocuments"),
        ExpectedCode("txtRES", "RES:", "bxDocuments"),
        ExpectedCode("txtREX", "REX:", "bxDocuments"),
        ExpectedCode("txtRMD", "RMD:", "bxDocuments"),
        ExpectedCode("txtROP", "ROP:", "bxDocuments"),
        ExpectedCode("txtROT", "ROT:", "bxDocuments"),
        ExpectedCode("txtRWE", "RWE:", "bxDocuments"),
    }, {{"bxAttendances", "Att / Conf"}, {"bxHearings", "Hrng"}, {"bxDocuments", "Docs"}}},
};

inline const std::vector<clsExpectedScreen> ExpectedPreferencesEditors {
    {"", "frmReplacementEdit", "Replacement", "Change input and output text", "", {
        {.control = "txtInputText", .caption = "Input Text:*", .answer = nullptr, .kind = 't', .replacements = false},
        {"txtOutputText", "Output Text:*", nullptr, 't'},
    }, {{"bxGeneral", ""}}},
    {"", "frmPreferencesRateSetEdit", "Rate Set", "Edit a standard rate set", "", {
        {"txtName", "Name:*", nullptr, 't'},
        {"txtHourly", "Hourly:*", nullptr, 'm'},
        {"cmdCalculate", "Calculate", nullptr, 'b'},
        {"txtCalls", "Calls:*", nullptr, 'm'},
        {"txtLettersIn", "Letters In:*", nullptr, 'm'},
        {"txtLettersOut", "Letters Out:*", nullptr, 'm'},
        {"txtAdvocacy", "Advocacy:*", nullptr, 'm'},
        {"txtCounsel", "Counsel:*", nullptr, 'm'},
        {"txtTravelAndWaiting", "Travel and Waiting:*", nullptr, 'm'},
    }, {{"bxGeneral", ""}}},
};
// clang-format on
