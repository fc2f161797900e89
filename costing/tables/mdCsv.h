#pragma once

#include "costing/tables/clsTable.h"

#include <QByteArray>

/// A table as CSV: UTF-8, line ends of CR LF, quotes only where needed; for the clipboard separated by tabs. A text
/// that a spreadsheet would run as a formula gets an apostrophe before it.
QByteArray mdTableAsCsv(const clsTable &table, char separator = ',');

/// A text for a table: gets an apostrophe before it if it starts with "=", "+", "-" or "@" and is not a number, or with
/// apostrophes followed by such a character.
QString mdWithFormulaGuard(const QString &text);
/// The text without that apostrophe.
QString mdWithoutFormulaGuard(const QString &text);
