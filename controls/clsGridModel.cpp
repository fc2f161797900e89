#include "controls/clsGridModel.h"

#include "base/clsRunTimeError.h"
#include "base/mdNumberText.h"
#include "base/mdSetProgress.h"
#include "formdata/mdLateProperty.h"

namespace {

/// Lists of up to this many rows fill quickly, so no progress bar flickers for them.
constexpr int RowsWithoutProgress = 250;

constexpr char16_t TickMark = u'\u2713';
constexpr char16_t CrossMark = u'\u2717';
const QString WrongMark = QStringLiteral("!");

/// Removes the progress bar, even if an item can't be read.
class clsFillProgress {
public:
    explicit clsFillProgress(int count)
        : m_count(count)
    { }
    ~clsFillProgress()
    {
        if (m_count > RowsWithoutProgress)
            mdClearProgress();
    }
    clsFillProgress(const clsFillProgress &) = delete;
    void reached(int row) const
    {
        if (row > RowsWithoutProgress)
            mdSetProgress(row, m_count, QStringLiteral("Loading, please wait"));
    }

private:
    int m_count;
};

clsGridTexts textsOf(const clsGridColumn &column)
{
    return column.texts ? column.texts() : clsGridTexts();
}

QString textIn(const clsGridColumn &column, const clsZR3Item &item, const clsGridTexts &texts)
{
    if (texts)
        return texts(item);
    if (column.helperProperty.isEmpty())
        return ReadProperty(item, column.property);
    if (!column.helper)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    return ReadProperty(item, column.property, ReadProperty(*column.helper, column.helperProperty));
}

/// Whether an error comes from the column, which names a property that no item has, and not from the item.
bool isOfColumn(const clsRunTimeError &error, const clsGridColumn &column)
{
    const bool lacksHelper = !column.helperProperty.isEmpty() && !column.helper;
    return lacksHelper || error.number() == clsRunTimeError::NoSuchProperty
        || error.number() == clsRunTimeError::ArgumentNotOptional
        || error.number() == clsRunTimeError::WrongNumberOfArguments;
}

bool shows(const clsGridColumn &column, const QString &property)
{
    const QString &own = column.faultOf.isEmpty() ? column.property : column.faultOf;
    return column.isShown() && !column.texts && own.compare(property, Qt::CaseInsensitive) == 0;
}

/// Why a column's content is wrong; empty if it isn't.
QString faultIn(const clsGridColumn &column, const clsGridFaults &faults)
{
    for (const auto &[property, why] : faults)
        if (shows(column, property))
            return why;
    return {};
}

} // namespace

clsGridCell clsGridCell::of(const QString &text)
{
    // Depends only on the text: any text that equals one of these words is shown as a mark, even a description.
    if (text == QLatin1String("True"))
        return {text, Tick};
    if (text == QLatin1String("False"))
        return {text, Cross};
    if (text == QLatin1String("01/01/1700"))
        return {QStringLiteral("-"), Text};
    return {text, Text};
}

void clsGridModel::setColumns(std::vector<clsGridColumn> columns, bool orderable)
{
    beginResetModel();
    m_rows.clear();
    m_columns = std::move(columns);
    m_orderable = orderable;
    endResetModel();
}

int clsGridModel::firstShownColumn() const
{
    for (size_t column = 0; column < m_columns.size(); ++column)
        if (m_columns[column].isShown())
            return int(column);
    return 0;
}

