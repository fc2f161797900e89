#include "editors/oTickLayout.h"

#include "controls/mdTheme.h"

#include <QWidget>

#include <algorithm>

namespace {

/// Between a caption and its tick, between a tick and the next caption, and between lines.
int gap()
{
    return Theme::Space8;
}
int apart()
{
    return Theme::Space24;
}
int lineGap()
{
    return 6;
}

} // namespace

oTickLayout::oTickLayout(int columns)
    : m_columns(columns)
{
    setContentsMargins(0, 0, 0, 0);
}

oTickLayout::~oTickLayout() = default;

void oTickLayout::addTick(QWidget *label, QWidget *tick)
{
    addWidget(label);
    addWidget(tick);
}

void oTickLayout::addItem(QLayoutItem *item)
{
    m_items.emplace_back(item);
}

int oTickLayout::count() const
{
    return int(m_items.size());
}

QLayoutItem *oTickLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[size_t(index)].get() : nullptr;
}

QLayoutItem *oTickLayout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    QLayoutItem *item = m_items[size_t(index)].release();
    m_items.erase(m_items.begin() + index);
    return item;
}

oTickLayout::clsMeasure oTickLayout::measure() const
{
    clsMeasure result;
    int tick = 0;
    for (size_t i = 0; i + 1 < m_items.size(); i += 2) {
        const QSize label = m_items[i]->sizeHint();
        const QSize box = m_items[i + 1]->sizeHint();
        result.label = qMax(result.label, label.width());
        tick = qMax(tick, box.width());
        result.line += label.width() + gap() + box.width() + (i ? apart() : 0);
        result.height = qMax(result.height, qMax(label.height(), box.height() + 2 * Theme::RingRoom));
        ++result.count;
    }
    result.pair = result.label + gap() + tick;
    return result;
}

/// The number of columns; 0 means one line in which each takes the width it needs.
int oTickLayout::columnsFor(int width, const clsMeasure &measure) const
{
    if (m_columns > 0)
        return m_columns;
    if (measure.line <= width)
        return 0;
    return std::clamp((width + apart()) / qMax(1, measure.pair + apart()), 1, qMax(1, measure.count));
}

int oTickLayout::heightOf(int rows, const clsMeasure &measure) const
{
    return rows * measure.height + qMax(0, rows - 1) * lineGap();
}

int oTickLayout::heightForWidth(int width) const
{
    const clsMeasure all = measure();
    const int columns = columnsFor(width, all);
    return heightOf(columns == 0 ? 1 : rows(columns, all.count), all);
}

QSize oTickLayout::sizeHint() const
{
    const clsMeasure all = measure();
    if (m_columns == 0)
        return {all.line, all.height};
    return {m_columns * all.pair + (m_columns - 1) * apart(), heightOf(rows(m_columns, all.count), all)};
}

QSize oTickLayout::minimumSize() const
{
    return m_columns == 0 ? QSize(measure().pair, measure().height) : sizeHint();
}

void oTickLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    const clsMeasure all = measure();
    const int columns = columnsFor(rect.width(), all);
    int x = rect.x();
    for (size_t i = 0; i + 1 < m_items.size(); i += 2) {
        const int place = int(i / 2);
        QLayoutItem &label = *m_items[i];
        QLayoutItem &tick = *m_items[i + 1];
        const int line = columns == 0 ? 0 : place / columns;
        const int y = rect.y() + line * (all.height + lineGap());
        if (columns > 0)
            x = rect.x() + place % columns * (all.pair + apart());
        const int labelWidth = columns == 0 ? label.sizeHint().width() : all.label;
        const QSize box = tick.sizeHint();
        label.setGeometry({x, y, labelWidth, all.height});
        tick.setGeometry({{x + labelWidth + gap(), y + (all.height - box.height()) / 2}, box});
        x += labelWidth + gap() + box.width() + apart();
    }
}
