#include "editors/oPasteDelegate.h"

#include "controls/mdGridMetrics.h"
#include "controls/mdLine.h"
#include "controls/mdPaintControls.h"
#include "controls/mdSigns.h"
#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"
#include "editors/clsPasteModel.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr int TickSide = 20;
constexpr int SignSide = 12;
constexpr int PillHeight = 16;
constexpr int WrongEdge = 2;

/// If a row has its note in a second line, the cells are in the first.
QRect lineOf(const QRect &cell)
{
    return {cell.left(), cell.top(), cell.width(), qMin(cell.height(), mdGridRowHeight())};
}

QRect insideOf(const QRect &cell)
{
    return lineOf(cell).adjusted(Theme::Space8, 0, -Theme::Space8, -1);
}

QFont fontOf(bool isSemibold)
{
    QFont font = mdGridCellFont();
    if (isSemibold)
        font.setWeight(QFont::DemiBold);
    return font;
}

const clsPasteModel &modelOf(const QModelIndex &index)
{
    return *static_cast<const clsPasteModel *>(index.model());
}

void paintTick(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    QStyleOption tick;
    const int side = Theme::scaled(TickSide);
    tick.rect = QRect(0, 0, side, side);
    tick.rect.moveCenter(lineOf(option.rect).center());
    tick.state = QStyle::State_Enabled
        | (index.data(Qt::CheckStateRole).toInt() == Qt::Checked ? QStyle::State_On : QStyle::State_Off);
    mdPaintTick(painter, tick);
}

/// Draws the pill that says what the note is about; returns its right edge.
int paintPill(QPainter &painter, const QRect &room)
{
    const QString word = QStringLiteral("double");
    const int height = Theme::scaled(PillHeight);
    QRect pill(room.left(), 0, painter.fontMetrics().horizontalAdvance(word) + Theme::Space16, height);
    pill.moveTop(room.center().y() - height / 2);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Theme::Ink2);
    painter.drawRoundedRect(QRectF(pill).adjusted(0.5, 0.5, -0.5, -0.5), height / 2.0, height / 2.0);
    painter.drawText(pill, Qt::AlignCenter, word);
    painter.restore();
    return pill.right();
}

bool isCut(const QRect &inside, const QModelIndex &index)
{
    const QFontMetrics metrics(fontOf(index.data(clsPasteModel::WrongRole).toBool()));
    return metrics.horizontalAdvance(index.data().toString()) > inside.width();
}

} // namespace

void oPasteDelegate::paintNote(QPainter &painter, const QRect &room, const QModelIndex &note)
{
    QRect inside = room;
    const bool isDouble = note.data(clsPasteModel::DoubleRole).toBool();
    const bool isOff = isDouble || note.data(clsPasteModel::OffRole).toBool();
    const bool isWrong = note.data(clsPasteModel::WrongRole).toBool();
    painter.setFont(fontOf(isWrong));
    if (note.data().toString().isEmpty())
        return;
    if (isDouble) {
        inside.setLeft(paintPill(painter, inside) + Theme::Space8);
    } else if (!isOff) {
        const int side = Theme::scaled(SignSide);
        mdPaintSign(painter, QRect(inside.left(), inside.center().y() - side / 2, side, side),
            isWrong ? Sign::Error : Sign::Note);
        inside.setLeft(inside.left() + side + Theme::Space8);
    }
    painter.setPen(isWrong ? Theme::Red : isOff ? Theme::Ink2 : Theme::Ink);
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(note.data().toString(), Qt::ElideRight, inside.width()));
}

void oPasteDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    mdPaintRow(*painter, option, option.widget);
    mdPaintLine(*painter, option.rect, Qt::BottomEdge, Theme::Hairline);
    const QRect inside = insideOf(option.rect);
    if (index.column() == clsPasteModel::Tick) {
        paintTick(*painter, option, index);
    } else if (index.column() == modelOf(index).NoteColumn()) {
        paintNote(*painter, inside, index);
    } else {
        const bool isWrong = index.data(clsPasteModel::WrongRole).toBool();
        if (isWrong)
            mdPaintBox(*painter, lineOf(option.rect).adjusted(1, 1, -1, -2), Theme::Pink, Theme::Red, WrongEdge);
        const bool isNumber = index.column() == clsPasteModel::Number;
        painter->setFont(fontOf(isWrong));
        const bool isOff = isNumber || index.data(clsPasteModel::OffRole).toBool();
        painter->setPen(isOff ? Theme::Ink2 : Theme::Ink);
        painter->drawText(inside, (isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter | Qt::TextSingleLine,
            painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, inside.width()));
    }
    if ((option.state & QStyle::State_HasFocus) && index.column() != modelOf(index).NoteColumn()) {
        painter->setPen(Theme::Purple);
        painter->drawRect(lineOf(option.rect).adjusted(2, 2, -3, -4));
    }
}

QWidget *oPasteDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const
{
    auto *box = new QLineEdit(parent);
    box->setFont(mdGridCellFont());
    box->setAccessibleName(modelOf(index).headerData(index.column(), Qt::Horizontal).toString());
    return box;
}

bool oPasteDelegate::helpEvent(
    QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    if (isCut(insideOf(option.rect), index))
        QToolTip::showText(event->globalPos(), mdPlainToolTip(index.data().toString()), view->viewport(), option.rect);
    else
        QToolTip::hideText();
    return true;
}
