#pragma once

#include "controls/clsGridModel.h"

#include <QFontMetrics>
#include <QStyledItemDelegate>

#include <vector>

class clsGridFind;

/// Draws the cells of a grid. Fonts are made once for a change of font and columns, not for each cell.
class oGridDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit oGridDelegate(QObject *parent = nullptr);

    /// Call when the font or the columns have changed.
    void takeFonts(const std::vector<clsGridColumn> &columns);
    void setHoveredRow(int row) { m_hoveredRow = row; }
    int hoveredRow() const { return m_hoveredRow; }
    /// Sets the row with the bar if several are selected: the one that the keys act on. -1 for all of them.
    void setKeyRow(int row) { m_keyRow = row; }
    /// Highlights the words of a search and draws the other rows pale.
    void setFind(const clsGridFind *find) { m_find = find; }
    /// Frames the cell with the focus.
    void setMarksCell(bool marksCell) { m_marksCell = marksCell; }

    /// The height of a wrapped text in a column of that width.
    int wrappedHeight(const QString &text, int column, int columnWidth) const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// Shows the whole text of an elided cell.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
        const QModelIndex &index) override;

private:
    struct Font {
        QFont font;
        QFontMetrics metrics;
    };

    void paintWrong(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintMark(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintBack(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintText(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    QColor inkOf(const QStyleOptionViewItem &option, const QModelIndex &index, const QColor &usual) const;
    bool isCut(const QStyleOptionViewItem &option, const clsGridColumn &column, int number, const QString &text) const;

    Font m_mark;
    std::vector<Font> m_columns;
    const clsGridFind *m_find = nullptr;
    int m_hoveredRow = -1;
    int m_keyRow = -1;
    bool m_marksCell = false;
};
