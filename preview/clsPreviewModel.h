#pragma once

#include "preview/clsPreviewCells.h"

#include <QAbstractTableModel>
#include <QColor>
#include <QMap>

/// Provides the cells of the preview to the grid and to screen readers. Read-only from outside: the grid changes the
/// cells between `beginChange` and `endChange`, which make the views reload.
class clsPreviewModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    clsPreviewCells cells;
    QMap<int, QColor> columnBacks; ///< by column, from 1; columns not listed are white

    void beginChange() { beginResetModel(); }
    void endChange() { endResetModel(); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    /// The columns have no headings: their captions are a row of the preview.
    QVariant headerData(int, Qt::Orientation, int) const override { return {}; }
    Qt::ItemFlags flags(const QModelIndex &index) const override;
};
