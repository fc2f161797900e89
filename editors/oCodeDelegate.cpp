#include "editors/oCodeDelegate.h"

#include "controls/mdTheme.h"

#include <QComboBox>
#include <QPainter>

namespace {

constexpr int CodeWidth = 48;
constexpr int WidestWords = 360;

QFontMetrics metrics()
{
    return QFontMetrics(Theme::font(-1));
}

int columnWidth()
{
    return metrics().horizontalAdvance(QStringLiteral("Att / Conf")) + Theme::Space12;
}

int leftOfColumn()
{
    return Theme::Space12 + Theme::scaled(CodeWidth);
}

} // namespace

int oCodeDelegate::WidthFor(const QComboBox &box)
{
    int words = 0;
    for (int row = 0; row < box.count(); ++row)
        words = qMax(words, metrics().horizontalAdvance(box.itemData(row, WordsRole).toString()));
    words = qMin(words + Theme::Space12, Theme::scaled(WidestWords));
    return qMax(box.width(), leftOfColumn() + columnWidth() + words);
}

void oCodeDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    painter->save();
    painter->setFont(Theme::font(-1));
    painter->setPen(option.state & QStyle::State_Enabled ? Theme::Ink2 : Theme::Ink3);
    QRect place = option.rect.adjusted(leftOfColumn(), 0, -Theme::Space8, 0);
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter, index.data(ColumnRole).toString());
    place.adjust(columnWidth(), 0, 0, 0);
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        metrics().elidedText(index.data(WordsRole).toString(), Qt::ElideRight, place.width()));
    painter->restore();
}
