#pragma once

#include <QStringList>

#include <vector>

/// A cell of a recognised column.
struct clsImportedCell {
    QString Text; ///< as in the table
    QString Value; ///< for the item
    QString Reason; ///< why it can't be read; empty if it can
};

/// A row in the form in which it will be stored.
struct clsImportedRow {
    int Number = 0; ///< from 1, below the header
    int Line = 0; ///< of the text
    std::vector<clsImportedCell> Cells {}; ///< one for each column of the list
    QString Reason {}; ///< why the whole row can't be read
    int DoubleOf = 0; ///< the order of an equal item of the claim; 0 if there is none
    bool IsChosen = true; ///< whether to store it; doubles only if the user chooses them

    bool isWrong() const;
    /// All reasons.
    QStringList reasons() const;
};
