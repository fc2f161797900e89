#pragma once

#include <Qt>

/// The alignment of the text in a cell, with the codes common to lists and previews. A wrapped text takes as many lines
/// as it needs.
enum class clsGridAlignment : unsigned char { Left = 0, Centre = 1, Right = 2, LeftWrapped = 16, CentreWrapped = 17 };

/// The toolkit's flags for a code; always centred vertically.
Qt::Alignment mdGridAlignment(clsGridAlignment code);
bool mdGridWraps(clsGridAlignment code);
