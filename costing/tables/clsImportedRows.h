#pragma once

#include "costing/tables/clsImportedRow.h"
#include "costing/tables/clsTextTable.h"
#include "costing/tables/mdImportLists.h"

class clsCellReader;

/// The items of a table before they are stored: the meaning of each column, the value of each cell, the faults, and
/// which rows the claim already has. Everything can be reviewed and changed first; only `appendTo` changes the claim,
/// adding all chosen rows.
class clsImportedRows {
public:
    /// Other names of columns: the name in the table, and the name or property of the column.
    using Names = std::vector<std::pair<QString, QString>>;

    /// Detects the separator, the header and the meanings of its columns, and reads the rows.
    clsImportedRows(const clsZR3Form &form, const clsImportList &list, QStringView text, const Names &names = {});

    /// Why there are no rows at all; empty otherwise.
    const QString &error() const { return m_error; }
    /// The header, unchanged from the table.
    const QStringList &header() const { return m_header; }
    /// The meaning of a column of the table, as an index into those of the list; -1 for none.
    int meaningOf(int place) const { return m_meanings[size_t(place)]; }
    /// Sets the meaning of a column of the table, removes it from the column that had it, and reads the rows again.
    void setMeaning(const clsZR3Form &form, int place, int column);
    /// If required columns are missing, guesses the meaning of unnamed columns from their cells. `text` is the table's;
    /// if none of its lines names the columns, all of them are read as rows.
    void guessMeanings(const clsZR3Form &form, QStringView text);
    /// The number of rows below the header, and the original text of a cell of any column.
    int lines() const { return int(m_texts.size()); }
    QString textAt(int row, int place) const { return m_texts[size_t(row)].Cells.value(place); }

    /// The columns without a meaning that have texts, except the additional columns of this program's own tables.
    QStringList unknownColumns() const;
    /// The names that this table doesn't have.
    QStringList missingNames(const Names &names) const;

    const std::vector<clsImportedRow> &rows() const { return m_rows; }
    /// Replaces the text of a cell in a column that the table has, and reads the row again.
    void setCell(const clsZR3Form &form, int row, int column, const QString &text);
    void choose(int row, bool isChosen) { m_rows[size_t(row)].IsChosen = isChosen; }
    void chooseDoubles(bool areChosen);
    /// The number of chosen rows.
    int chosen() const;
    /// Whether one of them is wrong.
    bool hasWrongChosen() const;

    /// Adds the chosen rows to the claim, in order, and returns their number. If any is wrong, adds nothing.
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
