#pragma once

#include <QFont>

// Fonts and heights of the grids. Cells are set in 8 points and marks in 12 as long as the desktop's font is of 10 or
// fewer; with a larger one they grow.

QFont mdGridCellFont();
QFont mdGridMarkFont();
QFont mdGridHeadingFont();

int mdGridRowHeight();
int mdGridHeadingHeight();
