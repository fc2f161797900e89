#pragma once

#include "controls/clsGridModel.h"

#include <QFontMetrics>
#include <QStyledItemDelegate>

#include <vector>

/// Draws the cells of a grid. Fonts are created when the font or the columns change, not for each cell.
class oGridDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit oGridDelegate(QObject *parent = nullptr);

    /// Call when the font or the columns have changed.
    void takeFonts(const std::vector<clsGridColumn> &columns);
    void setHoveredRow(int row) { m_hoveredRow = row; }
    int hoveredRow() const { return m_hoveredRow; }
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
    void paintText(QPainter &painter, const QStyleOptionViewItem &option, const clsGridColumn &column, int number,
        const QString &text) const;
    bool isCut(const QStyleOptionViewItem &option, const clsGridColumn &column, int number, const QString &text) const;

    Font m_mark;
    std::vector<Font> m_columns;
    int m_hoveredRow = -1;
    bool m_marksCell = false;
};
