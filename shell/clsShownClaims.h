#pragma once

#include "shell/clsFolderModel.h"

#include <QItemSelection>
#include <QSortFilterProxyModel>

/// The sums of some claims. Claims that can't be read are left out of the sums.
struct clsFolderSums {
    int claims = 0;
    int unread = 0;
    int items = 0;
    int errors = 0;
    int warnings = 0;
    std::array<std::optional<Money>, clsFolderRow::Amounts> amounts; ///< nothing for a sum that is out of range

    clsFolderSums() { amounts.fill(Money()); }

    void add(const clsFolderRow &row);
    /// The sum of a column as it is shown; empty for a column without one.
    QString text(int column) const;
};

/// The claims of a folder that match the filter, in the chosen order.
class clsShownClaims : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit clsShownClaims(clsFolderModel &model, QObject *parent = nullptr);

    /// Shows only claims with all of these words in their name, folder, client, reference or error.
    void setWords(const QString &words);
    void setOnlyWithErrors(bool only);

    const clsFolderRow &RowAt(int row) const;
    /// The rows of a selection, from the top.
    QList<int> RowsOf(const QItemSelection &selection) const;
    clsFolderSums Sums(const QList<int> &rows) const;
    clsFolderSums SumsOfAll() const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    clsFolderModel &m_model;
    QStringList m_words;
    bool m_onlyWithErrors = false;
};
