#include "editors/oListTotal.h"

#include "base/clsRunTimeError.h"
#include "base/mdFormatMoney.h"
#include "controls/mdSigns.h"
#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"
#include "controls/oSGrid.h"
#include "formdata/mdGlobals.h"

#include <QPainter>

namespace {

constexpr int Gap = 12;
constexpr int SignGap = 5;
constexpr int SignSide = 14;

int widthOf(const QFont &font, const QString &text)
{
    return QFontMetrics(font).horizontalAdvance(text);
}

} // namespace

oListTotal::oListTotal(
    clsListTotal (*total)(), clsListTotal (*sum)(const clsMarkedItems &), oSGrid &grid, QWidget *parent)
    : QWidget(parent)
    , m_grid(grid)
    , m_total(total)
    , m_sum(sum)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_renewal.setSingleShot(true);
    connect(&m_renewal, &QTimer::timeout, this, &oListTotal::renew);
    if (const auto *model = grid.findChild<clsGridModel *>())
        connect(model, &QAbstractItemModel::modelReset, &m_renewal, qOverload<>(&QTimer::start));
    if (m_sum)
        connect(&grid, &oSGrid::MarksChange, this, &oListTotal::followMarks);
}

/// While only one row is selected the total doesn't change.
void oListTotal::followMarks()
{
    if (m_ofMarked || m_grid.SelectedItemCollection().size() > 1)
        m_renewal.start();
}

clsListTotal oListTotal::totalNow()
{
    const clsMarkedItems marked = m_sum ? m_grid.SelectedItemCollection() : clsMarkedItems();
    m_ofMarked = marked.size() > 1;
    return m_ofMarked ? m_sum(marked) : m_total();
}

QString oListTotal::word() const
{
    return m_ofMarked ? QStringLiteral("Sum") : QStringLiteral("Total");
}

void oListTotal::renew()
{
    if (!Form)
        return;
    try {
        const clsListTotal total = totalNow();
        m_counted = total.counted;
        m_figure = mdFormatMoney(total.value);
        m_whyNot.clear();
    } catch (const clsRunTimeError &error) {
        m_counted.clear();
        m_figure = QStringLiteral("!");
        m_whyNot = error.cause().isEmpty() ? error.description() : error.cause();
    }
    setToolTip(mdPlainToolTip(m_whyNot.isEmpty() ? m_counted : m_whyNot));
    setAccessibleName(m_whyNot.isEmpty() ? word() + u' ' + m_figure : word() + QStringLiteral(" can't be computed"));
    setAccessibleDescription(m_whyNot.isEmpty() ? m_counted : m_whyNot);
    updateGeometry();
    update();
}

void oListTotal::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    renew();
}

QSize oListTotal::sizeHint() const
{
    const int counted = widthOf(Theme::font(-1), m_counted) + Theme::scaled(Gap);
    return minimumSizeHint() + QSize(counted + m_grid.roomBehindAmounts(), 0);
}

QSize oListTotal::minimumSizeHint() const
{
    const int sign = m_whyNot.isEmpty() ? 0 : Theme::scaled(SignGap + SignSide);
    const int width
        = widthOf(Theme::font(), word()) + widthOf(Theme::font(0, true), m_figure) + Theme::scaled(Gap) + sign;
    return {width + contentsMargins().right(), QFontMetrics(Theme::font(0, true)).height() + 2};
}

void oListTotal::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int spare = qMax(0, width() - minimumSizeHint().width());
    QRect place = contentsRect().adjusted(0, 0, -qMin(m_grid.roomBehindAmounts(), spare), 0);
    const auto write = [&](const QString &text, const QFont &font, const QColor &ink) {
        painter.setFont(font);
        painter.setPen(ink);
        painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, text);
        place.setRight(place.right() - widthOf(font, text) - Theme::scaled(Gap));
    };
    if (!m_whyNot.isEmpty()) {
        const int side = Theme::scaled(SignSide);
        mdPaintSign(
            painter, QRectF(place.right() + 1 - side, place.center().y() + 0.5 - side / 2.0, side, side), Sign::Error);
        place.setRight(place.right() - side - Theme::scaled(SignGap));
    }
    write(m_figure, Theme::font(0, true), m_whyNot.isEmpty() ? Theme::Ink : Theme::Red);
    write(word(), Theme::font(), Theme::Ink);
    if (widthOf(Theme::font(-1), m_counted) <= place.width())
        write(m_counted, Theme::font(-1), Theme::Ink2);
}
