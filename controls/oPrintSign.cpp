#include "controls/oPrintSign.h"

#include "controls/mdIcons.h"
#include "controls/mdSigns.h"
#include "controls/mdTheme.h"

#include <QPainter>

namespace {

constexpr int Width = 20;
constexpr int Height = 16;
constexpr int Side = 14;

/// A large A and a small one on the same line.
void paintLetters(QPainter &painter, const QRect &rectangle)
{
    const QString letter = QStringLiteral("A");
    painter.setPen(Theme::Blue);
    painter.setFont(Theme::font(1, true));
    const int large = painter.fontMetrics().horizontalAdvance(letter);
    const int line = rectangle.top() + (rectangle.height() + painter.fontMetrics().capHeight()) / 2;
    painter.drawText(rectangle.left(), line, letter);
    painter.setFont(Theme::font(-3, true));
    painter.drawText(rectangle.left() + large + 1, line, letter);
}

} // namespace

oPrintSign::oPrintSign(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("oPrintSign"));
    hide();
}

void oPrintSign::setNote(const clsPrintNote &note)
{
    m_note = note;
    setToolTip(note.words);
    setAccessibleName(note.words);
    setVisible(note.sign != clsPrintNote::Fits);
    update();
}

QSize oPrintSign::sizeHint() const
{
    return mdPrintSignSize();
}

void oPrintSign::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    mdPaintPrintSign(painter, rect(), m_note.sign);
}

QSize mdPrintSignSize()
{
    return {Theme::scaled(Width), Theme::scaled(Height)};
}

void mdPaintPrintSign(QPainter &painter, const QRect &place, clsPrintNote::clsSign sign)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = Theme::scaled(Side);
    const QRectF square(place.left(), place.top() + (place.height() - side) / 2, side, side);
    switch (sign) {
    case clsPrintNote::Fits: break;
    case clsPrintNote::Smaller: paintLetters(painter, place); break;
    case clsPrintNote::RunsOn: mdPaintGlyph(painter, square, Glyph::RunsOn, Theme::Blue); break;
    case clsPrintNote::Cut: mdPaintSign(painter, square, Sign::Error); break;
    }
    painter.restore();
}
