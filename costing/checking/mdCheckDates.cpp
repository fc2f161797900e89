#include "costing/checking/mdCheckRules.h"

#include "base/mdDateText.h"
#include "costing/checking/mdCheckWords.h"

namespace {

/// A billed item that has or should have a date.
struct clsDated {
    clsFindingPlace place;
    QString name;
    std::optional<QDate> date;
};

/// Visits the billed items, counsel's fees and hearings of the advocacy scheme with wrong dates. Only these get their
/// names built.
template <class IsWrong, class Look> void eachWrongDate(clsClaimCheck &check, IsWrong isWrong, Look look)
{
    check.eachBilled([&](const clsBilledItem &billed) {
        if (isWrong(billed.date))
            look([&] {
                return clsDated {{ScheduleScreen, "schedule", billed.order, QStringLiteral("dDate")},
                    QStringLiteral("Item %1").arg(billed.order), billed.date};
            });
    });
    check.each(check.form().DisbursementsCollection(), [&](const clsZR3Disbursement &fee, int order) {
        if (!fee.Counsel())
            return;
        if (const auto date = mdStoredDate(fee.DateOfWork()); isWrong(date))
            look([&] {
                return clsDated {
                    {DisbursementsScreen, "disbursements", order, QStringLiteral("DateOfWork")}, mdInWords(fee), date};
            });
    });
    if (!check.isClaim1A())
        return;
    check.each(check.form().FASItemsCollection(), [&](const clsZR3FASItem &item, int order) {
        if (const auto date = mdStoredDate(item.dDate()); isWrong(date))
            look([&] {
                return clsDated {{AdvocacyScreen, "fas", order, QStringLiteral("dDate")},
                    QStringLiteral("FAS item %1").arg(order), date};
            });
    });
}

/// Adds a finding for each billed item with a wrong date.
template <class IsWrong, class Text> void addWrongDates(clsClaimCheck &check, IsWrong isWrong, Text text)
{
    check.eachBilled([&](const clsBilledItem &billed) {
        if (billed.date && isWrong(*billed.date))
            check.add([&] {
                return clsToldFinding {
                    {ScheduleScreen, "schedule", billed.order, QStringLiteral("dDate")}, text(billed)};
            });
    });
}

/// The earlier of the two certificates' dates; nothing if neither is a date.
template <class Section> std::optional<QDate> certificateOf(const Section &section)
{
    const auto emergency = mdStoredDate(section.EmergencyCertificateDate());
    const auto substantive = mdStoredDate(section.SubstantiveCertificateDate());
    if (emergency && substantive)
        return std::min(*emergency, *substantive);
    return emergency ? emergency : substantive;
}

std::optional<QDate> certificateOf(const clsClaimCheck &check)
{
    if (check.isClaim1())
        return certificateOf(check.form().CaseInformation);
    if (check.isClaim1A())
        return certificateOf(check.form().OutcomeOfCase);
    return {};
}

} // namespace

void mdCheckDateMissing(clsClaimCheck &check)
{
    eachWrongDate(
        check, [](const std::optional<QDate> &date) { return !date; },
        [&](auto dated) {
            check.add([&] {
                const clsDated item = dated();
                return clsToldFinding {
                    item.place, item.name + QStringLiteral(" has no date: enter the day of the work.")};
            });
        });
}

void mdCheckDateFuture(clsClaimCheck &check)
{
    eachWrongDate(
        check, [&](const std::optional<QDate> &date) { return date && *date > check.facts().Today; },
        [&](auto dated) {
            check.add([&] {
                const clsDated item = dated();
                return clsToldFinding {item.place,
                    QStringLiteral("%1 is dated after today, %2: correct the date.")
                        .arg(mdWithApposition(item.name, DateText(*item.date)), DateText(check.facts().Today))};
            });
        });
}

void mdCheckDateBeforeCertificate(clsClaimCheck &check)
{
    const auto certificate = certificateOf(check);
    if (!certificate)
        return;
    addWrongDates(
        check, [&](QDate date) { return date < *certificate; },
        [&](const clsBilledItem &billed) {
            return QStringLiteral("%1 is dated before the certificate of %2.")
                .arg(billed.words(), DateText(*certificate));
        });
}

void mdCheckDateAfterFinalWork(clsClaimCheck &check)
{
    if (!check.isClaim1())
        return;
    const auto finalWork = mdStoredDate(check.form().CaseInformation.DateOfFinalWorkDate());
    if (!finalWork)
        return;
    addWrongDates(
        check, [&](QDate date) { return date > *finalWork; },
        [&](const clsBilledItem &billed) {
            return QStringLiteral("%1 is dated after the final work of %2: correct one of the two dates.")
                .arg(billed.words(), DateText(*finalWork));
        });
}
