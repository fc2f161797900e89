#pragma once

#include "controls/clsGridModel.h"
#include "controls/mdIcons.h"

#include <QPoint>
#include <QWidget>

#include <functional>

class oGridView;
class oOrderArrows;
class QTimer;

/// The grid of every list screen. A screen declares columns by property names and sets a collection; the grid reads,
/// sorts and shows the items and, if orderable, lets the user change their order, which it writes to each item's
/// `OrderID`. Rows and columns of its interface count from 1, including hidden columns.
class oSGrid : public QWidget {
    Q_OBJECT

public:
    explicit oSGrid(QWidget *parent = nullptr);

    /// Shows the arrows, sorts by `OrderID` after the key columns, and renumbers the items at every draw.
    bool Orderable() const { return m_orderable; }
    void setOrderable(bool orderable);
    /// The room for the arrows to the right of the rows.
    int roomForArrows() const;
    /// The distance from the right edge of the rows to the end of the amounts in the last column; 0 if no such column
    /// is visible.
    int roomBehindAmounts() const;
    /// The menu of the window that a right click on a row pops up, by its object name.
    const QString &PopupMenuName() const { return m_popupMenuName; }
    void setPopupMenuName(const QString &name) { m_popupMenuName = name; }
    bool MultiSelect() const;
    void setMultiSelect(bool multiSelect);
    /// Lets Shift and Ctrl mark more rows in addition to the selected one, for users of `SelectedItemCollection`.
    /// Everything else uses only the selected row.
    void setMarksRows(bool marksRows);
    /// The line in the middle of a grid without rows, and the picture above it.
    void setEmptyText(const QString &text);
    void setEmptyGlyph(Glyph glyph);
    /// With the focus, frames the cell that Return acts on: for lists whose columns open different screens.
    void setMarksCell(bool marksCell);

    /// Declares a further column, visible after the next `Draw`.
    void AddColumn(const clsGridColumn &column) { m_columns.push_back(column); }
    /// Removes the columns and the rows.
    void ClearAll();
    /// Removes the rows only; a `Redraw` brings them back.
    void Clear();

    /// The collection to show. Read at each `Redraw`; must outlive those calls.
    template <class Item> void setItemCollection(const std::vector<std::shared_ptr<Item>> &collection)
    {
        m_readItems = [&collection] { return clsGridItems(collection.begin(), collection.end()); };
    }
    template <class Item> void setItemCollection(const std::vector<std::shared_ptr<Item>> &&collection) = delete;
    /// The same for a collection that is rebuilt for each `Redraw`.
    void setItemCollection(std::function<clsGridItems()> collect) { m_readItems = std::move(collect); }
    clsGridItems ItemCollection() const { return m_readItems ? m_readItems() : clsGridItems(); }

    /// Sets the function that finds the faults of an item, for its cells to show.
    void setFaultReader(std::function<clsGridFaults(const clsZR3Item &)> faultsOf)
    {
        m_model->setFaultReader(std::move(faultsOf));
    }

    /// Call once, after adding the columns and setting the collection.
    void Draw();
    /// Reads the items again. With `keepInView` scrolls the selected row as far down in the window as possible.
    void Redraw(bool keepInView);

    /// The `Index` of the selected row's item, 0 if none is selected.
    int SelectedItemData() const;
    /// The number of the selected row, 0 if none is selected.
    int SelectedRow() const;
    /// The items of all selected rows, from the top.
    clsGridItems SelectedItemCollection() const;
    /// Selects a row; none for a number without a row.
    void SelectRow(int row);
    /// Selects the row of the item with that `Index`, in its present position; does nothing if there is none.
    void SelectItem(int itemData);
    /// Selects the row of an item and marks the rows of others; items not in the grid are skipped.
    void SelectItems(const clsZR3Item *item, const clsGridItems &others);
    /// The column of the cell that Return acts on, 0 when none is selected.
    int SelectedColumn() const;
    /// Moves to a column of the selected row.
    void SelectColumn(int column);
    int Rows() const { return m_model->rowCount(); }
    /// The row and the column at a position as passed by `MouseUp`, 0 if there is none.
    int RowAt(const QPoint &position) const;
    int ColumnAt(const QPoint &position) const;

    /// Moves the selected row by one; does nothing at the end of the list. Changes the items immediately.
    void MoveUp() { moveSelectedRow(-1); }
    void MoveDown() { moveSelectedRow(1); }

signals:
    /// A double click on a row, or Return.
    void RowActivated(int itemData, int row, int column);
    void MouseUp(Qt::MouseButton button, Qt::KeyboardModifiers shift, const QPoint &position);
    /// Another row is selected, or the selected row has another item; 0 and 0 for none.
    void SelectionChange(int itemData, int row);
    /// The selected or marked rows have changed.
    void MarksChange();
    /// Comes before the grid does anything with the key, and nothing after it when `*doDefault` is set to false.
    void KeyDown(int keyCode, Qt::KeyboardModifiers shift, bool *doDefault);
    void DeletePressed();
    /// The user has moved the selected row; the items are in their new order.
    void OrderChange();
    /// The text typed without a pause of half a second.
    void TimedKeyPress(const QString &text);

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    class clsPaintingOff;

    void connectView();
    void drawColumns();
    void refill(int selected, bool keepInView);
    void setColumnWidths();
    void fitRows();
    void bringIntoView();
    void moveSelectedRow(int by);
    void announceSelection();
    void updateArrows();
    void popUpMenu(const QPoint &position);
    void captureCharacter(const QString &character);
    void describe();

    clsGridModel *m_model;
    oGridView *m_view;
    oOrderArrows *m_arrows;
    QTimer *m_typing;
    QString m_typed;
    QString m_popupMenuName;
    bool m_orderable = false;
    bool m_drawing = false;
    int m_announcedRow = 0;
    int m_announcedItem = 0;
    std::vector<clsGridColumn> m_columns;
    std::function<clsGridItems()> m_readItems;
};
