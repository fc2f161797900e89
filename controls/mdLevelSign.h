#pragma once

class QPainter;
class QRectF;

/// How grave what is told is. A level always shows as a sign and a word, never as a colour alone.
enum class clsLevel { Note, Warning, Error };

/// The sign of a level: a blue ring with "i", an orange triangle, a red disc with "!".
void mdPaintLevelSign(QPainter &painter, const QRectF &square, clsLevel level);
