#pragma once

#include "costing/checking/clsFinding.h"

#include <QHash>

#include <vector>

/// A line of the check's display: one finding, or several notes of one rule.
struct clsFindingLine {
    QString Text;
    QString Place;
    std::vector<int> Findings; ///< their indices in the check

    bool isFold() const { return Findings.size() > 1; }
};

/// The findings of one level, or those put aside.
struct clsFindingGroup {
    enum clsKind { Errors, Warnings, Notes, PutAside };

    clsKind Kind;
    int Count = 0; ///< of the findings, including those that share a line
    std::vector<clsFindingLine> Lines {};
};

/// A finding with everything needed to show it.
struct clsShownFinding {
    clsFinding Finding;
    QString Place; ///< where to correct it, in words
    bool IsAside = false;
};

/// Sorts findings into groups, the most severe first, keeping their order. Of several for one item and property only
/// the most severe is shown, not counting those put aside. Empty groups are omitted.
std::vector<clsFindingGroup> mdGroupFindings(const std::vector<clsShownFinding> &findings);

/// The number of findings shown for a level.
int mdCountOf(const std::vector<clsFindingGroup> &groups, clsFindingGroup::clsKind kind);

/// "2 errors, 1 warning"; with notes also "3 notes". Empty if there are none.
QString mdCountsInWords(const std::vector<clsFindingGroup> &groups, bool withNotes);

/// The number of a screen's shown findings, without notes.
struct clsScreenFindings {
    int Errors = 0;
    int Warnings = 0;

    bool operator==(const clsScreenFindings &other) const = default;
};

/// The numbers for each screen with findings, by the text of its tab.
QHash<QString, clsScreenFindings> mdFindingsByScreen(
    const std::vector<clsShownFinding> &findings, const std::vector<clsFindingGroup> &groups);

/// "1 error, 2 warnings"; empty if there are none.
QString mdCountsInWords(const clsScreenFindings &findings);
