#include "costing/tables/clsCellReader.h"
#include "costing/tables/clsImportedRows.h"

#include <algorithm>

// Guesses the meaning of columns from their cells.

namespace {

constexpr size_t RowsToLookAt = 200;

/// The kinds that can be recognised from their cells. A tick, a count or a second amount could be anything.
bool isKnownByCells(clsCellKind kind)
{
    switch (kind) {
    case clsCellKind::FeeEarner:
    case clsCellKind::Code:
    case clsCellKind::Date:
    case clsCellKind::DateIfAny:
    case clsCellKind::Time:
    case clsCellKind::Amount:
    case clsCellKind::CommsKind: return true;
    default: return false;
    }
}

/// The evidence in a cell for a kind: none, plain or marked. A plain number may be a row number.
int weightOf(clsCellKind kind, const QString &text, const clsCellReader &reader)
{
    constexpr int Plain = 1;
    constexpr int Marked = 2;
    if (text.trimmed().isEmpty() || !reader.read(kind, text).Reason.isEmpty())
        return 0;
    const bool isMarked = kind == clsCellKind::Time ? text.contains(u':') : text.contains(u'.');
    return isMarked ? Marked : Plain;
}

/// How well the cells of a column fit a kind; 0 if fewer than three in five do.
int fitOf(const std::vector<clsTextRow> &texts, qsizetype place, clsCellKind kind, const clsCellReader &reader)
{
    int filled = 0;
    int fitting = 0;
    int weight = 0;
    for (size_t row = 0; row < std::min(texts.size(), RowsToLookAt); ++row) {
        const QString text = texts[row].Cells.value(place);
        const int told = weightOf(kind, text, reader);
        filled += text.trimmed().isEmpty() ? 0 : 1;
        fitting += told > 0 ? 1 : 0;
        weight += told;
    }
    return fitting * 5 >= filled * 3 ? weight : 0;
}

/// The length of the texts in a column; 0 if they have no letters.
int lengthOf(const std::vector<clsTextRow> &texts, qsizetype place)
{
    int length = 0;
    for (size_t row = 0; row < std::min(texts.size(), RowsToLookAt); ++row) {
        const QString text = texts[row].Cells.value(place);
        if (std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); }))
            length += int(text.size());
    }
    return length;
}

/// The column without a meaning that has the highest measure; -1 if all are 0.
template <class Measure> int bestPlace(const std::vector<int> &meanings, Measure measure)
{
    int best = -1;
    int most = 0;
    for (size_t place = 0; place < meanings.size(); ++place) {
        const int measured = meanings[place] < 0 ? measure(qsizetype(place)) : 0;
        if (measured > most) {
            most = measured;
            best = int(place);
        }
    }
    return best;
}

qsizetype widthOf(const clsTextTable &table)
{
    qsizetype widest = 0;
    for (const clsTextRow &row : table.Rows)
        widest = std::max(widest, row.Cells.size());
    return widest;
}

} // namespace

/// All lines are rows, except a first one without any value if the second has one.
void clsImportedRows::takeWithoutHeader(
    QStringView text, const std::vector<clsCellKind> &kinds, const clsCellReader &reader)
{
    clsTextTable table;
    qsizetype width = 0;
    for (const QChar separator : {QChar(u'\t'), QChar(u';'), QChar(u',')})
        if (clsTextTable read = clsTextTable::read(text, separator); read.Error.isEmpty() && widthOf(read) > width) {
            width = widthOf(read);
            table = std::move(read);
        }
    const auto hasValue = [&](const clsTextRow &row) {
        return std::any_of(row.Cells.begin(), row.Cells.end(), [&](const QString &cell) {
            return std::any_of(
                kinds.begin(), kinds.end(), [&](clsCellKind kind) { return weightOf(kind, cell, reader) > 0; });
        });
    };
    auto first = table.Rows.begin();
    m_header.clear();
    if (table.Rows.size() > 1 && !hasValue(table.Rows[0]) && hasValue(table.Rows[1])) {
        m_header = first->Cells;
        ++first;
    }
    while (m_header.size() < width)
        m_header << QString();
    m_texts.assign(first, table.Rows.end());
    m_meanings.assign(size_t(m_header.size()), -1);
}

void clsImportedRows::guessMeanings(const clsZR3Form &form, QStringView text)
{
    const bool hasNoHeader = m_header.isEmpty();
    if (m_error.isEmpty() || text.contains(QChar(u'\0')) || (!hasNoHeader && m_error != missingColumns()))
        return;
    const clsCellReader reader(form);
    std::vector<clsCellKind> kinds;
    for (const clsTableColumn &column : m_list->columns)
        if (isKnownByCells(column.kind))
            kinds.push_back(column.kind);
    if (hasNoHeader)
        takeWithoutHeader(text, kinds, reader);
    const auto isHeld = [this](size_t column) {
        return std::find(m_meanings.begin(), m_meanings.end(), int(column)) != m_meanings.end();
    };
    const auto giveTo = [this](int place, size_t column) {
        if (place >= 0)
            m_meanings[size_t(place)] = int(column);
    };
    for (size_t column = 0; column < m_list->columns.size(); ++column) {
        const clsCellKind kind = m_list->columns[column].kind;
        if (isKnownByCells(kind) && !isHeld(column))
            giveTo(bestPlace(m_meanings, [&](qsizetype place) { return fitOf(m_texts, place, kind, reader); }), column);
    }
    // The longest remaining texts are the description.
    for (size_t column = 0; column < m_list->columns.size(); ++column)
        if (m_list->columns[column].kind == clsCellKind::Text && !isHeld(column))
            giveTo(bestPlace(m_meanings, [&](qsizetype place) { return lengthOf(m_texts, place); }), column);
    m_error = m_texts.empty() ? m_error : missingColumns();
    if (m_error.isEmpty())
        readRows(form);
}
