#include "costing/comparing/mdChangesInWords.h"

#include "base/mdFormatMoney.h"
#include "costing/checking/mdWhy.h"
#include "costing/tables/mdTableColumns.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdOutcomesCollections.h"
#include "formdata/mdRecordInWords.h"

#include <QStringList>

#include <algorithm>

namespace {

using Form = clsZR3Form;

constexpr QLatin1String Identity("UniqueID");

struct clsChoiceRow {
    const char *property; ///< stores a position in a list
    QStringList (*entries)();
};

constexpr clsChoiceRow Choices[] = {
    {"StageOfCaseEnd", StageOfCaseEndCollection},
    {"HowDidCaseEnd", HowDidCaseEndCollection},
    {"Result", ResultCollection},
    {"ADRProposed", ADRProposedCollection},
    {"PublicBenefitsAchieved", PublicBenefitsAchievedCollection},
};

bool refersToAnItem(const QString &property)
{
    return property.size() > Identity.size() && property.endsWith(Identity);
}

QString tickInWords(const QString &value)
{
    // An invalid tick is shown unchanged.
    return value == QLatin1String("True") ? QStringLiteral("yes")
        : value == QLatin1String("False") ? QStringLiteral("no")
                                          : value;
}

QString choiceInWords(const QString &property, const QString &value)
{
    for (const clsChoiceRow &row : Choices)
        if (property == QLatin1String(row.property)) {
            bool isNumber = false;
            const int place = value.toInt(&isNumber);
            return isNumber ? row.entries().value(place, value).trimmed() : value;
        }
    return value;
}

QString valueInWords(const Form &form, const clsFieldChange &field, const QString &value)
{
    if (refersToAnItem(field.Property))
        return value.isEmpty() ? value : mdNameOfReferred(form, field.Property, value);
    switch (field.Kind) {
    case clsXMLKind::Boolean: return tickInWords(value);
    case clsXMLKind::Long: return choiceInWords(field.Property, value);
    case clsXMLKind::Text: break;
    }
    return value;
}

QString propertyInWords(const QString &property)
{
    // There is also the tick "Counsel".
    if (property == QLatin1String("CounselUniqueID"))
        return QStringLiteral("Counsel's Name");
    return mdPropertyInWords(refersToAnItem(property) ? property.chopped(Identity.size()) : property);
}

clsFieldChange inWords(const clsFieldChange &field, const Form &before, const Form &after)
{
    clsFieldChange words = field;
    words.Property = propertyInWords(field.Property);
    words.Old = valueInWords(before, field, field.Old);
    words.New = valueInWords(after, field, field.New);
    // Two items with the same name are distinguished by their identities.
    if (words.Old == words.New) {
        words.Old += QStringLiteral(" (%1)").arg(field.Old);
        words.New += QStringLiteral(" (%1)").arg(field.New);
    }
    return words;
}

/// An amount, or the error in its place.
QString amountInWords(const QString &amount)
{
    if (amount.isEmpty() || amount.startsWith(u'!'))
        return amount;
    return mdFormatMoney(amount);
}

QString totalInWords(const QString &key, const Form &before, const Form &after)
{
    const QString words = mdTotalInWords(after, key);
    return words.isEmpty() ? mdTotalInWords(before, key) : words;
}

bool areEqual(const clsTotalChange &one, const clsTotalChange &other)
{
    return one.Key == other.Key && one.Old == other.Old && one.New == other.New;
}

std::vector<clsTotalChange> totalsInWords(
    const std::vector<clsTotalChange> &totals, const Form &before, const Form &after)
{
    std::vector<clsTotalChange> words;
    for (const clsTotalChange &total : totals) {
        clsTotalChange told {
            totalInWords(total.Key, before, after), amountInWords(total.Old), amountInWords(total.New)};
        // They differ by less than a penny.
        if (told.Old == told.New)
            told = {told.Key, total.Old, total.New};
        if (std::none_of(words.begin(), words.end(), [&](const auto &earlier) { return areEqual(earlier, told); }))
            words.push_back(told);
    }
    return words;
}

} // namespace

clsClaimChanges mdChangesInWords(clsClaimChanges changes, const clsZR3Form &before, const clsZR3Form &after)
{
    for (clsFieldChange &field : changes.Fields)
        field = inWords(field, before, after);
    for (clsItemChange &item : changes.Items) {
        std::erase_if(item.Fields, [](const clsFieldChange &field) { return field.Property == Identity; });
        for (clsFieldChange &field : item.Fields)
            field = inWords(field, before, after);
        item.Effect = amountInWords(item.Effect);
    }
    changes.Totals = totalsInWords(changes.Totals, before, after);
    return changes;
}
