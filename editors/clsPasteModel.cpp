#include "editors/clsPasteModel.h"

#include "base/mdDateText.h"
#include "editors/clsPasteList.h"
#include "formdata/mdGlobals.h"

#include <algorithm>

clsPasteModel::clsPasteModel(clsImportedRows rows, const clsImportList &list, QObject *parent)
    : QAbstractTableModel(parent)
    , m_rows(std::move(rows))
    , m_list(list)
{ }

const clsTableColumn *clsPasteModel::MeaningOf(int place) const
{
    const int column = m_rows.meaningOf(place);
    const clsTableColumn *meaning = column < 0 ? nullptr : &m_list.columns[size_t(column)];
    return meaning && meaning->kind != clsCellKind::Passed ? meaning : nullptr;
}

void clsPasteModel::SetMeaning(int place, int column)
{
    beginResetModel();
    m_rows.setMeaning(*Form, place, column);
    keepTicks();
    endResetModel();
    emit Changed();
}

/// Applies the user's ticks again after the cells have been read in another way.
void clsPasteModel::keepTicks()
{
    for (auto tick = m_ticks.constBegin(); tick != m_ticks.constEnd(); ++tick)
        if (rowAt(tick.key()))
            m_rows.choose(tick.key(), tick.value());
}

/// Null if the rows can't be read at all.
const clsImportedRow *clsPasteModel::rowAt(int row) const
{
    return size_t(row) < m_rows.rows().size() ? &m_rows.rows()[size_t(row)] : nullptr;
}

/// Null for a cell that is not in a stored column.
const clsImportedCell *clsPasteModel::cellAt(const QModelIndex &index) const
{
    const int place = index.column() - FirstPlace;
    const clsImportedRow *row = rowAt(index.row());
    if (!row || place < 0 || index.column() >= NoteColumn() || !MeaningOf(place))
        return nullptr;
    return &row->Cells[size_t(m_rows.meaningOf(place))];
}

bool clsPasteModel::isWrongCell(const QModelIndex &index) const
{
    const clsImportedCell *cell = cellAt(index);
    return cell && !cell->Reason.isEmpty() && IsTicked(index.row());
}

bool clsPasteModel::IsTicked(int row) const
{
    const clsImportedRow *shown = rowAt(row);
    return shown && shown->IsChosen;
}

void clsPasteModel::SetTicked(const std::vector<int> &rows, bool areTicked)
{
    for (const int row : rows) {
        if (!rowAt(row))
            continue;
        m_ticks.insert(row, areTicked);
        m_rows.choose(row, areTicked);
        emit dataChanged(index(row, 0), index(row, NoteColumn()));
    }
    emit Changed();
}

void clsPasteModel::TickDoubles(bool areTicked)
{
    m_rows.chooseDoubles(areTicked);
    for (int row = 0; row < rowCount(); ++row)
        if (const clsImportedRow *shown = rowAt(row); shown && shown->DoubleOf > 0)
            m_ticks.insert(row, areTicked);
    tellAll();
}

void clsPasteModel::tellAll()
{
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, NoteColumn()));
    emit Changed();
}

/// If a row is wrong as a whole, or because of a missing column, its tick counts as the wrong cell.
QModelIndex clsPasteModel::NextWrong(const QModelIndex &from, int direction) const
{
    const int cells = columnCount();
    const qint64 all = qint64(rowCount()) * cells;
    const qint64 start = from.isValid() ? qint64(from.row()) * cells + from.column() : direction > 0 ? -1 : all;
    for (qint64 at = start + direction; at >= 0 && at < all; at += direction) {
        const QModelIndex found = index(int(at / cells), int(at % cells));
        const clsImportedRow *row = rowAt(found.row());
        if (!row || !row->IsChosen || !row->isWrong()) {
            // Skips to the row's edge: most rows are right.
            at = direction > 0 ? qint64(found.row()) * cells + cells - 1 : qint64(found.row()) * cells;
            continue;
        }
        if (isWrongCell(found))
            return found;
        if (found.column() != Tick)
            continue;
        bool hasWrongCell = false;
        for (int column = FirstPlace; column < NoteColumn(); ++column)
            hasWrongCell = hasWrongCell || isWrongCell(index(found.row(), column));
        if (!hasWrongCell)
            return found;
    }
    return {};
}

int clsPasteModel::WrongRows() const
{
    return int(std::count_if(m_rows.rows().begin(), m_rows.rows().end(),
        [](const clsImportedRow &row) { return row.IsChosen && row.isWrong(); }));
}

