#pragma once

#include <QFont>
#include <QHash>
#include <QStyledItemDelegate>

/// Draws the groups and lines of the check. A line shows its sentence, cut to two lines unless it is selected, and its
/// place.
class clsCheckDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit clsCheckDelegate(QObject *parent = nullptr);

    /// Call after the desktop's font has changed.
    void takeFonts();
    /// The rectangle of a line's menu sign.
    QRect menuSign(const QRect &line) const;
    /// Whether the sentence is cut off at that width.
    bool isCut(const QModelIndex &index, int width) const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintGroup(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintLine(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintMenuSign(QPainter &painter, const QRect &line) const;
    int textWidth(const QModelIndex &index, int width) const;
    int indentOf(const QModelIndex &index) const;
    /// Breaks a text into lines of that width, at most `mostLines` of them; the last is cut off. 0 means no limit.
    QStringList sentence(const QString &text, int room, int mostLines) const;

    QFont m_caption;
    QFont m_count;
    QFont m_sentence;
    QFont m_place;
    /// The number of lines of each sentence, cached because the view asks for all heights at once.
    mutable QHash<QString, int> m_lines;
    mutable int m_linesWidth = 0;
};
