#pragma once

#include <QStringList>

#include <vector>

/// A cell of a column that is known.
struct clsImportedCell {
    QString Text; ///< as it stands in the table
    QString Value; ///< as the item will have it
    QString Reason; ///< why it can't be read; empty where it can
};

/// A row as it will be stored.
struct clsImportedRow {
    int Number = 0; ///< from 1, below the header
    int Line = 0; ///< of the text
    std::vector<clsImportedCell> Cells {}; ///< one for each column of the list
    QString Reason {}; ///< why the row as a whole can't be read
    int DoubleOf = 0; ///< the order of the item of the claim that it equals; 0 where there is none
    bool IsChosen = true; ///< whether it is to be stored; doubles are not, until someone says so

    bool isWrong() const;
    /// All reasons.
    QStringList reasons() const;
};
