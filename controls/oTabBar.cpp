#include "controls/oTabBar.h"

#include "controls/mdAccessible.h"
#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/oTabBarButton.h"

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int ScrollStep = 80;

/// A horizontally scrolling view as high as its row.
class clsRowView final : public QScrollArea {
public:
    using QScrollArea::QScrollArea;

    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override { return {Theme::Space32, widget()->sizeHint().height()}; }
};

QAccessibleInterface *accessibleRow(const QString &, QObject *object)
{
    auto *row = qobject_cast<oTabBar *>(object);
    return row ? new QAccessibleWidget(row, QAccessible::PageTabList) : nullptr;
}

} // namespace

oTabBar::oTabBar(QWidget *parent)
    : QWidget(parent)
    , m_tabOrder(new QWidget(this))
    , m_view(new clsRowView(this))
{
    mdInstallAccessible<accessibleRow>();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    // A new widget is last in the tab order of its window. Only widgets that accept the focus have a place in it; this
    // one never gets it.
    m_tabOrder->setFocusPolicy(Qt::ClickFocus);
    m_tabOrder->hide();

    auto *tabs = new QWidget;
    m_buttons = new QHBoxLayout(tabs);
    m_buttons->setSizeConstraint(QLayout::SetMinAndMaxSize); // the texts never shrink
    m_view->setWidget(tabs);
    m_view->setWidgetResizable(true);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setFocusPolicy(Qt::NoFocus);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->viewport()->setAutoFillBackground(false);
    tabs->setAutoFillBackground(false);
    m_view->viewport()->installEventFilter(this);

    m_scrollLeft = addScroller(Qt::LeftArrow, -1);
    m_scrollRight = addScroller(Qt::RightArrow, 1);
    auto *row = new QHBoxLayout(this);
    row->setSpacing(0);
    row->addWidget(m_scrollLeft);
    row->addWidget(m_view, 1);
    row->addWidget(m_scrollRight);
    // Queued, here and on a change of size: both occur during a layout pass, which would place widgets shown or hidden
    // meanwhile as before.
    connect(
        m_view->horizontalScrollBar(), &QScrollBar::rangeChanged, this, &oTabBar::showScrollers, Qt::QueuedConnection);
    connect(m_view->horizontalScrollBar(), &QScrollBar::valueChanged, this, &oTabBar::showScrollers);
    setRow(Row::Tabs);
}

QToolButton *oTabBar::addScroller(Qt::ArrowType arrow, int direction)
{
    auto *scroller = new QToolButton(this);
    scroller->setArrowType(arrow);
    scroller->setAutoRaise(true);
    scroller->setAutoRepeat(true);
    scroller->setFocusPolicy(Qt::NoFocus); // the keys move along the row themselves
    scroller->setAccessibleName(direction < 0 ? QStringLiteral("Scroll left") : QStringLiteral("Scroll right"));
    scroller->hide();
    connect(scroller, &QToolButton::clicked, this, [this, direction] {
        QScrollBar *bar = m_view->horizontalScrollBar();
        bar->setValue(bar->value() + direction * Theme::scaled(ScrollStep));
    });
    return scroller;
}

void oTabBar::setRow(Row row)
{
    m_row = row;
    const bool isTabs = row == Row::Tabs;
    setAccessibleName(isTabs ? QStringLiteral("Groups of sections") : QStringLiteral("Sections of the group"));
    // The text of the first tab, and the edge of the first button, align with the sheet of a screen.
    const int side = isTabs ? Theme::Space8 : Theme::Space24 - Theme::RingRoom;
    m_buttons->setContentsMargins(side, 0, side, 0);
    m_buttons->setSpacing(0); // the room for the rings separates the buttons
    layout()->setContentsMargins(0, isTabs ? 0 : 1, 0, isTabs ? 1 : 2); // the line is below
    for (const clsTab &tab : m_tabs)
        tab.button->setShape(isTabs ? oTabBarButton::Shape::Tab : oTabBarButton::Shape::Button);
    updateGeometry();
    update();
}

void oTabBar::Clear()
{
    for (const clsTab &tab : m_tabs) {
        // Its click may be what clears the row.
        tab.button->disconnect(this);
        tab.button->hide();
        tab.button->setParent(nullptr);
        tab.button->deleteLater();
    }
    m_tabs.clear();
    while (QLayoutItem *rest = m_buttons->takeAt(0))
        delete rest;
    m_selected = 0;
}

