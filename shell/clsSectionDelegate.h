#pragma once

#include <QFont>
#include <QStyledItemDelegate>

/// Draws the rows of the list of sections: captions, and sections with their dots and numbers. Folded it draws the dots
/// alone.
class clsSectionDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit clsSectionDelegate(QObject *parent = nullptr);

    void setFolded(bool folded) { m_folded = folded; }
    /// The desktop's font is another one.
    void takeFonts();

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintCaption(QPainter &painter, const QRect &row, const QString &text) const;
    void paintSection(QPainter &painter, const QRect &row, const QModelIndex &index) const;

    QFont m_caption;
    QFont m_section;
    QFont m_count;
    bool m_folded = false;
};
