#include "costing/tables/mdCsv.h"

#include "base/mdCsv.h"

namespace {

/// The number of apostrophes before a character that starts a formula; -1 if there is no such character.
qsizetype guardsOf(const QString &text)
{
    qsizetype guards = 0;
    while (guards < text.size() && text[guards] == u'\'')
        ++guards;
    constexpr QStringView Beginnings = u"=+-@";
    return guards < text.size() && Beginnings.contains(text[guards]) ? guards : -1;
}

QStringList guarded(const QStringList &cells)
{
    QStringList texts;
    for (const QString &cell : cells)
        texts << mdWithFormulaGuard(cell);
    return texts;
}

} // namespace

QByteArray mdTableAsCsv(const clsTable &table, char separator)
{
    QByteArray csv = mdCsvLine(guarded(table.header), separator).toUtf8();
    for (const QStringList &row : table.rows)
        csv += mdCsvLine(guarded(row), separator).toUtf8();
    return csv;
}

QString mdWithFormulaGuard(const QString &text)
{
    return guardsOf(text) > 0 ? u'\'' + text : mdGuardedText(text);
}

QString mdWithoutFormulaGuard(const QString &text)
{
    return guardsOf(text) > 0 ? text.mid(1) : text;
}
