#pragma once

#include <QByteArray>
#include <QStringList>

#include <vector>

/// A row of a text table.
struct clsTextRow {
    int Line = 0; ///< the line of its start, from 1
    QStringList Cells;
};

/// A table parsed from a text: rows of cells, without meanings yet. Rows without any text are omitted.
struct clsTextTable {
    std::vector<clsTextRow> Rows;
    QString Error; ///< why the text is not a table; empty if it is

    /// Separated by commas, semicolons or tabs; cells may be quoted as in RFC 4180. Lines end in CR LF, LF or CR. With
    /// `mostRows` only the start is read.
    static clsTextTable read(QStringView text, QChar separator, int mostRows = MostRows);

    /// A larger table is not a list of work, and would only exhaust the memory.
    static constexpr int MostRows = 100'000;
    static constexpr int MostCells = 1'000; ///< in a row
    static constexpr int MostCellsInAll = 2'000'000; ///< including those of omitted rows
    static constexpr qint64 MostBytes = 32 * 1024 * 1024;
};

/// The text of a file: UTF-8 with or without a byte order mark, otherwise Windows-1252.
QString mdTextOfTable(const QByteArray &bytes);
