#include "costing/checking/mdCheckRules.h"

#include "formdata/mdRecordInWords.h"
#include "formdata/mdSectionTabs.h"

#include <algorithm>
#include <cstring>
#include <string_view>

// Question marks from lost characters: a file can only contain the characters of one code page, and has "?" for any
// other.

namespace {

using Form = clsZR3Form;

/// Texts that are not prose: amounts, rates and times. Dates and identities are recognised by their names.
constexpr std::string_view Figures[] = {
    "AdvocacyRate",
    "Amount",
    "AmountRecovered",
    "BoltOnClaimed",
    "CallsRate",
    "CareAndSupervisionProfitCosts",
    "CareAndSupervisionProfitCostsVAT",
    "CounselRate",
    "CourtAttendanceHourlyRate",
    "CourtBundlePayment",
    "DebtorsIncome",
    "DeterminationAmount",
    "DuringCertificateCostsLSC",
    "DuringCertificateCostsMarketRates",
    "EnhancementRate",
    "ExceptionalTravel",
    "FixedFee",
    "HourlyRate",
    "InterestOnAllCosts",
    "LegalHelpInPreCertificateCostsAmount",
    "LettersInRate",
    "LettersOutRate",
    "NetAmount",
    "OtherCosts",
    "PercentApportioned",
    "PreCertificateCosts",
    "PreparationHourlyRate",
    "PrivateLawProfitCosts",
    "PrivateLawProfitCostsVAT",
    "Rate",
    "RateForUnits",
    "SettlementFee",
    "TTime",
    "TotalCostsAwarded",
    "TotalCostsIncurred",
    "TotalCourtCost",
    "TotalPrepCost",
    "TravelAndWaitingRate",
    "TravelTimeCosts",
    "VAT",
    "VATAmount",
    "VATForFAS",
    "VATRate",
    "Value",
};
static_assert(std::ranges::is_sorted(Figures));

bool isProse(const clsXMLProperty &property)
{
    return property.kind == clsXMLKind::Text && !std::strstr(property.name, "Date")
        && !std::strstr(property.name, "UniqueID")
        && !std::ranges::binary_search(Figures, std::string_view(property.name));
}

using clsProse = std::vector<const clsXMLPropertyPlace *>;

clsProse proseOf(const clsXMLRecord &record)
{
    clsProse prose;
    for (const clsXMLPropertyPlace &row : record.properties())
        if (isProse(*row.property))
            prose.push_back(&row);
    return prose;
}

/// The position of the first "?" that looks like a lost character, or -1. One that ends a question comes after a letter
/// and not before one.
qsizetype lostCharacter(const QString &text)
{
    for (qsizetype at = text.indexOf(u'?'); at >= 0; at = text.indexOf(u'?', at + 1)) {
        if (QStringView(text).mid(at, 3) == QLatin1String("???"))
            return at;
        const bool goesOn = at + 1 < text.size() && text[at + 1].isLetter();
        const QChar before = at > 0 ? text[at - 1] : QChar(u' ');
        if (goesOn && (before.isLetter() || before == u' ' || before == u'\r' || before == u'\n'))
            return at;
    }
    return -1;
}

/// Whether a content may contain a question mark, encoded or not: hardly any does, and the others need not be decoded.
bool mayHoldMark(const char *content)
{
    return std::strchr(content, '?') || std::strstr(content, "%3F") || std::strstr(content, "%3f");
}

/// The words around a position of a text.
QString excerptOf(const QString &text, qsizetype at)
{
    constexpr qsizetype Around = 15;
    return text.mid(std::max<qsizetype>(0, at - Around), 2 * Around).simplified();
}

/// A screen whose texts are being checked.
class clsTexts {
public:
    clsTexts(clsClaimCheck &check, const char *screen)
        : m_check(check)
        , m_screen(screen)
    { }

