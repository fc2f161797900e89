#pragma once

#include "editors/clsScreenTable.h"

#include <functional>

/// Opens the editor of an item, or of a new one if `item` is null, and waits until it is closed. True if it was saved.
/// `prepare` is called after the screen is filled and before it is shown.
bool mdEditItem(QWidget *owner, const clsScreen &editor, clsXMLRecord *item,
    const std::function<void(frmScreen &screen)> &prepare = nullptr);
