#include "preview/oPreviewSheet.h"

#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "preview/oPreviewGrid.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int WidestSheet = 1120; // at a desktop font of the size below; scales with it
constexpr double OrdinaryPoints = 10;
constexpr int Frame = 2; // the focus frame, which is the thickest

} // namespace

oPreviewSheet::oPreviewSheet(QWidget *parent)
    : QWidget(parent)
    , m_grid(new oPreviewGrid(this))
{
    setObjectName(QStringLiteral("pctPreview"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_grid->installEventFilter(this);
}

QSize oPreviewSheet::sizeHint() const
{
    const int width = WidestSheet + 2 * Theme::Space24;
    return {width, width / 2};
}

QSize oPreviewSheet::minimumSizeHint() const
{
    return {0, 0};
}

QRect oPreviewSheet::sheet() const
{
    const int widest = qRound(WidestSheet * QApplication::font().pointSizeF() / OrdinaryPoints);
    const int width = std::clamp(this->width() - 2 * Theme::Space24, 0, widest);
    return {(this->width() - width) / 2, Theme::Space12, width, std::max(0, height() - Theme::Space12)};
}

void oPreviewSheet::placeGrid()
{
    // The sheet continues below the edge of the window, so it has no bottom frame.
    m_grid->setGeometry(sheet().adjusted(Frame, Frame, -Frame, 0));
}

void oPreviewSheet::resizeEvent(QResizeEvent *)
{
    placeGrid();
}

void oPreviewSheet::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        placeGrid();
}

void oPreviewSheet::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect outside = sheet();
    if (m_grid->hasFocus()) {
        painter.fillRect(outside, Theme::Purple);
        painter.fillRect(outside.adjusted(Frame, Frame, -Frame, -Frame), Theme::Paper);
        return;
    }
    painter.fillRect(outside, Theme::Paper);
    mdPaintLine(painter, outside, Qt::TopEdge | Qt::LeftEdge | Qt::RightEdge, Theme::Grey);
}

bool oPreviewSheet::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_grid && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        update();
    return QWidget::eventFilter(watched, event);
}
