#pragma once

#include "tests/editors/mdScreenTables.h"

// The preferences' screens a second time, by hand.

// clang-format off
inline const std::vector<clsExpectedScreen> ExpectedPreferencesEditors {
    {"", "frmReplacementEdit", "Replacement", "Change input and output text", "replacement", {
        {"txtInputText", "Input Text:*", nullptr, 't'},
        {"txtOutputText", "Output Text:*", nullptr, 't'},
    }},
    {"", "frmPreferencesRateSetEdit", "Rate Set", "Edit a standard rate set", "rateset", {
        {"txtName", "Name:*", nullptr, 't'},
        {"txtHourly", "Hourly:*", nullptr, 'm'},
        {"txtCalls", "Calls:*", nullptr, 'm'},
        {"txtLettersIn", "Letters In:*", nullptr, 'm'},
        {"txtLettersOut", "Letters Out:*", nullptr, 'm'},
        {"txtAdvocacy", "Advocacy:*", nullptr, 'm'},
        {"txtCounsel", "Counsel:*", nullptr, 'm'},
        {"txtTravelAndWaiting", "Travel and Waiting:*", nullptr, 'm'},
    }},
};
// clang-format on
