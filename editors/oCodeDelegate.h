#pragma once

#include <QStyledItemDelegate>

class QComboBox;

/// Draws a code, and behind it, in the second ink, its column and the firm's words.
class oCodeDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    enum Roles { ColumnRole = Qt::UserRole + 1, WordsRole };

    using QStyledItemDelegate::QStyledItemDelegate;

    /// What the rows of a list need, up to the widest that is worth it.
    static int WidthFor(const QComboBox &box);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
