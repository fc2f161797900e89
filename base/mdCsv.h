#pragma once

#include <QString>
#include <QStringList>

// Tables as text, by RFC 4180: commas between cells, CR LF after each line, quotes only where needed.

/// Puts a "'" before a text that a spreadsheet would take for a formula: one that begins with "=", "+", "-" or "@" and
/// is not a number.
QString mdGuardedText(const QString &text);

/// One line of a table, with its line end; the cells are not altered. Separators other than the comma are for the
/// clipboard.
QString mdCsvLine(const QStringList &cells, char separator = ',');
