#include "controls/oStripFigure.h"

#include "controls/mdSigns.h"
#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"

#include <QPainter>

namespace {

constexpr int Gap = 5;
constexpr int Height = 24;

} // namespace

void oStripFigure::setWords(const QString &words)
{
    m_words = words;
    tell();
}

void oStripFigure::setFigure(const QString &figure)
{
    m_figure = figure;
    m_whyNot.clear();
    tell();
}

void oStripFigure::setFailure(const QString &whyNot)
{
    m_figure = QStringLiteral("!");
    m_whyNot = whyNot;
    tell();
}

void oStripFigure::setStrong(bool strong)
{
    m_strong = strong;
    tell();
}

void oStripFigure::tell()
{
    setAccessibleName(m_whyNot.isEmpty() ? m_words + u' ' + m_figure : m_words + QStringLiteral(" can't be computed"));
    setAccessibleDescription(m_whyNot);
    setToolTip(mdPlainToolTip(m_whyNot));
    updateGeometry();
    update();
}

QFont oStripFigure::wordsFont() const
{
    return m_strong ? figureFont() : Theme::font(-1);
}

QFont oStripFigure::figureFont() const
{
    return Theme::font(m_strong ? 0 : -1, m_strong || !m_whyNot.isEmpty());
}

QSize oStripFigure::sizeHint() const
{
    const int words = QFontMetrics(wordsFont()).horizontalAdvance(m_words);
    const int figure = QFontMetrics(figureFont()).horizontalAdvance(m_figure);
    const int sign = m_whyNot.isEmpty() ? 0 : Theme::scaled(Gap) + signSide();
    return {2 * padding() + words + Theme::scaled(Gap) + figure + sign,
        qMax(Theme::scaled(Height), QFontMetrics(figureFont()).height() + 2 * Theme::Space4)};
}

void oStripFigure::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintState(painter);
    QRect place = rect().adjusted(padding(), 0, -padding(), 0);
    painter.setFont(wordsFont());
    painter.setPen(m_strong ? Theme::Ink : Theme::Ink2);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, m_words);
    place.setLeft(place.left() + painter.fontMetrics().horizontalAdvance(m_words) + Theme::scaled(Gap));
    QFont font = figureFont();
    font.setUnderline(underMouse() && isEnabled());
    painter.setFont(font);
    painter.setPen(m_whyNot.isEmpty() ? Theme::Ink : Theme::Red);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, m_figure);
    if (m_whyNot.isEmpty())
        return;
    const double side = signSide();
    mdPaintSign(painter, QRectF(place.right() + 1 - side, (height() - side) / 2, side, side), Sign::Error);
}
