#pragma once

#include <Qt>

class QColor;
class QPainter;
class QRect;
class QWidget;

/// Draws a thin line inside a rectangle, along each of these edges. Equally many screen dots thick everywhere, so that
/// at a scale of 1.25 all lines look the same.
void mdPaintLine(QPainter &painter, const QRect &rectangle, Qt::Edges edges, const QColor &colour);

// A thin grey separator line.
QWidget *mdHorizontalLine(QWidget *parent);
QWidget *mdVerticalLine(QWidget *parent);
