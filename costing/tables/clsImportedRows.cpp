#include "costing/tables/clsImportedRows.h"

#include "costing/tables/clsCellReader.h"
#include "formdata/clsZR3Form.h"

#include <QHash>

#include <algorithm>
#include <iterator>

namespace {

/// A text as the claim returns it after storing.
QString asStored(const QString &text)
{
    return XMLDecodeText(XMLEncodeText(text).constData());
}

/// The values that must be equal in a double.
QStringList keyOf(const clsImportList &list, const clsImportedRow &row)
{
    QStringList key;
    for (size_t column = 0; column < row.Cells.size(); ++column)
        if (list.columns[column].kind != clsCellKind::Passed)
            key << asStored(row.Cells[column].Value);
    return key;
}

QStringList keyOf(const clsImportList &list, const clsXMLRecord &item)
{
    QStringList key;
    for (const clsTableColumn &column : list.columns)
        if (column.kind != clsCellKind::Passed)
            key << clsCellReader::normalised(column.kind, mdValueOf(*item.field(QString::fromLatin1(column.property))));
    return key;
}

/// The items of the list by all their values.
QHash<QStringList, int> itemsByKey(const clsImportList &list, const clsZR3Form &form)
{
    QHash<QStringList, int> orders;
    for (const clsClaimItems &items : mdClaimItems())
        if (items.is(QString::fromLatin1(list.items)))
            for (const clsXMLRecord *item : items.items(form))
                if (const QStringList key = keyOf(list, *item); !orders.contains(key))
                    orders.insert(key, mdOrderOf(*item));
    return orders;
}

bool holds(const std::vector<int> &columns, int column)
{
    return std::find(columns.begin(), columns.end(), column) != columns.end();
}

/// The position of each column in the table, -1 if the table lacks it.
std::vector<qsizetype> placesOf(const clsImportList &list, const std::vector<int> &meanings)
{
    std::vector<qsizetype> places(list.columns.size(), -1);
    for (size_t place = 0; place < meanings.size(); ++place)
        if (meanings[place] >= 0)
            places[size_t(meanings[place])] = qsizetype(place);
    return places;
}

/// Why the whole row can't be read: it has texts beyond the columns of the header.
QString excessOf(const clsTextRow &text, qsizetype columns)
{
    const auto beyond = text.Cells.begin() + std::min(columns, text.Cells.size());
    const auto excess = std::count_if(beyond, text.Cells.end(), [](const QString &cell) { return !cell.isEmpty(); });
    return excess > 0 ? QStringLiteral("There is a cell without a column") : QString();
}

/// If the table has no tick column, a named item is ticked; if the tick is set, an item must be named.
void joinTick(clsImportedRow &row, const clsTableColumn &column, size_t place, const clsImportList &list,
    const std::vector<qsizetype> &places, const clsCellReader &reader)
{
    const auto tickPlace = size_t(mdColumnOf(list.columns, QString::fromLatin1(column.countsBy)));
    clsImportedCell &named = row.Cells[place];
    clsImportedCell &tick = row.Cells[tickPlace];
    if (places[tickPlace] < 0 && !named.Value.isEmpty())
        tick.Value = QStringLiteral("True");
    if (tick.Value == QLatin1String("True") && named.Value.isEmpty() && named.Reason.isEmpty())
        named = reader.readNamed(column.kind, named.Text);
}

/// Reads the rows of one table.
class clsRowReader {
public:
    clsRowReader(const clsZR3Form &form, const clsImportList &list, const std::vector<int> &meanings)
        : m_list(list)
        , m_places(placesOf(list, meanings))
        , m_tableColumns(qsizetype(meanings.size()))
        , m_cells(form)
        , m_items(itemsByKey(list, form))
    { }

