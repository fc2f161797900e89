#include "editors/oScreenPage.h"

#include "controls/mdLowScreen.h"
#include "controls/mdTheme.h"
#include "editors/oScreenFrame.h"

#include <QApplication>
#include <QScrollBar>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int RoomForTwoColumns = 1040;
constexpr int WidestContent = 1400;
/// A little more than a field: enough to scroll in.
constexpr int LowestPage = 104;
/// The left column has the boxes and is wider.
constexpr int LeftShare = 4;
constexpr int RightShare = 3;

/// Whether a frame is in a column, directly or in a line of it.
bool holds(const QLayout &column, const QWidget &frame)
{
    for (int place = 0; place < column.count(); ++place) {
        QLayoutItem *item = column.itemAt(place);
        if (item->widget() == &frame || (item->layout() && holds(*item->layout(), frame)))
            return true;
    }
    return false;
}

} // namespace

oScreenPage::oScreenPage(QWidget *parent)
    : QScrollArea(parent)
    , m_columns(new QBoxLayout(QBoxLayout::TopToBottom))
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setFocusPolicy(Qt::NoFocus);
    auto *content = new QWidget;
    content->setLayout(m_columns);
    content->setMaximumWidth(Theme::scaled(WidestContent));
    m_columns->setSpacing(Theme::Space16);
    m_columns->setContentsMargins(Theme::Space24, Theme::Space16, Theme::Space24, Theme::Space16);
    setWidget(content);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, const QWidget *now) { showFocus(now); });
}

/// The fields are destroyed after the page, one of them possibly with the focus, and that still emits focusChanged.
oScreenPage::~oScreenPage()
{
    disconnect(qApp, nullptr, this, nullptr);
}

void oScreenPage::addFrame(oScreenFrame *frame, const clsScreenFrame &table)
{
    if (m_columns->count() == 0 || table.startsColumn) {
        auto *column = new QVBoxLayout;
        column->setSpacing(Theme::Space16);
        m_columns->addLayout(column, m_columns->count() == 0 ? LeftShare : RightShare);
    }
    auto *column = static_cast<QVBoxLayout *>(m_columns->itemAt(m_columns->count() - 1)->layout());
    if (table.sameLine)
        lineAtEndOf(*column).addWidget(frame, 1);
    else
        column->addWidget(frame);
    m_frames.push_back(frame);
}

/// The line with the column's last frame, created if the frame is not in a line yet.
QBoxLayout &oScreenPage::lineAtEndOf(QVBoxLayout &column)
{
    const int last = column.count() - 1;
    if (column.itemAt(last)->layout())
        return *m_lines.back();
    const std::unique_ptr<QLayoutItem> frame(column.takeAt(last));
    auto *line = new QBoxLayout(QBoxLayout::LeftToRight);
    line->setSpacing(Theme::Space16);
    line->addWidget(frame->widget(), 1);
    column.addLayout(line);
    m_lines.push_back(line);
    return *line;
}

void oScreenPage::complete()
{
    for (int i = 0; i < m_columns->count(); ++i) {
        auto *column = static_cast<QVBoxLayout *>(m_columns->itemAt(i)->layout());
        bool grows = false;
        for (oScreenFrame *frame : m_frames) {
            if (!holds(*column, *frame))
                continue;
            m_ownLabels[frame] = {frame->labelColumn(), i};
            column->setStretchFactor(frame, frame->grows() ? 1 : 0);
            grows = grows || frame->grows();
        }
        if (!grows)
            column->addStretch(1);
    }
    alignLabels();
}

/// Aligns the boxes of frames below each other.
void oScreenPage::alignLabels() const
{
    std::map<int, int> widest;
    const auto columnOf = [this](const clsLabels &labels) { return m_wide ? labels.column : 0; };
    for (const auto &[frame, labels] : m_ownLabels)
        widest[columnOf(labels)] = qMax(widest[columnOf(labels)], labels.width);
    for (const auto &[frame, labels] : m_ownLabels)
        frame->setLabelColumn(widest[columnOf(labels)]);
}

/// Chooses one column or two by the width alone, so that it also works for a width not yet applied.
void oScreenPage::arrange(int width) const
{
    const QMargins edges = m_columns->contentsMargins();
    const bool wide = width - edges.left() - edges.right() >= Theme::scaled(RoomForTwoColumns);
    m_columns->setDirection(wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    for (QBoxLayout *line : m_lines) {
        int together = -line->spacing();
        for (int place = 0; place < line->count(); ++place)
            together += static_cast<oScreenFrame *>(line->itemAt(place)->widget())->narrowestWidth() + line->spacing();
        const bool fits = together <= width - edges.left() - edges.right();
        line->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    }
    for (oScreenFrame *frame : m_frames)
        frame->setSideBySide(wide && m_columns->count() == 1);
    if (std::exchange(m_wide, wide) != wide)
        alignLabels();
}

int oScreenPage::heightFor(int width) const
{
    arrange(width);
    const int inside = qMin(width, content()->maximumWidth());
    return m_columns->hasHeightForWidth() ? m_columns->totalHeightForWidth(inside)
                                          : m_columns->totalSizeHint().height();
}

QSize oScreenPage::sizeHint() const
{
    return {minimumSizeHint().width(), heightFor(width())};
}

/// As narrow as the widest frame alone on its line.
QSize oScreenPage::minimumSizeHint() const
{
    int width = 0;
    for (const oScreenFrame *frame : m_frames)
        width = qMax(width, frame->narrowestWidth());
    const QMargins edges = m_columns->contentsMargins();
    width += edges.left() + edges.right() + verticalScrollBar()->sizeHint().width();
    return {width, Theme::scaled(LowestPage)};
}

void oScreenPage::resizeEvent(QResizeEvent *event)
{
    const bool low = mdIsOnLowScreen(*this);
    const int edge = low ? Theme::Space16 : Theme::Space24;
    m_columns->setContentsMargins(edge, Theme::Space16, edge, Theme::Space16);
    // The width including the scroll bar: showing or hiding it must not change the arrangement.
    arrange(width());
    QScrollArea::resizeEvent(event);
    // After the frames have been moved.
    QMetaObject::invokeMethod(
        this, [this] { showFocus(window()->focusWidget()); }, Qt::QueuedConnection);
}

void oScreenPage::showFocus(const QWidget *focused)
{
    if (!focused || !content()->isAncestorOf(focused))
        return;
    const QRect place(focused->mapTo(content(), QPoint()), focused->size());
    QScrollBar *bar = verticalScrollBar();
    const int top = place.top() - Theme::Space24;
    const int bottom = place.bottom() + 1 + Theme::Space24 - viewport()->height();
    // Of a box taller than the page, shows the top.
    if (bar->value() < bottom)
        bar->setValue(bottom);
    if (bar->value() > top)
        bar->setValue(top);
}
