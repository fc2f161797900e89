#pragma once

#include "costing/tables/clsImportedRows.h"

#include <QAbstractTableModel>
#include <QHash>

#include <vector>

/// The rows of a table, as they will be stored: a tick, a number, the columns of the table, and a note.
class clsPasteModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum { Tick, Number, FirstPlace };
    enum Role {
        WrongRole = Qt::UserRole, ///< whether a cell keeps its row from being stored
        DoubleRole, ///< whether the row equals an item of the claim
        OffRole, ///< whether a cell will not be stored
    };

    clsPasteModel(clsImportedRows rows, const clsImportList &list, QObject *parent = nullptr);

    const clsImportedRows &Rows() const { return m_rows; }
    const clsImportList &List() const { return m_list; }
    int NoteColumn() const { return FirstPlace + int(m_rows.header().size()); }
    /// The column of the list that a column of the table means; nothing where it is left out.
    const clsTableColumn *MeaningOf(int place) const;
    void SetMeaning(int place, int column);
    bool IsTicked(int row) const;
    void SetTicked(const std::vector<int> &rows, bool areTicked);
    void TickDoubles(bool areTicked);
    /// The cell that is wrong in the next ticked row behind, or before, another; invalid where there is none.
    QModelIndex NextWrong(const QModelIndex &from, int direction) const;
    int WrongRows() const;
    int DoublesLeftOut() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    /// Rows, ticks or meanings are others now.
    void Changed();

private:
    const clsImportedRow *rowAt(int row) const;
    const clsImportedCell *cellAt(const QModelIndex &index) const;
    bool isWrongCell(const QModelIndex &index) const;
    QString textOf(const QModelIndex &index) const;
    QString noteOf(int row) const;
    QString commaOf(const clsImportedRow &row) const;
    void keepTicks();
    void tellAll();

    clsImportedRows m_rows;
    const clsImportList &m_list;
    QHash<int, bool> m_ticks; ///< what the user has said of single rows
};
