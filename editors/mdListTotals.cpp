#include "editors/mdListTotals.h"

#include "costing/mdBillSummary.h"
#include "costing/mdFigureFaults.h"
#include "costing/mdGetColumnTotals.h"
#include "formdata/clsBillFilter.h"
#include "formdata/mdGlobals.h"

#include <algorithm>

namespace {

QString counted(qsizetype count, const char *one, const char *many)
{
    return count == 1 ? QString::fromLatin1(one) : QString::fromLatin1(many).arg(count);
}

QString items(qsizetype count)
{
    return counted(count, "1 item", "%1 items");
}

/// "3 of 30 items".
QString itemsOf(const clsMarkedItems &marked, qsizetype all)
{
    return QStringLiteral("%1 of %2").arg(marked.size()).arg(items(all));
}

template <class Item> const Item &as(const std::shared_ptr<clsZR3Item> &item)
{
    return static_cast<const Item &>(*item);
}

/// The number of letters or calls of a kind, and how many of them are on no line of the form and so not billed.
struct clsCounted {
    qint64 all = 0;
    qint64 leftOut = 0;
};

clsCounted countedOf(const clsZR3Form &form, clsCommsKind kind)
{
    clsCounted result;
    int lines = 0;
    for (const clsCommsGroup &group : CommsGroups(form, kind)) {
        if (group.count < 1)
            continue;
        result.all += group.count;
        if (!group.takesLine() || ++lines > CommsLines)
            result.leftOut += group.count;
    }
    return result;
}

} // namespace

clsListTotal mdScheduleListTotal()
{
    const auto &all = Form->ScheduleOfTimeItemsCollection();
    clsBillFilter isOnBill(*Form);
    const auto leftOut = std::count_if(all.begin(), all.end(), [&](const auto &item) { return !isOnBill(*item); });
    return {leftOut ? counted(leftOut, "1 item not on the bill", "%1 items not on the bill") : items(std::ssize(all)),
        ScheduleTotal(*Form)};
}

clsListTotal mdExpertsListTotal()
{
    return {items(std::ssize(Form->ExpertInvoicesCollection())), ExpertInvoicesNetTotal(*Form)};
}

clsListTotal mdDisbursementsListTotal()
{
    const auto fees = std::ssize(Form->CounselDisbursementsCollection());
    return {fees ? counted(fees, "without 1 counsel's fee", "without %1 counsel's fees")
                 : items(std::ssize(Form->DisbursementsCollection())),
        NonCounselDisbursementsAmountTotal(*Form)};
}

clsListTotal mdHearingsListTotal()
{
    return {items(std::ssize(Form->FASItemsCollection())), FASItemsTotal(*Form)};
}

clsListTotal mdCommunicationsListTotal()
{
    clsCounted sum;
    for (const clsCommsKind kind : {clsCommsKind::Calls, clsCommsKind::LettersIn, clsCommsKind::LettersOut}) {
        const clsCounted part = countedOf(*Form, kind);
        sum.all += part.all;
        sum.leftOut += part.leftOut;
    }
    return {sum.leftOut
            ? counted(sum.leftOut, "1 letter or call not on the bill", "%1 letters and calls not on the bill")
            : counted(sum.all, "1 letter or call", "%1 letters and calls"),
        CommsTotal(*Form)};
}

clsListTotal mdScheduleListSum(const clsMarkedItems &marked)
{
    clsBillFilter isOnBill(*Form);
    std::vector<const clsZR3ScheduleOfTimeItem *> chosen;
    for (const auto &item : marked)
        chosen.push_back(&as<clsZR3ScheduleOfTimeItem>(item));
    const auto leftOut
        = std::count_if(chosen.begin(), chosen.end(), [&](const auto *item) { return !isOnBill(*item); });
    QString words = itemsOf(marked, std::ssize(Form->ScheduleOfTimeItemsCollection()));
    if (leftOut > 0)
        words += QStringLiteral(", %1 not on the bill").arg(leftOut);
    return {words, ScheduleTotalOf(*Form, chosen)};
}

clsListTotal mdExpertsListSum(const clsMarkedItems &marked)
{
    Money sum;
    for (const auto &item : marked)
        sum = sum + mdExplained(*Form, as<clsZR3ExpertInvoice>(item), [&] {
            return MoneyFromText(as<clsZR3ExpertInvoice>(item).NetAmount());
        });
    return {itemsOf(marked, std::ssize(Form->ExpertInvoicesCollection())), sum};
}

clsListTotal mdDisbursementsListSum(const clsMarkedItems &marked)
{
    Money sum;
    qsizetype fees = 0;
    for (const auto &item : marked) {
        const auto &disbursement = as<clsZR3Disbursement>(item);
        if (disbursement.Counsel())
            ++fees;
        else
            sum = sum + mdExplained(*Form, disbursement, [&] { return MoneyFromText(disbursement.Amount()); });
    }
    QString words = itemsOf(marked, std::ssize(Form->DisbursementsCollection()));
    if (fees > 0)
        words += QStringLiteral(", ") + counted(fees, "without 1 counsel's fee", "without %1 counsel's fees");
    return {words, sum};
}

clsListTotal mdHearingsListSum(const clsMarkedItems &marked)
{
    Money sum;
    for (const auto &item : marked)
        sum = sum + mdExplained(*Form, as<clsZR3FASItem>(item), [&] { return as<clsZR3FASItem>(item).Total(); });
    return {itemsOf(marked, std::ssize(Form->FASItemsCollection())), sum};
}
