#pragma once

#include "shell/clsFolderRow.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QStringList>

#include <vector>

/// The claims of a folder as rows. A claim is identified by its path: when it is read again, its row is replaced.
class clsFolderModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        Claim,
        Form,
        Client,
        Reference,
        Items,
        ProfitCosts,
        Disbursements,
        Counsel,
        Scheme,
        VAT,
        Total,
        All,
        Errors,
        Warnings,
        Changed,
        Columns
    };
    enum Role {
        SortRole = Qt::UserRole, ///< what the rows are sorted by
        FolderRole, ///< the subfolder of the folder shown; empty for that folder itself
        FailedRole, ///< true if the figure can't be computed
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// Removes all rows and starts with another folder.
    void Clear(const QString &folder);
    void Take(const std::vector<clsFolderRow> &rows);
    void Remove(const QStringList &paths);
    /// The numbers found by the full check, which includes the printed pages; kept until the claim is read again.
    void TakeCounts(const QString &path, int errors, int warnings);

    const clsFolderRow &RowAt(int row) const { return m_rows[size_t(row)]; }
    /// The number of claims that can't be read.
    int UnreadCount() const;
    int RowOf(const QString &path) const { return m_places.value(path, -1); }

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : int(m_rows.size()); }
    int columnCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : Columns; }
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// The amount of a column; nothing for a column of another kind.
    static std::optional<clsFolderRow::Amount> AmountOf(int column);
    static Qt::Alignment AlignmentOf(int column);

private:
    QString text(const clsFolderRow &row, int column) const;
    QVariant sortKey(const clsFolderRow &row, int column) const;
    QString spoken(const clsFolderRow &row, int column) const;
    QString folderOf(const clsFolderRow &row) const;

    QString m_folder;
    std::vector<clsFolderRow> m_rows;
    QHash<QString, int> m_places; ///< by path
};
