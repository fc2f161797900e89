#include "costing/mdGetCommsInfo.h"

#include "base/mdNumberText.h"
#include "base/mdPercentageCalculate.h"
#include "base/mdRequired.h"
#include "base/mdSumOf.h"
#include "costing/mdFigureFaults.h"
#include "costing/mdGetColumnTotals.h"
#include "formdata/clsZR3Form.h"

#include <QHash>

#include <optional>

namespace {

using Form = clsZR3Form;
using FeeEarner = clsZR3FeeEarner;
using Group = clsZR3FeeEarnerGroup;
using Comms = clsZR3Communications;

/// A kind's properties of a group, a fee earner and the claim's settings.
struct KindRow {
    QString (*rate)(const Group &);
    int (*count)(const FeeEarner &);
    bool (*enhanced)(const Comms &);
    QString (*enhancementUniqueID)(const Comms &);
};

const KindRow Kinds[] = {
    {[](const Group &g) { return g.CallsRate(); }, [](const FeeEarner &f) { return f.Calls(); },
        [](const Comms &c) { return c.EnhanceCalls(); }, [](const Comms &c) { return c.CallsEnhancementUniqueID(); }},
    {[](const Group &g) { return g.LettersInRate(); }, [](const FeeEarner &f) { return f.LettersIn(); },
        [](const Comms &c) { return c.EnhanceLettersIn(); },
        [](const Comms &c) { return c.LettersInEnhancementUniqueID(); }},
    {[](const Group &g) { return g.LettersOutRate(); }, [](const FeeEarner &f) { return f.LettersOut(); },
        [](const Comms &c) { return c.EnhanceLettersOut(); },
        [](const Comms &c) { return c.LettersOutEnhancementUniqueID(); }},
};

/// The content of a line: a group, and its fee earners' number of letters or calls. Empty without a group.
struct clsLine {
    const Form &form;
    const KindRow &kind;
    std::shared_ptr<Group> group {};
    int count = 0;
};

/// The fee earners by group, in the claim's order: otherwise each group would search all of them.
using clsByGroup = QHash<QString, std::vector<const FeeEarner *>>;

clsByGroup feeEarnersByGroup(const Form &form)
{
    clsByGroup byGroup;
    for (const auto &feeEarner : form.FeeEarnersCollection())
        byGroup[feeEarner->GroupUniqueID()].push_back(feeEarner.get());
    return byGroup;
}

/// Walks the groups by their order until the visitor says that it is enough.
template <class Visit>
void walkGroups(const Form &form, const clsByGroup &feeEarners, const KindRow &kind, Visit isEnough)
{
    for (int n = 1; n <= int(form.FeeEarnerGroupsCollection().size()); ++n) {
        const auto group = form.FeeEarnerGroupByOrderID(n);
        const Group &candidate = mdRequired(group);
        // Counted even without a rate: a sum beyond 32 bits is always an error.
        const int count = SumOfCounts(candidate, feeEarners.value(candidate.UniqueID()), kind.count);
        if (isEnough(clsCommsGroup {group, count, TextValue(kind.rate(candidate)) > 0}))
            return;
    }
}

clsLine lineAt(const Form &form, const clsByGroup &feeEarners, int number, clsCommsKind kind)
{
    clsLine line {form, Kinds[int(kind)]};
    int found = 0;
    walkGroups(form, feeEarners, line.kind, [&](const clsCommsGroup &candidate) {
        found += candidate.takesLine();
        if (found != number)
            return false;
        line.group = candidate.group;
        line.count = candidate.count;
        return true;
    });
    return line;
}

clsLine lineAt(const Form &form, int number, clsCommsKind kind)
{
    return lineAt(form, feeEarnersByGroup(form), number, kind);
}

/// An amount as it comes out of its text: the totals add figures as they are printed.
double asPrinted(Money amount)
{
    return TextValue(MoneyToText(amount));
}

Money basicOf(const clsLine &line)
{
    if (!line.group)
        return {};
    return RoundMoney2(DoubleFromStrictText(line.kind.rate(*line.group)) * double(line.count));
}

Money groupEnhancementOf(const clsLine &line)
{
    if (!line.group || !line.group->EnhanceComms())
        return {};
    return RoundMoney2(PercentageCalculate(basicOf(line), line.group->EnhancementRate()));
}

/// The enhancement set for the kind, or null.
std::shared_ptr<clsZR3Enhancement> listedEnhancement(const Form &form, const KindRow &kind)
{
    const Comms &settings = form.Communications;
    if (!kind.enhanced(settings))
        return {};
    return form.EnhancementByUniqueID(kind.enhancementUniqueID(settings));
}

Money listedEnhancementOf(const clsLine &line)
{
    const auto enhancement = listedEnhancement(line.form, line.kind);
    return enhancement ? PercentageCalculate(basicOf(line), enhancement->Rate()) : Money();
}

Money enhancementOf(const clsLine &line)
{
    if (!line.group)
        return {};
    return mdSumOf({listedEnhancementOf(line), groupEnhancementOf(line)});
}

Money claimOf(const clsLine &line)
{
    if (!line.group)
        return {};
    const double enhancement = asPrinted(enhancementOf(line));
    return MoneyFromDouble(enhancement + asPrinted(basicOf(line)));
}

} // namespace

