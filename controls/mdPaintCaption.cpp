#include "controls/mdCaption.h"
#include "controls/mdPaintControls.h"

#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <cmath>

namespace {

/// The width for a line that is never broken.
constexpr int NoEnd = 1 << 24;

/// The position of the mnemonic letter in the text without ampersands, or -1.
qsizetype placeOfLetter(const QString &caption)
{
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != u'&')
            continue;
        if (caption[i + 1] != u'&')
            return mdPlainCaption(caption.left(i)).size();
        ++i;
    }
    return -1;
}

/// Breaks the text into lines as the painter does, and returns their height.
double breakLines(QTextLayout &layout, const QFontMetricsF &metrics, const QRect &rectangle, bool wrap)
{
    QTextOption option;
    option.setWrapMode(wrap ? QTextOption::WordWrap : QTextOption::ManualWrap);
    layout.setTextOption(option);
    double height = -metrics.leading();
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(wrap ? rectangle.width() : NoEnd);
        height = std::ceil(height + metrics.leading());
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return height;
}

double offset(double room, double length, bool end, bool centre)
{
    return end ? room - length : centre ? (room - length) / 2 : 0;
}

void underlineLetter(QPainter &painter, const QRect &rectangle, int flags, const QString &text, int place)
{
    const QFontMetricsF metrics(painter.font(), painter.device());
    QTextLayout layout(text, painter.font(), painter.device());
    const double height = breakLines(layout, metrics, rectangle, flags & Qt::TextWordWrap);
    const QTextLine line = layout.lineForTextPosition(place);
    if (!line.isValid())
        return;
    const Qt::Alignment across = QStyle::visualAlignment(painter.layoutDirection(), Qt::Alignment(flags & 0xFF));
    const double left = rectangle.left()
        + offset(rectangle.width(), line.horizontalAdvance(), across & Qt::AlignRight, across & Qt::AlignHCenter);
    const double top
        = rectangle.top() + offset(rectangle.height(), height, flags & Qt::AlignBottom, flags & Qt::AlignVCenter);
    const double first = left + line.cursorToX(place);
    const double behind = left + line.cursorToX(place + 1);
    const double y = std::round(top + line.y() + line.ascent() + metrics.underlinePos());
    const double thickness = qMax(1.0, std::round(metrics.lineWidth()));
    painter.fillRect(
        QRectF(std::round(first), y, std::round(behind) - std::round(first), thickness), painter.pen().brush());
}

} // namespace

void mdPaintCaption(QPainter &painter, const QRect &rectangle, int flags, const QString &caption, bool underline)
{
    flags &= ~Qt::TextShowMnemonic;
    painter.drawText(rectangle, flags | Qt::TextHideMnemonic, caption);
    const qsizetype place = placeOfLetter(caption);
    if (underline && place >= 0)
        underlineLetter(painter, rectangle, flags, mdPlainCaption(caption), int(place));
}
