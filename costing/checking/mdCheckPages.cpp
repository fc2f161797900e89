#include "costing/checking/mdCheckRules.h"

#include "costing/checking/mdCheckWords.h"

// The requirements of the pages: answers, the reasons for them, and required fields.

namespace {

using Form = clsZR3Form;
using Field = const clsXMLField &(*)(const Form &form);

/// A property of a section, or of the claim itself.
#define ZR3_FIELD(path) [](const Form &form) -> const clsXMLField & { return form.path; }

bool always(const Form &)
{
    return true;
}

bool hasPrivateLawCosts(const Form &form)
{
    return mdStoredAmount(form.ActualCostsIncurred.PrivateLawProfitCosts) != Money();
}

bool hasCounselsFee(const Form &form)
{
    bool found = false;
    clsClaimCheck::each(form.DisbursementsCollection(),
        [&](const clsZR3Disbursement &disbursement, int) { found = found || disbursement.Counsel(); });
    return found;
}

bool hasExpertInvoice(const Form &form)
{
    return !form.ExpertInvoicesCollection().empty();
}

/// A question with a tick for Yes and one for No, and its page on each form, 0 for none.
struct clsQuestionRow {
    const char *screen;
    int claim1Page;
    int claim1APage;
    const char *words;
    Field yes;
    Field no;
    bool (*isAsked)(const Form &form) = always;
};

#define ZR3_PAIR(question) ZR3_FIELD(question##Yes), ZR3_FIELD(question##No)

constexpr char AdviceScreen[] = "Previous Advice";
constexpr char NatureScreen[] = "Nature of Proceedings";

// clang-format off
constexpr clsQuestionRow Questions[] = {
    {AdviceScreen, 1, 1, "Legal help before this certificate",
        ZR3_PAIR(PreviousAdvice.LegalHelp)},
    {AdviceScreen, 1, 0, "Costs of all other providers included",
        ZR3_PAIR(PreviousAdvice.InclusiveOfAllSolicitors)},
    {AdviceScreen, 1, 1, "Final bill on this certificate",
        ZR3_PAIR(PreviousAdvice.FurtherClaims)},
    {OutcomeScreen, 2, 2, "Wasted costs order",
        ZR3_PAIR(OutcomeOfCase.WastedCostsOrder)},
    {NatureScreen, 0, 3, "Other providers",
        ZR3_PAIR(NatureOfProceedings.OtherProviders)},
    {NatureScreen, 0, 3, "Half fee for a change of solicitor",
        ZR3_PAIR(NatureOfProceedings.ChangeOfSolicitorHalfFee)},
    {ActualCostsScreen, 0, 4, "Previous claim for payment on account",
        ZR3_PAIR(ActualCostsIncurred.PrivateLawPreviousClaim), hasPrivateLawCosts},
    {ActualCostsScreen, 0, 4, "Settlement fee",
        ZR3_PAIR(ActualCostsIncurred.PrivateLawSettlementFee), hasPrivateLawCosts},
    {ActualCostsScreen, 0, 4, "Exceptional case",
        ZR3_PAIR(ActualCostsIncurred.ExceptionalCase)},
    {"Counsel Outstanding Claims", 4, 5, "Counsel's outstanding claims",
        ZR3_PAIR(CounselOutstandingClaims.OutstandingClaims), hasCounselsFee},
    {DisbursementsScreen, 6, 6, "Experts meet MOJ standard",
        ZR3_PAIR(ExpertsMeetMOJStandard), hasExpertInvoice},
};

/// An answer that requires further text.
struct clsReasonsRow {
    const char *screen;
    int claim1Page;
    int claim1APage;
    const char *words;
    Field tick;
    Field reasons;
    bool isDate = false;
};

constexpr clsReasonsRow Reasons[] = {
    {AdviceScreen, 1, 0, "The costs of all other providers are not included, but no reasons are given: give them.",
        ZR3_FIELD(PreviousAdvice.InclusiveOfAllSolicitorsNo), ZR3_FIELD(PreviousAdvice.InclusiveOfAllSolicitorsReasons)},
    {DisbursementsScreen, 6, 6, "The experts do not meet the MOJ standard, but no reasons are given: give them.",
        ZR3_FIELD(ExpertsMeetMOJStandardNo), ZR3_FIELD(ExpertsMeetMOJStandardReasons)},
    {AdviceScreen, 1, 1, "Legal Help was given, but the form's date is missing: enter the day on which it was signed.",
        ZR3_FIELD(PreviousAdvice.LegalHelpYes), ZR3_FIELD(PreviousAdvice.DateLegalHelpFormSigned), true},
};

/// A required field.
struct clsMissingRow {
    enum Kind { Text, Date, Choice };

