#pragma once

#include "editors/clsScreenTable.h"

/// True when a field of a screen says something else than its record, so that storing it would change the record, which
/// stays as it is. A field that can't be stored as it stands differs too.
bool mdFieldDiffers(const clsScreenRow &row, const QWidget &control, clsXMLRecord &record);
