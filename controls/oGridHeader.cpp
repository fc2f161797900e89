#include "controls/oGridHeader.h"

#include "controls/mdGridMetrics.h"
#include "controls/mdPaintControls.h"
#include "controls/mdTheme.h"

#include <QPainter>
#include <QStyleOption>

QSize oGridHeaderEnd::sizeHint() const
{
    return {0, mdGridHeadingHeight()};
}

void oGridHeaderEnd::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    mdPaintHeading(painter, option);
}

oGridHeader::oGridHeader(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(false);
    setSectionsMovable(false);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Fixed);
    setStretchLastSection(true);
    setMinimumSectionSize(0);
}

QSize oGridHeader::sizeHint() const
{
    return {QHeaderView::sizeHint().width(), mdGridHeadingHeight()};
}

void oGridHeader::paintSection(QPainter *painter, const QRect &rectangle, int section) const
{
    painter->save();
    QStyleOption option;
    option.rect = rectangle;
    mdPaintHeading(*painter, option);
    const QFont font = mdGridHeadingFont();
    painter->setFont(font);
    painter->setPen(isEnabled() ? Theme::Ink2 : Theme::Ink3);
    const QRect inside = rectangle.adjusted(Theme::Space8, 0, -Theme::Space8, -1);
    const auto alignment = Qt::Alignment(model()->headerData(section, orientation(), Qt::TextAlignmentRole).toInt());
    const QString caption = model()->headerData(section, orientation(), Qt::DisplayRole).toString();
    painter->drawText(inside, int(alignment) | Qt::TextSingleLine,
        QFontMetrics(font).elidedText(caption, Qt::ElideRight, inside.width()));
    painter->restore();
}
