#pragma once

class QMenu;
class frmMain;

/// Fills the window's menu bar from the table of its commands. The object name of each menu and entry is the name of
/// its member, such as `mnuPreview` and `mnuSaveAs`.
void mdBuildMainMenu(frmMain &window);
