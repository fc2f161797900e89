#pragma once

#include "editors/clsScreenTable.h"

#include <QString>

class clsDice;

/// What a user might enter in a field of a kind: mostly what fits, now and then what is odd, far too long or wrong.
QString mdOddInput(clsDice &dice, clsRowKind kind);

/// The same, but always what the box of the kind would leave in the claim.
QString mdFittingInput(clsDice &dice, clsRowKind kind);
