#pragma once

#include "editors/oScreenFrame.h"

#include <QStringList>

/// The texts of a screen's fields, in their order. Empty for a field without a property.
QStringList mdFieldTexts(const std::vector<clsScreenField> &fields);

/// Whether the text of a field is typed, rather than ticked or chosen.
bool mdHoldsTyping(const clsScreenField &field);

/// Enters such a text into a field, as the user would.
void mdPutFieldText(const clsScreenField &field, const QString &text);
