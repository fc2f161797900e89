#pragma once

#include "costing/tables/clsImportedRows.h"

#include <QAbstractTableModel>
#include <QHash>

#include <vector>

/// The rows of a table as they will be stored: a tick, a number, the columns of the table, and a note.
class clsPasteModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum { Tick, Number, FirstPlace };
    enum Role {
        WrongRole = Qt::UserRole, ///< the cell prevents its row from being stored
        DoubleRole, ///< the row equals an item of the claim
        OffRole, ///< the cell will not be stored
    };

    clsPasteModel(clsImportedRows rows, const clsImportList &list, QObject *parent = nullptr);

    const clsImportedRows &Rows() const { return m_rows; }
    const clsImportList &List() const { return m_list; }
    int NoteColumn() const { return FirstPlace + int(m_rows.header().size()); }
    /// The list's column for a column of the table; null if it is left out.
    const clsTableColumn *MeaningOf(int place) const;
    void SetMeaning(int place, int column);
    bool IsTicked(int row) const;
    void SetTicked(const std::vector<int> &rows, bool areTicked);
    void TickDoubles(bool areTicked);
    /// The next wrong cell of a ticked row after or before the given one; invalid if there is none.
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
    /// Rows, ticks or meanings have changed.
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
    QHash<int, bool> m_ticks; ///< set by the user for single rows
};
