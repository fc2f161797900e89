#pragma once

#include "base/clsRunTimeError.h"

#include <QString>

#include <optional>
#include <vector>

/// What an export gives, as plain data: its sheets and the texts that are not printed at their own size.
struct clsForecast {
    /// The rows of a list that stand on a sheet.
    struct Grid {
        QString List; ///< such as "experts"
        int LinesAbove; ///< from the start of the sheet
        std::vector<int> Items {}; ///< of each row its order in that list; 0 where it is no single item's
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
        QString Property; ///< such as DebtorsDetails.Address; empty where more than one field stands behind it
        int Row; ///< in a grid, from 1; else 0
        int Column;
        double Size; ///< points
        double PrintedSize;
        int Lines; ///< that it takes at its own size
        clsState State;
        QString List {}; ///< in a grid: the list of the claim whose item it is, such as "experts"
        int Item = 0; ///< its order in that list
        int Grid = -1; ///< in a grid: its place among those of the sheet, from 0
    };
    struct Message {
        QString Title;
        QString Text;
    };

    /// In the order of the finished document. One that stands in it twice is here twice, its boxes once.
    std::vector<Sheet> Sheets {};
    std::vector<Box> Boxes {};
    /// No document would come out: why, as the export would tell it.
    bool Fails = false;
    std::vector<Message> Messages {};
    std::optional<clsRunTimeError> Error {};

    int SheetCount() const { return int(Sheets.size()); }
    int PaperPages() const;
};
