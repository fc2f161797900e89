#pragma once

#include "controls/clsGridAlignment.h"
#include "controls/mdTheme.h"

#include <QString>

class clsXMLRecord;

/// One column of an `oSGrid`: what its heading says and which property of the items it shows. Whoever declares one
/// gives the first five places, and of the others those that differ.
struct clsGridColumn {
    QString caption;
    clsGridAlignment headingAlignment = clsGridAlignment::Left;
    clsGridAlignment alignment = clsGridAlignment::Left;
    int width = 0; ///< per cent of the grid
    QString property; ///< the name of the item's property that gives the text
    bool bold = false;
    bool italic = false;
    bool underline = false;
    QColor colour = Theme::Ink;
    bool sortKey = false;
    int sortKind = 0; ///< kept and not consulted: a key column always sorts as text
    bool visible = true; ///< a hidden column that is a key sorts by a value that is not shown
    const clsXMLRecord *helper = nullptr; ///< gives the argument of a property that takes one; outlives the column
    QString helperProperty {}; ///< the helper's property that gives it; empty for a plain property
    bool forceUnderline = false;
    QString faultOf {}; ///< the property whose fault the column shows, where it isn't its own

    /// Columns without a width carry values too, but are not seen.
    bool isShown() const { return visible && width > 0; }
};
