#include "costing/checking/mdCheckRules.h"

#include "costing/checking/mdCheckWords.h"
#include "costing/mdGetCommsInfo.h"

#include <algorithm>
#include <array>

namespace {

/// A kind of letters and calls, with its properties.
struct clsKindRow {
    clsCommsKind kind;
    const char *count; ///< of a fee earner
    const char *rate; ///< of a group
    const char *words;
};

constexpr clsKindRow Calls = {clsCommsKind::Calls, "Calls", "CallsRate", "calls"};
constexpr clsKindRow LettersIn = {clsCommsKind::LettersIn, "LettersIn", "LettersInRate", "letters in"};
constexpr clsKindRow LettersOut = {clsCommsKind::LettersOut, "LettersOut", "LettersOutRate", "letters out"};
constexpr clsKindRow KindsOfFeeEarner[] = {LettersOut, LettersIn, Calls};
constexpr clsKindRow KindsOfGroup[] = {Calls, LettersIn, LettersOut};

/// The groups by kind; none for a kind that can't be counted.
using clsGroupsByKind = std::array<std::vector<clsCommsGroup>, 3>;

clsGroupsByKind groupsOf(const clsClaimCheck &check)
{
    clsGroupsByKind groups;
    for (const clsKindRow &row : KindsOfGroup)
        clsClaimCheck::unlessItFails([&] { groups[size_t(row.kind)] = CommsGroups(check.form(), row.kind); });
    return groups;
}

/// The groups without a line on the form.
QSet<const clsZR3FeeEarnerGroup *> withoutLine(const std::vector<clsCommsGroup> &groups)
{
    QSet<const clsZR3FeeEarnerGroup *> lost;
    int lines = 0;
    for (const clsCommsGroup &group : groups)
        if (group.takesLine() && ++lines > CommsLines)
            lost.insert(group.group.get());
    return lost;
}

QString joined(const QStringList &words)
{
    return words.size() < 2
        ? words.join(QString())
        : words.mid(0, words.size() - 1).join(QStringLiteral(", ")) + QStringLiteral(" and ") + words.back();
}

} // namespace

void mdCheckGroupNotBilled(clsClaimCheck &check)
{
    const clsGroupsByKind groups = groupsOf(check);
    std::array<QSet<const clsZR3FeeEarnerGroup *>, 3> lostGroups;
    for (size_t kind = 0; kind < groups.size(); ++kind)
        lostGroups[kind] = withoutLine(groups[kind]);
    if (std::ranges::all_of(lostGroups, [](const auto &lost) { return lost.isEmpty(); }))
        return;
    check.each(check.form().FeeEarnersCollection(), [&](const clsZR3FeeEarner &feeEarner, int order) {
        const auto group = feeEarner.Group();
        QStringList lost;
        QString property;
        for (const clsKindRow &row : KindsOfFeeEarner) {
            const QString name = QString::fromLatin1(row.count);
            if (!lostGroups[size_t(row.kind)].contains(group.get()) || feeEarner.field(name)->readLong() <= 0)
                continue;
            lost << QString::fromLatin1(row.words);
            if (property.isEmpty())
                property = name;
        }
        if (!lost.isEmpty())
            check.add({CommunicationsScreen, "feeearners", order, property},
                QStringLiteral("%1: the %2 are not billed, because two groups before have taken both lines of the "
                               "form; give them to a fee earner of one of these.")
                    .arg(mdInWords(feeEarner), joined(lost)));
    });
}

void mdCheckCommunicationsRateZero(clsClaimCheck &check)
{
    const clsGroupsByKind groups = groupsOf(check);
    // By group, since the groups of all kinds are in the same order.
    const size_t count = std::max({groups[0].size(), groups[1].size(), groups[2].size()});
    for (size_t place = 0; place < count; ++place)
        for (const clsKindRow &row : KindsOfGroup) {
            const std::vector<clsCommsGroup> &ofKind = groups[size_t(row.kind)];
            if (place >= ofKind.size() || ofKind[place].count < 1 || ofKind[place].hasRate)
                continue;
            const clsZR3FeeEarnerGroup &group = *ofKind[place].group;
            check.add({RatesScreen, "groups", group.OrderID(), QString::fromLatin1(row.rate)},
                QStringLiteral("%1 has %2 but no rate for them, so that they are not billed: enter the rate.")
                    .arg(mdInWords(group), QString::fromLatin1(row.words)));
        }
}
