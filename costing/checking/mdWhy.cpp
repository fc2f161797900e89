#include "costing/checking/mdWhy.h"

#include <QStringList>

#include <algorithm>

namespace {

/// A number of digits and nothing else.
std::optional<int> numberOf(const QString &text)
{
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || !std::all_of(text.begin(), text.end(), isDigit))
        return {};
    return number;
}

template <std::optional<clsWhy> (*Why)(const clsBill &bill, int orderID)>
std::optional<clsWhy> ofItem(const clsBill &bill, const QString &which)
{
    const auto orderID = numberOf(which);
    return orderID ? Why(bill, *orderID) : std::nullopt;
}

std::optional<clsWhy> ofCommunications(const clsBill &bill, const QString &which)
{
    const QStringList parts = which.split(u'/');
    if (parts.size() != 2)
        return {};
    const auto kind = numberOf(parts[0]);
    const auto line = numberOf(parts[1]);
    if (!kind || !line || *kind > int(clsCommsKind::LettersOut))
        return {};
    return mdWhyCommunications(bill, clsCommsKind(*kind), *line);
}

struct clsKindRow {
    const char *word;
    std::optional<clsWhy> (*why)(const clsBill &bill, const QString &which);
};

constexpr clsKindRow Kinds[] = {
    {"schedule", ofItem<mdWhyScheduleItem>},
    {"communications", ofCommunications},
    {"fas", ofItem<mdWhyFASItem>},
    {"total", mdWhyTotal},
    {"list", mdWhyListColumn},
};

} // namespace

std::optional<clsWhy> mdWhy(const clsBill &bill, const QString &kind, const QString &which)
{
    for (const clsKindRow &row : Kinds)
        if (kind == QLatin1String(row.word))
            return row.why(bill, which);
    return {};
}
