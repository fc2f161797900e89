#include "shell/oFolderHeader.h"

#include "controls/mdGridMetrics.h"
#include "controls/mdPaintControls.h"
#include "controls/mdTheme.h"
#include "shell/clsFolderDelegate.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>

namespace {

constexpr double SignSide = 7;

/// A triangle that shows the sort direction.
void paintSortSign(QPainter &painter, const QRectF &place, Qt::SortOrder order)
{
    const double middle = place.center().y();
    const double half = SignSide / 2;
    const double up = order == Qt::AscendingOrder ? -half + 0.5 : half - 0.5;
    const QPointF points[]
        = {{place.left(), middle - up}, {place.left() + SignSide, middle - up}, {place.left() + half, middle + up}};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::Ink2);
    painter.drawPolygon(points, 3);
}

} // namespace

oFolderHeader::oFolderHeader(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setObjectName(QStringLiteral("oFolderHeader"));
    setAccessibleName(QStringLiteral("Headings"));
    setFocusPolicy(Qt::TabFocus);
    setSectionsClickable(true);
    setSectionsMovable(false);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Fixed);
    setMinimumSectionSize(0);
    connect(this, &QHeaderView::sectionClicked, this, &oFolderHeader::SortAsked);
    connect(this, &QHeaderView::sortIndicatorChanged, this, &oFolderHeader::tell);
}

QSize oFolderHeader::sizeHint() const
{
    return {QHeaderView::sizeHint().width(), mdGridHeadingHeight()};
}

void oFolderHeader::paintSection(QPainter *painter, const QRect &rectangle, int section) const
{
    painter->save();
    QStyleOption option;
    option.rect = rectangle;
    mdPaintHeading(*painter, option);
    const QFont font = mdGridHeadingFont();
    const QFontMetrics metrics(font);
    painter->setFont(font);
    painter->setPen(Theme::Ink2);
    const auto alignment = Qt::Alignment(model()->headerData(section, orientation(), Qt::TextAlignmentRole).toInt());
    const QString caption = model()->headerData(section, orientation(), Qt::DisplayRole).toString();
    const QRect inside = rectangle.adjusted(clsFolderDelegate::CellEdge, 0, -clsFolderDelegate::CellEdge, -1);
    const QString shown = metrics.elidedText(caption, Qt::ElideRight, inside.width());
    painter->drawText(inside, int(alignment) | Qt::TextSingleLine, shown);
    if (sortIndicatorSection() == section) {
        // To the left of a right-aligned heading, so that the heading stays above its figures.
        const int width = metrics.horizontalAdvance(shown);
        const double left = alignment & Qt::AlignLeft ? inside.left() + width + Theme::Space4
            : alignment & Qt::AlignRight              ? inside.right() - width - Theme::Space4 - SignSide
                                                      : inside.center().x() + width / 2.0 + Theme::Space4;
        paintSortSign(*painter, {left, double(inside.top()), SignSide, double(inside.height())}, sortIndicatorOrder());
    }
    if (hasFocus() && section == m_at)
        mdPaintRing(*painter, rectangle, Theme::Purple);
    painter->restore();
}

void oFolderHeader::focusInEvent(QFocusEvent *event)
{
    QHeaderView::focusInEvent(event);
    if (isSectionHidden(m_at))
        m_at = 0;
    goTo(m_at);
}

void oFolderHeader::focusOutEvent(QFocusEvent *event)
{
    QHeaderView::focusOutEvent(event);
    viewport()->update();
}

void oFolderHeader::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left: step(-1); break;
    case Qt::Key_Right: step(1); break;
    case Qt::Key_Home:
        m_at = -1;
        step(1);
        break;
    case Qt::Key_End:
        m_at = count();
        step(-1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space: emit SortAsked(m_at); break;
    default: event->ignore(); // the window's own keys
    }
}

void oFolderHeader::step(int direction)
{
    for (int section = m_at + direction; section >= 0 && section < count(); section += direction)
        if (!isSectionHidden(section)) {
            goTo(section);
            return;
        }
}

void oFolderHeader::goTo(int section)
{
    m_at = section;
    viewport()->update();
    tell();
}

/// Announces the heading with the focus to a screen reader.
void oFolderHeader::tell()
{
    if (!model() || m_at < 0 || m_at >= count())
        return;
    QString text = model()->headerData(m_at, orientation(), Qt::DisplayRole).toString();
    if (sortIndicatorSection() == m_at)
        text += sortIndicatorOrder() == Qt::AscendingOrder ? QStringLiteral(", sorted upwards")
                                                           : QStringLiteral(", sorted downwards");
    setAccessibleDescription(text);
    if (!hasFocus())
        return;
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}
