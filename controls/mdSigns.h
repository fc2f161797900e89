#pragma once

#include <QPixmap>
#include <QRectF>

class QPainter;

/// The severities of a message, most severe first.
enum class Sign { Error, Warning, Note };

/// Draws the sign in the middle of the rectangle, as large as its shorter side.
void mdPaintSign(QPainter &painter, const QRectF &rectangle, Sign sign);

/// The sign as a picture for a label on a screen of that scale.
QPixmap mdSignPixmap(Sign sign, int side, double scale);

/// A section's state as a dot: a ring, a disc, and two diamonds.
enum class Dot { Empty, Begun, Warnings, Errors };

/// Draws the dot to fill the square.
void mdPaintDot(QPainter &painter, const QRectF &square, Dot dot);
