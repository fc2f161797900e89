#pragma once

#include "formdata/clsXMLRecord.h"

#include <QString>

#include <vector>

/// A field that differs. Values are texts.
struct clsFieldChange {
    QString Screen; ///< the text of its tab; empty for an item's field
    QString Property;
    QString Old;
    QString New;
    clsXMLKind Kind = clsXMLKind::Text;
};

/// An item that was added, removed or changed.
struct clsItemChange {
    enum Kind { Added, Removed, Changed };

    QString List; ///< such as "schedule"
    QString Name {}; ///< its present name: "Schedule item 2", "Fee earner AB"
    Kind Change = Changed;
    int OldItem = 0; ///< its order, 0 if there is none
    int NewItem = 0;
    std::vector<clsFieldChange> Fields; ///< for an added or removed item, all that are not empty
    QString Effect; ///< its present value less its former value; empty for a list without amounts
};

/// A single figure of the bill that differs. Its text is empty for a form without it.
struct clsTotalChange {
    QString Key;
    QString Old;
    QString New;
};

/// The differences between two claims.
struct clsClaimChanges {
    std::vector<clsFieldChange> Fields;
    std::vector<clsItemChange> Items;
    std::vector<clsTotalChange> Totals;

    bool isEmpty() const { return Fields.empty() && Items.empty() && Totals.empty(); }
};