    const Form &form() const { return m_check.form(); }
    void section(const clsXMLRecord &record) { texts(record, proseOf(record), "", 0); }
    void field(const clsXMLField &field, const clsXMLRecord &record) { text(field, record, "", 0); }
    template <class Items> void items(const char *list, const Items &items)
    {
        clsProse prose;
        m_check.each(items, [&](const auto &item, int order) {
            if (prose.empty())
                prose = proseOf(item);
            texts(item, prose, list, order);
        });
    }

private:
    void texts(const clsXMLRecord &record, const clsProse &prose, const char *list, int order)
    {
        for (const clsXMLPropertyPlace *place : prose)
            text(record.field(*place), record, list, order);
    }
    void text(const clsXMLField &field, const clsXMLRecord &record, const char *list, int order)
    {
        if (!mayHoldMark(field.content()))
            return;
        const QString text = field.readText();
        const qsizetype at = lostCharacter(text);
        if (at < 0)
            return;
        const QString property = QString::fromLatin1(field.property().name);
        m_check.add({m_screen, list, order, property},
            QStringLiteral("%1: %2 holds %3, where a question mark may stand for a lost character; type it again.")
                .arg(mdRecordInWords(record).simplified(), mdPropertyInWords(property), mdQuoted(excerptOf(text, at))));
    }

    clsClaimCheck &m_check;
    const char *m_screen;
};

struct clsTextsRow {
    const char *screen;
    void (*look)(clsTexts &texts);
};

void lookAtFormSetup(clsTexts &texts)
{
    const Form &form = texts.form();
    for (const clsXMLField *field :
        std::initializer_list<const clsXMLField *> {&form.StageNumber, &form.TypeOfCase, &form.Notes})
        texts.field(*field, form);
}

void lookAtRates(clsTexts &texts)
{
    texts.items("groups", texts.form().FeeEarnerGroupsCollection());
    texts.items("feeearners", texts.form().FeeEarnersCollection());
}

void lookAtDisbursements(clsTexts &texts)
{
    const Form &form = texts.form();
    texts.items("experts", form.ExpertInvoicesCollection());
    texts.field(form.ExpertsMeetMOJStandardReasons, form);
    texts.items("joint", form.JointInstructionsCollection());
    texts.items("disbursements", form.DisbursementsCollection());
}

// clang-format off
constexpr clsTextsRow Screens[] = {
    {"Form Setup",               lookAtFormSetup},
    {RatesScreen,                lookAtRates},
    {"Counsel",                  [](clsTexts &texts) { texts.items("counsel", texts.form().CounselCollection()); }},
    {"Enhancements",
        [](clsTexts &texts) { texts.items("enhancements", texts.form().EnhancementsCollection()); }},
    {"Client Details",           [](clsTexts &texts) { texts.section(texts.form().ClientDetails); }},
    {"Solicitor Details",        [](clsTexts &texts) { texts.section(texts.form().SolicitorDetails); }},
    {"Previous Advice",          [](clsTexts &texts) { texts.section(texts.form().PreviousAdvice); }},
    {"Case Information",         [](clsTexts &texts) { texts.section(texts.form().CaseInformation); }},
    {"Late Submission",          [](clsTexts &texts) { texts.section(texts.form().LateSubmission); }},
    {"Nature of Proceedings",    [](clsTexts &texts) { texts.section(texts.form().NatureOfProceedings); }},
    {ActualCostsScreen,          [](clsTexts &texts) { texts.section(texts.form().ActualCostsIncurred); }},
    {WorkScreen,                 [](clsTexts &texts) { texts.section(texts.form().DetailsOfWork); }},
    {ScheduleScreen,
        [](clsTexts &texts) { texts.items("schedule", texts.form().ScheduleOfTimeItemsCollection()); }},
    {DisbursementsScreen,        lookAtDisbursements},
    {AdvocacyScreen,             [](clsTexts &texts) { texts.items("fas", texts.form().FASItemsCollection()); }},
    {"Details of Costs Awarded", [](clsTexts &texts) { texts.section(texts.form().DetailsOfCostsAwarded); }},
    {"Debtor's Details",         [](clsTexts &texts) { texts.section(texts.form().DebtorsDetails); }},
};
// clang-format on

} // namespace

void mdCheckCharacters(clsClaimCheck &check)
{
    const QString formType = check.form().FormType();
    for (int tab = 1; tab <= int(mdSectionTabs().size()); ++tab)
        for (const QString &screen : mdSubSectionTabs(tab, formType))
            for (const clsTextsRow &row : Screens)
                if (screen == QLatin1String(row.screen)) {
                    clsTexts texts(check, row.screen);
                    check.unlessItFails([&] { row.look(texts); });
                }
}
