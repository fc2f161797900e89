#pragma once

#include <QFont>
#include <QStyledItemDelegate>

/// Draws the rows of the section list: captions, and sections with their dots and numbers. When folded it draws only
/// the dots.
class clsSectionDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit clsSectionDelegate(QObject *parent = nullptr);

    void setFolded(bool folded) { m_folded = folded; }
    /// Call after the desktop's font has changed.
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
