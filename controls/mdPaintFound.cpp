#include "controls/mdPaintFound.h"

#include "controls/mdTheme.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int LineBelow = 2;
constexpr int LineHeight = 2;
/// If the beginning isn't shown, at least this many characters before the word, as far as available.
constexpr qsizetype WordsBefore = 8;

/// A part of the text drawn in one font.
struct clsPiece {
    QString text;
    bool found;
};

std::vector<clsPiece> piecesOf(const QString &text, const QStringList &words)
{
    std::vector<clsPiece> pieces;
    qsizetype done = 0;
    for (const auto &[place, length] : mdPlacesOf(words, text)) {
        if (place > done)
            pieces.push_back({text.mid(done, place - done), false});
        pieces.push_back({text.mid(place, length), true});
        done = place + length;
    }
    if (done < text.size())
        pieces.push_back({text.mid(done), false});
    return pieces;
}

} // namespace

std::vector<std::pair<qsizetype, qsizetype>> mdPlacesOf(const QStringList &words, const QString &text)
{
    std::vector<std::pair<qsizetype, qsizetype>> all;
    for (const QString &word : words)
        for (qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0 && !word.isEmpty();
             at = text.indexOf(word, at + word.size(), Qt::CaseInsensitive))
            all.emplace_back(at, word.size());
    std::sort(all.begin(), all.end());
    std::vector<std::pair<qsizetype, qsizetype>> places;
    for (const auto &[at, length] : all) {
        if (places.empty() || at > places.back().first + places.back().second)
            places.emplace_back(at, length);
        else
            places.back().second = std::max(places.back().second, at + length - places.back().first);
    }
    return places;
}

QString mdShownPart(const QString &text, const QStringList &words, const QFontMetrics &metrics, int width)
{
    const QString beginning = metrics.elidedText(text, Qt::ElideRight, width);
    const auto places = mdPlacesOf(words, text);
    if (beginning == text || places.empty() || !mdPlacesOf(words, beginning).empty())
        return beginning;
    const qsizetype from = text.lastIndexOf(u' ', std::max<qsizetype>(0, places.front().first - WordsBefore)) + 1;
    return from == 0 ? beginning : metrics.elidedText(u'\u2026' + text.mid(from), Qt::ElideRight, width);
}

void mdPaintFound(QPainter &painter, const QRect &place, Qt::Alignment alignment, const QFont &font,
    const QString &text, const QStringList &words)
{
    QFont strong = font;
    strong.setWeight(QFont::DemiBold);
    const QFontMetrics plainMetrics(font);
    const QFontMetrics strongMetrics(strong);
    const auto widthOf = [&](const std::vector<clsPiece> &pieces) {
        int width = 0;
        for (const clsPiece &piece : pieces)
            width += (piece.found ? strongMetrics : plainMetrics).horizontalAdvance(piece.text);
        return width;
    };
    std::vector<clsPiece> pieces = piecesOf(text, words);
    // The additional width of the semibold text reduces the room for the text.
    const int more = std::max(0, widthOf(pieces) - plainMetrics.horizontalAdvance(text));
    if (widthOf(pieces) > place.width())
        pieces = piecesOf(mdShownPart(text, words, plainMetrics, place.width() - more), words);

    int left = place.left();
    if (alignment & Qt::AlignRight)
        left = place.right() + 1 - widthOf(pieces);
    else if (alignment & Qt::AlignHCenter)
        left += (place.width() - widthOf(pieces)) / 2;
    for (const clsPiece &piece : pieces) {
        const QFontMetrics &metrics = piece.found ? strongMetrics : plainMetrics;
        const QRect room(left, place.top(), metrics.horizontalAdvance(piece.text), place.height());
        painter.setFont(piece.found ? strong : font);
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, piece.text);
        if (piece.found) {
            const int baseline = room.top() + (room.height() - metrics.height()) / 2 + metrics.ascent();
            painter.fillRect(QRect(room.left(), baseline + LineBelow, room.width(), LineHeight), Theme::Purple);
        }
        left += room.width();
    }
}
