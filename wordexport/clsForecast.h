#pragma once

#include "base/clsRunTimeError.h"

#include <QString>

#include <optional>
#include <vector>

/// The result of an export as plain data: its sheets and the texts that are not printed at their own size.
struct clsForecast {
    /// The rows of a list on a sheet.
    struct Grid {
        QString List; ///< such as "experts"
        int LinesAbove; ///< from the start of the sheet
        std::vector<int> Items {}; ///< the position in that list of each row's item; 0 if it is not a single item
    };
    struct Sheet {
        int Page;
        QString Name; ///< such as 3(1)
        QString Template;
        int PaperPages;
        std::vector<Grid> Grids {};
    };
    struct Box {
        enum clsState { Smaller, RunsOn, Cut };

        QString Sheet;
        QString Placeholder; ///< empty in a grid
        QString Property; ///< such as DebtorsDetails.Address; empty if the text comes from more than one field
        int Row; ///< in a grid, from 1; otherwise 0
        int Column;
        double Size; ///< points
        double PrintedSize;
        int Lines; ///< at its own size
        clsState State;
        QString List {}; ///< in a grid: the claim's list that the item belongs to, such as "experts"
        int Item = 0; ///< its order in that list
        int Grid = -1; ///< in a grid: its index among those of the sheet, from 0
    };
    struct Message {
        QString Title;
        QString Text;
    };

    /// In the order of the finished document. A sheet that occurs twice in it is listed twice, its boxes once.
    std::vector<Sheet> Sheets {};
    std::vector<Box> Boxes {};
    /// No document would be produced: the reason, as the export would report it.
    bool Fails = false;
    std::vector<Message> Messages {};
    std::optional<clsRunTimeError> Error {};

    int SheetCount() const { return int(Sheets.size()); }
    int PaperPages() const;
};
