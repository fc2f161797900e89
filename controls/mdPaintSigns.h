#pragma once

class QPainter;
class QRectF;

// The signs of the levels, drawn to fill a square. None stands without a word or a number beside it.

/// A red disc with an exclamation mark.
void mdPaintErrorSign(QPainter &painter, const QRectF &square);
/// An orange triangle with an amber edge.
void mdPaintWarningSign(QPainter &painter, const QRectF &square);
