#include "formdata/mdClaimSetup.h"

#include "formdata/clsZR3Form.h"

#include <QStringList>

#include <algorithm>

namespace {

/// Belongs to the case, not to the firm.
const QStringList &ofTheCase()
{
    static const QStringList names {QStringLiteral("CaseReference"), QStringLiteral("Calls"),
        QStringLiteral("LettersIn"), QStringLiteral("LettersOut")};
    return names;
}

/// Copies stored values unchanged, so that an invalid one is reported where it is used, as in the other claim.
void copyFields(const clsXMLRecord &from, clsXMLRecord &to)
{
    for (const clsXMLPropertyPlace &place : from.properties()) {
        const QString name = QString::fromLatin1(place.property->name);
        if (!ofTheCase().contains(name))
            to.field(name)->setContent(from.field(name)->content());
    }
}

template <class Collection, class Add> void copyItems(const Collection &items, Add add)
{
    for (const auto &item : items)
        copyFields(*item, *add());
}

int numberOf(const QString &identity)
{
    bool isNumber = false;
    const int number = identity.startsWith(QLatin1String("ID")) ? identity.mid(2).toInt(&isNumber) : 0;
    return isNumber ? number : 0;
}

template <class Collection> int largestOf(const Collection &items)
{
    int largest = 0;
    for (const auto &item : items)
        largest = std::max(largest, numberOf(item->UniqueID()));
    return largest;
}

/// The stored identity counter or, if a hand-written file has a lower one, the largest identity.
int lastIdentity(const clsZR3Form &form)
{
    bool isNumber = false;
    const int counted = form.field(u"IDCounter")->readText().toInt(&isNumber);
    return std::max(
        {isNumber ? counted : 0, largestOf(form.FeeEarnerGroupsCollection()), largestOf(form.FeeEarnersCollection()),
            largestOf(form.CounselCollection()), largestOf(form.EnhancementsCollection())});
}

} // namespace

void mdCopySetup(const clsZR3Form &from, clsZR3Form &to)
{
    to.VAT.setContent(from.VAT.content());
    to.VATRate.setContent(from.VATRate.content());
    copyFields(from.SolicitorDetails, to.SolicitorDetails);
    copyItems(from.FeeEarnerGroupsCollection(), [&] { return to.AddFeeEarnerGroup(); });
    copyItems(from.FeeEarnersCollection(), [&] { return to.AddFeeEarner(); });
    copyItems(from.CounselCollection(), [&] { return to.AddCounsel(); });
    copyItems(from.EnhancementsCollection(), [&] { return to.AddEnhancement(); });
    to.field(u"IDCounter")->writeLong(lastIdentity(from));
}
