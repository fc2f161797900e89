#include "shell/oFolderTotals.h"

#include "controls/mdGridMetrics.h"
#include "controls/mdPaintControls.h"
#include "controls/mdTheme.h"
#include "shell/clsFolderDelegate.h"
#include "shell/oFolderHeader.h"
#include "shell/oFolderTable.h"

#include <QPainter>
#include <QScrollBar>

namespace {

using Model = clsFolderModel;

QColor sumColour(int column)
{
    return column == Model::Errors ? Theme::Red : column == Model::Warnings ? Theme::Amber : Theme::Ink;
}

} // namespace

oFolderTotals::oFolderTotals(oFolderTable &table, QWidget *parent)
    : QWidget(parent)
    , m_table(table)
{
    setObjectName(QStringLiteral("oFolderTotals"));
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&table, &oFolderTable::ColumnsPlaced, this, qOverload<>(&QWidget::update));
    connect(table.horizontalScrollBar(), &QScrollBar::valueChanged, this, qOverload<>(&QWidget::update));
}

void oFolderTotals::Show(const QString &caption, const clsFolderSums &sums)
{
    m_caption = caption;
    m_sums = sums;
    m_table.FitSums(sums);
    QStringList parts {caption};
    for (int column = 0; column < Model::Columns; ++column)
        if (const QString sum = sums.text(column); !sum.isEmpty())
            parts << m_table.model()->headerData(column, Qt::Horizontal).toString() + u' ' + sum;
    setAccessibleName(QStringLiteral("Totals"));
    setAccessibleDescription(parts.join(QStringLiteral(", ")));
    update();
}

QSize oFolderTotals::sizeHint() const
{
    return {0, mdGridRowHeight() + Theme::Space8};
}

void oFolderTotals::focusInEvent(QFocusEvent *)
{
    update();
}

void oFolderTotals::focusOutEvent(QFocusEvent *)
{
    update();
}

void oFolderTotals::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(mdGridHeadingFont());
    const int offset = m_table.viewport()->mapTo(&m_table, QPoint()).x();
    const auto cell = [&](int column) {
        const QRect whole(offset + m_table.columnViewportPosition(column), 0, m_table.columnWidth(column), height());
        return whole.adjusted(clsFolderDelegate::CellEdge, 0, -clsFolderDelegate::CellEdge, 0);
    };
    // Up to the first sum, because nothing else is shown there.
    QRect captionRoom = cell(Model::Claim);
    for (int column = Model::Form; column < Model::Items; ++column)
        captionRoom.setRight(std::max(captionRoom.right(), cell(column).right()));
    painter.setPen(Theme::Ink);
    painter.drawText(captionRoom, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(m_caption, Qt::ElideRight, captionRoom.width()));
    for (int column = Model::Items; column < Model::Columns; ++column) {
        if (m_table.Header()->isSectionHidden(column))
            continue;
        const bool isStrong = column == Model::Total || column == Model::Errors || column == Model::Warnings;
        painter.setFont(isStrong ? mdGridHeadingFont() : mdGridCellFont());
        painter.setPen(sumColour(column));
        painter.drawText(cell(column), int(Model::AlignmentOf(column)) | Qt::TextSingleLine, m_sums.text(column));
    }
    if (hasFocus())
        mdPaintRing(painter, rect(), Theme::Purple);
}
