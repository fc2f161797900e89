#pragma once

#include "editors/clsScreenTable.h"

#include <QString>

class clsDice;

/// Something that a user might enter in a field of this kind: usually valid, sometimes odd, far too long or wrong.
QString mdOddInput(clsDice &dice, clsRowKind kind);

/// The same, but always a value that the box would store unchanged.
QString mdFittingInput(clsDice &dice, clsRowKind kind);
