#pragma once

/// How many rows of a list its page and each further sheet hold.
struct clsPageRoom {
    int first;
    int further;
};

// The two lists of page 7.
inline constexpr clsPageRoom JointInstructionsRoom = {14, 30};
inline constexpr clsPageRoom OtherDisbursementsRoom = {12, 32};
