#pragma once

#include <QStyledItemDelegate>

/// Draws the rows that are looked at before they are stored: ticks, wrong cells in pink, and what a row's note says.
class oPasteDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// The whole text of a cell that can't show it.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
        const QModelIndex &index) override;
    /// The note of a row, into a room beside the row or beneath it.
    static void paintNote(QPainter &painter, const QRect &room, const QModelIndex &note);
};