std::vector<clsCommsGroup> CommsGroups(const clsZR3Form &form, clsCommsKind kind)
{
    std::vector<clsCommsGroup> groups;
    walkGroups(form, feeEarnersByGroup(form), Kinds[int(kind)], [&](const clsCommsGroup &group) {
        groups.push_back(group);
        return false;
    });
    return groups;
}

std::shared_ptr<clsZR3Enhancement> CommsEnhancement(const clsZR3Form &form, clsCommsKind kind)
{
    return listedEnhancement(form, Kinds[int(kind)]);
}

std::shared_ptr<clsZR3FeeEarnerGroup> CommsGroupAtLine(const clsZR3Form &form, int line, clsCommsKind kind)
{
    return lineAt(form, line, kind).group;
}

Money CommsRateAtLine(const clsZR3Form &form, int line, clsCommsKind kind)
{
    const clsLine found = lineAt(form, line, kind);
    return found.group ? RoundMoney2(MoneyFromText(found.kind.rate(*found.group))) : Money();
}

QString CommsCountAtLine(const clsZR3Form &form, int line, clsCommsKind kind)
{
    const clsLine found = lineAt(form, line, kind);
    return found.group ? QString::number(found.count) : QString();
}

Money CommsBasicAtLine(const clsZR3Form &form, int line, clsCommsKind kind)
{
    return basicOf(lineAt(form, line, kind));
}

Money CommsGroupEnhancement(const clsZR3Form &form, int line, clsCommsKind kind)
{
    return groupEnhancementOf(lineAt(form, line, kind));
}

Money CommsListedEnhancement(const clsZR3Form &form, int line, clsCommsKind kind)
{
    const clsLine found = lineAt(form, line, kind);
    return found.group ? listedEnhancementOf(found) : Money();
}

Money CommsEnhancementAtLine(const clsZR3Form &form, int line, clsCommsKind kind)
{
    return enhancementOf(lineAt(form, line, kind));
}

Money CommsClaimAtLine(const clsZR3Form &form, int line, clsCommsKind kind)
{
    return claimOf(lineAt(form, line, kind));
}

Money CommsTotal(const clsZR3Form &form)
{
    Money total;
    std::optional<clsByGroup> feeEarners;
    for (int line = 1; line <= CommsLines; ++line)
        for (const clsCommsKind kind : {clsCommsKind::Calls, clsCommsKind::LettersIn, clsCommsKind::LettersOut})
            mdExplained(form, line, kind, [&] {
                if (!feeEarners)
                    feeEarners = feeEarnersByGroup(form);
                total = total + MoneyFromDouble(asPrinted(claimOf(lineAt(form, *feeEarners, line, kind))));
            });
    return RoundMoney2(total);
}

Money ProfitCostsTotal(const clsBill &bill)
{
    const double schedule = asPrinted(ScheduleTotal(bill));
    return RoundMoney2(MoneyFromDouble(schedule + asPrinted(bill.communications())));
}

bool CommsAreSound(const clsBill &bill)
{
    const clsZR3Form &form = bill.form();
    try {
        bill.communications();
        const clsByGroup feeEarners = feeEarnersByGroup(form);
        for (int line = 1; line <= CommsLines; ++line)
            for (const clsCommsKind kind : {clsCommsKind::Calls, clsCommsKind::LettersIn, clsCommsKind::LettersOut})
                if (const clsLine found = lineAt(form, feeEarners, line, kind); found.group)
                    MoneyFromText(found.kind.rate(*found.group));
        return true;
    } catch (const clsRunTimeError &) {
        return false;
    }
}
