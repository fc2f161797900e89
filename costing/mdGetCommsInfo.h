#pragma once

#include "costing/clsBill.h"

#include <QString>

#include <memory>
#include <vector>

class clsZR3Enhancement;
class clsZR3FeeEarnerGroup;
class clsZR3Form;

/// The kinds of communication, with their numbers in the bill's lines.
enum class clsCommsKind { Calls = 0, LettersIn = 1, LettersOut = 2 };

/// The government forms have two rows for each kind: a third group is not billed.
constexpr int CommsLines = 2;

// A line is the n-th group, by order, with such communications and a positive rate for them. Without a group on the
// line the money figures are 0 and the texts empty.

/// A group, its count of a kind, and whether its rate for that kind is above zero.
struct clsCommsGroup {
    std::shared_ptr<clsZR3FeeEarnerGroup> group;
    int count;
    bool hasRate;

    bool takesLine() const { return count >= 1 && hasRate; }
};

/// All groups in order; the form prints the first two of those that have a line.
std::vector<clsCommsGroup> CommsGroups(const clsZR3Form &form, clsCommsKind kind);

/// The enhancement set for a kind, or null.
std::shared_ptr<clsZR3Enhancement> CommsEnhancement(const clsZR3Form &form, clsCommsKind kind);

/// The group on a line, or null.
std::shared_ptr<clsZR3FeeEarnerGroup> CommsGroupAtLine(const clsZR3Form &form, int line, clsCommsKind kind);
/// The group's rate for the kind, to the penny.
Money CommsRateAtLine(const clsZR3Form &form, int line, clsCommsKind kind);
/// The group's count for the kind.
QString CommsCountAtLine(const clsZR3Form &form, int line, clsCommsKind kind);
/// Count times rate, to the penny.
Money CommsBasicAtLine(const clsZR3Form &form, int line, clsCommsKind kind);
/// The uplift from the group's own enhancement, to the penny.
Money CommsGroupEnhancement(const clsZR3Form &form, int line, clsCommsKind kind);
/// The uplift from the enhancement set for the kind, at four decimals.
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
