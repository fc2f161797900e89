#pragma once

#include "controls/clsGridColumn.h"
#include "formdata/clsZR3Item.h"

#include <QAbstractTableModel>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

using clsGridItems = std::vector<std::shared_ptr<clsZR3Item>>;

/// The invalid properties of an item with the reasons: why a figure can't be computed.
using clsGridFaults = std::vector<std::pair<QString, QString>>;

/// The content of a cell: a text, or the mark for a boolean or an error.
struct clsGridCell {
    enum Kind { Text, Tick, Cross, Wrong };

    QString text; ///< for a mark, its word
    Kind kind = Text;

    /// The text of a property by the grid's rule.
    static clsGridCell of(const QString &text);
};

/// The rows of an `oSGrid`, read from the items at each fill and kept until the next: painting and scrolling read
/// nothing from the claim. Uses only an item's `Index`, its `OrderID` and the properties named by the columns.
class clsGridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Sets the columns and removes all rows.
    void setColumns(std::vector<clsGridColumn> columns, bool orderable);
    const std::vector<clsGridColumn> &columns() const { return m_columns; }
    int firstShownColumn() const;

    /// Sets the function that finds the faults of an item; called for each item at each fill.
    void setFaultReader(std::function<clsGridFaults(const clsZR3Item &)> faultsOf) { m_faultsOf = std::move(faultsOf); }

    /// Reads the items again and sorts them. An unreadable property is shown as an error; a property that the items
    /// don't have raises one, and the rows are not changed.
    void fill(const clsGridItems &items);
    void clearRows();
    /// Writes each item's position, from 1, to its `OrderID`.
    void renumber();
    void writeOrder(int row, int orderID);

    /// Why a cell is wrong; empty for all others. Determined on each call: the item's number in the order may have
    /// changed since the rows were read.
    QString whyWrong(int row, int column) const;
    const clsGridCell &cell(int row, int column) const { return m_rows[size_t(row)].cells[size_t(column)]; }
    /// The item's `Index` when it was read.
    int itemData(int row) const { return m_rows[size_t(row)].itemData; }
    const std::shared_ptr<clsZR3Item> &item(int row) const { return m_rows[size_t(row)].item; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row {
        std::shared_ptr<clsZR3Item> item;
        int itemData;
        int orderID;
        std::vector<clsGridCell> cells;
    };

    clsGridFaults faultsOf(const clsZR3Item &item) const { return m_faultsOf ? m_faultsOf(item) : clsGridFaults(); }
    clsGridCell readCell(const clsZR3Item &item, const clsGridColumn &column, const clsGridTexts &texts,
        const clsGridFaults &faults) const;
    QString whyCell(const clsZR3Item &item, const clsGridColumn &column, const clsGridFaults &faults) const;
    QString whyRow(const clsGridFaults &faults) const;
    std::vector<Row> readRows(const clsGridItems &items) const;
    void sort(std::vector<Row> &rows) const;

    std::vector<clsGridColumn> m_columns;
    std::vector<Row> m_rows;
    std::function<clsGridFaults(const clsZR3Item &)> m_faultsOf;
    bool m_orderable = false;
};
