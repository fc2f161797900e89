#include "controls/clsGridFind.h"

#include "controls/clsGridModel.h"

#include <algorithm>

namespace {

/// Ticks and crosses are not searched.
bool hasWords(const clsGridCell &cell)
{
    return cell.kind == clsGridCell::Text || cell.kind == clsGridCell::Wrong;
}

} // namespace

clsGridFind::clsGridFind(const clsGridModel &model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    connect(&model, &QAbstractItemModel::modelReset, this, &clsGridFind::search);
}

void clsGridFind::setText(const QString &text)
{
    const QStringList words = text.simplified().split(u' ', Qt::SkipEmptyParts);
    if (words == m_words)
        return;
    m_words = words;
    search();
}

void clsGridFind::search()
{
    m_hits.clear();
    if (!m_words.isEmpty())
        for (int row = 0; row < m_model.rowCount(); ++row)
            if (holds(row))
                m_hits.push_back(row);
    emit Changed();
}

bool clsGridFind::holds(int row) const
{
    const std::vector<clsGridColumn> &columns = m_model.columns();
    const auto inRow = [&](const QString &word) {
        for (size_t column = 0; column < columns.size(); ++column) {
            if (!columns[column].isShown())
                continue;
            const clsGridCell &cell = m_model.cell(row, int(column));
            if (hasWords(cell) && cell.text.contains(word, Qt::CaseInsensitive))
                return true;
        }
        return false;
    };
    return std::all_of(m_words.begin(), m_words.end(), inRow);
}

int clsGridFind::HitOf(int row) const
{
    const auto found = std::lower_bound(m_hits.begin(), m_hits.end(), row);
    return found != m_hits.end() && *found == row ? int(found - m_hits.begin()) + 1 : 0;
}

int clsGridFind::NextOf(int row) const
{
    if (m_hits.empty())
        return -1;
    const auto next = std::upper_bound(m_hits.begin(), m_hits.end(), row);
    return next == m_hits.end() ? m_hits.front() : *next;
}

int clsGridFind::PreviousOf(int row) const
{
    if (m_hits.empty())
        return -1;
    const auto from = std::lower_bound(m_hits.begin(), m_hits.end(), row);
    return from == m_hits.begin() ? m_hits.back() : *(from - 1);
}
