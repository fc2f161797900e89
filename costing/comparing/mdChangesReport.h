#pragma once

#include "costing/comparing/clsClaimChanges.h"

class QJsonObject;
class clsJsonWriter;

/// Writes the three lists of differences to the open object; on request with what each item is called.
void mdWriteChanges(clsJsonWriter &json, const clsClaimChanges &changes, bool withNames = false);

/// Reads them from such an object.
clsClaimChanges mdReadChanges(const QJsonObject &object);

/// The differences, a line ending in CR LF for each; empty if there are none.
QString mdChangesInLines(const clsClaimChanges &changes, const QString &before = {});
