#pragma once

class clsImportedRows;
class clsZR3Form;
struct clsPasteList;

// Stores in the state folder which meanings the user gave to the columns below a header line.

/// Applies the meanings used last time for these columns.
void mdUseColumnProfile(clsImportedRows &rows, const clsZR3Form &form, const clsPasteList &list);
/// Stores the present meanings. Does nothing for a table without a header line.
void mdKeepColumnProfile(const clsImportedRows &rows, const clsPasteList &list);
