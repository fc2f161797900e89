#pragma once

#include <Qt>

class QColor;
class QPainter;
class QRect;
class QWidget;

/// Draws a thin line inside a rectangle, along each of these edges. It is as many dots of the screen thick at every
/// place, so that at a scale of one and a quarter no line is twice as thick as the next.
void mdPaintLine(QPainter &painter, const QRect &rectangle, Qt::Edges edges, const QColor &colour);

// A thin grey line that parts what stands on either side of it.
QWidget *mdHorizontalLine(QWidget *parent);
QWidget *mdVerticalLine(QWidget *parent);
