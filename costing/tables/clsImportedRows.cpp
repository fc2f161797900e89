#include "costing/tables/clsImportedRows.h"

#include "costing/tables/clsCellReader.h"
#include "formdata/clsZR3Form.h"

#include <algorithm>
#include <iterator>

namespace {

/// What a column is known by: its name without what doesn't matter.
QString known(const QString &name)
{
    QString result;
    for (const QChar c : name)
        if (!c.isSpace() && c != u'_')
            result += c.toLower();
    return result;
}

bool isFigure(const QString &name)
{
    const auto figures = mdScheduleFigures();
    return std::any_of(
        figures.begin(), figures.end(), [&](const char *figure) { return known(name) == QLatin1String(figure); });
}

/// What a name stands for beside the names that all tables know; -1 where nothing was said of it.
int namedColumn(const clsImportedRows::Names &names, const QString &name)
{
    for (const auto &[called, column] : names)
        if (known(called) == known(name))
            return mdScheduleColumn(column);
    return -1;
}

int meaningOf(const clsImportedRows::Names &names, const QString &name)
{
    const int column = namedColumn(names, name);
    return column >= 0 ? column : mdScheduleColumn(name);
}

/// How many cells of a row name a column.
qsizetype namesIn(const clsTextRow &row, const clsImportedRows::Names &names)
{
    return std::count_if(
        row.Cells.begin(), row.Cells.end(), [&](const QString &cell) { return meaningOf(names, cell) >= 0; });
}

/// A text as the claim gives it back once it is stored.
QString asStored(const QString &text)
{
    return XMLDecodeText(XMLEncodeText(text).constData());
}

/// What has to be equal in a double.
QStringList keyOf(const clsImportedRow &row)
{
    QStringList key;
    for (size_t column = 0; column < row.Cells.size(); ++column)
        if (mdScheduleColumns()[column].kind != clsCellKind::Passed)
            key << asStored(row.Cells[column].Value);
    return key;
}

QStringList keyOf(const clsXMLRecord &item)
{
    QStringList key;
    for (const clsTableColumn &column : mdScheduleColumns())
        if (column.kind != clsCellKind::Passed)
            key << clsCellReader::normalised(column.kind, mdValueOf(*item.field(QString::fromLatin1(column.property))));
    return key;
}

/// The items of the schedule by all that they are.
QHash<QStringList, int> itemsByKey(const clsZR3Form &form)
{
    QHash<QStringList, int> orders;
    for (const clsXMLRecord *item : mdClaimItems().front().items(form))
        if (const QStringList key = keyOf(*item); !orders.contains(key))
            orders.insert(key, mdOrderOf(*item));
    return orders;
}

bool holds(const std::vector<int> &columns, int column)
{
    return std::find(columns.begin(), columns.end(), column) != columns.end();
}

void store(const clsImportedRow &row, clsXMLRecord &item)
{
    for (size_t column = 0; column < row.Cells.size(); ++column) {
        const clsTableColumn &known = mdScheduleColumns()[column];
        clsXMLField &field = *item.field(QString::fromLatin1(known.property));
        if (known.kind == clsCellKind::Tick)
            field.writeBoolean(row.Cells[column].Value == QLatin1String("True"));
        else if (known.kind != clsCellKind::Passed)
            field.writeText(row.Cells[column].Value);
    }
}

/// For each column its place in the table, -1 where the table lacks it.
std::vector<qsizetype> placesOf(const std::vector<int> &meanings)
{
    std::vector<qsizetype> places(mdScheduleColumns().size(), -1);
    for (size_t place = 0; place < meanings.size(); ++place)
        if (meanings[place] >= 0)
            places[size_t(meanings[place])] = qsizetype(place);
    return places;
}

/// Why a row as a whole can't be read: a text that stands beside the header.
QString excessOf(const clsTextRow &text, qsizetype columns)
{
    const auto beyond = text.Cells.begin() + std::min(columns, text.Cells.size());
    const auto excess = std::count_if(beyond, text.Cells.end(), [](const QString &cell) { return !cell.isEmpty(); });
    return excess > 0 ? QStringLiteral("There is a cell without a column") : QString();
}

/// An enhancement that is named counts, where the table has no column that says so; and where one counts, there has to
/// be one.
void joinEnhancement(clsImportedRow &row, bool saysWhetherItCounts, const clsCellReader &reader)
{
    static const auto counts = size_t(mdScheduleColumn(QStringLiteral("includeinenhancements")));
    static const auto name = size_t(mdScheduleColumn(QStringLiteral("enhancement")));
    clsImportedCell &enhancement = row.Cells[name];
    clsImportedCell &tick = row.Cells[counts];
    if (!saysWhetherItCounts && !enhancement.Value.isEmpty())
        tick.Value = QStringLiteral("True");
    if (tick.Value == QLatin1String("True") && enhancement.Value.isEmpty() && enhancement.Reason.isEmpty())
        enhancement = reader.readEnhancement(enhancement.Text);
}

} // namespace

