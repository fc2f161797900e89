#pragma once

#include "base/Money.h"

#include <QByteArray>
#include <QString>

#include <ostream>

// How GoogleTest prints our value types.

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toUtf8().constData() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << '"' << bytes.toPercentEncoding(" ").constData() << '"';
}

inline void PrintTo(Money amount, std::ostream *out)
{
    *out << MoneyToText(amount).toLatin1().constData();
}
