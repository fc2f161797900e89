#include "preview/oPageView.h"

#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "preview/clsPdfPages.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int Gap = 16;
constexpr double LargestFit = 1.25;
constexpr int SmallestZoom = 25;
constexpr int LargestZoom = 300;
constexpr int LineStep = 40;
constexpr int FocusFrame = 2;

} // namespace

oPageView::oPageView(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setObjectName(QStringLiteral("oPageView"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setMouseTracking(true);
}

void oPageView::setPages(clsPdfPages *pages)
{
    const int middle = verticalScrollBar()->value() + viewport()->height() / 2;
    const int page = m_tops.empty() ? 0 : pageAt(middle);
    const double part = m_tops.empty() || m_pages == nullptr
        ? 0
        : double(verticalScrollBar()->value() - m_tops[size_t(page)]) / std::max(1, placeOf(page).height());
    const bool had = m_pages != nullptr;
    m_pages = pages && pages->Count() > 0 ? pages : nullptr;
    setBoxes({});
    setSigns({});
    m_current = -1;
    layOut();
    if (m_pages && had) {
        const int same = std::min(page, m_pages->Count() - 1);
        verticalScrollBar()->setValue(m_tops[size_t(same)] + int(std::lround(part * placeOf(same).height())));
    } else {
        verticalScrollBar()->setValue(0);
    }
    noteCurrentPage();
    viewport()->update();
}

void oPageView::setBoxes(std::vector<clsPageBox> boxes)
{
    m_boxes = std::move(boxes);
    markBox(-1);
}

void oPageView::setSigns(std::vector<clsPageSign> signs)
{
    m_signs = std::move(signs);
    viewport()->update();
}

QRect oPageView::PlaceOfSign(int sign) const
{
    const clsPageSign &shown = m_signs[size_t(sign)];
    const double scale = m_scale * clsPdfPages::DotsPerPoint;
    const QRect page = placeOf(shown.page);
    const QSize size = mdPrintSignSize();
    // To the left of its text if the margin has room, otherwise in the middle of the margin.
    const int right = int(shown.left * scale) - Theme::Space4;
    const int left = shown.left > 0 ? std::max(0, right - size.width()) : Theme::Space8;
    return {QPoint(page.left() + left, page.top() + int(shown.middle * scale) - size.height() / 2), size};
}

QRect oPageView::PlaceOfBox(int box) const
{
    const clsPageBox &shown = m_boxes[size_t(box)];
    const double scale = m_scale * clsPdfPages::DotsPerPoint;
    return QRectF(shown.points.topLeft() * scale, shown.points.size() * scale)
        .translated(placeOf(shown.page).topLeft())
        .toRect();
}

int oPageView::boxAt(const QPoint &place) const
{
    for (int i = 0; m_pages && i < int(m_boxes.size()); ++i)
        if (m_boxes[size_t(i)].page < m_pages->Count() && PlaceOfBox(i).contains(place))
            return i;
    return -1;
}

QString oPageView::wordsAt(const QPoint &place) const
{
    for (int i = 0; m_pages && i < int(m_signs.size()); ++i)
        if (m_signs[size_t(i)].page < m_pages->Count() && PlaceOfSign(i).contains(place))
            return m_signs[size_t(i)].note.words;
    const int box = boxAt(place);
    return box < 0 ? QString() : m_boxes[size_t(box)].words;
}

void oPageView::markBox(int box)
{
    if (box == m_marked)
        return;
    m_marked = box;
    viewport()->setCursor(box < 0 ? Qt::ArrowCursor : Qt::PointingHandCursor);
    viewport()->update();
    emit BoxMarked(box < 0 ? QString() : m_boxes[size_t(box)].words);
}

void oPageView::mouseMoveEvent(QMouseEvent *event)
{
    markBox(boxAt(event->pos()));
}

void oPageView::mouseReleaseEvent(QMouseEvent *event)
{
    const int box = event->button() == Qt::LeftButton ? boxAt(event->pos()) : -1;
    if (box >= 0)
        emit BoxChosen(QString(m_boxes[size_t(box)].target));
}

bool oPageView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto &asked = static_cast<QHelpEvent &>(*event);
        QToolTip::showText(asked.globalPos(), wordsAt(asked.pos()), viewport());
        return true;
    }
    if (event->type() == QEvent::Leave)
        markBox(-1);
    return QAbstractScrollArea::viewportEvent(event);
}