    const char *screen;
    int claim1Page;
    int claim1APage;
    const char *words;
    Field field;
    Kind kind = Text;
};

constexpr char ClientScreen[] = "Client Details";
constexpr char SolicitorScreen[] = "Solicitor Details";
constexpr char CaseScreen[] = "Case Information";

constexpr clsMissingRow Missing[] = {
    {ClientScreen, 1, 1, "The client's surname",
        ZR3_FIELD(ClientDetails.Surname)},
    {ClientScreen, 1, 1, "The client's first name",
        ZR3_FIELD(ClientDetails.FirstName)},
    {ClientScreen, 1, 1, "The case reference number",
        ZR3_FIELD(ClientDetails.CaseReferenceNumber)},
    {SolicitorScreen, 1, 1, "The firm's account number",
        ZR3_FIELD(SolicitorDetails.AccountNumber)},
    {SolicitorScreen, 1, 1, "The name of the firm",
        ZR3_FIELD(SolicitorDetails.NameOfFirm)},
    {SolicitorScreen, 1, 1, "The contact name for enquiries",
        ZR3_FIELD(SolicitorDetails.ContactNameForEnquiries)},
    {CaseScreen, 2, 0, "The name of the court",
        ZR3_FIELD(CaseInformation.NameOfCourt)},
    {CaseScreen, 2, 0, "The date of the final work",
        ZR3_FIELD(CaseInformation.DateOfFinalWorkDate), clsMissingRow::Date},
    {WorkScreen, 3, 9, "The description of the work",
        ZR3_FIELD(DetailsOfWork.DetailsOfCase)},
    {NatureScreen, 0, 3, "The description of the proceedings",
        ZR3_FIELD(NatureOfProceedings.DetailsOfCase)},
    {OutcomeScreen, 2, 2, "The stage at which the case ended",
        ZR3_FIELD(OutcomeOfCase.StageOfCaseEnd), clsMissingRow::Choice},
    {OutcomeScreen, 2, 2, "How the case ended",
        ZR3_FIELD(OutcomeOfCase.HowDidCaseEnd), clsMissingRow::Choice},
    {OutcomeScreen, 2, 2, "The result",
        ZR3_FIELD(OutcomeOfCase.Result), clsMissingRow::Choice},
    {OutcomeScreen, 2, 2, "What was proposed for ADR",
        ZR3_FIELD(OutcomeOfCase.ADRProposed), clsMissingRow::Choice},
    {OutcomeScreen, 2, 2, "What public benefits were achieved",
        ZR3_FIELD(OutcomeOfCase.PublicBenefitsAchieved), clsMissingRow::Choice},
};
// clang-format on

#undef ZR3_PAIR
#undef ZR3_FIELD

bool isMissing(const clsXMLField &field, clsMissingRow::Kind kind)
{
    if (kind == clsMissingRow::Choice)
        return field.readLong() == 0;
    const QString text = field.readText();
    return kind == clsMissingRow::Date ? !mdStoredDate(text) : mdIsEmptyText(text);
}

clsFindingPlace placeOf(const char *screen, const clsXMLField &field)
{
    return {screen, "", 0, QString::fromLatin1(field.property().name)};
}

/// Visits each row whose page is printed.
template <class Rows, class Look> void eachPrinted(const clsClaimCheck &check, const Rows &rows, Look look)
{
    for (const auto &row : rows)
        if (check.isPrinted(row.claim1Page, row.claim1APage))
            clsClaimCheck::unlessItFails([&] { look(row); });
}

} // namespace

void mdCheckQuestionOpen(clsClaimCheck &check)
{
    const Form &form = check.form();
    eachPrinted(check, Questions, [&](const clsQuestionRow &row) {
        if (!row.yes(form).readBoolean() && !row.no(form).readBoolean() && row.isAsked(form))
            check.add(placeOf(row.screen, row.yes(form)),
                QString::fromLatin1(row.words) + QStringLiteral(": neither Yes nor No is ticked; tick one."));
    });
}

void mdCheckReasonsMissing(clsClaimCheck &check)
{
    const Form &form = check.form();
    eachPrinted(check, Reasons, [&](const clsReasonsRow &row) {
        if (row.tick(form).readBoolean()
            && isMissing(row.reasons(form), row.isDate ? clsMissingRow::Date : clsMissingRow::Text))
            check.add(placeOf(row.screen, row.reasons(form)), QString::fromLatin1(row.words));
    });
}

void mdCheckMissing(clsClaimCheck &check)
{
    const Form &form = check.form();
    eachPrinted(check, Missing, [&](const clsMissingRow &row) {
        if (isMissing(row.field(form), row.kind))
            check.add(placeOf(row.screen, row.field(form)),
                QString::fromLatin1(row.words)
                    + (row.kind == clsMissingRow::Choice ? QStringLiteral(": nothing is chosen; choose an entry.")
                                                         : QStringLiteral(" is missing: enter it.")));
    });
}
