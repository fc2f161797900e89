#include "costing/comparing/mdCompareClaims.h"

#include "costing/checking/mdCheckClaim.h"
#include "costing/checking/mdWhySums.h"
#include "costing/comparing/mdMatchItems.h"
#include "costing/mdBillFigures.h"
#include "costing/tables/mdClaimItems.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdRecordInWords.h"

#include <QStringList>

#include <algorithm>
#include <cstring>

namespace {

using Form = clsZR3Form;

// Fields

struct clsSectionRow {
    const char *screen;
    const clsXMLRecord &(*record)(const Form &form);
};

template <auto Section> const clsXMLRecord &sectionOf(const Form &form)
{
    return form.*Section;
}

// clang-format off
constexpr clsSectionRow Sections[] = {
    {"Client Details",             sectionOf<&Form::ClientDetails>},
    {"Solicitor Details",          sectionOf<&Form::SolicitorDetails>},
    {"Previous Advice",            sectionOf<&Form::PreviousAdvice>},
    {"Case Information",           sectionOf<&Form::CaseInformation>},
    {"Outcome of Case",            sectionOf<&Form::OutcomeOfCase>},
    {"Late Submission",            sectionOf<&Form::LateSubmission>},
    {"Nature of Proceedings",      sectionOf<&Form::NatureOfProceedings>},
    {"Actual Costs",               sectionOf<&Form::ActualCostsIncurred>},
    {"Details of Work",            sectionOf<&Form::DetailsOfWork>},
    {"Counsel Outstanding Claims", sectionOf<&Form::CounselOutstandingClaims>},
    {"Communications",             sectionOf<&Form::Communications>},
    {"Details of Monies Awarded",  sectionOf<&Form::DetailsOfMonies>},
    {"Details of Costs Awarded",   sectionOf<&Form::DetailsOfCostsAwarded>},
    {"Debtor's Details",           sectionOf<&Form::DebtorsDetails>},
};

/// Values changed by saving or by using the program, without a meaning for the claim.
constexpr const char *NoDifferences[] = {
    "path", "version", "timespent", "idcounter", "exportpath", "defaultfeeearnerlistindex",
};

/// The screens of the claim's own fields, except those on its setup screen.
struct clsOwnFieldRow {
    const char *beginning; ///< of the property's name
    const char *screen;
};

constexpr clsOwnFieldRow OwnFields[] = {
    {"ExcludeNonAdvocacy", "Schedule of Time"},
    {"ExpertsMeetMOJStandard", "Disbursements"},
};
// clang-format on

bool isNoDifference(const clsXMLProperty &property)
{
    return std::any_of(std::begin(NoDifferences), std::end(NoDifferences),
        [&](const char *element) { return std::strcmp(element, property.element) == 0; });
}

QString screenOfOwn(const QString &property)
{
    for (const clsOwnFieldRow &row : OwnFields)
        if (property.startsWith(QLatin1String(row.beginning)))
            return QString::fromLatin1(row.screen);
    return QStringLiteral("Form Setup");
}

void addChange(std::vector<clsFieldChange> &changes, const clsFieldChange &change)
{
    if (change.Old != change.New)
        changes.push_back(change);
}

/// Compares two records of one class. `screenOf` returns the screen of a property.
template <class ScreenOf>
void addChanges(
    std::vector<clsFieldChange> &changes, const clsXMLRecord &before, const clsXMLRecord &after, ScreenOf screenOf)
{
    for (const clsXMLPropertyPlace &row : before.properties()) {
        if (isNoDifference(*row.property))
            continue;
        const QString name = QString::fromLatin1(row.property->name);
        addChange(changes,
            {screenOf(name), name, mdValueOf(*before.field(name)), mdValueOf(*after.field(name)), row.property->kind});
    }
}

std::vector<clsFieldChange> fieldChanges(const Form &before, const Form &after)
{
    std::vector<clsFieldChange> changes;
    addChanges(changes, before, after, screenOfOwn);
    for (const clsSectionRow &row : Sections)
        addChanges(changes, row.record(before), row.record(after),
            [&](const QString &) { return QString::fromLatin1(row.screen); });
    // The element exists only while a limit is set.
    addChange(changes,
        {QStringLiteral("Costs Limit"), QStringLiteral("CostsLimit"), mdStoredCostsLimit(before),
            mdStoredCostsLimit(after)});
    return changes;
}

// Items

template <class Item> Money claimOf(const clsXMLRecord &item)
{
    return static_cast<const Item &>(item).Claim();
}

Money totalOf(const clsXMLRecord &item)
{
    return static_cast<const clsZR3FASItem &>(item).Total();
}

template <class Item, auto Net, auto VAT> Money grossOf(const clsXMLRecord &item)
{
    const auto &own = static_cast<const Item &>(item);
    return MoneyFromText((own.*Net)()) + MoneyFromText((own.*VAT)());
}

struct clsListRow {
    const char *word;
    std::vector<const char *> sameIn; ///< the common properties of matching items that are not equal
    Money (*worth)(const clsXMLRecord &item) = nullptr;
};

const clsListRow &rowOf(const clsClaimItems &list)
{
    using Spent = clsZR3Disbursement;
    using Invoice = clsZR3ExpertInvoice;
    // clang-format off
    static const clsListRow rows[] = {
        {"schedule",      {"dDate", "FeeEarnerUniqueID"}, claimOf<clsZR3ScheduleOfTimeItem>},
        {"disbursements", {"Description"},                grossOf<Spent, &Spent::Amount, &Spent::VAT>},
        {"experts",       {"ExpertType"},                 grossOf<Invoice, &Invoice::NetAmount, &Invoice::VATAmount>},
        {"joint",         {"ExpertType"}},
        {"fas",           {"dDate"},                      totalOf},
        {"",              {"UniqueID"}},
    };
    // clang-format on
    const auto *row = std::find_if(std::begin(rows), std::end(rows) - 1,
        [&](const clsListRow &candidate) { return std::strcmp(candidate.word, list.word) == 0; });
    return *row;
}

QString effectOf(const clsListRow &row, const clsItemMatch &match)
{
    if (!row.worth)
        return {};
    try {
        const Money before = match.Old ? row.worth(*match.Old) : Money();
        const Money after = match.New ? row.worth(*match.New) : Money();
        return MoneyToText(after - before);
    } catch (const clsRunTimeError &error) {
        return QStringLiteral("!%1").arg(error.number());
    }
}

clsItemChange itemChange(const clsClaimItems &list, const clsItemMatch &match)
{
    clsItemChange change;
    change.List = QString::fromLatin1(list.word);
    change.Name = mdRecordInWords(match.New ? *match.New : *match.Old);
    change.Change = !match.Old ? clsItemChange::Added : !match.New ? clsItemChange::Removed : clsItemChange::Changed;
    change.OldItem = match.Old ? mdOrderOf(*match.Old) : 0;
    change.NewItem = match.New ? mdOrderOf(*match.New) : 0;
    const clsXMLRecord &either = match.Old ? *match.Old : *match.New;
    for (const clsXMLPropertyPlace &place : either.properties()) {
        const QString name = QString::fromLatin1(place.property->name);
        if (name == QLatin1String("OrderID"))
            continue;
        const auto valueIn = [&](const clsXMLRecord *item) { return item ? mdValueOf(*item->field(name)) : QString(); };
        addChange(change.Fields, {{}, name, valueIn(match.Old), valueIn(match.New), place.property->kind});
    }
    change.Effect = effectOf(rowOf(list), match);
    return change;
}

std::vector<clsItemChange> itemChanges(const Form &before, const Form &after)
{
    std::vector<clsItemChange> changes;
    for (const clsClaimItems &list : mdClaimItems())
        for (const clsItemMatch &match : mdMatchItems(list.items(before), list.items(after), rowOf(list).sameIn))
            if (!match.isEqual)
                changes.push_back(itemChange(list, match));
    return changes;
}

// Totals

QString figureText(const clsBill &bill, const clsBillFigure *row)
{
    if (!row)
        return {};
    try {
        return MoneyToText(row->figure(bill));
    } catch (const clsRunTimeError &error) {
        return QStringLiteral("!%1").arg(error.number());
    }
}

/// The keys of the bill's summary, followed by those that only the other form has.
QStringList summaryKeys(const Form &before, const Form &after)
{
    QStringList keys;
    for (const Form *form : {&before, &after})
        for (const clsBillFigure &row : mdSummaryFigures(*form))
            if (const QString key = QString::fromLatin1(row.key); !keys.contains(key))
                keys << key;
    return keys;
}

std::vector<clsTotalChange> totalChanges(const Form &before, const Form &after)
{
    const clsKeptHearingsVAT keptBefore(before);
    const clsKeptHearingsVAT keptAfter(after);
    const clsBill old(before);
    const clsBill now(after);
    std::vector<clsTotalChange> changes;
    const auto add = [&](const QString &key, const clsBillFigure *oldRow, const clsBillFigure *newRow) {
        const clsTotalChange change {key, figureText(old, oldRow), figureText(now, newRow)};
        if (change.Old != change.New)
            changes.push_back(change);
    };
    for (const clsBillFigure &row : mdTotalFigures())
        add(QString::fromLatin1(row.key), &row, &row);
    for (const QString &key : summaryKeys(before, after)) {
        const QByteArray word = key.toLatin1();
        add(key, mdFigureOf(mdSummaryFigures(before), QLatin1String(word)),
            mdFigureOf(mdSummaryFigures(after), QLatin1String(word)));
    }
    return changes;
}

} // namespace

clsClaimChanges mdCompareClaims(const clsZR3Form &before, const clsZR3Form &after)
{
    return {fieldChanges(before, after), itemChanges(before, after), totalChanges(before, after)};
}
