#pragma once

#include <Qt>

/// How the text of a cell lies in it, by the codes that the lists and the previews share. A wrapped text takes as many
/// lines as it needs.
enum class clsGridAlignment : unsigned char { Left = 0, Centre = 1, Right = 2, LeftWrapped = 16, CentreWrapped = 17 };

/// The toolkit's flags for a code; the height is always centred.
Qt::Alignment mdGridAlignment(clsGridAlignment code);
bool mdGridWraps(clsGridAlignment code);
