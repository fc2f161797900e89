#pragma once

#include "costing/comparing/clsClaimChanges.h"

class clsJsonWriter;

/// Writes the three lists of differences to the open object.
void mdWriteChanges(clsJsonWriter &json, const clsClaimChanges &changes);

/// The same for the user, one line ending in CR LF for each; empty if nothing differs.
QString mdChangesInLines(const clsClaimChanges &changes, const QString &before = {});
