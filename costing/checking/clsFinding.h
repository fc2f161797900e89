#pragma once

#include <QString>

#include <vector>

/// How grave a finding is.
enum class clsFindingLevel {
    Error, ///< the claim will be sent back, or money is lost
    Warning, ///< probably wrong
    Note, ///< to be looked at
};

/// "error", "warning" or "note".
QString mdLevelInWords(clsFindingLevel level);

/// Something in a claim that is to be put right, or looked at, before the claim is sent.
struct clsFinding {
    QString Rule; ///< its identity, such as "date-missing"
    clsFindingLevel Level;
    QString Screen; ///< that puts it right: the text of its tab
    QString List; ///< of the screen, such as "schedule"; empty where it has none
    int Item; ///< the order in the list, 0 for none
    QString Property; ///< that is wrong, by its name in the code; may be empty
    QString Text; ///< one sentence: what is wrong, and what to do
};
using clsFindings = std::vector<clsFinding>;

/// How many findings there are of the levels that matter to a list of claims.
struct clsFindingCounts {
    int errors = 0;
    int warnings = 0;
};
