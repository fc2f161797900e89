#pragma once

#include <QByteArray>
#include <QStringList>

#include <vector>

/// A row of a table as it stands in a text.
struct clsTextRow {
    int Line = 0; ///< the line in which it begins, from 1
    QStringList Cells;
};

/// A table as it stands in a text: rows of cells, of which none means anything yet. Rows without any text are left out.
struct clsTextTable {
    std::vector<clsTextRow> Rows;
    QString Error; ///< why the text is no table; empty where it is one

    /// Separated by commas, semicolons or tabs; cells may stand in quotes, as in RFC 4180. Lines end in CR LF, LF or
    /// CR. With `mostRows` only the beginning is read.
    static clsTextTable read(QStringView text, QChar separator, int mostRows = MostRows);

    /// What is larger is no list of work, and would only fill the memory.
    static constexpr int MostRows = 100'000;
    static constexpr int MostCells = 1'000; ///< in a row
    static constexpr int MostCellsInAll = 2'000'000; ///< with those of the rows that are left out
    static constexpr qint64 MostBytes = 32 * 1024 * 1024;
};

/// The text of a file: UTF-8 with or without a mark, else Windows-1252.
QString mdTextOfTable(const QByteArray &bytes);
