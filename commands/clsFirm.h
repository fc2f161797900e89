#pragma once

#include "formdata/clsZR3Form.h"

#include <QHash>
#include <QStringList>

/// The firm that fills new claims. Its details, groups, fee earners and counsel are held in a claim form that is never
/// opened, saved or exported.
struct clsFirm {
    clsZR3Form form;
    bool fillsNewClaims = false;

    /// The bytes of the file it was read from; empty if there was none.
    QByteArray bytes;

    // Columns and cells that another version of the program wrote to the file and this one doesn't know.
    QStringList otherColumns {};
    QHash<QString, QStringList> otherCells {}; ///< by the item's identity, which is empty for the firm's row
};
