#pragma once

#include <QString>
#include <QStringList>

// Tables as text, by RFC 4180: a comma between cells, CR LF behind each line, quotes only where a cell needs them.

/// A text that a spreadsheet would take for a formula, with a "'" before it: one that begins with "=", "+", "-" or "@"
/// and is no number.
QString mdGuardedText(const QString &text);

/// A line of a table, with its end; the cells stand as they are given. Another separator than the comma is for the
/// clipboard.
QString mdCsvLine(const QStringList &cells, char separator = ',');
