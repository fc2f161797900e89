#include "costing/checking/mdCheckWords.h"

#include "base/clsRunTimeError.h"
#include "base/mdDateText.h"
#include "base/mdTrimmedOfBlanks.h"
#include "formdata/clsZR3Form.h"

#include <algorithm>

namespace {

/// The type of an item, its number, and its name if it has one. A line break would end the sentence.
QString named(const char *what, int order, const QString &name)
{
    constexpr qsizetype Longest = 40;
    const QString number = QStringLiteral("%1 %2").arg(QString::fromLatin1(what)).arg(order);
    const QString plain = name.simplified();
    if (plain.isEmpty())
        return number;
    return mdWithApposition(number, plain.size() > Longest ? plain.left(Longest) + u'\u2026' : plain);
}

/// The same for items identified by a reference alone.
QString referred(const char *what, int order, const QString &reference)
{
    const QString plain = reference.simplified();
    return QString::fromLatin1(what) + u' ' + (plain.isEmpty() ? QString::number(order) : plain);
}

} // namespace

QString mdWithApposition(const QString &beginning, const QString &words)
{
    return beginning + (beginning.endsWith(u',') ? QStringLiteral(" ") : QStringLiteral(", ")) + words + u',';
}

std::optional<QDate> mdStoredDate(const QString &text)
{
    QString date = mdTrimmedOfBlanks(text);
    const auto stands = [](QChar c) { return c == u'.' || c == u' ' || c == u'-'; };
    if (std::any_of(date.cbegin(), date.cend(), stands)) // few dates have to be changed, and so copied
        std::replace_if(date.begin(), date.end(), stands, QChar(u'/'));
    if (date == NoDate)
        return {};
    return DateFromText(date);
}

Money mdStoredAmount(const clsXMLField &field)
{
    try {
        return MoneyFromText(field.readText());
    } catch (const clsRunTimeError &) {
        return {};
    }
}

bool mdIsEmptyText(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c == u' ' || c == u'\r' || c == u'\n'; });
}

QString mdInWords(const clsZR3Disbursement &disbursement)
{
    return named("Disbursement", disbursement.OrderID(), disbursement.Description());
}

QString mdInWords(const clsZR3ExpertInvoice &invoice)
{
    return named("Expert invoice", invoice.OrderID(), invoice.ExpertType());
}

QString mdInWords(const clsZR3FeeEarnerGroup &group)
{
    return referred("Group", group.OrderID(), group.Reference());
}

QString mdInWords(const clsZR3FeeEarner &feeEarner)
{
    return referred("Fee earner", feeEarner.OrderID(), feeEarner.Reference());
}
