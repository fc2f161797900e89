#pragma once

#include "costing/comparing/clsClaimChanges.h"

class clsJsonWriter;

/// Writes the three lists of differences to the open object.
void mdWriteChanges(clsJsonWriter &json, const clsClaimChanges &changes);

/// What differs, as it is given, a line that ends in CR LF for each; nothing where nothing differs.
QString mdChangesInLines(const clsClaimChanges &changes, const QString &before = {});
