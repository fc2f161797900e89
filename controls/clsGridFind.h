#pragma once

#include <QObject>
#include <QStringList>

#include <vector>

class clsGridModel;

/// What is looked for in a grid: words, and the rows that hold all of them, each word in any of the columns that are
/// seen. Nothing is hidden and no row moves. Rows count from 0.
class clsGridFind : public QObject {
    Q_OBJECT

public:
    clsGridFind(const clsGridModel &model, QObject *parent);

    /// Words stand between blanks, and their case doesn't matter. An empty text looks for nothing.
    void setText(const QString &text);
    const QStringList &Words() const { return m_words; }

    int Hits() const { return int(m_hits.size()); }
    /// A row's number among the hits, from 1, and 0 for a row that is none.
    int HitOf(int row) const;
    /// The hit behind a row, or before it, from one end of the list on to the other; -1 where there is none.
    int NextOf(int row) const;
    int PreviousOf(int row) const;
    /// A row that holds none of it, while others do.
    bool StepsBack(int row) const { return !m_hits.empty() && HitOf(row) == 0; }

signals:
    void Changed();

private:
    void search();
    bool holds(int row) const;

    const clsGridModel &m_model;
    QStringList m_words;
    std::vector<int> m_hits; ///< from the top
};
