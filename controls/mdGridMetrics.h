#pragma once

#include <QFont>

// Fonts and heights of the grids. Cells use 8 points and marks 12 if the desktop's font is 10 points or smaller; with a
// larger font they scale.

QFont mdGridCellFont();
QFont mdGridMarkFont();
QFont mdGridHeadingFont();

int mdGridRowHeight();
int mdGridHeadingHeight();
