#pragma once

struct clsScene;

// The user's actions on a window as a whole.

bool mdPressKeys(clsScene &scene);
bool mdPressShortcut(clsScene &scene);
bool mdClickTab(clsScene &scene);
bool mdOpenMenu(clsScene &scene);
bool mdResize(clsScene &scene);
bool mdLeaveScreen(clsScene &scene);
bool mdSaveFromScreen(clsScene &scene);
bool mdScrollPreview(clsScene &scene);
bool mdClickBelow(clsScene &scene);
bool mdAnswerBox(clsScene &scene);
bool mdUsePopup(clsScene &scene);
bool mdEndProgram(clsScene &scene);
