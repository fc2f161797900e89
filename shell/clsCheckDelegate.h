#pragma once

#include <QFont>
#include <QHash>
#include <QStyledItemDelegate>

/// Draws the groups and the lines of the check. A line has its sentence, of two lines at most until it is chosen, and
/// its place.
class clsCheckDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit clsCheckDelegate(QObject *parent = nullptr);

    /// To be called when the font of the desktop has changed.
    void takeFonts();
    /// The room of a line's menu sign.
    QRect menuSign(const QRect &line) const;
    /// Whether the sentence is cut short in a line of that width.
    bool isCut(const QModelIndex &index, int width) const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintGroup(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintLine(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintMenuSign(QPainter &painter, const QRect &line) const;
    int textWidth(const QModelIndex &index, int width) const;
    int indentOf(const QModelIndex &index) const;
    /// Broken into lines of that width; of more than `mostLines`, where that isn't 0, the last is cut short.
    QStringList sentence(const QString &text, int room, int mostLines) const;

    QFont m_caption;
    QFont m_count;
    QFont m_sentence;
    QFont m_place;
    /// How many lines a sentence takes, since all are asked for their height at once.
    mutable QHash<QString, int> m_lines;
    mutable int m_linesWidth = 0;
};
