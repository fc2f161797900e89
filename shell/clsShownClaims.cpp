#include "shell/clsShownClaims.h"

#include "base/clsRunTimeError.h"
#include "base/mdFormatMoney.h"

#include <algorithm>

namespace {

void addTo(std::optional<Money> &sum, const std::optional<Money> &amount)
{
    try {
        if (sum && amount)
            *sum += *amount;
    } catch (const clsRunTimeError &) {
        sum.reset();
    }
}

} // namespace

void clsFolderSums::add(const clsFolderRow &row)
{
    ++claims;
    if (!row.isRead()) {
        ++unread;
        return;
    }
    items += row.items.value_or(0);
    errors += row.errors.value_or(0);
    warnings += row.warnings.value_or(0);
    for (size_t amount = 0; amount < amounts.size(); ++amount)
        addTo(amounts[amount], row.amounts[amount]);
}

QString clsFolderSums::text(int column) const
{
    if (const auto amount = clsFolderModel::AmountOf(column))
        return amounts[*amount] ? mdFormatMoney(*amounts[*amount]) : QStringLiteral("!");
    const auto counted = [](int count) { return count > 0 ? QString::number(count) : QString(); };
    switch (column) {
    case clsFolderModel::Items: return counted(items);
    case clsFolderModel::Errors: return counted(errors);
    case clsFolderModel::Warnings: return counted(warnings);
    default: return {};
    }
}

clsShownClaims::clsShownClaims(clsFolderModel &model, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_model(model)
{
    setSourceModel(&model);
}

void clsShownClaims::setWords(const QString &words)
{
    m_words = words.toCaseFolded().split(u' ', Qt::SkipEmptyParts);
    invalidateRowsFilter();
}

void clsShownClaims::setOnlyWithErrors(bool only)
{
    m_onlyWithErrors = only;
    invalidateRowsFilter();
}

const clsFolderRow &clsShownClaims::RowAt(int row) const
{
    return m_model.RowAt(mapToSource(index(row, 0)).row());
}

QList<int> clsShownClaims::RowsOf(const QItemSelection &selection) const
{
    QList<int> rows;
    for (const QItemSelectionRange &range : selection)
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows << row;
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

clsFolderSums clsShownClaims::Sums(const QList<int> &rows) const
{
    clsFolderSums sums;
    for (const int row : rows)
        sums.add(RowAt(row));
    return sums;
}

clsFolderSums clsShownClaims::SumsOfAll() const
{
    clsFolderSums sums;
    for (int row = 0; row < rowCount(); ++row)
        sums.add(RowAt(row));
    return sums;
}

bool clsShownClaims::filterAcceptsRow(int row, const QModelIndex &) const
{
    const clsFolderRow &claim = m_model.RowAt(row);
    if (m_onlyWithErrors && claim.isRead() && claim.errors.value_or(0) == 0 && claim.error.isEmpty())
        return false;
    if (m_words.isEmpty())
        return true;
    const QString folder = m_model.index(row, 0).data(clsFolderModel::FolderRole).toString();
    const QString text = QStringList {mdNameOfClaim(claim.path), folder, claim.client, claim.reference, claim.error}
                             .join(u'\n')
                             .toCaseFolded();
    return std::all_of(m_words.begin(), m_words.end(), [&](const QString &word) { return text.contains(word); });
}

bool clsShownClaims::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const QVariant one = left.data(clsFolderModel::SortRole);
    const QVariant other = right.data(clsFolderModel::SortRole);
    const auto order = QVariant::compare(one, other);
    if (order != QPartialOrdering::Equivalent)
        return order == QPartialOrdering::Less;
    // Equal rows are sorted by path, regardless of the order in which they were read.
    return m_model.RowAt(left.row()).path < m_model.RowAt(right.row()).path;
}
