#pragma once

#include <QFont>
#include <QRect>
#include <QStringList>

#include <utility>
#include <vector>

class QFontMetrics;
class QPainter;

/// Where words stand in a text, from its beginning, as place and length; what overlaps is one place.
std::vector<std::pair<qsizetype, qsizetype>> mdPlacesOf(const QStringList &words, const QString &text);

/// The part of a text that is shown where it is too long: its beginning, or, where the words stand behind that, what
/// stands around the first of them.
QString mdShownPart(const QString &text, const QStringList &words, const QFontMetrics &metrics, int width);

/// Draws a text of one line as a cell does, its shown part where it is too long, in the ink of the painter; the
/// words in it stand out in semibold, with a purple line beneath.
void mdPaintFound(QPainter &painter, const QRect &place, Qt::Alignment alignment, const QFont &font,
    const QString &text, const QStringList &words);
