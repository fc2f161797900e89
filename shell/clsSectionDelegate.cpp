#include "shell/clsSectionDelegate.h"

#include "controls/mdLine.h"
#include "controls/mdPaintControls.h"
#include "controls/mdTheme.h"
#include "shell/clsSectionModel.h"

#include <QPainter>

namespace {

constexpr int RowHeight = 23;
constexpr int CaptionHeight = 28;
constexpr int FoldedCaptionHeight = 15; ///< only a line between the dots of two groups
constexpr int DotSide = 9;
constexpr int DotMiddle = 22;
constexpr int TextLeft = 38;

bool isCaption(const QModelIndex &index)
{
    return !(index.flags() & Qt::ItemIsEnabled);
}

} // namespace

clsSectionDelegate::clsSectionDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
    takeFonts();
}

void clsSectionDelegate::takeFonts()
{
    m_section = Theme::font(-1);
    m_caption = m_count = Theme::font(-1, true);
}

QSize clsSectionDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const
{
    if (isCaption(index))
        return {
            0, Theme::scaled(m_folded ? FoldedCaptionHeight : CaptionHeight) + (index.row() == 0 ? Theme::Space4 : 0)};
    return {0, Theme::scaled(RowHeight)};
}

void clsSectionDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    painter->save();
    if (isCaption(index)) {
        paintCaption(*painter, option.rect, index.data().toString());
    } else {
        // No row is highlighted while the list is without focus: no screen is open.
        QStyleOptionViewItem row = option;
        row.state.setFlag(QStyle::State_Selected,
            (option.state & QStyle::State_Selected) && option.widget && option.widget->hasFocus());
        mdPaintRow(*painter, row, option.widget);
        paintSection(*painter, option.rect, index);
    }
    painter->restore();
}

void clsSectionDelegate::paintCaption(QPainter &painter, const QRect &row, const QString &text) const
{
    if (m_folded) {
        if (row.top() > 0)
            mdPaintLine(painter, row.adjusted(Theme::Space12, 0, -Theme::Space12, -row.height() / 2), Qt::BottomEdge,
                Theme::Hairline);
        return;
    }
    painter.setFont(m_caption);
    painter.setPen(Theme::Ink2);
    // The first has a little more space above it.
    const int height = Theme::scaled(CaptionHeight);
    painter.drawText(QRect(row.left() + Theme::Space16, row.bottom() + 1 - height, row.width(), height),
        Qt::AlignVCenter | Qt::AlignLeft, text);
}

void clsSectionDelegate::paintSection(QPainter &painter, const QRect &row, const QModelIndex &index) const
{
    const auto dot = Dot(index.data(clsSectionModel::DotRole).toInt());
    QRectF square(0, 0, Theme::scaled(DotSide), Theme::scaled(DotSide));
    square.moveCenter(QPointF(row.left() + Theme::scaled(DotMiddle), row.top() + row.height() / 2.0));
    mdPaintDot(painter, square, dot);
    if (m_folded)
        return;
    int right = row.right() + 1 - Theme::Space16;
    if (const int count = index.data(clsSectionModel::CountRole).toInt(); count > 0) {
        const QString number = QString::number(count);
        painter.setFont(m_count);
        painter.setPen(dot == Dot::Errors ? Theme::Red : Theme::Amber);
        painter.drawText(
            QRect(row.left(), row.top(), right - row.left(), row.height()), Qt::AlignVCenter | Qt::AlignRight, number);
        right -= QFontMetrics(m_count).horizontalAdvance(number) + Theme::Space8;
    }
    const QRect room(
        row.left() + Theme::scaled(TextLeft), row.top(), right - row.left() - Theme::scaled(TextLeft), row.height());
    painter.setFont(m_section);
    painter.setPen(Theme::Ink);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
        QFontMetrics(m_section).elidedText(index.data().toString(), Qt::ElideRight, room.width()));
}
