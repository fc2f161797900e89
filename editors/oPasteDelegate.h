#pragma once

#include <QStyledItemDelegate>

/// Draws the rows to be imported: ticks, wrong cells in pink, and the row's note.
class oPasteDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// Shows the whole text of a cell that is cut off.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
        const QModelIndex &index) override;
    /// Draws a row's note in an area beside or below the row.
    static void paintNote(QPainter &painter, const QRect &room, const QModelIndex &note);
};
