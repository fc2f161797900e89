#include "shell/clsFolderModel.h"

#include "base/mdFormatMoney.h"
#include "controls/mdToolTip.h"

#include <algorithm>
#include <limits>

namespace {

using Model = clsFolderModel;
using Row = clsFolderRow;

struct clsFolderColumn {
    const char *heading;
    Qt::AlignmentFlag alignment;
    std::optional<Row::Amount> amount {};
};

constexpr clsFolderColumn FolderColumns[Model::Columns] = {
    {"Claim", Qt::AlignLeft},
    {"Form", Qt::AlignLeft},
    {"Client", Qt::AlignLeft},
    {"Reference", Qt::AlignLeft},
    {"Items", Qt::AlignRight},
    {"Profit costs", Qt::AlignRight, Row::ProfitCosts},
    {"Disbursements", Qt::AlignRight, Row::Disbursements},
    {"Counsel", Qt::AlignRight, Row::Counsel},
    {"Scheme", Qt::AlignRight, Row::Scheme},
    {"VAT", Qt::AlignRight, Row::VAT},
    {"Total", Qt::AlignRight, Row::Total},
    {"With counsel", Qt::AlignRight, Row::All},
    {"Errors", Qt::AlignHCenter},
    {"Warnings", Qt::AlignHCenter},
    {"Changed", Qt::AlignLeft},
};

/// Empty for 0.
QString countInWords(std::optional<int> count)
{
    return count.value_or(0) > 0 ? QString::number(*count) : QString();
}

/// "2026-11-22 13:40" as "22/11/26 13:40".
QString dayInWords(const QString &changed)
{
    constexpr int Length = 16;
    if (changed.size() != Length)
        return changed;
    return changed.mid(8, 2) + u'/' + changed.mid(5, 2) + u'/' + changed.mid(2, 2) + changed.mid(10);
}

/// Claims without a number are sorted together, below all others.
QVariant numberOrLeast(std::optional<qint64> number)
{
    return number.value_or(std::numeric_limits<qint64>::min());
}

} // namespace

std::optional<Row::Amount> Model::AmountOf(int column)
{
    return FolderColumns[column].amount;
}

Qt::Alignment Model::AlignmentOf(int column)
{
    return FolderColumns[column].alignment | Qt::AlignVCenter;
}

void Model::Clear(const QString &folder)
{
    beginResetModel();
    m_folder = folder;
    m_rows.clear();
    m_places.clear();
    endResetModel();
}

void Model::Take(const std::vector<Row> &rows)
{
    std::vector<Row> added;
    for (const Row &row : rows) {
        const int place = RowOf(row.path);
        if (place < 0) {
            m_places.insert(row.path, int(m_rows.size() + added.size()));
            added.push_back(row);
        } else if (place < int(m_rows.size())) {
            m_rows[size_t(place)] = row;
            emit dataChanged(index(place, 0), index(place, Columns - 1));
        } else {
            added[size_t(place) - m_rows.size()] = row;
        }
    }
    if (added.empty())
        return;
    beginInsertRows({}, int(m_rows.size()), int(m_rows.size() + added.size()) - 1);
    m_rows.insert(m_rows.end(), added.begin(), added.end());
    endInsertRows();
}

void Model::Remove(const QStringList &paths)
{
    std::vector<int> gone;
    for (const QString &path : paths)
        if (const auto place = m_places.constFind(path); place != m_places.cend()) {
            gone.push_back(*place);
            m_places.erase(place);
        }
    std::sort(gone.begin(), gone.end());
    // From the end, in runs, so that removing a whole folder takes one step.
    for (size_t end = gone.size(); end > 0;) {
        size_t begin = end - 1;
        while (begin > 0 && gone[begin - 1] == gone[begin] - 1)
            --begin;
        beginRemoveRows({}, gone[begin], gone[end - 1]);
        m_rows.erase(m_rows.begin() + gone[begin], m_rows.begin() + gone[end - 1] + 1);
        endRemoveRows();
        end = begin;
    }
    if (!gone.empty())
        for (int place = gone.front(); place < int(m_rows.size()); ++place)
            m_places[m_rows[size_t(place)].path] = place;
}

void Model::TakeCounts(const QString &path, int errors, int warnings)
{
    const int place = RowOf(path);
    if (place < 0 || !m_rows[size_t(place)].isRead())
        return;
    m_rows[size_t(place)].errors = errors;
    m_rows[size_t(place)].warnings = warnings;
    emit dataChanged(index(place, Errors), index(place, Warnings));
}

int Model::UnreadCount() const
{
    return int(std::count_if(m_rows.begin(), m_rows.end(), [](const Row &row) { return !row.isRead(); }));
}

QString Model::folderOf(const Row &row) const
{
    const QString folder = row.path.left(std::max<qsizetype>(0, row.path.lastIndexOf(u'/')));
    const QString start = m_folder.endsWith(u'/') ? m_folder : m_folder + u'/';
    return folder.startsWith(start) ? folder.mid(start.size()) : QString();
}

QString Model::text(const Row &row, int column) const
{
    if (const auto amount = AmountOf(column)) {
        if (const auto figure = row.amounts[*amount])
            return mdFormatMoney(*figure);
        return row.isFailed(*amount) ? QStringLiteral("!") : QString();
    }
    switch (column) {
    case Claim: return mdNameOfClaim(row.path);
    // "Claim1A" as "1A".
    case Form: return row.formType.startsWith(QLatin1String("Claim")) ? row.formType.mid(5) : row.formType;
    case Client: return row.client;
    case Reference: return row.reference;
    case Items: return row.items ? QString::number(*row.items) : QString();
    case Errors: return countInWords(row.errors);
    case Warnings: return countInWords(row.warnings);
    case Changed: return dayInWords(row.changed);
    default: return {};
    }
}

QVariant Model::sortKey(const Row &row, int column) const
{
    if (const auto amount = AmountOf(column))
        return numberOrLeast(
            row.amounts[*amount] ? std::optional(qint64(row.amounts[*amount]->tenThousandths())) : std::nullopt);
    switch (column) {
    case Items: return numberOrLeast(row.items);
    case Errors: return numberOrLeast(row.errors);
    case Warnings: return numberOrLeast(row.warnings);
    case Changed: return row.changed;
    default: return text(row, column).toCaseFolded();
    }
}

QString Model::spoken(const Row &row, int column) const
{
    if (column == Claim && !row.isRead())
        return QStringLiteral("%1, can't be read: %2").arg(mdNameOfClaim(row.path), row.error);
    if (column == Errors || column == Warnings)
        return QString::number((column == Errors ? row.errors : row.warnings).value_or(0));
    if (const auto amount = AmountOf(column); amount && row.isFailed(*amount))
        return QStringLiteral("Can't be worked out: ") + row.error;
    return text(row, column);
}

QVariant Model::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Row &row = RowAt(index.row());
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole: return text(row, column);
    case Qt::TextAlignmentRole: return int(AlignmentOf(column));
    case Qt::AccessibleTextRole: return spoken(row, column);
    case Qt::ToolTipRole:
        return mdPlainToolTip(column == Claim ? row.path : row.error.isEmpty() ? text(row, column) : row.error);
    case SortRole: return sortKey(row, column);
    case FolderRole: return folderOf(row);
    case FailedRole: return AmountOf(column) && row.isFailed(*AmountOf(column));
    default: return {};
    }
}

QVariant Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= Columns)
        return {};
    switch (role) {
    case Qt::DisplayRole: return QString::fromLatin1(FolderColumns[section].heading);
    case Qt::TextAlignmentRole: return int(AlignmentOf(section));
    default: return {};
    }
}
