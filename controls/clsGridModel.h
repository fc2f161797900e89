#pragma once

#include "controls/clsGridColumn.h"
#include "formdata/clsZR3Item.h"

#include <QAbstractTableModel>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

using clsGridItems = std::vector<std::shared_ptr<clsZR3Item>>;

/// Which properties of an item are wrong, and why: what a figure can't be computed from.
using clsGridFaults = std::vector<std::pair<QString, QString>>;

/// What a cell shows: a text, the mark that stands for a boolean, or the one for something that is wrong.
struct clsGridCell {
    enum Kind { Text, Tick, Cross, Wrong };

    QString text; ///< of a mark, the word that it stands for
    Kind kind = Text;

    /// The text of a property by the grid's rule.
    static clsGridCell of(const QString &text);
};

/// The rows of an `oSGrid`, read once from the items at each fill and kept until the next: painting and scrolling read
/// nothing from the claim. It knows of an item no more than its `Index`, its `OrderID` and the names in the columns.
class clsGridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Gives the grid its columns and takes all its rows away.
    void setColumns(std::vector<clsGridColumn> columns, bool orderable);
    const std::vector<clsGridColumn> &columns() const { return m_columns; }
    int firstShownColumn() const;

    /// Finds what is wrong with an item; asked at each fill for each of them.
    void setFaultReader(std::function<clsGridFaults(const clsZR3Item &)> faultsOf) { m_faultsOf = std::move(faultsOf); }

    /// Reads the items anew and sorts them. A property that can't be read is wrong, and shown so; one that the items
    /// don't have is an error, and the rows stay as they were.
    void fill(const clsGridItems &items);
    void clearRows();
    /// Writes each item's place, from 1, into its `OrderID`.
    void renumber();
    void writeOrder(int row, int orderID);

    /// Why a cell is wrong; empty for all others. It is found out when it is asked for: the item may have another
    /// number in the order since the rows were read.
    QString whyWrong(int row, int column) const;
    const clsGridCell &cell(int row, int column) const { return m_rows[size_t(row)].cells[size_t(column)]; }
    /// The `Index` that the item had when it was read.
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
