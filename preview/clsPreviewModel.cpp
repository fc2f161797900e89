#include "preview/clsPreviewModel.h"

#include "controls/mdTheme.h"

#include <QBrush>

int clsPreviewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : cells.Rows();
}

int clsPreviewModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : cells.Columns();
}

QVariant clsPreviewModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const clsPreviewCell &cell = cells.Cell(index.row() + 1, index.column() + 1);
    switch (role) {
    case Qt::DisplayRole: return cell.text;
    case Qt::TextAlignmentRole: return QVariant::fromValue(mdGridAlignment(cell.alignment));
    case Qt::AccessibleDescriptionRole: return cells.WhyNot(index.row() + 1, index.column() + 1);
    case Qt::BackgroundRole: return QBrush(columnBacks.value(index.column() + 1, Theme::Paper));
    default: return {};
    }
}

Qt::ItemFlags clsPreviewModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}
