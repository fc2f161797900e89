#pragma once

class clsImportedRows;
class clsZR3Form;
struct clsPasteList;

// What the columns of a table with such a header line were taken for, kept in the state folder from one paste to the
// next.

/// Gives the columns the meanings that they had the last time.
void mdUseColumnProfile(clsImportedRows &rows, const clsZR3Form &form, const clsPasteList &list);
/// Keeps the meanings that they now have. A table without a header line leaves nothing.
void mdKeepColumnProfile(const clsImportedRows &rows, const clsPasteList &list);