int mdScheduleColumn(const QString &name)
{
    const auto columns = mdScheduleColumns();
    const QString word = known(name);
    for (size_t place = 0; place < columns.size(); ++place)
        if (word == QLatin1String(columns[place].name) || word == known(QString::fromLatin1(columns[place].property)))
            return int(place);
    return -1;
}

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

clsImportedRows::clsImportedRows(const clsZR3Form &form, QStringView text, const Names &names)
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

/// The header is the first of the rows that name the most columns: a heading may stand above it.
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

/// What was said of a name goes before what all tables know.
void clsImportedRows::giveMeanings(const Names &names)
{
    m_meanings.assign(size_t(m_header.size()), -1);
    for (qsizetype place = 0; place < m_header.size(); ++place)
        give(place, namedColumn(names, m_header[place]));
    const std::vector<int> said = m_meanings;
    for (qsizetype place = 0; place < m_header.size(); ++place)
        if (const int column = mdScheduleColumn(m_header[place]); !holds(said, column))
            give(place, column);
}

void clsImportedRows::give(qsizetype place, int column)
{
    if (column < 0 || m_meanings[size_t(place)] >= 0)
        return;
    if (holds(m_meanings, column))
        m_error = QStringLiteral("Two columns of the table mean the same: %1")
                      .arg(QString::fromLatin1(mdScheduleColumns()[size_t(column)].name));
    m_meanings[size_t(place)] = column;
}

QString clsImportedRows::missingColumns() const
{
    QStringList missing;
    for (const clsTableColumn &column : mdScheduleColumns()) {
        const QString name = QString::fromLatin1(column.name);
        if (column.isRequired && !holds(m_meanings, mdScheduleColumn(name)))
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
    QStringList unknown;
    for (qsizetype place = 0; place < m_header.size(); ++place)
        if (m_meanings[size_t(place)] < 0 && !m_header[place].trimmed().isEmpty() && !isFigure(m_header[place]))
            unknown << m_header[place].trimmed();
    return unknown;
}

QStringList clsImportedRows::missingNames(const Names &names) const
{
    QStringList missing;
    for (const auto &[called, column] : names)
        if (std::none_of(m_header.begin(), m_header.end(),
                [&](const QString &name) { return known(name) == known(called); }))
            missing << called;
    return missing;
}

void clsImportedRows::readRows(const clsZR3Form &form)
{
    const clsCellReader reader(form);
    const QHash<QStringList, int> items = itemsByKey(form);
    const auto columns = mdScheduleColumns();
    const std::vector<qsizetype> places = placesOf(m_meanings);
    const bool saysWhetherItCounts = holds(m_meanings, mdScheduleColumn(QStringLiteral("includeinenhancements")));
    m_rows.reserve(m_texts.size());
    for (const clsTextRow &text : m_texts) {
        clsImportedRow row {.Number = int(m_rows.size()) + 1, .Line = text.Line};
        for (size_t column = 0; column < columns.size(); ++column)
            row.Cells.push_back(reader.read(columns[column].kind, text.Cells.value(places[column])));
        joinEnhancement(row, saysWhetherItCounts, reader);
        row.Reason = excessOf(text, m_header.size());
        row.DoubleOf = row.isWrong() ? 0 : items.value(keyOf(row));
        row.IsChosen = row.DoubleOf == 0;
        m_rows.push_back(std::move(row));
    }
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
            store(row, *form.AddScheduleOfTimeItem());
    form.RenderScheduleOfTimeItemsForExport();
    form.RenderAdditionalInformationItems();
    return chosen();
}
