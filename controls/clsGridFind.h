#pragma once

#include <QObject>
#include <QStringList>

#include <vector>

class clsGridModel;

/// A search in a grid: words, and the rows that contain all of them, each word in any visible column. Rows are
/// neither hidden nor moved. They count from 0.
class clsGridFind : public QObject {
    Q_OBJECT

public:
    clsGridFind(const clsGridModel &model, QObject *parent);

    /// Sets the words, separated by blanks; case is ignored. An empty text searches for nothing.
    void setText(const QString &text);
    const QStringList &Words() const { return m_words; }

    int Hits() const { return int(m_hits.size()); }
    /// A row's number among the hits, from 1; 0 for other rows.
    int HitOf(int row) const;
    /// The hit after or before a row, continuing at the other end of the list; -1 if there is none.
    int NextOf(int row) const;
    int PreviousOf(int row) const;
    /// Whether a row is drawn pale: it isn't a hit, but other rows are.
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
