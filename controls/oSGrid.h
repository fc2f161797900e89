#pragma once

#include "controls/clsGridModel.h"
#include "controls/mdIcons.h"

#include <QPoint>
#include <QWidget>

#include <functional>

class oGridView;
class oOrderArrows;
class QTimer;

/// The list of every list screen. A screen declares columns by the names of properties and hands over a collection;
/// the grid reads the items, sorts and shows them and, where it is orderable, lets the user change their order, which
/// it writes to each item's `OrderID`. Rows and columns count from 1 in all that it tells and takes, hidden columns
/// included.
class oSGrid : public QWidget {
    Q_OBJECT

public:
    explicit oSGrid(QWidget *parent = nullptr);

    /// Shows the arrows, sorts by `OrderID` after the key columns, and numbers the items at every draw.
    bool Orderable() const { return m_orderable; }
    void setOrderable(bool orderable);
    /// The room at the right of the rows, which the arrows take.
    int roomForArrows() const;
    /// How far from the right edge of the rows the amounts of the last column end; 0 where no such column is shown.
    int roomBehindAmounts() const;
    /// The menu of the window that a right click on a row pops up, by its object name.
    const QString &PopupMenuName() const { return m_popupMenuName; }
    void setPopupMenuName(const QString &name) { m_popupMenuName = name; }
    bool MultiSelect() const;
    void setMultiSelect(bool multiSelect);
    /// Lets Shift and Ctrl mark further rows beside the selected one, for what reads `SelectedItemCollection`. All else
    /// keeps to the one selected row.
    void setMarksRows(bool marksRows);
    /// The line in the middle of a grid without rows, and the picture above it.
    void setEmptyText(const QString &text);
    void setEmptyGlyph(Glyph glyph);
    /// Frames, while the grid has the focus, the cell that Return acts on: for lists whose columns open different
    /// things.
    void setMarksCell(bool marksCell);

    /// Declares one more column; it is seen from the next `Draw` on.
    void AddColumn(const clsGridColumn &column) { m_columns.push_back(column); }
    /// Forgets the columns and empties the grid.
    void ClearAll();
    /// Empties the rows only; a `Redraw` brings them back.
    void Clear();

    /// The collection to show. It is read at each `Redraw` as it then is, and has to live for as long as that happens.
    template <class Item> void setItemCollection(const std::vector<std::shared_ptr<Item>> &collection)
    {
        m_readItems = [&collection] { return clsGridItems(collection.begin(), collection.end()); };
    }
    template <class Item> void setItemCollection(const std::vector<std::shared_ptr<Item>> &&collection) = delete;
    /// The same for a collection that is put together for each `Redraw`.
    void setItemCollection(std::function<clsGridItems()> collect) { m_readItems = std::move(collect); }
    clsGridItems ItemCollection() const { return m_readItems ? m_readItems() : clsGridItems(); }

    /// Finds what is wrong with an item, so that its cells can show it.
    void setFaultReader(std::function<clsGridFaults(const clsZR3Item &)> faultsOf)
    {
        m_model->setFaultReader(std::move(faultsOf));
    }

    /// Lays out the columns and fills the rows; for once after the columns and the collection are given.
    void Draw();
    /// Reads the items anew. With `keepInView` the selected row stands as far down in the window as it can.
    void Redraw(bool keepInView);

    /// The `Index` of the selected row's item, 0 when none is selected.
    int SelectedItemData() const;
    /// The number of the selected row, 0 when none is selected.
    int SelectedRow() const;
    /// The items of all selected rows, from the top.
    clsGridItems SelectedItemCollection() const;
    /// Selects a row, or none at a number that no row has.
    void SelectRow(int row);
    /// Selects the row of the item of that `Index`, wherever it stands now; nothing else where there is none.
    void SelectItem(int itemData);
    /// Selects the row of an item, and marks those of others; items that the grid doesn't show are passed over.
    void SelectItems(const clsZR3Item *item, const clsGridItems &others);
    /// The column of the cell that Return acts on, 0 when none is selected.
    int SelectedColumn() const;
    /// Goes to a column of the selected row.
    void SelectColumn(int column);
    int Rows() const { return m_model->rowCount(); }
    /// The row and the column at a position as `MouseUp` tells it, 0 where there is none.
    int RowAt(const QPoint &position) const;
    int ColumnAt(const QPoint &position) const;

    /// Moves the selected row by one; at the end of the list it does nothing. It changes the items at once.
    void MoveUp() { moveSelectedRow(-1); }
    void MoveDown() { moveSelectedRow(1); }

signals:
    /// A double click on a row, or Return.
    void RowActivated(int itemData, int row, int column);
    void MouseUp(Qt::MouseButton button, Qt::KeyboardModifiers shift, const QPoint &position);
    /// Another row is selected, or another item stands in the selected row; 0 and 0 for none.
    void SelectionChange(int itemData, int row);
    /// Other rows are selected or marked.
    void MarksChange();
    /// Comes before the grid does anything with the key, and nothing after it when `*doDefault` is set to false.
    void KeyDown(int keyCode, Qt::KeyboardModifiers shift, bool *doDefault);
    void DeletePressed();
    /// The user has moved the selected row, and the items have their new order.
    void OrderChange();
    /// What was typed without a pause of half a second.
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
