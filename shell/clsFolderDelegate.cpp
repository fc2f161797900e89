#include "shell/clsFolderDelegate.h"

#include "controls/mdGridMetrics.h"
#include "controls/mdLine.h"
#include "controls/mdPaintControls.h"
#include "controls/mdSigns.h"
#include "controls/mdTheme.h"
#include "shell/clsShownClaims.h"

#include <QHeaderView>
#include <QPainter>
#include <QTableView>

namespace {

using Model = clsFolderModel;

constexpr int SignSide = 12;

const QTableView &tableOf(const QStyleOptionViewItem &option)
{
    return *static_cast<const QTableView *>(option.widget);
}

const clsFolderRow &rowOf(const QModelIndex &index)
{
    return static_cast<const clsShownClaims *>(index.model())->RowAt(index.row());
}

QColor colourOf(const QModelIndex &index)
{
    if (index.data(Model::FailedRole).toBool())
        return Theme::Red;
    switch (index.column()) {
    case Model::Errors: return Theme::Red;
    case Model::Warnings: return Theme::Amber;
    case Model::Changed: return Theme::Ink2;
    default: return Theme::Ink;
    }
}

bool isSemibold(const QModelIndex &index)
{
    switch (index.column()) {
    case Model::Claim:
    case Model::Total:
    case Model::Errors:
    case Model::Warnings: return true;
    default: return index.data(Model::FailedRole).toBool();
    }
}

} // namespace

clsFolderDelegate::clsFolderDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
    takeFonts();
}

void clsFolderDelegate::takeFonts()
{
    m_font = mdGridCellFont();
    m_semibold = mdGridHeadingFont();
}

QSize clsFolderDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {0, mdGridRowHeight()};
}

void clsFolderDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    painter->save();
    paintBack(*painter, option, index);
    const QRect room = option.rect.adjusted(CellEdge, 0, -CellEdge, -1);
    if (index.column() == Model::Claim)
        paintClaim(*painter, room, index);
    else if (index.column() != Model::Changed && !rowOf(index).isRead())
        paintReason(*painter, option, index);
    else
        paintText(*painter, room, index);
    painter->restore();
}

void clsFolderDelegate::paintBack(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    row.state.setFlag(QStyle::State_MouseOver, index.row() == m_hoveredRow);
    mdPaintRow(painter, row, option.widget);
    mdPaintLine(painter, option.rect, Qt::BottomEdge, Theme::Hairline);
    // The current row, chosen or not.
    const QTableView &table = tableOf(option);
    if (table.hasFocus() && table.currentIndex().row() == index.row())
        mdPaintLine(painter, option.rect, Qt::TopEdge | Qt::BottomEdge, Theme::Purple);
}

/// The claim's name, followed by its folder.
void clsFolderDelegate::paintClaim(QPainter &painter, const QRect &room, const QModelIndex &index) const
{
    const QFontMetrics strong(m_semibold);
    const QString name = strong.elidedText(index.data().toString(), Qt::ElideRight, room.width());
    painter.setFont(m_semibold);
    painter.setPen(Theme::Ink);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, name);
    const QString folder = index.data(Model::FolderRole).toString();
    const QRect rest = room.adjusted(strong.horizontalAdvance(name) + Theme::Space8, 0, 0, 0);
    if (folder.isEmpty() || rest.width() <= 0)
        return;
    painter.setFont(m_font);
    painter.setPen(Theme::Ink2);
    painter.drawText(rest, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        QFontMetrics(m_font).elidedText(folder, Qt::ElideMiddle, rest.width()));
}

/// The part of the reason that is visible in this cell.
void clsFolderDelegate::paintReason(
    QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QTableView &table = tableOf(option);
    const QHeaderView &header = *table.horizontalHeader();
    const int left = table.columnViewportPosition(Model::Form);
    const int right = header.isSectionHidden(Model::Changed) ? table.viewport()->width()
                                                             : table.columnViewportPosition(Model::Changed);
    const QRect whole(left + CellEdge, option.rect.top(), right - left - 2 * CellEdge, option.rect.height());
    painter.setClipRect(option.rect.adjusted(0, 1, 0, -1));
    const int side = Theme::scaled(SignSide);
    mdPaintSign(painter, QRectF(whole.left(), whole.top() + (whole.height() - side) / 2.0, side, side), Sign::Error);
    const QRect room = whole.adjusted(side + Theme::Space8, 0, 0, -1);
    painter.setFont(m_font);
    painter.setPen(Theme::Red);
    const QString reason = QStringLiteral("Can't be read: ") + rowOf(index).error;
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        QFontMetrics(m_font).elidedText(reason, Qt::ElideRight, room.width()));
}

void clsFolderDelegate::paintText(QPainter &painter, const QRect &room, const QModelIndex &index) const
{
    const QFont &font = isSemibold(index) ? m_semibold : m_font;
    painter.setFont(font);
    painter.setPen(colourOf(index));
    painter.drawText(room, int(Model::AlignmentOf(index.column())) | Qt::TextSingleLine,
        QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, room.width()));
}
