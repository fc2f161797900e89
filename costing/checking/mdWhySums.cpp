#include "costing/checking/mdWhySums.h"

#include "costing/checking/mdCheckWords.h"
#include "costing/mdFigureFaults.h"
#include "costing/mdGetColumnTotals.h"
#include "costing/mdGetCommsInfo.h"
#include "costing/mdGetFASTotals.h"
#include "formdata/clsZR3Form.h"

#include <array>

namespace {

using Form = clsZR3Form;

/// The name of an item at the start of a step.
template <class Item> QString nameOf(const Item &item)
{
    QString words = mdInWords(item);
    if (words.endsWith(u','))
        words.chop(1);
    return words;
}

QString nameOf(const clsZR3FASItem &item)
{
    return QStringLiteral("FAS item %1").arg(item.OrderID());
}

clsWhySource disbursementsSource(const char *list, int order)
{
    return {QStringLiteral("Disbursements"), QString::fromLatin1(list), order};
}

/// A step for one amount of each item.
template <class Items, class Field>
void addAmounts(clsWhy &why, const Form &form, const Items &items, const char *list, Field field)
{
    for (const auto &item : items)
        why.add(nameOf(*item), {}, disbursementsSource(list, item->OrderID()),
            [&] { return mdExplained(form, *item, [&] { return MoneyFromText(((*item).*field)()); }); });
}

/// The same for the disbursements that are counsel's fees.
template <class Field> void addFees(clsWhy &why, const Form &form, Field field)
{
    for (const auto &item : form.DisbursementsCollection())
        if (item->Counsel())
            addAmounts(why, form, std::array {item}, "disbursements", field);
}

struct clsColumnRow {
    const char *words;
};

constexpr clsColumnRow Columns[clsZR3ScheduleOfTimeItem::Columns]
    = {{"Attendance and conferences"}, {"Documents"}, {"Hearings"}, {"Travel"}, {"Waiting"}};

constexpr const char *Kinds[] = {"calls", "letters in", "letters out"};

} // namespace

void mdAddColumns(clsWhy &why, const clsBill &bill)
{
    for (int column = 0; column < clsZR3ScheduleOfTimeItem::Columns; ++column)
        why.add(QString::fromLatin1(Columns[column].words), {},
            {QStringLiteral("Schedule of Time"), QStringLiteral("schedule")},
            [&] { return ColumnClaimTotal(bill, column); });
}

void mdAddAdvocacy(clsWhy &why, const clsBill &bill)
{
    const Form &form = bill.form();
    if (form.FormType() != QLatin1String("Claim1") && !form.FASItemsCollection().empty()) {
        why.add(QStringLiteral("Family Advocacy Scheme"), {},
            {QStringLiteral("Family Advocacy Scheme"), QStringLiteral("fas")}, [&] { return FASItemsTotal(form); });
        return;
    }
    for (const auto &item : form.ScheduleOfTimeItemsCollection()) {
        if (!item->Advocacy())
            continue;
        const clsSchedulePrice &price = bill.prices().of(*item);
        why.add(QStringLiteral("Item %1").arg(item->OrderID()), {},
            {QStringLiteral("Schedule of Time"), QStringLiteral("schedule"), item->OrderID()}, [&] {
                if (price.errorOf(clsSchedulePrice::ClaimFigure))
                    mdExplained(form, *item, [&] { item->Claim(); });
                return price.Claim;
            });
        why.lastCanBeAsked(QStringLiteral("schedule"), QString::number(item->OrderID()));
    }
}

void mdAddCounselAmounts(clsWhy &why, const clsBill &bill)
{
    const Form &form = bill.form();
    addAmounts(why, form, form.CounselDisbursementsCollection(), "disbursements", &clsZR3Disbursement::Amount);
}

void mdAddCounselVAT(clsWhy &why, const clsBill &bill)
{
    const Form &form = bill.form();
    addAmounts(why, form, form.CounselDisbursementsCollection(), "disbursements", &clsZR3Disbursement::VAT);
}

void mdAddOtherAmounts(clsWhy &why, const clsBill &bill)
{
    const Form &form = bill.form();
    addAmounts(why, form, form.NonCounselDisbursementsCollection(), "disbursements", &clsZR3Disbursement::Amount);
}

void mdAddOtherVAT(clsWhy &why, const clsBill &bill)
{
    const Form &form = bill.form();
    addAmounts(why, form, form.NonCounselDisbursementsCollection(), "disbursements", &clsZR3Disbursement::VAT);
}

void mdAddExpertAmounts(clsWhy &why, const clsBill &bill)
{
    addAmounts(why, bill.form(), bill.form().ExpertInvoicesCollection(), "experts", &clsZR3ExpertInvoice::NetAmount);
}

void mdAddExpertVAT(clsWhy &why, const clsBill &bill)
{
    addAmounts(why, bill.form(), bill.form().ExpertInvoicesCollection(), "experts", &clsZR3ExpertInvoice::VATAmount);
}

void mdAddFeeAmounts(clsWhy &why, const clsBill &bill)
{
    addFees(why, bill.form(), &clsZR3Disbursement::Amount);
}

void mdAddFeeVAT(clsWhy &why, const clsBill &bill)
{
    addFees(why, bill.form(), &clsZR3Disbursement::VAT);
}

void mdAddHearings(clsWhy &why, const clsBill &bill)
{
    for (const auto &item : bill.form().FASItemsCollection()) {
        why.add(nameOf(*item), {}, {QStringLiteral("Family Advocacy Scheme"), QStringLiteral("fas"), item->OrderID()},
            [&] { return mdExplained(bill.form(), *item, [&] { return item->Total(); }); });
        why.lastCanBeAsked(QStringLiteral("fas"), QString::number(item->OrderID()));
    }
}

void mdAddHearingsVAT(clsWhy &why, const clsBill &bill)
{
    for (const auto &item : bill.form().FASItemsCollection()) {
        const QString text = item->VATForFAS();
        why.add(
            nameOf(*item), {}, {QStringLiteral("Family Advocacy Scheme"), QStringLiteral("fas"), item->OrderID()}, [&] {
                return mdExplained(bill.form(), *item, [&] { return text.isEmpty() ? Money() : MoneyFromText(text); });
            });
    }
}

void mdAddCommunications(clsWhy &why, const clsBill &bill)
{
    const Form &form = bill.form();
    for (int line = 1; line <= CommsLines; ++line)
        for (const clsCommsKind kind : {clsCommsKind::Calls, clsCommsKind::LettersIn, clsCommsKind::LettersOut}) {
            why.add(QStringLiteral("Line %1 of the %2").arg(line).arg(QString::fromLatin1(Kinds[int(kind)])), {},
                {QStringLiteral("Communications"), QStringLiteral("communications")},
                [&] { return mdExplained(form, line, kind, [&] { return CommsClaimAtLine(form, line, kind); }); });
            why.lastCanBeAsked(QStringLiteral("communications"), QStringLiteral("%1/%2").arg(int(kind)).arg(line));
        }
}

clsKeptHearingsVAT::clsKeptHearingsVAT(const clsZR3Form &form)
{
    for (const auto &item : form.FASItemsCollection())
        if (item->VATForFAS.isThereAndEmpty())
            m_empty.push_back(item);
}

clsKeptHearingsVAT::~clsKeptHearingsVAT()
{
    for (const auto &item : m_empty)
        item->VATForFAS = QString();
}
