#pragma once

#include "preview/mdPreviewTypes.h"

/// Redraws a preview of the claim from the top of the grid. The window is disabled meanwhile. An error in the claim is
/// passed on to the caller, with the grid painting and the window enabled again.
void mdDrawPreview(clsPreviewKind kind);

/// The automatic refresh: if it is on in the preferences, redraws the preview at its scroll position.
void mdRefreshPreview(clsPreviewKind kind);

/// Fits the present rows to another width of the grid, without redrawing the preview. The row at the top stays there.
void mdFitPreview();

/// The same regardless of the preferences, for undo and redo.
void mdRedrawPreview(clsPreviewKind kind);

/// Empties the grid after its claim was closed.
void mdClearPreview();