int clsPasteModel::DoublesLeftOut() const
{
    return int(std::count_if(m_rows.rows().begin(), m_rows.rows().end(),
        [](const clsImportedRow &row) { return !row.IsChosen && row.DoubleOf > 0; }));
}

int clsPasteModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.lines();
}

int clsPasteModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : NoteColumn() + 1;
}

QString clsPasteModel::noteOf(int row) const
{
    const clsImportedRow *shown = rowAt(row);
    if (!shown)
        return {};
    if (shown->isWrong())
        return shown->reasons().join(QStringLiteral("; "));
    return shown->DoubleOf > 0 ? QStringLiteral("As item %1 of the claim").arg(shown->DoubleOf) : commaOf(*shown);
}

/// A time is read as in its box, which passes a comma over: 1,5 of a spreadsheet is a quarter of an hour there.
QString clsPasteModel::commaOf(const clsImportedRow &row) const
{
    for (size_t column = 0; column < row.Cells.size(); ++column)
        if (const clsImportedCell &cell = row.Cells[column];
            m_list.columns[column].kind == clsCellKind::Time && cell.Text.contains(u','))
            return QStringLiteral("%1 read as %2: times take no comma").arg(cell.Text.trimmed(), cell.Value);
    return {};
}

/// The cell's text as the item will have it. References to other items and invalid cells keep their original text.
QString clsPasteModel::textOf(const QModelIndex &index) const
{
    if (index.column() == Number)
        return QString::number(index.row() + 1);
    if (index.column() == NoteColumn())
        return noteOf(index.row());
    if (index.column() < FirstPlace)
        return {};
    const int place = index.column() - FirstPlace;
    const clsImportedCell *cell = cellAt(index);
    if (!cell || !cell->Reason.isEmpty())
        return m_rows.textAt(index.row(), place);
    switch (MeaningOf(place)->kind) {
    case clsCellKind::FeeEarner:
    case clsCellKind::Enhancement:
    case clsCellKind::Counsel:
    case clsCellKind::CommsKind: return cell->Text.trimmed();
    case clsCellKind::Tick: return cell->Value == QLatin1String("True") ? QStringLiteral("yes") : QString();
    case clsCellKind::Date: return cell->Value == NoDate ? QString() : cell->Value;
    default: return cell->Value;
    }
}

QVariant clsPasteModel::data(const QModelIndex &index, int role) const
{
    switch (role) {
    case Qt::DisplayRole: return textOf(index).simplified();
    case Qt::EditRole:
        return index.column() < FirstPlace || index.column() >= NoteColumn()
            ? QVariant()
            : m_rows.textAt(index.row(), index.column() - FirstPlace);
    case Qt::CheckStateRole:
        return index.column() == Tick ? QVariant(IsTicked(index.row()) ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::AccessibleTextRole:
        if (index.column() == Tick)
            return IsTicked(index.row()) ? QStringLiteral("ticked") : QStringLiteral("not ticked");
        return isWrongCell(index) ? textOf(index) + QStringLiteral(": ") + cellAt(index)->Reason : textOf(index);
    case WrongRole:
        return isWrongCell(index)
            || (index.column() == NoteColumn() && IsTicked(index.row()) && rowAt(index.row())->isWrong());
    case DoubleRole: return rowAt(index.row()) && !rowAt(index.row())->isWrong() && rowAt(index.row())->DoubleOf > 0;
    case OffRole:
        return !IsTicked(index.row())
            || (index.column() >= FirstPlace && index.column() < NoteColumn() && !cellAt(index));
    default: return {};
    }
}

bool clsPasteModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !cellAt(index) || value == data(index, Qt::EditRole))
        return false;
    m_rows.setCell(*Form, index.row(), m_rows.meaningOf(index.column() - FirstPlace), value.toString());
    // A changed row may have become a double or stopped being one, which decides its tick unless the user has set it.
    keepTicks();
    emit dataChanged(this->index(index.row(), 0), this->index(index.row(), NoteColumn()));
    emit Changed();
    return true;
}

QVariant clsPasteModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole))
        return {};
    if (section == Tick)
        return role == Qt::AccessibleTextRole ? QStringLiteral("Add") : QString();
    if (section == Number)
        return role == Qt::AccessibleTextRole ? QStringLiteral("Row") : QString();
    if (section == NoteColumn())
        return QStringLiteral("Note");
    const clsTableColumn *meaning = MeaningOf(section - FirstPlace);
    return meaning ? mdColumnCaption(*meaning) : QStringLiteral("(left out)");
}

Qt::ItemFlags clsPasteModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (cellAt(index))
        flags |= Qt::ItemIsEditable;
    return flags;
}
