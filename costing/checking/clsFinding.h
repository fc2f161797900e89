#pragma once

#include <QString>

#include <vector>

/// The severity of a finding.
enum class clsFindingLevel {
    Error, ///< the claim will be sent back, or money is lost
    Warning, ///< probably wrong
    Note, ///< to be reviewed
};

/// "error", "warning" or "note".
QString mdLevelInWords(clsFindingLevel level);

/// Something in a claim to be corrected or reviewed before the claim is sent.
struct clsFinding {
    QString Rule; ///< the rule's identity, such as "date-missing"
    clsFindingLevel Level;
    QString Screen; ///< where it is corrected: the text of its tab
    QString List; ///< of the screen, such as "schedule"; empty if it has none
    int Item; ///< the order in the list, 0 for none
    QString Property; ///< the wrong one, its name in the code; may be empty
    QString Text; ///< one sentence: the fault and what to do
};
using clsFindings = std::vector<clsFinding>;

/// How many findings there are of the levels that matter to a list of claims.
struct clsFindingCounts {
    int errors = 0;
    int warnings = 0;
};
