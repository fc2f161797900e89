#pragma once

#include "formdata/clsZR3Form.h"

#include <QHash>
#include <QStringList>

/// The firm as it is kept for new claims. Its details, groups, fee earners and counsel stand in a form like those of a
/// claim, which is never opened, saved or exported.
struct clsFirm {
    clsZR3Form form;
    bool fillsNewClaims = false;

    /// The bytes of the file that it was read from; empty where there was none.
    QByteArray bytes;

    // What another version of the program has put into the file, and this one knows nothing of.
    QStringList otherColumns {};
    QHash<QString, QStringList> otherCells {}; ///< of each row, by the item's identity; the firm's own has none
};
