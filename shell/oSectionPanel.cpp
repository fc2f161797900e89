#include "shell/oSectionPanel.h"

#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/oCloseButton.h"
#include "shell/oSectionList.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>

namespace {

constexpr int Width = 232;
constexpr int FoldedWidth = 44;
constexpr int RoomForWords = 1100; ///< below this width only the dots are shown
constexpr int RoomForDots = 960;
constexpr int CrossSide = 24; ///< lower than the caption beside it

} // namespace

oSectionPanel::oSectionPanel(QWidget *parent)
    : QWidget(parent)
    , m_list(new oSectionList(this))
    , cmdClose(new oCloseButton(QStringLiteral("Close the list of sections"), this))
{
    setObjectName(QStringLiteral("oSectionPanel"));
    setAccessibleName(QStringLiteral("Section List"));
    cmdClose->setObjectName(QStringLiteral("cmdCloseSections"));
    // The list is one tab stop; a menu entry also closes it.
    cmdClose->setFocusPolicy(Qt::NoFocus);
    // The cross may cover part of a row.
    cmdClose->setAutoFillBackground(true);
    QPalette palette;
    palette.setColor(QPalette::Window, Theme::Paper);
    cmdClose->setPalette(palette);
    m_list->installEventFilter(this);
    m_list->verticalScrollBar()->installEventFilter(this);
    connect(cmdClose, &QAbstractButton::clicked, this, &oSectionPanel::CloseAsked);
    hide();
    showClose();
}

void oSectionPanel::setOpen(bool open)
{
    m_open = open;
    place();
}

void oSectionPanel::fit(int windowWidth)
{
    m_windowWidth = windowWidth;
    place();
}

bool oSectionPanel::hasRoom(int windowWidth)
{
    return windowWidth >= Theme::scaled(RoomForDots);
}

bool oSectionPanel::isFolded() const
{
    return m_windowWidth < Theme::scaled(RoomForWords);
}

int oSectionPanel::shownWidth() const
{
    if (!m_open || !hasRoom(m_windowWidth))
        return 0;
    return Theme::scaled(isFolded() ? FoldedWidth : Width);
}

void oSectionPanel::place()
{
    const int shown = shownWidth();
    if (shown > 0 && shown != width()) {
        setFixedWidth(shown);
        m_list->setFolded(isFolded());
    }
    setVisible(shown > 0);
    showClose();
}

/// The cross is shown while the pointer or the focus is here, but not beside dots.
void oSectionPanel::showClose()
{
    cmdClose->setVisible(!isFolded() && (underMouse() || m_list->hasFocus()));
}

bool oSectionPanel::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave)
        showClose();
    return handled;
}

bool oSectionPanel::eventFilter(QObject *watched, QEvent *event)
{
    const bool handled = QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut: // once the focus has moved
        QMetaObject::invokeMethod(this, &oSectionPanel::showClose, Qt::QueuedConnection);
        break;
    case QEvent::Show:
    case QEvent::Hide: // of the scroll bar
        placeClose();
        break;
    default: break;
    }
    return handled;
}

void oSectionPanel::placeClose()
{
    const int side = Theme::scaled(CrossSide);
    const QScrollBar *bar = m_list->verticalScrollBar();
    const int right = width() - 1 - Theme::Space4 - (bar->isHidden() ? 0 : bar->sizeHint().width());
    cmdClose->setGeometry(right - side, Theme::Space4, side, side);
    cmdClose->raise();
}

void oSectionPanel::resizeEvent(QResizeEvent *)
{
    m_list->setGeometry(0, 0, width() - 1, height());
    placeClose();
}

void oSectionPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Theme::Paper);
    mdPaintLine(painter, rect(), Qt::RightEdge, Theme::Line);
}
