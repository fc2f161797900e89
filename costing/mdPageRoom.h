#pragma once

/// The number of rows of a list on its page and on each further sheet.
struct clsPageRoom {
    int first;
    int further;
};

// The two lists of page 7.
inline constexpr clsPageRoom JointInstructionsRoom = {14, 30};
inline constexpr clsPageRoom OtherDisbursementsRoom = {12, 32};
