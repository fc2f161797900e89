#pragma once

#include "costing/checking/clsFinding.h"

#include <QHash>

#include <vector>

/// A line of the check as it is shown: one finding, or many notes of one rule.
struct clsFindingLine {
    QString Text;
    QString Place;
    std::vector<int> Findings; ///< their numbers in the check

    bool isFold() const { return Findings.size() > 1; }
};

/// The findings of one level, or those that were put aside.
struct clsFindingGroup {
    enum clsKind { Errors, Warnings, Notes, PutAside };

    clsKind Kind;
    int Count = 0; ///< of the findings, also of those that share a line
    std::vector<clsFindingLine> Lines {};
};

/// A finding with all that is needed to show it.
struct clsShownFinding {
    clsFinding Finding;
    QString Place; ///< where it is put right, in words
    bool IsAside = false;
};

/// Sorts findings into groups, the gravest first, in the order in which they stand. Of several about one item and
/// property only the gravest is shown, not counting those that are put aside. Empty groups are left out.
std::vector<clsFindingGroup> mdGroupFindings(const std::vector<clsShownFinding> &findings);

/// How many findings of a level are shown.
int mdCountOf(const std::vector<clsFindingGroup> &groups, clsFindingGroup::clsKind kind);

/// "2 errors, 1 warning"; with notes also "3 notes". Empty where there is nothing to count.
QString mdCountsInWords(const std::vector<clsFindingGroup> &groups, bool withNotes);

/// How many of a screen's findings are shown, notes not counted.
struct clsScreenFindings {
    int Errors = 0;
    int Warnings = 0;

    bool operator==(const clsScreenFindings &other) const = default;
};

/// The same for each screen that has any, by the text of its tab.
QHash<QString, clsScreenFindings> mdFindingsByScreen(
    const std::vector<clsShownFinding> &findings, const std::vector<clsFindingGroup> &groups);

/// "1 error, 2 warnings"; empty where there are none.
QString mdCountsInWords(const clsScreenFindings &findings);
