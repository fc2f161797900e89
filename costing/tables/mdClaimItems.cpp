#include "costing/tables/mdClaimItems.h"

#include "formdata/clsZR3Form.h"

#include <algorithm>

namespace {

using Form = clsZR3Form;

template <auto Collection> std::vector<const clsXMLRecord *> itemsOf(const Form &form)
{
    std::vector<std::pair<int, const clsXMLRecord *>> ordered;
    for (const auto &item : (form.*Collection)())
        ordered.emplace_back(mdOrderOf(*item), item.get());
    std::stable_sort(
        ordered.begin(), ordered.end(), [](const auto &left, const auto &right) { return left.first < right.first; });
    std::vector<const clsXMLRecord *> items;
    items.reserve(ordered.size());
    for (const auto &[order, item] : ordered)
        items.push_back(item);
    return items;
}

template <class Item> QStringList propertiesOf()
{
    Form claim;
    const Item item(claim);
    QStringList names;
    for (const clsXMLPropertyPlace &place : item.properties())
        names << QString::fromLatin1(place.property->name);
    return names;
}

template <auto Collection, class Item> constexpr clsClaimItems listOf(const char *word)
{
    return {word, itemsOf<Collection>, propertiesOf<Item>};
}

constexpr clsClaimItems Lists[] = {
    listOf<&Form::ScheduleOfTimeItemsCollection, clsZR3ScheduleOfTimeItem>("schedule"),
    listOf<&Form::DisbursementsCollection, clsZR3Disbursement>("disbursements"),
    listOf<&Form::ExpertInvoicesCollection, clsZR3ExpertInvoice>("experts"),
    listOf<&Form::JointInstructionsCollection, clsZR3JointInstruction>("joint"),
    listOf<&Form::FASItemsCollection, clsZR3FASItem>("fas"),
    listOf<&Form::CounselCollection, clsZR3Counsel>("counsel"),
    listOf<&Form::FeeEarnersCollection, clsZR3FeeEarner>("feeearners"),
    listOf<&Form::FeeEarnerGroupsCollection, clsZR3FeeEarnerGroup>("groups"),
    listOf<&Form::EnhancementsCollection, clsZR3Enhancement>("enhancements"),
};

/// Runs a read of a field; false if it fails.
template <class Read> bool reads(Read read)
{
    try {
        read();
        return true;
    } catch (const clsRunTimeError &) {
        return false;
    }
}

} // namespace

bool clsClaimItems::is(QStringView name) const
{
    return name == QLatin1String(word);
}

std::span<const clsClaimItems> mdClaimItems()
{
    return Lists;
}

int mdOrderOf(const clsXMLRecord &item)
{
    int order = 0;
    const clsXMLField *field = item.field(u"OrderID");
    if (!field || !reads([&] { order = field->readLong(); }))
        return 0;
    return order;
}

QString mdValueOf(const clsXMLField &field)
{
    QString value;
    const bool isOfItsKind = reads([&] {
        switch (field.property().kind) {
        case clsXMLKind::Boolean: value = field.readBoolean() ? QStringLiteral("True") : QStringLiteral("False"); break;
        case clsXMLKind::Long: value = QString::number(field.readLong()); break;
        case clsXMLKind::Text: value = field.readText(); break;
        }
    });
    if (!isOfItsKind)
        reads([&] { value = field.readText(); });
    return value;
}
