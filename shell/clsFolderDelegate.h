#pragma once

#include <QFont>
#include <QStyledItemDelegate>

/// Draws the claims of a folder. A claim that can't be read shows the reason instead of its figures, across their
/// columns.
class clsFolderDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// The space between a text and the edge of its cell.
    static constexpr int CellEdge = 6;

    explicit clsFolderDelegate(QObject *parent = nullptr);

    /// Call when the desktop's font has changed.
    void takeFonts();
    void setHoveredRow(int row) { m_hoveredRow = row; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintBack(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintClaim(QPainter &painter, const QRect &room, const QModelIndex &index) const;
    void paintReason(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintText(QPainter &painter, const QRect &room, const QModelIndex &index) const;

    QFont m_font;
    QFont m_semibold;
    int m_hoveredRow = -1;
};