void oTabBar::AddButton(const QString &caption, const QString &tag)
{
    auto *button = new oTabBarButton(
        caption, m_row == Row::Tabs ? oTabBarButton::Shape::Tab : oTabBarButton::Shape::Button, m_view->widget());
    button->setObjectName(objectName() + QString::number(m_tabs.size() + 1));
    if (m_tabs.empty())
        m_buttons->addStretch(1);
    m_buttons->insertWidget(m_buttons->count() - 1, button);
    button->show(); // the layout would show it later, and a waiting Tab key would skip it
    setTabOrder(m_tabs.empty() ? m_tabOrder : m_tabs.back().button, button);
    m_tabs.push_back({button, tag});
    button->installEventFilter(this);
    connect(button, &oTabBarButton::clicked, this, [this, button] { clicked(button); });
    connect(button, &oTabBarButton::Move, this, [this, button](int steps) { move(button, steps); });
    if (m_doRedraw)
        redraw();
}

void oTabBar::SwitchTo(int index)
{
    SetSelected(index);
    if (m_doRedraw)
        redraw();
}

void oTabBar::setDoRedraw(bool redrawNow)
{
    m_doRedraw = redrawNow;
    setUpdatesEnabled(redrawNow);
    if (redrawNow)
        redraw();
}

void oTabBar::redraw()
{
    m_view->updateGeometry(); // a row with a button is higher than an empty one
    const oTabBarButton *stop = m_tabs.empty() ? nullptr : m_tabs.front().button;
    for (size_t i = 0; i < m_tabs.size(); ++i) {
        const bool selected = int(i) + 1 == m_selected;
        m_tabs[i].button->setSelected(selected);
        if (selected || m_tabs[i].button->hasFocus())
            stop = m_tabs[i].button;
    }
    setTabStop(stop);
}

void oTabBar::clicked(const oTabBarButton *button)
{
    const auto tab = std::find_if(m_tabs.begin(), m_tabs.end(), [&](const clsTab &t) { return t.button == button; });
    SwitchTo(int(tab - m_tabs.begin()) + 1);
    emit Click(m_selected, QString(tab->tag)); // a copy: the slot may clear the row
}

void oTabBar::move(const oTabBarButton *from, int steps)
{
    const auto tab = std::find_if(m_tabs.begin(), m_tabs.end(), [&](const clsTab &t) { return t.button == from; });
    const int last = int(m_tabs.size()) - 1;
    const int direction = steps < 0 ? -1 : 1;
    int to = std::clamp(int(tab - m_tabs.begin()) + steps, 0, last);
    // A key that ends on a disabled tab continues in its direction, or back from the end of the row.
    while (to >= 0 && to <= last && !m_tabs[size_t(to)].button->isEnabled())
        to += std::abs(steps) > 1 ? -direction : direction;
    if (to >= 0 && to <= last)
        m_tabs[size_t(to)].button->setFocus(Qt::OtherFocusReason);
}

/// The Tab key stops once in a row, at the last focused or the selected tab, and then leaves it.
void oTabBar::setTabStop(const oTabBarButton *stop)
{
    for (const clsTab &tab : m_tabs)
        tab.button->setFocusPolicy(tab.button == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

void oTabBar::showScrollers()
{
    const QScrollBar *bar = m_view->horizontalScrollBar();
    const bool tooWide = m_view->widget()->sizeHint().width() > width();
    for (QToolButton *scroller : {m_scrollLeft, m_scrollRight})
        scroller->setVisible(tooWide);
    m_scrollLeft->setEnabled(bar->value() > 0);
    m_scrollRight->setEnabled(bar->value() < bar->maximum());
}

bool oTabBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        if (auto *button = qobject_cast<oTabBarButton *>(watched)) {
            setTabStop(button);
            m_view->ensureWidgetVisible(button, Theme::Space24, 0);
        }
    } else if (event->type() == QEvent::Wheel && watched == m_view->viewport()) {
        const QPoint turn = static_cast<QWheelEvent *>(event)->angleDelta();
        QScrollBar *bar = m_view->horizontalScrollBar();
        bar->setValue(bar->value() - (turn.x() ? turn.x() : turn.y()));
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void oTabBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    QMetaObject::invokeMethod(this, &oTabBar::showScrollers, Qt::QueuedConnection);
}

void oTabBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_row == Row::Tabs ? Theme::Paper : Theme::Band);
    mdPaintLine(painter, rect(), Qt::BottomEdge, Theme::Line);
}
