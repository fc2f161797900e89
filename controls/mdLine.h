#pragma once

class QWidget;

// A thin grey line that parts what stands on either side of it.
QWidget *mdHorizontalLine(QWidget *parent);
QWidget *mdVerticalLine(QWidget *parent);
