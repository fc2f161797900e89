#pragma once

#include "editors/clsScreenTable.h"

/// Whether storing a field would change the record, which itself is not changed. A field whose text can't be stored
/// also differs.
bool mdFieldDiffers(const clsScreenRow &row, const QWidget &control, clsXMLRecord &record);
