#include "controls/mdGridWidths.h"

#include "controls/mdGridMetrics.h"

#include <QFontMetrics>

#include <algorithm>

namespace {

/// The text that an amount column must hold, and the minimum number of characters for a text column.
const QString WidestAmount = QStringLiteral("999,999.99");
constexpr int FewestCharacters = 16;

int withMargins(int width)
{
    return width + 2 * Theme::Space8;
}

int headingWidth(const clsGridColumn &column)
{
    return withMargins(QFontMetrics(mdGridHeadingFont()).horizontalAdvance(column.caption));
}

/// The minimum width of the `Share` columns, so that no heading is cut off.
int leastOfShares(const std::vector<clsGridColumn> &columns)
{
    int least = 0;
    for (const clsGridColumn &column : columns)
        if (column.isShown() && column.room == clsGridRoom::Share)
            least = std::max(least, (headingWidth(column) * 100 + column.width - 1) / column.width);
    return least;
}

int leastOf(const clsGridColumn &column)
{
    const QFontMetrics metrics(mdGridCellFont());
    const int content = column.room == clsGridRoom::Amount ? metrics.horizontalAdvance(WidestAmount)
                                                           : FewestCharacters * metrics.averageCharWidth();
    return std::max(withMargins(content), headingWidth(column));
}

/// The width of the added columns of a kind; 0 if there is too little room for them.
int roomOf(const std::vector<clsGridColumn> &columns, clsGridRoom kind, int room)
{
    int width = 0;
    for (const clsGridColumn &column : columns)
        if (column.isShown() && column.room == kind)
            width += leastOf(column);
    return width <= room ? width : 0;
}

} // namespace

std::vector<int> mdGridWidths(const std::vector<clsGridColumn> &columns, int room)
{
    const int least = leastOfShares(columns);
    const int amounts = roomOf(columns, clsGridRoom::Amount, room - least);
    const int rest = amounts > 0 ? roomOf(columns, clsGridRoom::Rest, room - least - amounts) : 0;
    // If there is a text column, the `Share` columns get at most half of a wide grid.
    const int shared = rest > 0 ? std::max(least, std::min(room / 2, room - amounts - rest)) : room - amounts;
    std::vector<int> widths;
    for (const clsGridColumn &column : columns) {
        int width = 0;
        if (column.isShown())
            switch (column.room) {
            case clsGridRoom::Share: width = qRound(std::max(0, shared) / 100.0 * column.width); break;
            case clsGridRoom::Amount: width = amounts > 0 ? leastOf(column) : 0; break;
            case clsGridRoom::Rest: width = rest > 0 ? room - amounts - shared : 0; break;
            }
        widths.push_back(width);
    }
    return widths;
}
