#pragma once

#include "costing/tables/clsTable.h"

#include <QByteArray>

/// A table as CSV: UTF-8, a line end of CR LF, quotes only where they are needed; for the clipboard tabs part the
/// cells. A text that a spreadsheet would run as a formula stands behind an apostrophe.
QByteArray mdTableAsCsv(const clsTable &table, char separator = ',');

/// A text as it is written into a table: one that begins with "=", "+", "-" or "@" and is no number gets an apostrophe
/// before it, and so does one that begins with apostrophes and such a character.
QString mdWithFormulaGuard(const QString &text);
/// The text without that apostrophe.
QString mdWithoutFormulaGuard(const QString &text);
