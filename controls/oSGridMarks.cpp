#include "controls/oGridView.h"
#include "controls/oSGrid.h"

#include <set>

// The rows marked in addition to the selected one.

void oSGrid::setMarksRows(bool marksRows)
{
    m_view->setMarksRows(marksRows);
}

clsGridItems oSGrid::SelectedItemCollection() const
{
    std::set<int> rows;
    const QItemSelection selection = m_view->selectionModel()->selection();
    for (const QItemSelectionRange &range : selection)
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.insert(row);
    clsGridItems items;
    items.reserve(rows.size());
    for (const int row : rows)
        items.push_back(m_model->item(row));
    return items;
}

void oSGrid::SelectItems(const clsZR3Item *item, const clsGridItems &others)
{
    std::set<const clsZR3Item *> marked;
    for (const auto &other : others)
        marked.insert(other.get());
    std::vector<int> rows;
    int selected = 0;
    for (int row = 0; row < Rows(); ++row) {
        const clsZR3Item *shown = m_model->item(row).get();
        if (shown == item)
            selected = row + 1;
        if (marked.contains(shown))
            rows.push_back(row);
    }
    SelectRow(selected);
    m_view->alsoSelect(rows);
}