    clsImportedRow read(const clsTextRow &text, int number) const
    {
        clsImportedRow row {.Number = number, .Line = text.Line};
        for (size_t column = 0; column < m_list.columns.size(); ++column)
            row.Cells.push_back(m_cells.read(m_list.columns[column].kind, text.Cells.value(m_places[column])));
        for (size_t column = 0; column < m_list.columns.size(); ++column)
            if (m_list.columns[column].countsBy)
                joinTick(row, m_list.columns[column], column, m_list, m_places, m_cells);
        row.Reason = excessOf(text, m_tableColumns);
        if (!row.isWrong() && m_list.reasonOfRow)
            row.Reason = m_list.reasonOfRow(row);
        row.DoubleOf = row.isWrong() ? 0 : m_items.value(keyOf(m_list, row));
        row.IsChosen = row.DoubleOf == 0;
        return row;
    }

private:
    const clsImportList &m_list;
    std::vector<qsizetype> m_places;
    qsizetype m_tableColumns;
    clsCellReader m_cells;
    QHash<QStringList, int> m_items;
};

} // namespace

bool clsImportedRow::isWrong() const
{
    return !Reason.isEmpty()
        || std::any_of(Cells.begin(), Cells.end(), [](const clsImportedCell &cell) { return !cell.Reason.isEmpty(); });
}

QStringList clsImportedRow::reasons() const
{
    QStringList reasons;
    for (const clsImportedCell &cell : Cells)
        if (!cell.Reason.isEmpty())
            reasons << cell.Reason;
    if (!Reason.isEmpty())
        reasons << Reason;
    return reasons;
}

clsImportedRows::clsImportedRows(
    const clsZR3Form &form, const clsImportList &list, QStringView text, const Names &names)
    : m_list(&list)
{
    if (text.contains(QChar(u'\0'))) {
        m_error = QStringLiteral("The table holds zero bytes, which no text has: save it as CSV in UTF-8");
        return;
    }
    findHeader(text, names);
    if (!m_error.isEmpty())
        return;
    giveMeanings(names);
    if (m_error.isEmpty())
        m_error = missingColumns();
    if (m_error.isEmpty())
        readRows(form);
}

/// The meaning set for a name, other than the names that all tables share; -1 for none.
int clsImportedRows::namedColumn(const Names &names, const QString &name) const
{
    for (const auto &[called, column] : names)
        if (mdIsSameName(called, name))
            return columnOf(column);
    return -1;
}

/// The number of cells in a row that name a column.
qsizetype clsImportedRows::namesIn(const clsTextRow &row, const Names &names) const
{
    return std::count_if(row.Cells.begin(), row.Cells.end(),
        [&](const QString &cell) { return namedColumn(names, cell) >= 0 || columnOf(cell) >= 0; });
}

/// The header is the first of the rows that name the most columns: a title may be above it.
void clsImportedRows::findHeader(QStringView text, const Names &names)
{
    constexpr int RowsToLookAt = 30;
    QChar separator = u',';
    size_t place = 0;
    qsizetype most = 0;
    for (const QChar candidate : {QChar(u','), QChar(u';'), QChar(u'\t')}) {
        const clsTextTable beginning = clsTextTable::read(text, candidate, RowsToLookAt);
        for (size_t row = 0; row < beginning.Rows.size(); ++row)
            if (const qsizetype count = namesIn(beginning.Rows[row], names); count > most) {
                most = count;
                separator = candidate;
                place = row;
            }
    }
    clsTextTable table = clsTextTable::read(text, separator);
    m_error = table.Error;
    if (m_error.isEmpty() && most == 0)
        m_error = QStringLiteral("No line of the table names its columns");
    if (!m_error.isEmpty())
        return;
    m_header = table.Rows[place].Cells;
    m_texts.assign(std::make_move_iterator(table.Rows.begin() + std::ptrdiff_t(place) + 1),
        std::make_move_iterator(table.Rows.end()));
}

/// Meanings set for a name override the names that all tables share.
void clsImportedRows::giveMeanings(const Names &names)
{
    m_meanings.assign(size_t(m_header.size()), -1);
    for (qsizetype place = 0; place < m_header.size(); ++place)
        give(place, namedColumn(names, m_header[place]));
    const std::vector<int> said = m_meanings;
    for (qsizetype place = 0; place < m_header.size(); ++place)
        if (const int column = columnOf(m_header[place]); !holds(said, column))
            give(place, column);
}

