#pragma once

#include "costing/comparing/clsClaimChanges.h"

class QJsonObject;
class clsJsonWriter;

/// Writes the three lists of what differs into an object that is open.
void mdWriteChanges(clsJsonWriter &json, const clsClaimChanges &changes);

/// Reads them from such an object.
clsClaimChanges mdReadChanges(const QJsonObject &object);

/// The same for people, a line that ends in CR LF for each; nothing where nothing differs.
QString mdChangesInLines(const clsClaimChanges &changes, const QString &before = {});
