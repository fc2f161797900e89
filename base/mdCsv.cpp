#include "base/mdCsv.h"

#include "base/mdNumberText.h"

#include <algorithm>

namespace {

QString inQuotesWhereNeeded(const QString &cell, QChar separator)
{
    const auto needsQuotes = [separator](QChar c) { return c == separator || c == u'"' || c == u'\r' || c == u'\n'; };
    if (std::none_of(cell.begin(), cell.end(), needsQuotes))
        return cell;
    return u'"' + QString(cell).replace(QStringLiteral("\""), QStringLiteral("\"\"")) + u'"';
}

} // namespace

QString mdGuardedText(const QString &text)
{
    const bool looksLikeFormula
        = text.startsWith(u'=') || text.startsWith(u'+') || text.startsWith(u'-') || text.startsWith(u'@');
    return looksLikeFormula && !IsNumeric(text) ? u'\'' + text : text;
}

QString mdCsvLine(const QStringList &cells, char separator)
{
    QStringList quoted;
    quoted.reserve(cells.size());
    for (const QString &cell : cells)
        quoted << inQuotesWhereNeeded(cell, QLatin1Char(separator));
    return quoted.join(QLatin1Char(separator)) + QStringLiteral("\r\n");
}
