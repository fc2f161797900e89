#include "costing/mdGetCommsInfo.h"

#include "costing/mdGetColumnTotals.h"
#include "costing/mdPercentageCalculate.h"
#include "costing/mdSumOf.h"
#include "formdata/clsZR3Form.h"
#include "shell/mdExisting.h"
#include "shell/mdNumberText.h"

namespace {

/// What a kind means for a group, a fee earner and the claim's settings.
struct KindRow {
    QString (*rate)(const clsZR3FeeEarnerGroup &);
    int (*count)(const clsZR3FeeEarnerGroup &);
    bool (*enhanced)(const clsZR3Communications &);
    QString (*enhancementUniqueID)(const clsZR3Communications &);
};

using Group = clsZR3FeeEarnerGroup;
using Comms = clsZR3Communications;

const KindRow Kinds[] = {
    {[](const Group &g) { return g.CallsRate(); }, [](const Group &g) { return g.Calls(); },
        [](const Comms &c) { return c.EnhanceCalls(); }, [](const Comms &c) { return c.CallsEnhancementUniqueID(); }},
    {[](const Group &g) { return g.LettersInRate(); }, [](const Group &g) { return g.LettersIn(); },
        [](const Comms &c) { return c.EnhanceLettersIn(); },
        [](const Comms &c) { return c.LettersInEnhancementUniqueID(); }},
    {[](const Group &g) { return g.LettersOutRate(); }, [](const Group &g) { return g.LettersOut(); },
        [](const Comms &c) { return c.EnhanceLettersOut(); },
        [](const Comms &c) { return c.LettersOutEnhancementUniqueID(); }},
};

const KindRow &rowOf(clsCommsKind kind)
{
    return Kinds[int(kind)];
}

/// An amount as it comes out of its text: the totals add figures as they are printed.
double asPrinted(Money amount)
{
    return TextValue(MoneyToText(amount));
}

Money listedEnhancement(const clsZR3Form &form, int line, clsCommsKind kind)
{
    const KindRow &row = rowOf(kind);
    if (!row.enhanced(form.Communications))
        return {};
    const auto enhancement = form.EnhancementByUniqueID(row.enhancementUniqueID(form.Communications));
    if (!enhancement)
        return {};
    return PercentageCalculate(CommsBasicAtLine(form, line, kind), enhancement->Rate());
}

} // namespace

std::shared_ptr<clsZR3FeeEarnerGroup> CommsGroupAtLine(const clsZR3Form &form, int line, clsCommsKind kind)
{
    const KindRow &row = rowOf(kind);
    int found = 0;
    for (int n = 1; n <= int(form.FeeEarnerGroupsCollection().size()); ++n) {
        const auto group = form.FeeEarnerGroupByOrderID(n);
        const Group &candidate = mdExisting(group);
        const double rate = TextValue(row.rate(candidate));
        const int count
            = row.count(candidate); // read without a rate too: a sum beyond 32 bits is an error all the same
        if (count >= 1 && rate > 0)
            ++found;
        if (found == line)
            return group;
    }
    return {};
}

Money CommsRateAtLine(const clsZR3Form &form, int line, clsCommsKind kind)
{
    const auto group = CommsGroupAtLine(form, line, kind);
    return group ? RoundMoney2(MoneyFromText(rowOf(kind).rate(*group))) : Money();
}

QString CommsCountAtLine(const clsZR3Form &form, int line, clsCommsKind kind)
{
    const auto group = CommsGroupAtLine(form, line, kind);
    return group ? QString::number(rowOf(kind).count(*group)) : QString();
}

Money CommsBasicAtLine(const clsZR3Form &form, int line, clsCommsKind kind)
{
    const auto group = CommsGroupAtLine(form, line, kind);
    if (!group)
        return {};
    const KindRow &row = rowOf(kind);
    return RoundMoney2(DoubleFromStrictText(row.rate(*group)) * double(row.count(*group)));
}

Money CommsGroupEnhancement(const clsZR3Form &form, int line, clsCommsKind kind)
{
    const auto group = CommsGroupAtLine(form, line, kind);
    if (!group || !group->EnhanceComms())
        return {};
    return RoundMoney2(PercentageCalculate(CommsBasicAtLine(form, line, kind), group->EnhancementRate()));
}

Money CommsEnhancementAtLine(const clsZR3Form &form, int line, clsCommsKind kind)
{
    if (!CommsGroupAtLine(form, line, kind))
        return {};
    return mdSumOf({listedEnhancement(form, line, kind), CommsGroupEnhancement(form, line, kind)});
}

Money CommsClaimAtLine(const clsZR3Form &form, int line, clsCommsKind kind)
{
    if (!CommsGroupAtLine(form, line, kind))
        return {};
    const double enhancement = asPrinted(CommsEnhancementAtLine(form, line, kind));
    return MoneyFromDouble(enhancement + asPrinted(CommsBasicAtLine(form, line, kind)));
}

Money CommsTotal(const clsZR3Form &form)
{
    Money total;
    for (int line = 1; line <= CommsLines; ++line)
        for (const clsCommsKind kind : {clsCommsKind::Calls, clsCommsKind::LettersIn, clsCommsKind::LettersOut})
            total = total + MoneyFromDouble(asPrinted(CommsClaimAtLine(form, line, kind)));
    return RoundMoney2(total);
}

Money ProfitCostsTotal(const clsZR3Form &form)
{
    const double schedule = asPrinted(ScheduleTotal(form));
    return RoundMoney2(MoneyFromDouble(schedule + asPrinted(CommsTotal(form))));
}
