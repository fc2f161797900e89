#pragma once

#include "controls/clsGridAlignment.h"
#include "controls/mdTheme.h"

#include <QString>

#include <functional>

class clsXMLRecord;
class clsZR3Item;

/// How a column gets its width. `Share` columns divide the width by their percentages; columns added after them need a
/// fixed width and are hidden if there is no room.
enum class clsGridRoom : unsigned char {
    Share,
    Rest, ///< what the others leave; hidden first
    Amount, ///< as wide as an amount
};

/// Returns an item's text for a column that shows no property, or raises the error that explains why it has none.
using clsGridTexts = std::function<QString(const clsZR3Item &)>;

/// A column of an `oSGrid`: its heading and the property of the items that it shows. Declarations give the first five
/// members, and of the others those that differ.
struct clsGridColumn {
    QString caption;
    clsGridAlignment headingAlignment = clsGridAlignment::Left;
    clsGridAlignment alignment = clsGridAlignment::Left;
    int width = 0; ///< per cent of the grid
    QString property; ///< the name of the item's property with the text
    bool bold = false;
    bool italic = false;
    bool underline = false;
    QColor colour = Theme::Ink;
    bool sortKey = false;
    int sortKind = 0; ///< stored but not used: a key column always sorts as text
    bool visible = true; ///< a hidden column can be a key, to sort by a value that is not shown
    const clsXMLRecord *helper = nullptr; ///< provides the argument of a property that takes one; outlives the column
    QString helperProperty {}; ///< the helper's property with that argument; empty for a plain property
    bool forceUnderline = false;
    QString faultOf {}; ///< the property whose fault the column shows, if not its own
    clsGridRoom room = clsGridRoom::Share;
    /// Instead of a property: called at each fill; the returned function then reads all rows.
    std::function<clsGridTexts()> texts {};

    /// Columns without a width carry values too, but are not seen.
    bool isShown() const { return visible && (width > 0 || room != clsGridRoom::Share); }
};
