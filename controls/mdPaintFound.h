#pragma once

#include <QFont>
#include <QRect>
#include <QStringList>

#include <utility>
#include <vector>

class QPainter;

/// Where words stand in a text, from its beginning, as place and length; what overlaps is one place.
std::vector<std::pair<qsizetype, qsizetype>> mdPlacesOf(const QStringList &words, const QString &text);

/// Draws a text of one line as a cell does, cut by an ellipsis where it is too long, in the ink of the painter; the
/// words in it stand out in semibold, with a purple line beneath.
void mdPaintFound(QPainter &painter, const QRect &place, Qt::Alignment alignment, const QFont &font,
    const QString &text, const QStringList &words);
