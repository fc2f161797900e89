#pragma once

#include "editors/clsScreenTable.h"

#include <functional>

/// Opens the editor of an item, or of a new one where `item` is nothing, and waits until it is closed. True when it was
/// saved. `prepare` is given the screen when it is filled and before it is shown.
bool mdEditItem(QWidget *owner, const clsScreen &editor, clsXMLRecord *item,
    const std::function<void(frmSection &screen)> &prepare = nullptr);
