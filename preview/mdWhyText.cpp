#include "preview/mdWhyText.h"

#include "costing/checking/mdCheckWords.h"
#include "formdata/clsZR3Form.h"

#include <algorithm>

namespace {

/// The number of buttons that fit on the sheet. If there are more places there is one for each screen, and the steps
/// lead to the rest.
constexpr size_t MostPlaces = 6;

struct clsListRow {
    const char *list;
    const char *item;
};

constexpr clsListRow Lists[] = {
    {"schedule", "Item %1"},
    {"groups", "Group %1"},
    {"enhancements", "Enhancement %1"},
    {"disbursements", "Disbursement %1"},
    {"experts", "Expert invoice %1"},
    {"fas", "FAS item %1"},
};

/// A list without an item leads only to its screen.
bool isSame(const clsWhySource &left, const clsWhySource &right)
{
    return left.Screen == right.Screen && left.Item == right.Item && left.Property == right.Property
        && (left.List == right.List || left.Item == 0);
}

bool isOneOf(const std::vector<clsWhyPlace> &places, const clsWhySource &source)
{
    return std::any_of(
        places.begin(), places.end(), [&](const clsWhyPlace &place) { return isSame(place.source, source); });
}

void addPlace(std::vector<clsWhyPlace> &places, const clsZR3Form &form, const clsWhySource &source)
{
    if (!source.Screen.isEmpty() && !isOneOf(places, source))
        places.push_back({mdSourceInWords(form, source), source});
}

std::vector<clsWhyPlace> placesOf(const clsZR3Form &form, const clsWhy &why)
{
    std::vector<clsWhyPlace> places;
    addPlace(places, form, why.source());
    for (const clsWhyStep &step : why.steps())
        addPlace(places, form, step.Source);
    if (places.size() <= MostPlaces)
        return places;
    places.clear();
    for (const clsWhyStep &step : why.steps())
        addPlace(places, form, {step.Source.Screen});
    return places;
}

} // namespace

QString mdSourceInWords(const clsZR3Form &form, const clsWhySource &source)
{
    if (source.List == QLatin1String("groups"))
        if (const auto group = form.FeeEarnerGroupByOrderID(source.Item))
            return mdInWords(*group);
    if (source.List == QLatin1String("enhancements"))
        if (const auto listed = form.EnhancementByOrderID(source.Item); listed && !listed->Name.isEmpty())
            return listed->Name();
    for (const clsListRow &row : Lists)
        if (source.Item > 0 && source.List == QLatin1String(row.list))
            return QString::fromLatin1(row.item).arg(source.Item);
    return source.Screen;
}

clsWhyText mdWhyText(const clsZR3Form &form, const clsWhy &why, const QString &about)
{
    clsWhyText text {why.hasFailed() ? QStringLiteral("Why there is no figure")
                                     : QStringLiteral("Why %1").arg(why.steps().back().shown()),
        about};
    text.origins = why.steps();
    text.places = placesOf(form, why);
    for (const clsWhyStep &step : why.steps()) {
        const bool hasButton = isOneOf(text.places, step.Source);
        const bool isLast = &step == &why.steps().back();
        text.steps.push_back({step.Text, step.Reason, step.shown(), step.Value.startsWith(u'!'),
            !step.Asked.isEmpty() || (!isLast && !step.Source.Screen.isEmpty() && !hasButton)});
    }
    return text;
}
