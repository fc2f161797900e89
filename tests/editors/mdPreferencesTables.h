#pragma once

#include "tests/editors/clsExpectedScreen.h"

// clang-format off
inline const std::vector<clsExpectedScreen> ExpectedPreferencesEditors {
    {"", "frmReplacementEdit", "Replacement", "Change input and output text", "", {
        {.control = "txtInputText", .caption = "Input Text:*", .answer = nullptr, .kind = 't', .replacements = false},
        {"txtOutputText", "Output Text:*", nullptr, 't'},
    }},
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
    }},
};
// clang-format on
