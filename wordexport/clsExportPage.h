#pragma once

#include "costing/clsBill.h"
#include "formdata/clsZR3Form.h"

#include <QString>

#include <array>
#include <span>

// What a page of a government form consists of, as tables. The shapes of pages (plain, grids, schedule, additional
// information) work on these, and a page that is only tables has no code of its own.

/// How a value is typed. A text of "0", "0.00" or "00:00" never prints, in whatever class.
enum class clsFillClass {
    Text, ///< the stored text as it stands
    TickBox, ///< "True" or "False": a ticked or an empty box
    Money, ///< an amount as plain text: two decimals and commas
};

/// Where a text goes that is too long for its box.
struct clsOverRun {
    int limit; ///< the characters that the box holds
    int cutLength; ///< the characters that one continuation sheet holds
    const char *continuationTemplate;
};

/// A placeholder of a page and what replaces it.
struct clsPlaceholderRow {
    const char *placeholder;
    QString (*source)(const clsBill &bill);
    clsFillClass fill = clsFillClass::Text;
    const clsOverRun *overRun = nullptr;
    const char *property = nullptr; ///< where the text is that of one field
};

/// A cell of a grid's row: what is typed for item `i` of the list, from 1.
struct clsPrintedCell {
    QString (*source)(const clsZR3Form &form, int i);
    clsFillClass fill = clsFillClass::Text;
    const char *property = nullptr; ///< of the item, where the text is that of one
};

/// The list of the claim whose items a grid prints.
struct clsPrintedList {
    const char *name; ///< such as "experts"
    /// The order in that list of what is printed as the i-th, from 1; 0 where there is no such item.
    int (*order)(const clsZR3Form &form, int i);
};

/// A table of a page with one row for each item of a list. Offsets are lines from the start of the sheet.
struct clsGrid {
    int (*count)(const clsZR3Form &form);
    std::span<const clsPrintedCell> cells;
    int firstCapacity;
    int furtherCapacity;
    int firstOffset;
    int furtherOffset;
    const char *continuationTemplate;
    clsPrintedList list;
};

/// The placeholders of a page, in the order in which they are filled in. Rows that both forms have are tables of their
/// own, so that a page is a few tables behind each other.
using clsPlaceholderTables = std::array<std::span<const clsPlaceholderRow>, 4>;

/// A page on which text and boxes are filled in and nothing else.
struct clsPlainPage {
    int number;
    const char *pageTemplate;
    clsPlaceholderTables tables;
    /// The template of the panel membership sheet, on the page that has one.
    const char *panelTemplate = nullptr;
    /// The costs pages alone bear no mark of further sheets.
    bool hasMark = true;
};

/// A page with grids, and with placeholders that are filled in after them.
struct clsGridPage {
    /// What the sheet counter is before a grid.
    enum Counter { RunsOn, StartsAnew };
    struct Grid {
        const clsGrid *grid;
        Counter counter;
    };

    int number;
    const char *pageTemplate;
    std::span<const Grid> grids;
    std::span<const clsPlaceholderRow> rows;
    /// The mark is replaced after the placeholders rather than before them. The printed page is the same.
    bool markComesLast = false;
};

/// The place of the additional information on its page.
struct clsAdditionalInformation {
    int pageNumber;
    const char *pageTemplate;
    const char *continuationTemplate;
    int firstBudget; ///< lines on the page's own sheet
    int offset; ///< lines from the start of the sheet, on all sheets
};