void clsGridModel::fill(const clsGridItems &items)
{
    std::vector<Row> rows = readRows(items);
    sort(rows);
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

std::vector<clsGridModel::Row> clsGridModel::readRows(const clsGridItems &items) const
{
    const clsFillProgress progress(int(items.size()));
    std::vector<clsGridTexts> texts;
    for (const clsGridColumn &column : m_columns)
        texts.push_back(textsOf(column));
    std::vector<Row> rows;
    rows.reserve(items.size());
    for (const std::shared_ptr<clsZR3Item> &item : items) {
        progress.reached(int(rows.size()) + 1);
        Row &row = rows.emplace_back(Row {item, item->Index, 0, {}});
        row.cells.reserve(m_columns.size());
        const clsGridFaults faults = faultsOf(*item);
        for (size_t column = 0; column < m_columns.size(); ++column)
            row.cells.push_back(readCell(*item, m_columns[column], texts[column], faults));
        // For a fault that no column shows, the first visible cell gets the mark before its text, such as a name.
        if (clsGridCell &first = row.cells[size_t(firstShownColumn())];
            first.kind != clsGridCell::Wrong && !whyRow(faults).isEmpty())
            first = {WrongMark + u' ' + first.text, clsGridCell::Wrong};
        if (m_orderable)
            row.orderID = LongFromText(ReadProperty(*item, u"OrderID"));
    }
    return rows;
}

clsGridCell clsGridModel::readCell(
    const clsZR3Item &item, const clsGridColumn &column, const clsGridTexts &texts, const clsGridFaults &faults) const
{
    const clsGridCell wrong {WrongMark, clsGridCell::Wrong};
    if (!faultIn(column, faults).isEmpty())
        return wrong;
    try {
        return clsGridCell::of(textIn(column, item, texts));
    } catch (const clsRunTimeError &error) {
        if (isOfColumn(error, column))
            throw;
        return column.isShown() ? wrong : clsGridCell();
    }
}

/// Why a property is wrong: its fault, or the error in reading it.
QString clsGridModel::whyCell(const clsZR3Item &item, const clsGridColumn &column, const clsGridFaults &faults) const
{
    QString fault = faultIn(column, faults);
    if (!fault.isEmpty())
        return fault;
    try {
        textIn(column, item, textsOf(column));
    } catch (const clsRunTimeError &error) {
        fault = error.cause().isEmpty() ? error.description() : error.cause();
    }
    return fault;
}

QString clsGridModel::whyRow(const clsGridFaults &faults) const
{
    for (const auto &[property, why] : faults)
        if (std::none_of(m_columns.begin(), m_columns.end(),
                [&property = property](const clsGridColumn &column) { return shows(column, property); }))
            return why;
    return {};
}

QString clsGridModel::whyWrong(int row, int column) const
{
    if (cell(row, column).kind != clsGridCell::Wrong)
        return {};
    const clsZR3Item &shown = *item(row);
    const clsGridFaults faults = faultsOf(shown);
    const QString own = whyCell(shown, m_columns[size_t(column)], faults);
    return own.isEmpty() ? whyRow(faults) : own;
}

/// Key columns as text, ascending, then an orderable list by its order. Ignores case and otherwise compares character
/// codes, for the same order on every machine. Equal rows keep the items' order.
void clsGridModel::sort(std::vector<Row> &rows) const
{
    std::vector<size_t> keys;
    for (size_t column = 0; column < m_columns.size(); ++column)
        if (m_columns[column].sortKey)
            keys.push_back(column);
    std::stable_sort(rows.begin(), rows.end(), [&](const Row &left, const Row &right) {
        for (const size_t key : keys)
            if (const int order = left.cells[key].text.compare(right.cells[key].text, Qt::CaseInsensitive))
                return order < 0;
        return left.orderID < right.orderID;
    });
}

void clsGridModel::clearRows()
{
    beginResetModel();
    m_rows.clear();
    endResetModel();
}

void clsGridModel::renumber()
{
    for (int row = 0; row < rowCount(); ++row)
        writeOrder(row, row + 1);
}

void clsGridModel::writeOrder(int row, int orderID)
{
    m_rows[size_t(row)].orderID = orderID;
    WriteProperty(*item(row), u"OrderID", QString::number(orderID));
}

int clsGridModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int clsGridModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant clsGridModel::data(const QModelIndex &index, int role) const
{
    // The copy key asks for the current cell even if there is none.
    if (!index.isValid() || !checkIndex(index))
        return {};
    const clsGridCell &shown = cell(index.row(), index.column());
    switch (role) {
    case Qt::DisplayRole:
        if (shown.kind == clsGridCell::Text || shown.kind == clsGridCell::Wrong)
            return shown.text;
        return QString(QChar(shown.kind == clsGridCell::Tick ? TickMark : CrossMark));
    case Qt::TextAlignmentRole: return int(mdGridAlignment(m_columns[size_t(index.column())].alignment));
    case Qt::AccessibleTextRole:
        if (shown.kind == clsGridCell::Text)
            return shown.text;
        if (shown.kind == clsGridCell::Wrong)
            return whyWrong(index.row(), index.column());
        return shown.kind == clsGridCell::Tick ? QStringLiteral("yes") : QStringLiteral("no");
    default: return {};
    }
}

QVariant clsGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const clsGridColumn &column = m_columns[size_t(section)];
    if (role == Qt::DisplayRole)
        return column.caption;
    if (role == Qt::TextAlignmentRole)
        return int(mdGridAlignment(column.headingAlignment));
    return {};
}
