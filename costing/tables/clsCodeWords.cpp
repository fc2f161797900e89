#include "costing/tables/clsCodeWords.h"

#include "costing/tables/clsTextTable.h"
#include "costing/tables/mdCsv.h"
#include "formdata/mdScheduleOfTimeCodesCollection.h"

#include <algorithm>

namespace {

const QStringList Header {QStringLiteral("Code"), QStringLiteral("Words")};

QString codeIn(const QStringList &cells)
{
    return cells.value(0).trimmed().toUpper();
}

bool isCode(const QString &text)
{
    return mdScheduleOfTimeCodesCollection().contains(text);
}

/// Unquoted words that contain a separator are joined again.
QString wordsIn(const QStringList &cells)
{
    QStringList words;
    for (const QString &cell : cells.mid(1))
        if (const QString part = cell.simplified(); !part.isEmpty())
            words << part;
    return words.join(QStringLiteral(", "));
}

bool isHeader(const clsTextTable &table)
{
    return !table.Rows.empty() && codeIn(table.Rows[0].Cells) == Header[0].toUpper();
}

/// Tries each separator: takes the one that results in a header of two columns, otherwise the one with the most lines
/// that have a code and words.
clsTextTable tableOf(QStringView text)
{
    clsTextTable best;
    qsizetype most = -1;
    for (const QChar separator : {QChar(u','), QChar(u';'), QChar(u'\t')}) {
        clsTextTable table = clsTextTable::read(text, separator);
        if (isHeader(table) && table.Rows[0].Cells.size() > 1)
            return table;
        const auto count = std::count_if(table.Rows.begin(), table.Rows.end(),
            [](const clsTextRow &row) { return isCode(codeIn(row.Cells)) && !wordsIn(row.Cells).isEmpty(); });
        if (count > most) {
            most = count;
            best = std::move(table);
        }
    }
    return best;
}

} // namespace

clsCodeWords::clsCodeWords(QStringView text)
{
    if (text.contains(QChar(u'\0'))) {
        m_error = QStringLiteral("It holds zero bytes, which no text has");
        return;
    }
    clsTextTable table = tableOf(text);
    m_error = table.Error;
    if (!m_error.isEmpty())
        return;
    if (isHeader(table))
        table.Rows.erase(table.Rows.begin());
    for (clsTextRow &row : table.Rows) {
        for (QString &cell : row.Cells)
            cell = mdWithoutFormulaGuard(cell);
        const QString code = codeIn(row.Cells);
        if (isCode(code) && !m_rows.contains(code)) {
            m_rows.insert(code, std::move(row.Cells));
            continue;
        }
        m_wrongLines << QString::number(row.Line);
        m_unused.push_back(std::move(row.Cells));
    }
}

QString clsCodeWords::of(const QString &code) const
{
    return wordsIn(m_rows.value(code));
}

void clsCodeWords::set(const QString &code, const QString &words)
{
    if (words.simplified() != of(code))
        m_rows.insert(code, {code, words.simplified()});
}

QString clsCodeWords::wrongLinesInWords() const
{
    constexpr qsizetype Told = 5;
    if (m_wrongLines.isEmpty())
        return {};
    if (m_wrongLines.size() == 1)
        return QStringLiteral("Line %1 of Codes.csv names no code, or one a second time").arg(m_wrongLines.front());
    QString lines = m_wrongLines.mid(0, Told).join(QStringLiteral(", "));
    if (const qsizetype more = m_wrongLines.size() - Told; more > 0)
        lines += QStringLiteral(" and %1 more").arg(more);
    return QStringLiteral("Lines %1 of Codes.csv name no code, or one a second time").arg(lines);
}

QByteArray clsCodeWords::asCsv() const
{
    clsTable table {Header, {}};
    for (const QString &code : mdScheduleOfTimeCodesCollection())
        if (const auto row = m_rows.constFind(code); row != m_rows.constEnd() && !of(code).isEmpty())
            table.rows.push_back(*row);
    table.rows.insert(table.rows.end(), m_unused.begin(), m_unused.end());
    return mdTableAsCsv(table);
}
