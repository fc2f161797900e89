#pragma once

#include "editors/oScreenFrame.h"

#include <QStringList>

/// What is in the fields of a screen, each as a text, in their order. What the record has no property for is empty
/// here.
QStringList mdFieldTexts(const std::vector<clsScreenField> &fields);
