#pragma once

struct clsScene;

// What a user does with the fields of a window, found by their kinds: whatever screen it is, and whatever is on it.

bool mdTypeIntoField(clsScene &scene);
bool mdUseList(clsScene &scene);
bool mdClickButton(clsScene &scene);
bool mdUseGridByKeys(clsScene &scene);
bool mdUseGridByMouse(clsScene &scene);
bool mdSortGrid(clsScene &scene);
bool mdTurnWheel(clsScene &scene);
bool mdOpenPage(clsScene &scene);
