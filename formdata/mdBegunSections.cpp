#include "formdata/mdBegunSections.h"

#include "base/mdDateText.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdXMLTemplate.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

const clsXMLField &fieldOf(const clsXMLRecord &record, const char *name)
{
    return *record.field(QString::fromLatin1(name));
}

/// Whether a stored content counts as empty.
bool saysNothing(const char *content)
{
    if (*content == '\0' || std::strcmp(content, "False") == 0)
        return true;
    // An amount, a time or blanks: only zeros and separators.
    const QString text = XMLDecodeText(content).trimmed();
    return text == NoDate
        || std::all_of(text.begin(), text.end(), [](QChar c) { return c == u'0' || c == u'.' || c == u':'; });
}

bool holds(const clsXMLField &field)
{
    return !field.isThereAndEmpty() && !saysNothing(field.content());
}

bool holdsAny(const clsXMLRecord &record)
{
    return std::any_of(record.properties().begin(), record.properties().end(),
        [&](const clsXMLPropertyPlace &place) { return holds(fieldOf(record, place.property->name)); });
}

/// The properties of the claim itself that Form Setup stores. The VAT rate of a new claim comes from the preferences.
constexpr const char *SetupProperties[] = {"FormType", "VAT", "IncludePanelMembershipContSheet", "CostsAssessedByLSC",
    "CostsAssessedByCourt", "ExceptionalCaseFunding", "MentalHealth", "VHCC", "StageNumber", "TypeOfCase", "Notes",
    "IncludePage1", "IncludePage2", "IncludePage3", "IncludePage4", "IncludePage5", "IncludePage6", "IncludePage7",
    "IncludePage8", "IncludePage9", "IncludePage10", "IncludePage11", "IncludePage12", "IncludePage13"};

bool isSetUp(const clsZR3Form &form)
{
    const pugi::xml_node untouched = mdXMLTemplate("xmlZR3Form");
    return std::any_of(std::begin(SetupProperties), std::end(SetupProperties), [&](const char *name) {
        const clsXMLField &field = fieldOf(form, name);
        return std::strcmp(field.content(), untouched.child(field.property().element).child_value()) != 0;
    });
}

bool hasDisbursements(const clsZR3Form &form)
{
    return !form.DisbursementsCollection().empty() || !form.ExpertInvoicesCollection().empty()
        || !form.JointInstructionsCollection().empty() || holds(form.ExpertsMeetMOJStandardYes)
        || holds(form.ExpertsMeetMOJStandardNo) || holds(form.ExpertsMeetMOJStandardReasons);
}

/// The counts of letters and calls are stored with the fee earners.
bool hasCommunications(const clsZR3Form &form)
{
    const auto &feeEarners = form.FeeEarnersCollection();
    return holdsAny(form.Communications) || std::any_of(feeEarners.begin(), feeEarners.end(), [](const auto &counted) {
        return holds(counted->Calls) || holds(counted->LettersIn) || holds(counted->LettersOut);
    });
}

struct clsSectionRow {
    const char *tab;
    bool (*isBegun)(const clsZR3Form &form);
};

// clang-format off
constexpr clsSectionRow Rows[] = {
    {"Form Setup",                 isSetUp},
    {"Fee Earners / Rates",        [](const clsZR3Form &form) { return !form.FeeEarnerGroupsCollection().empty() || !form.FeeEarnersCollection().empty(); }},
    {"Counsel",                    [](const clsZR3Form &form) { return !form.CounselCollection().empty(); }},
    {"Enhancements",               [](const clsZR3Form &form) { return !form.EnhancementsCollection().empty(); }},
    {"Client Details",             [](const clsZR3Form &form) { return holdsAny(form.ClientDetails); }},
    {"Solicitor Details",          [](const clsZR3Form &form) { return holdsAny(form.SolicitorDetails); }},
    {"Previous Advice",            [](const clsZR3Form &form) { return holdsAny(form.PreviousAdvice); }},
    {"Case Information",           [](const clsZR3Form &form) { return holdsAny(form.CaseInformation); }},
    {"Outcome of Case",            [](const clsZR3Form &form) { return holdsAny(form.OutcomeOfCase); }},
    {"Late Submission",            [](const clsZR3Form &form) { return holdsAny(form.LateSubmission); }},
    {"Nature of Proceedings",      [](const clsZR3Form &form) { return holdsAny(form.NatureOfProceedings); }},
    {"Actual Costs",               [](const clsZR3Form &form) { return holdsAny(form.ActualCostsIncurred); }},
    {"Counsel Outstanding Claims", [](const clsZR3Form &form) { return holdsAny(form.CounselOutstandingClaims); }},
    {"Details of Work",            [](const clsZR3Form &form) { return holdsAny(form.DetailsOfWork); }},
    {"Schedule of Time",           [](const clsZR3Form &form) { return !form.ScheduleOfTimeItemsCollection().empty(); }},
    {"Disbursements",              hasDisbursements},
    {"Family Advocacy Scheme",     [](const clsZR3Form &form) { return !form.FASItemsCollection().empty(); }},
    {"Communications",             hasCommunications},
    {"Details of Costs Awarded",   [](const clsZR3Form &form) { return holdsAny(form.DetailsOfCostsAwarded); }},
    {"Details of Monies Awarded",  [](const clsZR3Form &form) { return holdsAny(form.DetailsOfMonies); }},
    {"Debtor's Details",           [](const clsZR3Form &form) { return holdsAny(form.DebtorsDetails); }},
};
// clang-format on

} // namespace

QSet<QString> mdBegunSections(const clsZR3Form &form)
{
    QSet<QString> begun;
    for (const clsSectionRow &row : Rows)
        if (row.isBegun(form))
            begun << QString::fromLatin1(row.tab);
    return begun;
}
