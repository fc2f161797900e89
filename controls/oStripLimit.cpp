#include "controls/oStripLimit.h"

#include "controls/mdSigns.h"
#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"

#include <QPainter>

#include <algorithm>
#include <optional>

namespace {

constexpr int BarWidth = 236;
constexpr int NarrowBarWidth = 96;
constexpr int BarHeight = 5;
constexpr int BarGap = 4;
constexpr int Gap = 6;
constexpr int Height = 30;

struct clsStateRow {
    clsStripLimit::clsState state;
    QColor bar;
    QColor ink;
    std::optional<Sign> sign;
};

constexpr clsStateRow States[] = {
    {clsStripLimit::Plenty, Theme::Green, Theme::Ink, {}},
    {clsStripLimit::Near, Theme::Orange, Theme::Amber, Sign::Warning},
    {clsStripLimit::Over, Theme::Red, Theme::Red, Sign::Error},
    {clsStripLimit::Failed, Theme::Band, Theme::Red, Sign::Error},
};

const clsStateRow &look(clsStripLimit::clsState state)
{
    return *std::find_if(
        std::begin(States), std::end(States), [state](const clsStateRow &row) { return row.state == state; });
}

QString wholeCaption()
{
    return QStringLiteral("Costs limit, net with counsel");
}

QString shortCaption()
{
    return QStringLiteral("Costs limit");
}

} // namespace

void oStripLimit::setLimit(const clsStripLimit &limit)
{
    m_limit = limit;
    setAccessibleName(shortCaption() + QStringLiteral(": ") + limit.figures);
    setAccessibleDescription(limit.words);
    setToolTip(mdPlainToolTip(limit.words));
    updateGeometry();
    update();
}

void oStripLimit::setForm(clsForm form)
{
    m_form = form;
    updateGeometry();
    update();
}

QString oStripLimit::Words() const
{
    return shortCaption();
}

int oStripLimit::widthIn(clsForm form) const
{
    switch (form) {
    case clsForm::WholeCaption:
        return 2 * padding() + QFontMetrics(Theme::font(-1)).horizontalAdvance(wholeCaption()) + Theme::Space12
            + Theme::scaled(BarWidth);
    case clsForm::ShortCaption: return 2 * padding() + Theme::scaled(BarWidth);
    case clsForm::BarOnly: break;
    }
    return 2 * padding() + Theme::scaled(NarrowBarWidth);
}

QSize oStripLimit::sizeHint() const
{
    return {widthIn(m_form), Theme::scaled(Height)};
}

void oStripLimit::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintState(painter);
    QRect place = rect().adjusted(padding(), 0, -padding(), 0);
    const int line = QFontMetrics(Theme::font(-1)).height();
    const int barHeight = Theme::scaled(BarHeight);
    const bool hasWords = m_form != clsForm::BarOnly;
    if (m_form == clsForm::WholeCaption) {
        painter.setFont(Theme::font(-1));
        painter.setPen(Theme::Ink2);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, wholeCaption());
        place.setLeft(place.right() + 1 - Theme::scaled(BarWidth));
    }
    const int all = (hasWords ? line + Theme::scaled(BarGap) : 0) + barHeight;
    place.setTop((height() - all) / 2);
    if (hasWords)
        paintFigures(painter, QRect(place.left(), place.top(), place.width(), line));
    else if (look(m_limit.state).sign) // not only by colour
        place.setRight(paintSign(painter, place.right(), rect()));
    paintBar(painter, QRectF(place.left(), place.top() + all - barHeight, place.width(), barHeight));
}

/// Paints the sign of the state at the right end of a line; returns the right end of the room that is left.
int oStripLimit::paintSign(QPainter &painter, int right, const QRect &line) const
{
    const double side = std::min(signSide(), line.height());
    mdPaintSign(
        painter, QRectF(right + 1 - side, line.center().y() + 0.5 - side / 2, side, side), *look(m_limit.state).sign);
    return int(right - side) - Theme::scaled(Gap);
}

void oStripLimit::paintFigures(QPainter &painter, const QRect &line) const
{
    const clsStateRow &row = look(m_limit.state);
    QRect place = line;
    if (row.sign)
        place.setRight(paintSign(painter, line.right(), line));
    QFont font = Theme::font(-1, m_limit.state != clsStripLimit::Plenty);
    font.setUnderline(underMouse() && isEnabled());
    const int figures = QFontMetrics(font).horizontalAdvance(m_limit.figures);
    const int caption = QFontMetrics(Theme::font(-1)).horizontalAdvance(shortCaption());
    const bool hasCaption = m_form == clsForm::ShortCaption && figures + Theme::scaled(Gap) + caption <= place.width();
    if (hasCaption) {
        painter.setFont(Theme::font(-1));
        painter.setPen(Theme::Ink2);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, shortCaption());
    }
    painter.setFont(font);
    painter.setPen(row.ink);
    painter.drawText(place, int(hasCaption ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter, m_limit.figures);
}

void oStripLimit::paintBar(QPainter &painter, const QRectF &bar) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::Band);
    const double corner = bar.height() / 2;
    painter.drawRoundedRect(bar, corner, corner);
    if (m_limit.state == clsStripLimit::Failed || m_limit.share <= 0)
        return;
    QRectF taken = bar;
    // A share too small to be visible is drawn as long as the bar is high.
    taken.setWidth(std::max(bar.height(), bar.width() * std::min(1.0, m_limit.share)));
    painter.setBrush(look(m_limit.state).bar);
    painter.drawRoundedRect(taken, corner, corner);
}
