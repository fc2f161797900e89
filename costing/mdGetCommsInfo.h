#pragma once

#include "costing/clsBill.h"

#include <QString>

#include <memory>
#include <vector>

class clsZR3Enhancement;
class clsZR3FeeEarnerGroup;
class clsZR3Form;

/// The kinds of communication, by the numbers that the bill's lines are asked for.
enum class clsCommsKind { Calls = 0, LettersIn = 1, LettersOut = 2 };

/// The government forms have two rows for each kind: a third group is not billed.
constexpr int CommsLines = 2;

// A line is the n-th group, by order, that has both such communications and a positive rate for them. Without a group
// on the line the money figures are 0 and the texts empty.

/// A group, its count of a kind, and whether it has a rate above zero for it.
struct clsCommsGroup {
    std::shared_ptr<clsZR3FeeEarnerGroup> group;
    int count;
    bool hasRate;

    bool takesLine() const { return count >= 1 && hasRate; }
};

/// All groups by their order: of those that take a line, the form prints the first two.
std::vector<clsCommsGroup> CommsGroups(const clsZR3Form &form, clsCommsKind kind);

/// The enhancement that is set for a kind, or nothing.
std::shared_ptr<clsZR3Enhancement> CommsEnhancement(const clsZR3Form &form, clsCommsKind kind);

/// The group on a line, or nothing.
std::shared_ptr<clsZR3FeeEarnerGroup> CommsGroupAtLine(const clsZR3Form &form, int line, clsCommsKind kind);
/// The group's rate for the kind, to the penny.
Money CommsRateAtLine(const clsZR3Form &form, int line, clsCommsKind kind);
/// The group's count for the kind.
QString CommsCountAtLine(const clsZR3Form &form, int line, clsCommsKind kind);
/// Count times rate, to the penny.
Money CommsBasicAtLine(const clsZR3Form &form, int line, clsCommsKind kind);
/// The uplift from the group's own enhancement, to the penny.
Money CommsGroupEnhancement(const clsZR3Form &form, int line, clsCommsKind kind);
/// The uplift from the enhancement that is set for the kind, at four decimals.
Money CommsListedEnhancement(const clsZR3Form &form, int line, clsCommsKind kind);
/// The listed uplift, at four decimals, plus the group's.
Money CommsEnhancementAtLine(const clsZR3Form &form, int line, clsCommsKind kind);
/// Basic plus uplift, with the uplift's decimals.
Money CommsClaimAtLine(const clsZR3Form &form, int line, clsCommsKind kind);

/// The claims of all lines, to the penny.
Money CommsTotal(const clsZR3Form &form);
/// Schedule of time plus communications, to the penny.
Money ProfitCostsTotal(const clsBill &bill);

/// Whether all lines have their figures, as those of nearly all claims do. Where not, the faults of a line tell more.
bool CommsAreSound(const clsBill &bill);
