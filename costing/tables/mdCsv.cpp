#include "costing/tables/mdCsv.h"

#include "base/mdNumberText.h"

#include <algorithm>

namespace {

/// The apostrophes in front of a character that begins a formula; -1 where there is no such character.
qsizetype guardsOf(const QString &text)
{
    qsizetype guards = 0;
    while (guards < text.size() && text[guards] == u'\'')
        ++guards;
    constexpr QStringView Beginnings = u"=+-@";
    return guards < text.size() && Beginnings.contains(text[guards]) ? guards : -1;
}

void addCell(QByteArray &csv, const QString &text)
{
    const QByteArray bytes = mdWithFormulaGuard(text).toUtf8();
    const bool isPlain = std::none_of(
        bytes.begin(), bytes.end(), [](char c) { return c == ',' || c == '"' || c == '\r' || c == '\n'; });
    csv += isPlain ? bytes : '"' + QByteArray(bytes).replace('"', "\"\"") + '"';
}

void addRow(QByteArray &csv, const QStringList &cells)
{
    for (qsizetype place = 0; place < cells.size(); ++place) {
        if (place > 0)
            csv += ',';
        addCell(csv, cells[place]);
    }
    csv += "\r\n";
}

} // namespace

QByteArray mdTableAsCsv(const clsTable &table)
{
    QByteArray csv;
    addRow(csv, table.header);
    for (const QStringList &row : table.rows)
        addRow(csv, row);
    return csv;
}

QString mdWithFormulaGuard(const QString &text)
{
    const qsizetype guards = guardsOf(text);
    return guards > 0 || (guards == 0 && !IsNumeric(text)) ? u'\'' + text : text;
}

QString mdWithoutFormulaGuard(const QString &text)
{
    return guardsOf(text) > 0 ? text.mid(1) : text;
}
