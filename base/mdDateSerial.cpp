#include "base/mdDateSerial.h"

#include "base/mdDateText.h"

#include <QDate>
#include <QStringList>

QString mdDateSerial(const QString &date)
{
    const QStringList pieces = date.split(u'/');
    if (pieces.size() != 3)
        return date;
    bool isNumber[3];
    const int day = pieces[0].toInt(&isNumber[0]);
    const int month = pieces[1].toInt(&isNumber[1]);
    const int year = pieces[2].toInt(&isNumber[2]);
    if (!isNumber[0] || !isNumber[1] || !isNumber[2])
        return date;
    const QDate parsed(FullYear(year, pieces[2].size()), month, day);
    // A year that isn't written with four digits would sort wrongly; such years don't occur in practice.
    const bool sorts = parsed.isValid() && parsed.year() > 0 && parsed.year() <= 9999;
    return sorts ? parsed.toString(QStringLiteral("yyyyMMdd")) : date;
}
