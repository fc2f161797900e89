#pragma once

#include "tests/editors/clsExpectedScreen.h"

// clang-format off
inline const std::vector<clsExpectedScreen> ExpectedCounselScreens {
    {"Counsel", "frmCounsel", "Counsel", "Create and edit barristers for your form", "", {
        {"sgCounsel", "Counsel", nullptr, 'g'},
        {"cmdAddCounsel", "Add", nullptr, 'b'},
    }, {{"bxGeneral", "Counsel"}}, 5},
    {"", "frmCounselEdit", "Counsel", "Change settings for a barrister", "", {
        {"txtName", "Name:*", nullptr, 't'},
        {"txtAccountNumber", "Account Number:", nullptr, 't'},
        {"chkVAT", "VAT:", nullptr, 'x'},
    }, {{"bxGeneral", "Counsel Setup"}}, 5},
    {"Enhancements", "frmEnhancements", "Enhancements", "Enhancements for the form", "", {
        {"sgEnhancements", "Enhancements", nullptr, 'g'},
        {"cmdAddEnhancement", "Add", nullptr, 'b'},
    }, {{"bxGeneral", "Enhancements"}}},
    {"", "frmEnhancementEdit", "Enhancement", "Change enhancement settings", "", {
        {"txtName", "Name:*", nullptr, 't'},
        {"txtRate", "Rate:*", nullptr, 'm'},
    }, {{"bxGeneral", "Enhancement"}}},
};
// clang-format on
