#include "controls/oContentSwitcher.h"

#include "controls/mdTheme.h"
#include "controls/oFrame.h"

#include <QKeyEvent>
#include <QVBoxLayout>

oContentSwitcher::oContentSwitcher(QWidget *parent)
    : QWidget(parent)
    , m_stack(new QVBoxLayout(this))
{
    m_stack->setContentsMargins(0, 0, 0, 0);
    m_stack->setSpacing(Theme::Space8);
}

void oContentSwitcher::AddContent(QWidget *container, const QString &caption)
{
    auto *frame = new oFrame(this);
    frame->setShowExpandCollapseIcon(true);
    frame->setCaption(caption);
    frame->captionBar()->installEventFilter(this);
    auto *body = new QWidget(frame);
    auto *inset = new QVBoxLayout(body);
    // Part of the margin is inside the container, as room for the focus rings of widgets at its edges. One more pixel
    // at the top is for the line below the caption.
    constexpr int Ring = Theme::RingRoom;
    constexpr int Outside = Theme::Space12 - Ring;
    inset->setContentsMargins(Outside, Outside + 1, Outside, Outside);
    container->setContentsMargins(Ring, Ring, Ring, Ring);
    inset->addWidget(container);
    container->show();
    frame->bodyLayout()->addWidget(body);
    m_stack->addWidget(frame);
    m_pages.push_back({frame, body});

    const int index = int(m_pages.size());
    body->setVisible(false);
    connect(frame, &oFrame::Click, this, [this, index] {
        if (!m_ignoreClicks)
            SwitchTo(index);
    });
    if (index == 1)
        SwitchTo(1);
}

void oContentSwitcher::SwitchTo(int index)
{
    if (!hasPage(index) || index == m_open)
        return;
    // One repaint for both pages.
    setUpdatesEnabled(false);
    m_open = index;
    for (int i = 1; i <= int(m_pages.size()); ++i) {
        const clsPage &page = m_pages[size_t(i - 1)];
        page.body->setVisible(i == index);
        page.frame->setExpanded(i == index);
        // A closed page is as tall as its caption; the open one takes the rest.
        page.frame->setSizePolicy(QSizePolicy::Preferred, i == index ? QSizePolicy::Preferred : QSizePolicy::Fixed);
        m_stack->setStretch(i - 1, i == index ? 1 : 0);
    }
    setUpdatesEnabled(true);
}

void oContentSwitcher::setCount(int page, int count)
{
    if (hasPage(page))
        m_pages[size_t(page - 1)].frame->setCount(count);
}

void oContentSwitcher::walk(const QObject *from, int step)
{
    for (int i = 0; i < int(m_pages.size()); ++i)
        if (m_pages[size_t(i)].frame->captionBar() == from && hasPage(i + 1 + step))
            return m_pages[size_t(i + step)].frame->captionBar()->setFocus(Qt::TabFocusReason);
}

bool oContentSwitcher::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            walk(watched, key == Qt::Key_Down ? 1 : -1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
