#include "controls/oGridDelegate.h"

#include "controls/clsGridFind.h"
#include "controls/mdGridMetrics.h"
#include "controls/mdLine.h"
#include "controls/mdPaintControls.h"
#include "controls/mdPaintFound.h"
#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr int WrappedMargin = 4;
constexpr int CellFrameGap = 2;

QRect insideOf(const QRect &cell)
{
    return cell.adjusted(Theme::Space8, 0, -Theme::Space8, -1);
}

QFontMetrics metricsOf(const QFont &font)
{
    return QFontMetrics(font);
}

const clsGridModel &modelOf(const QModelIndex &index)
{
    return *static_cast<const clsGridModel *>(index.model());
}

} // namespace

oGridDelegate::oGridDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , m_mark {mdGridMarkFont(), metricsOf(mdGridMarkFont())}
{ }

void oGridDelegate::takeFonts(const std::vector<clsGridColumn> &columns)
{
    m_mark = {mdGridMarkFont(), metricsOf(mdGridMarkFont())};
    m_columns.clear();
    for (const clsGridColumn &column : columns) {
        QFont font = mdGridCellFont();
        font.setBold(column.bold);
        font.setItalic(column.italic);
        font.setUnderline(column.underline || column.forceUnderline);
        m_columns.push_back({font, metricsOf(font)});
    }
}

int oGridDelegate::wrappedHeight(const QString &text, int column, int columnWidth) const
{
    const QRect room = insideOf(QRect(0, 0, columnWidth, QWIDGETSIZE_MAX));
    return m_columns[size_t(column)].metrics.boundingRect(room, Qt::TextWordWrap, text).height() + 2 * WrappedMargin;
}

QSize oGridDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {0, mdGridRowHeight()};
}

void oGridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QRect &cell = option.rect;
    paintBack(*painter, option, index);
    mdPaintLine(*painter, cell, Qt::BottomEdge, Theme::Hairline);

    const clsGridCell &shown = modelOf(index).cell(index.row(), index.column());
    if (shown.kind == clsGridCell::Wrong)
        paintWrong(*painter, option, index);
    else if (shown.kind == clsGridCell::Text)
        paintText(*painter, option, index);
    else
        paintMark(*painter, option, index);
    if (m_marksCell && (option.state & QStyle::State_HasFocus)) {
        painter->setPen(Theme::Purple);
        painter->drawRect(cell.adjusted(CellFrameGap, CellFrameGap, -CellFrameGap - 1, -CellFrameGap - 2));
    }
}

void oGridDelegate::paintBack(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if ((option.state & QStyle::State_Selected) && m_keyRow >= 0 && m_keyRow != index.row()) {
        painter.fillRect(option.rect, Theme::Selected);
        return;
    }
    // The table highlights only the cell under the mouse; here the whole row is highlighted.
    QStyleOptionViewItem row = option;
    row.state.setFlag(QStyle::State_MouseOver, index.row() == m_hoveredRow);
    mdPaintRow(painter, row, option.widget);
}

/// On the background of a selected row the usual pale grey would be too faint.
QColor oGridDelegate::inkOf(const QStyleOptionViewItem &option, const QModelIndex &index, const QColor &usual) const
{
    if (!(option.state & QStyle::State_Enabled))
        return Theme::Ink3;
    if (!m_find || !m_find->StepsBack(index.row()))
        return usual;
    return option.state & QStyle::State_Selected ? Theme::Ink2 : Theme::SteppedBack;
}

void oGridDelegate::paintMark(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const bool tick = modelOf(index).cell(index.row(), index.column()).kind == clsGridCell::Tick;
    const QColor cross = option.state & QStyle::State_Selected ? Theme::Ink2 : Theme::Ink3;
    painter.setFont(m_mark.font);
    painter.setPen(tick                            ? inkOf(option, index, Theme::Ink)
            : option.state & QStyle::State_Enabled ? cross
                                                   : Theme::Ink3);
    painter.drawText(insideOf(option.rect), index.data(Qt::TextAlignmentRole).toInt(), index.data().toString());
}

void oGridDelegate::paintWrong(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QFont font = m_columns[size_t(index.column())].font;
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(option.state & QStyle::State_Enabled ? Theme::Red : Theme::Ink3);
    const QRect inside = insideOf(option.rect);
    painter.drawText(inside, index.data(Qt::TextAlignmentRole).toInt(),
        QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, inside.width()));
}

bool oGridDelegate::isCut(
    const QStyleOptionViewItem &option, const clsGridColumn &column, int number, const QString &text) const
{
    return !mdGridWraps(column.alignment)
        && m_columns[size_t(number)].metrics.horizontalAdvance(text) > insideOf(option.rect).width();
}

void oGridDelegate::paintText(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const int number = index.column();
    const clsGridColumn &column = modelOf(index).columns()[size_t(number)];
    const QString &text = modelOf(index).cell(index.row(), number).text;
    const Font &font = m_columns[size_t(number)];
    const QRect inside = insideOf(option.rect);
    painter.setFont(font.font);
    painter.setPen(inkOf(option, index, column.colour));
    const int flags = int(mdGridAlignment(column.alignment));
    if (mdGridWraps(column.alignment))
        painter.drawText(inside, flags | Qt::TextWordWrap, text);
    else if (m_find && m_find->HitOf(index.row()) > 0)
        mdPaintFound(painter, inside, mdGridAlignment(column.alignment), font.font, text, m_find->Words());
    else if (isCut(option, column, number, text))
        painter.drawText(
            inside, flags | Qt::TextSingleLine, font.metrics.elidedText(text, Qt::ElideRight, inside.width()));
    else
        painter.drawText(inside, flags | Qt::TextSingleLine, text);
}

bool oGridDelegate::helpEvent(
    QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const clsGridCell &shown = modelOf(index).cell(index.row(), index.column());
    const clsGridColumn &column = modelOf(index).columns()[size_t(index.column())];
    QString text = modelOf(index).whyWrong(index.row(), index.column());
    if (shown.kind == clsGridCell::Text && isCut(option, column, index.column(), shown.text))
        text = shown.text;
    if (!text.isEmpty())
        QToolTip::showText(event->globalPos(), mdPlainToolTip(text), view->viewport(), option.rect);
    else
        QToolTip::hideText();
    return true;
}
