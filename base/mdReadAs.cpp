#include "base/mdReadAs.h"

#include "base/mdDateText.h"
#include "base/mdTypedText.h"

#include <QStringList>

namespace {

/// In "1.250,00" the point precedes the comma, so the thousands separator is unclear.
bool commasPartThousands(const QString &number)
{
    const qsizetype point = number.indexOf(u'.');
    return point < 0 || number.lastIndexOf(u',') < point;
}

bool hasMoreDecimals(const QString &number)
{
    const qsizetype point = number.indexOf(u'.');
    if (point < 0)
        return false;
    QString beyond = number.sliced(point + 1).remove(u' ').mid(2);
    return !beyond.remove(u'0').isEmpty();
}

clsReadAs typedAndRead(const QString &typed, const QString &read, QLatin1String why, const QString &better = {})
{
    return {QStringLiteral("Typed %1, read as %2: %3").arg(typed.simplified(), read, why), better,
        QStringLiteral("Read as %1: %2").arg(read, why)};
}

} // namespace

std::optional<clsReadAs> DecimalReadAs(const QString &typed, const QString &read)
{
    QString number = typed;
    number.remove(u'%').remove(u'£');
    if (number.contains(u',')) {
        const QString plain = QString(number).remove(u',');
        const QString meant = commasPartThousands(number) ? TypedDecimal(plain).value_or(QString()) : QString();
        if (meant == read)
            return {};
        return typedAndRead(typed, read, QLatin1String("amounts take no comma"), meant);
    }
    if (hasMoreDecimals(number))
        return typedAndRead(typed, read, QLatin1String("amounts have two decimals"));
    return {};
}

std::optional<clsReadAs> DateReadAs(const QString &typed, const QString &read)
{
    if (read.isEmpty())
        return {};
    if (read == NoDate)
        return clsReadAs {QStringLiteral("Stands for no date")};
    QString date = typed;
    for (const QChar separator : {u'.', u' ', u'-'})
        date.replace(separator, u'/');
    if (date.count(u'/') == 1)
        return clsReadAs {QStringLiteral("Read as %1: the year last used").arg(read)};
    const std::optional<QDate> meant = DateFromText(date);
    if (meant && meant != DateFromText(read))
        return typedAndRead(typed, read, QLatin1String("a year keeps its last two figures"));
    return {};
}
