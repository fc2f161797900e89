#pragma once

#include <QFont>
#include <QRect>
#include <QStringList>

#include <utility>
#include <vector>

class QFontMetrics;
class QPainter;

/// The positions and lengths of words in a text, in order; overlapping ones are merged.
std::vector<std::pair<qsizetype, qsizetype>> mdPlacesOf(const QStringList &words, const QString &text);

/// The part to show of a text that is too long: its beginning or, if the words come after that, the part around the
/// first of them.
QString mdShownPart(const QString &text, const QStringList &words, const QFontMetrics &metrics, int width);

/// Draws a single-line text as a cell does, in the painter's colour; of a text that is too long only the part to show.
/// The words in it are semibold, with a purple line below.
void mdPaintFound(QPainter &painter, const QRect &place, Qt::Alignment alignment, const QFont &font,
    const QString &text, const QStringList &words);
