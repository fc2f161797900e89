#pragma once

#include "controls/clsGridAlignment.h"
#include "controls/mdTheme.h"

#include <QString>

class clsXMLRecord;

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

    /// Columns without a width have values too, but are not visible.
    bool isShown() const { return visible && width > 0; }
};
