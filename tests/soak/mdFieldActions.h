#pragma once

struct clsScene;

// The user's actions on the fields of any window, found by their kinds.

bool mdTypeIntoField(clsScene &scene);
bool mdUseList(clsScene &scene);
bool mdClickButton(clsScene &scene);
bool mdUseGridByKeys(clsScene &scene);
bool mdUseGridByMouse(clsScene &scene);
bool mdSortGrid(clsScene &scene);
bool mdTurnWheel(clsScene &scene);
bool mdOpenPage(clsScene &scene);
