#pragma once

#include "costing/comparing/clsClaimChanges.h"

class clsJsonWriter;

/// Writes the three lists of differences to the open object.
void mdWriteChanges(clsJsonWriter &json, const clsClaimChanges &changes);

/// The differences as they are, one line each, ending in CR LF; empty if there are none.
QString mdChangesInLines(const clsClaimChanges &changes, const QString &before = {});
