#pragma once

#include "editors/oScreenFrame.h"

#include <QStringList>

/// What is in the fields of a screen, each as a text, in their order. What the record has no property for is empty
/// here.
QStringList mdFieldTexts(const std::vector<clsScreenField> &fields);

/// Whether the text of a field is typed, and not a tick or a choice from a list.
bool mdHoldsTyping(const clsScreenField &field);

/// Puts such a text into a field, as the user would.
void mdPutFieldText(const clsScreenField &field, const QString &text);
