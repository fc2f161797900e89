#include "controls/mdPaintControls.h"

#include "controls/mdLine.h"
#include "controls/mdTheme.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyleOption>
#include <QTableView>

namespace {

constexpr int BarWidth = 3;

/// Whether the rectangle is the first of its row: a table draws its rows cell by cell.
bool beginsRow(const QStyleOptionViewItem &option, const QWidget *widget)
{
    const auto *table = qobject_cast<const QTableView *>(widget);
    return !table || option.rect.left() <= -table->horizontalHeader()->offset();
}

} // namespace

void mdPaintHeading(QPainter &painter, const QStyleOption &option)
{
    painter.fillRect(option.rect, Theme::Canvas);
    mdPaintLine(painter, option.rect, Qt::BottomEdge, Theme::Line);
}

void mdPaintRow(QPainter &painter, const QStyleOptionViewItem &option, const QWidget *widget)
{
    if (option.state & QStyle::State_Selected) {
        painter.fillRect(option.rect, Theme::Selected);
        if (beginsRow(option, widget))
            painter.fillRect(QRect(option.rect.topLeft(), QSize(BarWidth, option.rect.height())), Theme::Purple);
    } else if ((option.state & QStyle::State_MouseOver) && (option.state & QStyle::State_Enabled)) {
        painter.fillRect(option.rect, Theme::Hover);
    }
}
