#pragma once

#include "controls/oSGrid.h"
#include "editors/frmScreen.h"

#include <QStringList>

#include <stdexcept>

// The lists that a screen's table describes.

/// The list that a grid shows.
inline const clsItemList &itemsOf(const oSGrid &grid)
{
    for (const clsScreenField &field : static_cast<const frmScreen *>(grid.window())->Fields())
        if (field.control == &grid)
            return *field.row->items;
    throw std::runtime_error("no list");
}

/// Its columns, each with its caption, property, width in per cent, and alignment.
inline QStringList captionsOf(const oSGrid &grid)
{
    QStringList result;
    for (const clsItemColumn &column : itemsOf(grid).columns) {
        const char *place = column.alignment == clsGridAlignment::Left ? "left"
            : column.alignment == clsGridAlignment::Right              ? "right"
                                                                       : "centre";
        result << QStringLiteral("%1 %2 %3 %4")
                      .arg(QString::fromUtf8(column.caption), QString::fromUtf8(column.property),
                          QString::number(column.width), QString::fromUtf8(place));
    }
    return result;
}
