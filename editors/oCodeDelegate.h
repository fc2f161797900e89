#pragma once

#include <QStyledItemDelegate>

class QComboBox;

/// Draws a code and, in the secondary colour, its column and the firm's words.
class oCodeDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    enum Roles { ColumnRole = Qt::UserRole + 1, WordsRole };

    using QStyledItemDelegate::QStyledItemDelegate;

    /// The width needed by the rows of a list, up to a maximum.
    static int WidthFor(const QComboBox &box);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
