#pragma once

class QMenu;
class frmMain;

/// Fills the window's menu bar from the table of its commands.
/// Each menu and entry bears the name of its member, such as `mnuPreview` and `mnuSaveAs`.
void mdBuildMainMenu(frmMain &window);