void clsImportedRows::give(qsizetype place, int column)
{
    if (column < 0 || m_meanings[size_t(place)] >= 0)
        return;
    if (holds(m_meanings, column))
        m_error = QStringLiteral("Two columns of the table mean the same: %1")
                      .arg(QString::fromLatin1(m_list->columns[size_t(column)].name));
    m_meanings[size_t(place)] = column;
}

QString clsImportedRows::missingColumns() const
{
    QStringList missing;
    for (const clsTableColumn &column : m_list->columns) {
        const QString name = QString::fromLatin1(column.name);
        if (column.isRequired && !holds(m_meanings, columnOf(name)))
            missing << name;
    }
    return missing.isEmpty() ? QString()
                             : QStringLiteral("The table lacks a column: ") + missing.join(QStringLiteral(", "));
}

void clsImportedRows::setMeaning(const clsZR3Form &form, int place, int column)
{
    if (column >= 0)
        std::replace(m_meanings.begin(), m_meanings.end(), column, -1);
    m_meanings[size_t(place)] = column;
    m_error = missingColumns();
    m_rows.clear();
    if (m_error.isEmpty())
        readRows(form);
}

QStringList clsImportedRows::unknownColumns() const
{
    const auto isFigure = [&](const QString &name) {
        return std::any_of(m_list->figures.begin(), m_list->figures.end(),
            [&](const char *figure) { return mdIsSameName(name, QString::fromLatin1(figure)); });
    };
    QStringList unknown;
    for (qsizetype place = 0; place < m_header.size(); ++place)
        if (m_meanings[size_t(place)] < 0 && !m_header[place].trimmed().isEmpty() && !isFigure(m_header[place]))
            unknown << m_header[place].trimmed();
    return unknown;
}

QStringList clsImportedRows::missingNames(const Names &names) const
{
    QStringList missing;
    for (const auto &entry : names)
        if (std::none_of(
                m_header.begin(), m_header.end(), [&](const QString &name) { return mdIsSameName(name, entry.first); }))
            missing << entry.first;
    return missing;
}

void clsImportedRows::readRows(const clsZR3Form &form)
{
    const clsRowReader reader(form, *m_list, m_meanings);
    m_rows.clear();
    m_rows.reserve(m_texts.size());
    for (const clsTextRow &text : m_texts)
        m_rows.push_back(reader.read(text, int(m_rows.size()) + 1));
}

void clsImportedRows::setCell(const clsZR3Form &form, int row, int column, const QString &text)
{
    const auto place = std::find(m_meanings.begin(), m_meanings.end(), column) - m_meanings.begin();
    if (place == std::ptrdiff_t(m_meanings.size()))
        return;
    QStringList &cells = m_texts[size_t(row)].Cells;
    while (cells.size() <= place)
        cells << QString();
    cells[place] = text;
    m_rows[size_t(row)] = clsRowReader(form, *m_list, m_meanings).read(m_texts[size_t(row)], row + 1);
}

void clsImportedRows::chooseDoubles(bool areChosen)
{
    for (clsImportedRow &row : m_rows)
        if (row.DoubleOf > 0)
            row.IsChosen = areChosen;
}

int clsImportedRows::chosen() const
{
    return int(std::count_if(m_rows.begin(), m_rows.end(), [](const clsImportedRow &row) { return row.IsChosen; }));
}

bool clsImportedRows::hasWrongChosen() const
{
    return std::any_of(
        m_rows.begin(), m_rows.end(), [](const clsImportedRow &row) { return row.IsChosen && row.isWrong(); });
}

int clsImportedRows::appendTo(clsZR3Form &form) const
{
    if (!m_error.isEmpty() || hasWrongChosen())
        return 0;
    for (const clsImportedRow &row : m_rows)
        if (row.IsChosen)
            m_list->store(form, row);
    if (m_list->changed)
        m_list->changed(form);
    return chosen();
}
