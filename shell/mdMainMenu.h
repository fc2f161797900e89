#pragma once

class QMenu;
class frmMain;

/// Fills the window's menu bar from the table of its commands; a command that is still to come is disabled.
/// Each menu and entry bears the name of its member, such as `mnuPreview` and `mnuSaveAs`.
void mdBuildMainMenu(frmMain &window);
