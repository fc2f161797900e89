#pragma once

#include "costing/tables/clsImportedRow.h"
#include "costing/tables/clsTextTable.h"
#include "costing/tables/mdImportLists.h"

class clsCellReader;

/// The items of a table, before they are stored: what each column means, what each cell is read as, what is wrong, and
/// which rows the claim has already. Everything can be looked at and changed first; the claim changes by `appendTo`
/// alone, and then by all chosen rows.
class clsImportedRows {
public:
    /// Columns that are called otherwise: the name in the table, and the name or property of the column.
    using Names = std::vector<std::pair<QString, QString>>;

    /// Finds the separator, the header and what its columns mean, and reads the rows.
    clsImportedRows(const clsZR3Form &form, const clsImportList &list, QStringView text, const Names &names = {});

    /// Why there are no rows at all; empty where there are, or might be.
    const QString &error() const { return m_error; }
    /// The header, as it stands in the table.
    const QStringList &header() const { return m_header; }
    /// What a column of the table means, as a place among those of the list; -1 where it means nothing.
    int meaningOf(int place) const { return m_meanings[size_t(place)]; }
    /// Gives a column of the table another meaning, takes it from the column that had it, and reads the rows anew.
    void setMeaning(const clsZR3Form &form, int place, int column);
    /// Finds by what stands in its cells what a column means whose name says nothing, where one is missing; the text is
    /// that of the table, of which then no line may name the columns at all.
    void guessMeanings(const clsZR3Form &form, QStringView text);
    /// How many rows stand below the header, and a cell of them as it stands there, read or not.
    int lines() const { return int(m_texts.size()); }
    QString textAt(int row, int place) const { return m_texts[size_t(row)].Cells.value(place); }

    /// The columns that mean nothing and have a text. Those that the tables of this program have beside are no news.
    QStringList unknownColumns() const;
    /// Those of the names in a table that this one doesn't have.
    QStringList missingNames(const Names &names) const;

    const std::vector<clsImportedRow> &rows() const { return m_rows; }
    /// Puts another text into a cell of a column that the table has, and reads the row anew.
    void setCell(const clsZR3Form &form, int row, int column, const QString &text);
    void choose(int row, bool isChosen) { m_rows[size_t(row)].IsChosen = isChosen; }
    void chooseDoubles(bool areChosen);
    /// How many rows are chosen.
    int chosen() const;
    /// Whether one of them is wrong.
    bool hasWrongChosen() const;

    /// Adds the chosen rows to the claim, in their order, and gives how many. One that is wrong can't be stored: then
    /// nothing is.
    int appendTo(clsZR3Form &form) const;

private:
    int namedColumn(const Names &names, const QString &name) const;
    int columnOf(const QString &name) const { return mdColumnOf(m_list->columns, name); }
    qsizetype namesIn(const clsTextRow &row, const Names &names) const;
    void findHeader(QStringView text, const Names &names);
    void giveMeanings(const Names &names);
    void give(qsizetype place, int column);
    void readRows(const clsZR3Form &form);
    QString missingColumns() const;
    void takeWithoutHeader(QStringView text, const std::vector<clsCellKind> &kinds, const clsCellReader &reader);

    const clsImportList *m_list;
    QString m_error;
    QStringList m_header;
    std::vector<clsTextRow> m_texts; ///< the rows below the header
    std::vector<int> m_meanings; ///< for each column of the header
    std::vector<clsImportedRow> m_rows;
};
