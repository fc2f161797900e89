#pragma once

#include "costing/clsBill.h"
#include "formdata/clsZR3Form.h"

#include <QString>

#include <array>
#include <span>

// The content of a government form's page, as tables. The page types (plain, grids, schedule, additional information)
// work on these; a page that consists only of tables has no other code.

/// How a value is typed. A text of "0", "0.00" or "00:00" is never printed, in any class.
enum class clsFillClass {
    Text, ///< the stored text unchanged
    TickBox, ///< "True" or "False": a ticked or an empty box
    Money, ///< a plain-text amount: two decimals and commas
};

/// The limits of a text that continues on further sheets if too long for its box.
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
    const char *property = nullptr; ///< if the text is that of one field
};

/// A cell of a grid's row: the text for item `i` of the list, from 1.
struct clsPrintedCell {
    QString (*source)(const clsZR3Form &form, int i);
    clsFillClass fill = clsFillClass::Text;
    const char *property = nullptr; ///< of the item, if the text is that of one property
};

/// The list of the claim whose items a grid prints.
struct clsPrintedList {
    const char *name; ///< such as "experts"
    /// The position in that list of the i-th printed item, from 1; 0 if there is no such item.
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

/// The placeholders of a page, in the order in which they are filled in. Rows common to both forms are separate tables,
/// so that a page is a sequence of a few tables.
using clsPlaceholderTables = std::array<std::span<const clsPlaceholderRow>, 4>;

/// A page with only text and tick boxes to fill in.
struct clsPlainPage {
    int number;
    const char *pageTemplate;
    clsPlaceholderTables tables;
    /// The template of the panel membership sheet, on the page that has one.
    const char *panelTemplate = nullptr;
    /// Only the costs pages have no mark for further sheets.
    bool hasMark = true;
};

/// A page with grids, and with placeholders that are filled in after them.
struct clsGridPage {
    /// Whether the sheet counter continues or restarts at a grid.
    enum Counter { RunsOn, StartsAnew };
    struct Grid {
        const clsGrid *grid;
        Counter counter;
    };

    int number;
    const char *pageTemplate;
    std::span<const Grid> grids;
    std::span<const clsPlaceholderRow> rows;
    /// The mark is replaced after the placeholders instead of before them. The printed page is the same.
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