bool oPageView::focusNextPrevChild(bool next)
{
    // Moves from box to box, starting with the page in view; after the last one to the next control.
    int box = m_marked + (next ? 1 : -1);
    if (m_marked < 0) {
        box = next ? 0 : -1;
        while (next && box < int(m_boxes.size()) && m_boxes[size_t(box)].page < m_current)
            ++box;
    }
    if (!m_pages || box < 0 || box >= int(m_boxes.size()) || m_boxes[size_t(box)].page >= m_pages->Count()) {
        markBox(-1);
        return QAbstractScrollArea::focusNextPrevChild(next);
    }
    const QRect place = PlaceOfBox(box);
    if (place.top() < 0 || place.bottom() >= viewport()->height())
        verticalScrollBar()->setValue(verticalScrollBar()->value() + place.center().y() - viewport()->height() / 2);
    markBox(box);
    return true;
}

int oPageView::Zoom() const
{
    return int(std::lround(m_scale * 100));
}

void oPageView::setZoom(int percent)
{
    m_fitsWidth = false;
    takeZoom(std::clamp(percent, SmallestZoom, LargestZoom) / 100.0);
}

void oPageView::FitWidth()
{
    m_fitsWidth = true;
    takeZoom(scaleThatFits());
}

void oPageView::takeZoom(double scale)
{
    // Keeps the position in the middle of the view.
    QScrollBar &bar = *verticalScrollBar();
    const int half = viewport()->height() / 2;
    const double part = m_tops.empty() || m_tops.back() == 0 ? 0 : double(bar.value() + half) / m_tops.back();
    const bool atTop = bar.value() == 0;
    const bool changed = scale != m_scale;
    m_scale = scale;
    layOut();
    if (changed && !atTop && !m_tops.empty())
        bar.setValue(int(std::lround(part * m_tops.back())) - half);
    if (changed)
        emit ZoomChanged();
    noteCurrentPage();
    viewport()->update();
}

double oPageView::scaleThatFits() const
{
    if (!m_pages)
        return 1;
    double widest = 1;
    for (int i = 0; i < m_pages->Count(); ++i)
        widest = std::max(widest, m_pages->Size(i).width());
    // Less the width of a scroll bar, so that the bar can't appear and disappear with the size of the pages.
    const int room = width() - verticalScrollBar()->sizeHint().width() - 2 * Gap;
    return std::clamp(room / widest, SmallestZoom / 100.0, LargestFit);
}

