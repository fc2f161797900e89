#pragma once

#include "controls/mdIcons.h"
#include "controls/oGridDelegate.h"

#include <QPersistentModelIndex>
#include <QTableView>

#include <vector>

/// The table inside an `oSGrid`: selects whole rows, passes keys and clicks to the grid in the grid's terms, and shows
/// the focus by its frame. Knows nothing of items and orders.
class oGridView : public QTableView {
    Q_OBJECT

public:
    oGridView(clsGridModel *model, QWidget *parent);

    oGridDelegate *delegate() const { return m_delegate; }
    void setEmptyText(const QString &text);
    const QString &emptyText() const { return m_emptyText; }
    void setEmptyGlyph(Glyph glyph);

    /// The selected row, from 0, or -1. If several are selected, it is the row that the keys act on.
    int selectedRow() const;
    /// Selects one row, or none for a row that doesn't exist. `column` becomes the column of the cell that Return acts
    /// on; -1 keeps the present one.
    void selectOnly(int row, int column = -1);
    /// Lets Shift and Ctrl mark more rows in addition to the selected one, which is also marked and which alone the
    /// keys act on.
    void setMarksRows(bool marksRows);
    bool marksRows() const { return m_marksRows; }
    /// Marks more rows.
    void alsoSelect(const std::vector<int> &rows);
    /// Frames, while the focus is here, the cell that Return acts on.
    void setMarksCell(bool marksCell);
    /// Applies the fonts and heights of the theme and the columns of the model.
    void takeFonts();

    /// Draws the frame of a table, which shows the focus.
    static void paintFrameOf(QTableView &table);

signals:
    /// A key was pressed; the view ignores it if a listener sets `*doDefault` to false.
    void keyDown(int key, Qt::KeyboardModifiers shift, bool *doDefault);
    void rowActivated(const QModelIndex &index);
    void orderKeyPressed(bool up);
    void deletePressed();
    void characterTyped(const QString &character);
    void mouseUp(Qt::MouseButton button, Qt::KeyboardModifiers shift, const QPoint &position);
    /// Asks for the menu of the selected row, at a position of the viewport.
    void menuAsked(const QPoint &position);

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    QItemSelectionModel::SelectionFlags selectionCommand(
        const QModelIndex &index, const QEvent *event = nullptr) const override;
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyboardSearch(const QString &search) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool takesKey(QKeyEvent *event);
    bool activatesSelectedRow();
    void askForMenuAtSelectedRow();
    void hoverAt(const QPoint &position);
    void updateRow(int row);
    void paintEmptyState();

    oGridDelegate *m_delegate;
    QString m_emptyText;
    Glyph m_emptyGlyph = Glyph::List;
    bool m_marksRows = false;
    QPersistentModelIndex m_anchor; ///< where the rows begin that Shift marks
};
