#pragma once

#include "preview/mdPreviewTypes.h"

/// Draws a preview of the claim anew, from the top of the grid. The grid's window is disabled meanwhile. An error in
/// the claim leaves the grid painting and the window enabled, and goes on to the caller.
void mdDrawPreview(clsPreviewKind kind);

/// The automatic refresh: where the preferences ask for it, the same at the place to which the user had scrolled.
void mdRefreshPreview(clsPreviewKind kind);

/// Fits what is drawn to another width of the grid, without drawing it anew. The row at the top stays.
void mdFitPreview();

/// The same whatever the preferences say, for a command that goes back or forth in the claim.
void mdRedrawPreview(clsPreviewKind kind);

/// Empties the grid, for a claim that is no more.
void mdClearPreview();
