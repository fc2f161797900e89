#include "costing/checking/mdCheckRules.h"

#include "costing/mdFigureFaults.h"
#include "formdata/mdOutcomesCollections.h"
#include "formdata/mdRecordInWords.h"

#include <iterator>

// The figures that can't be computed, in the same words as in the lists and messages.

namespace {

struct clsAdviceRow {
    const char *property;
    const char *advice;
};

constexpr clsAdviceRow Advice[] = {
    {"FeeEarnerUniqueID", "choose a fee earner who has a group"},
    {"TTime", "enter the time"},
    {"EnhancementUniqueID", "choose an enhancement, or none"},
    {"CounselUniqueID", "choose the counsel"},
    {"", "put it right there"},
};

QString sentenceOf(const clsFigureFault &fault)
{
    const auto *row = std::find_if(std::begin(Advice), std::end(Advice),
        [&](const clsAdviceRow &candidate) { return fault.property == QLatin1String(candidate.property); });
    const char *advice = row == std::end(Advice) ? "enter what belongs there" : row->advice;
    return fault.sentence.simplified() + QStringLiteral("; ") + QString::fromLatin1(advice) + u'.';
}

/// The faults that prevent a figure. If even they can't be determined (an order beyond 32 bits, for example), the error
/// itself is the fault.
template <class... Of> clsFigureFaults faultsOf(const clsClaimCheck &check, const Of &...of)
{
    try {
        return mdFigureFaults(check.form(), of...);
    } catch (const clsRunTimeError &error) {
        const QString words = error.cause().isEmpty() ? error.description() : error.cause();
        return {{QString(), words, words, error.number()}};
    }
}

/// Adds one finding for an item: its first fault.
template <class Item>
void addFirst(clsClaimCheck &check, const Item &item, const clsFindingPlace &place, const clsFigureFaults &faults)
{
    if (faults.empty())
        return;
    check.noteFault(item);
    clsFindingPlace at = place;
    at.property = faults.front().property;
    check.add(at, sentenceOf(faults.front()));
}

void checkSchedule(clsClaimCheck &check)
{
    const clsZR3Form &form = check.form();
    clsSchedulePrices *prices = nullptr;
    check.unlessItFails([&] { prices = &check.bill().prices(); });
    check.each(form.ScheduleOfTimeItemsCollection(), [&](const clsZR3ScheduleOfTimeItem &item, int order) {
        const bool isDecided = check.unlessItFails([&] { form.IsOnBill(item); });
        if (!isDecided || !prices || prices->of(item).fails())
            addFirst(check, item, {ScheduleScreen, "schedule", order}, faultsOf(check, item));
    });
}

void checkDisbursements(clsClaimCheck &check)
{
    const bool printsCounsel = check.isPrinted(4, 5);
    check.each(check.form().DisbursementsCollection(), [&](const clsZR3Disbursement &item, int order) {
        clsFigureFaults faults = faultsOf(check, item);
        std::erase_if(faults, [printsCounsel](const clsFigureFault &fault) {
            return !printsCounsel && fault.property == QLatin1String("CounselUniqueID");
        });
        addFirst(check, item, {DisbursementsScreen, "disbursements", order}, faults);
    });
    check.each(check.form().ExpertInvoicesCollection(), [&](const clsZR3ExpertInvoice &item, int order) {
        addFirst(check, item, {DisbursementsScreen, "experts", order}, faultsOf(check, item));
    });
}

void checkCommunications(clsClaimCheck &check)
{
    if (CommsAreSound(check.bill()))
        return;
    for (const clsCommsKind kind : {clsCommsKind::Calls, clsCommsKind::LettersIn, clsCommsKind::LettersOut})
        for (int line = 1; line <= CommsLines; ++line)
            addFirst(check, check.form().Communications, {CommunicationsScreen, "communications"},
                faultsOf(check, line, kind));
}

void checkAdvocacy(clsClaimCheck &check)
{
    if (!check.isClaim1A())
        return;
    check.each(check.form().FASItemsCollection(), [&](const clsZR3FASItem &item, int order) {
        addFirst(check, item, {AdvocacyScreen, "fas", order}, faultsOf(check, item));
    });
}

void checkOutcome(clsClaimCheck &check)
{
    if (!check.isPrinted(2, 2))
        return;
    const clsZR3OutcomeOfCase &outcome = check.form().OutcomeOfCase;
    const std::pair<const clsXMLField *, QStringList (*)()> lists[] = {
        {&outcome.StageOfCaseEnd, StageOfCaseEndCollection},
        {&outcome.HowDidCaseEnd, HowDidCaseEndCollection},
        {&outcome.Result, ResultCollection},
        {&outcome.ADRProposed, ADRProposedCollection},
        {&outcome.PublicBenefitsAchieved, PublicBenefitsAchievedCollection},
    };
    for (const auto &[field, list] : lists) {
        try {
            OutcomeCodeOf(list(), outcome, *field);
        } catch (const clsRunTimeError &error) {
            check.add({OutcomeScreen, "", 0, QString::fromLatin1(field->property().name)},
                error.cause() + QStringLiteral("; choose one."));
        }
    }
}

void checkFixedFee(clsClaimCheck &check)
{
    if (check.isPrinted(0, 4))
        addFirst(check, check.form().ActualCostsIncurred, {ActualCostsScreen}, mdFixedFeeFaults(check.form()));
}

} // namespace

void mdCheckFigures(clsClaimCheck &check)
{
    // In the order of the screens' lists; an unreadable list doesn't affect the others.
    for (const auto part :
        {checkSchedule, checkDisbursements, checkCommunications, checkAdvocacy, checkOutcome, checkFixedFee})
        check.unlessItFails([&] { part(check); });
}
