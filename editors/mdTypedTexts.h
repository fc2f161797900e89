#pragma once

#include "commands/clsTypedTexts.h"
#include "editors/oScreenFrame.h"

#include <QStringList>

/// What is in the fields of a screen, each as a text, in their order.
QStringList mdFieldTexts(const std::vector<clsScreenField> &fields);

/// What is typed in the open screens and not stored: the fields that differ from what they were filled with. A screen
/// that lies over another comes after it.
std::vector<clsTypedTexts> mdTypedTexts();