void oPageView::layOut()
{
    m_tops.clear();
    m_width = 0;
    if (m_pages) {
        if (m_fitsWidth) {
            const double fits = scaleThatFits();
            if (fits != m_scale) {
                m_scale = fits;
                emit ZoomChanged();
            }
        }
        double top = Gap;
        for (int i = 0; i < m_pages->Count(); ++i) {
            const QSizeF size = m_pages->Size(i) * m_scale;
            m_tops.push_back(int(std::lround(top)));
            m_width = std::max(m_width, int(std::ceil(size.width())));
            top += std::ceil(size.height()) + Gap;
        }
        m_tops.push_back(int(std::lround(top)));
    }
    const int height = m_tops.empty() ? 0 : m_tops.back();
    verticalScrollBar()->setRange(0, std::max(0, height - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(LineStep);
    horizontalScrollBar()->setRange(0, std::max(0, m_width + 2 * Gap - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(LineStep);
}

QRect oPageView::placeOf(int page) const
{
    const QSizeF size = m_pages->Size(page) * m_scale;
    const int width = int(std::lround(size.width()));
    const int free = viewport()->width() - width;
    const int left = horizontalScrollBar()->maximum() > 0 ? Gap + (m_width - width) / 2 - horizontalScrollBar()->value()
                                                          : free / 2;
    return {left, m_tops[size_t(page)] - verticalScrollBar()->value(), width, int(std::lround(size.height()))};
}

int oPageView::pageAt(int y) const
{
    const auto next = std::upper_bound(m_tops.begin(), m_tops.end() - 1, y);
    return std::max(0, int(next - m_tops.begin()) - 1);
}

int oPageView::pageInView() const
{
    if (!m_pages)
        return -1;
    QScrollBar &bar = *verticalScrollBar();
    // At either end of the range it is the first or last page, however many are in view.
    if (bar.value() == 0)
        return 0;
    if (bar.value() == bar.maximum())
        return m_pages->Count() - 1;
    return pageAt(bar.value() + viewport()->height() / 2);
}

void oPageView::GoTo(int page)
{
    if (!m_pages || page < 0 || page >= m_pages->Count())
        return;
    verticalScrollBar()->setValue(m_tops[size_t(page)] - Gap);
    if (m_current == page)
        return;
    // Current even if it is too near the end to be scrolled to the top.
    m_current = page;
    emit CurrentPageChanged();
}

void oPageView::noteCurrentPage()
{
    const int now = pageInView();
    if (now == m_current)
        return;
    m_current = now;
    emit CurrentPageChanged();
}

void oPageView::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), Theme::Band);
    if (m_pages) {
        const double dots = devicePixelRatioF();
        const int last = m_pages->Count() - 1;
        for (int i = pageAt(verticalScrollBar()->value()); i <= last; ++i) {
            const QRect place = placeOf(i);
            if (place.top() >= viewport()->height())
                break;
            if (place.bottom() < 0)
                continue;
            painter.drawImage(place, m_pages->Picture(i, (QSizeF(place.size()) * dots).toSize()));
            mdPaintLine(painter, place.adjusted(-1, -1, 1, 1),
                Qt::TopEdge | Qt::LeftEdge | Qt::RightEdge | Qt::BottomEdge, Theme::Grey);
        }
    }
    if (m_pages)
        paintSigns(painter);
    if (m_pages && m_marked >= 0) {
        painter.setPen(QPen(Theme::Purple, FocusFrame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(PlaceOfBox(m_marked));
    }
    if (hasFocus()) {
        painter.setPen(QPen(Theme::Purple, FocusFrame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(QRectF(viewport()->rect()).adjusted(1, 1, -1, -1));
    }
}

void oPageView::paintSigns(QPainter &painter) const
{
    for (int i = 0; i < int(m_signs.size()); ++i) {
        if (m_signs[size_t(i)].page >= m_pages->Count())
            continue;
        const QRect place = PlaceOfSign(i);
        if (place.bottom() >= 0 && place.top() < viewport()->height())
            mdPaintPrintSign(painter, place, m_signs[size_t(i)].note.sign);
    }
}

void oPageView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    if (m_fitsWidth && m_pages)
        takeZoom(scaleThatFits());
    else
        layOut();
    noteCurrentPage();
}

void oPageView::keyPressEvent(QKeyEvent *event)
{
    QScrollBar &down = *verticalScrollBar();
    QScrollBar &across = *horizontalScrollBar();
    if (event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) {
        event->ignore();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_marked >= 0)
            emit BoxChosen(QString(m_boxes[size_t(m_marked)].target));
        else
            event->ignore();
        break;
    case Qt::Key_PageDown: down.triggerAction(QScrollBar::SliderPageStepAdd); break;
    case Qt::Key_PageUp: down.triggerAction(QScrollBar::SliderPageStepSub); break;
    case Qt::Key_Home: down.setValue(0); break;
    case Qt::Key_End: down.setValue(down.maximum()); break;
    case Qt::Key_Down: down.triggerAction(QScrollBar::SliderSingleStepAdd); break;
    case Qt::Key_Up: down.triggerAction(QScrollBar::SliderSingleStepSub); break;
    case Qt::Key_Right: across.triggerAction(QScrollBar::SliderSingleStepAdd); break;
    case Qt::Key_Left: across.triggerAction(QScrollBar::SliderSingleStepSub); break;
    default: event->ignore();
    }
}

void oPageView::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    if (const int step = event->angleDelta().y())
        setZoom(Zoom() + (step > 0 ? 10 : -10));
    event->accept();
}

void oPageView::scrollContentsBy(int, int)
{
    noteCurrentPage();
    viewport()->update();
}

void oPageView::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void oPageView::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    markBox(-1);
    viewport()->update();
}
