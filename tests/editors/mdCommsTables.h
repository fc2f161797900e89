#pragma once

#include "tests/editors/clsExpectedScreen.h"

// clang-format off
inline const std::vector<clsExpectedScreen> ExpectedCommsScreens {
    {"Communications", "frmCommunications", "Communications", "Assign letters and calls to fee earners",
     "communications", {
        {"sgCommunications", "Communications", nullptr, 'g'},
        {"oCallsEnhancement", "Include in Enhancements:", nullptr, 'o', 0, false, false, "bxCalls"},
        {"oLettersInEnhancement", "Include in Enhancements:", nullptr, 'o', 0, false, false, "bxLettersIn"},
        {"oLettersOutEnhancement", "Include in Enhancements:", nullptr, 'o', 0, false, false, "bxLettersOut"},
    }, {{"bxGeneral", "Communications"}, {"bxCalls", "Calls"}, {"bxLettersIn", "Letters In"},
        {"bxLettersOut", "Letters Out"}}},
    {"", "frmCorrespondences", "Correspondences", "Calls, letters in and letters out", "feeearner", {
        {"txtCalls", "Calls:*", nullptr, 'i'},
        {"txtLettersIn", "Letters In:*", nullptr, 'i'},
        {"txtLettersOut", "Letters Out:*", nullptr, 'i'},
    }, {{"bxGeneral", "Correspondences"}}},
};
// clang-format on
