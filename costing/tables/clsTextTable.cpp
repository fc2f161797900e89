#include "costing/tables/clsTextTable.h"

#include "base/mdCodePage.h"

#include <QStringDecoder>

#include <algorithm>

namespace {

constexpr QChar Quote = u'"';

/// Iterates over a text cell by cell.
class clsCells {
public:
    clsCells(QStringView text, QChar separator)
        : m_text(text)
        , m_separator(separator)
    { }

    bool atEnd() const { return m_at >= m_text.size(); }
    int line() const { return m_line; }
    /// The line of an opening quote without a closing one; 0 if none.
    int openQuotes() const { return m_openQuotes; }

    /// The next cell, without its quotes.
    QString next()
    {
        QString cell;
        if (!atEnd() && m_text[m_at] == Quote)
            cell = quoted();
        const qsizetype from = m_at;
        while (!atEnd() && m_text[m_at] != m_separator && !atLineEnd())
            ++m_at;
        return cell += m_text.sliced(from, m_at - from);
    }
    /// Skips the separator after a cell; true if another cell of the row follows.
    bool passSeparator()
    {
        if (atEnd())
            return false;
        if (m_text[m_at] == m_separator) {
            ++m_at;
            return true;
        }
        passLineEnd();
        return false;
    }

private:
    bool atLineEnd() const { return m_text[m_at] == u'\r' || m_text[m_at] == u'\n'; }
    void passLineEnd()
    {
        m_at += m_text.sliced(m_at).startsWith(u"\r\n") ? 2 : 1;
        ++m_line;
    }
    /// The content of quotes, in which a doubled quote stands for one.
    QString quoted()
    {
        const int opened = m_line;
        QString cell;
        for (++m_at; !atEnd();) {
            const qsizetype from = m_at;
            if (m_text[m_at] == Quote) {
                if (m_at + 1 >= m_text.size() || m_text[m_at + 1] != Quote) {
                    ++m_at;
                    return cell;
                }
                m_at += 2;
                cell += Quote;
                continue;
            }
            if (atLineEnd())
                passLineEnd();
            else
                ++m_at;
            cell += m_text.sliced(from, m_at - from);
        }
        m_openQuotes = opened;
        return cell;
    }

    QStringView m_text;
    QChar m_separator;
    qsizetype m_at = 0;
    int m_line = 1;
    int m_openQuotes = 0;
};

bool isBlank(const QString &cell)
{
    return std::all_of(cell.begin(), cell.end(), [](QChar c) { return c.isSpace(); });
}

} // namespace

clsTextTable clsTextTable::read(QStringView text, QChar separator, int mostRows)
{
    // If only the start is read, the size is not checked yet, but later with the whole text.
    const bool isWhole = mostRows == MostRows;
    const qsizetype mostInAll = isWhole ? MostCellsInAll : qsizetype(mostRows) * MostCells;
    clsTextTable table;
    clsCells cells(text, separator);
    qsizetype inAll = 0;
    while (!cells.atEnd()) {
        clsTextRow row {cells.line(), {}};
        bool goesOn = true;
        while (goesOn && row.Cells.size() <= MostCells) {
            row.Cells << cells.next();
            goesOn = cells.passSeparator();
        }
        inAll += row.Cells.size();
        if (row.Cells.size() > MostCells)
            table.Error = QStringLiteral("Line %1 has more than %2 cells").arg(row.Line).arg(MostCells);
        else if (inAll > mostInAll)
            table.Error = QStringLiteral("The table has more than %1 cells").arg(mostInAll);
        else if (std::all_of(row.Cells.begin(), row.Cells.end(), isBlank))
            continue;
        else if (int(table.Rows.size()) < mostRows)
            table.Rows.push_back(row);
        else if (isWhole)
            table.Error = QStringLiteral("The table has more than %1 rows").arg(mostRows);
        else
            return table;
        if (!table.Error.isEmpty())
            return table;
    }
    if (cells.openQuotes() > 0)
        table.Error = QStringLiteral("The quotes that open in line %1 are not closed").arg(cells.openQuotes());
    return table;
}

QString mdTextOfTable(const QByteArray &bytes)
{
    constexpr QByteArrayView Mark("\xEF\xBB\xBF");
    const QByteArrayView content = bytes.startsWith(Mark) ? QByteArrayView(bytes).sliced(Mark.size()) : bytes;
    // Stateless: an incomplete sequence at the end is an error too.
    QStringDecoder decoder(
        QStringDecoder::Utf8, QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString text = decoder(content);
    return decoder.hasError() ? mdFromCodePage(content) : text;
}
