#include "preview/oWhySheet.h"

#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/oCloseButton.h"
#include "controls/oCustomButton.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int Width = 340;
constexpr int Around = 14; ///< room for the shadow and the arrow
constexpr int PointLength = 9;
constexpr int PointWidth = 18;
constexpr int HeadHeight = 46;
constexpr double LargestShare = 0.6; ///< of the parent's height
constexpr int ShadowWidth = 8;

QLabel *label(const char *name, const QFont &font, const QColor &ink)
{
    auto *made = new QLabel;
    made->setObjectName(QString::fromLatin1(name));
    made->setTextFormat(Qt::PlainText);
    made->setFont(font);
    QPalette palette;
    palette.setColor(QPalette::WindowText, ink);
    made->setPalette(palette);
    return made;
}

oCustomButton *button(const QString &name, const QString &caption)
{
    auto *made = new oCustomButton;
    made->setObjectName(name);
    // An ampersand in a name of the claim must not become a mnemonic.
    made->setCaption(QString(caption).replace(u'&', QStringLiteral("&&")));
    return made;
}

} // namespace

oWhySheet::oWhySheet(QWidget *parent)
    : QWidget(parent)
    , lblTitle(label("lblWhy", Theme::font(0, true), Theme::Ink))
    , lblAbout(label("lblAbout", Theme::font(-1), Theme::Ink2))
    , cmdClose(new oCloseButton(QStringLiteral("Close")))
    , m_view(new QScrollArea)
    , m_steps(new oWhySteps)
    , m_sum(new oWhySteps)
    , m_placesLine(mdHorizontalLine(this))
    , m_placesRoom(new QWidget)
{
    setObjectName(QStringLiteral("oWhySheet"));
    setFocusPolicy(Qt::NoFocus);
    cmdClose->setObjectName(QStringLiteral("cmdCloseWhy"));
    connect(cmdClose, &oCloseButton::clicked, this, &oWhySheet::Close);
    m_steps->setObjectName(QStringLiteral("oWhySteps"));
    m_sum->setObjectName(QStringLiteral("oWhySum"));
    m_sum->setSum(true);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setFocusPolicy(Qt::NoFocus);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setWidget(m_steps);
    m_view->setWidgetResizable(false);
    connect(m_steps, &oWhySteps::Chosen, this, [this](int step) { chooseStep(step); });
    connect(m_steps, &oWhySteps::MarkMoved, this, [this] {
        const QRect place = m_steps->PlaceOf(m_steps->Marked());
        m_view->ensureVisible(place.center().x(), place.center().y(), 0, place.height() / 2 + 1);
    });

    auto *head = new QHBoxLayout;
    head->setContentsMargins(Theme::scaled(Theme::Space16), 0, Theme::Space8, 0);
    head->setSpacing(Theme::Space12);
    head->addStrut(Theme::scaled(HeadHeight));
    head->addWidget(lblTitle);
    head->addWidget(lblAbout, 1);
    head->addWidget(cmdClose);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(Around + 1, Around + 1, Around + 1, Around + 1);
    layout->addLayout(head);
    layout->addWidget(mdHorizontalLine(this));
    layout->addWidget(m_view);
    layout->addWidget(m_sum);
    layout->addWidget(m_placesLine);
    layout->addWidget(m_placesRoom);
    hide();
}

oWhySheet::~oWhySheet() = default;

void oWhySheet::Open(const clsWhyText &text, const QPoint &at, Point point)
{
    if (!isVisible())
        m_focusBefore = window()->focusWidget();
    m_text = text;
    fill();
    placeAt(at, point);
    show();
    raise();
    qApp->installEventFilter(this);
    stops().front()->setFocus(Qt::OtherFocusReason);
}

void oWhySheet::fill()
{
    lblTitle->setText(m_text.title);
    lblAbout->setText(m_text.about);
    setAccessibleName(QStringList({m_text.title, m_text.about}).join(u' ').trimmed());
    const bool hasSum = m_text.steps.size() > 1;
    std::vector<clsShownStep> steps = m_text.steps;
    std::vector<clsShownStep> sum;
    if (hasSum) {
        sum.push_back(steps.back());
        steps.pop_back();
    }
    // The steps take the focus only if one of them leads somewhere.
    m_steps->setWalked(std::any_of(steps.begin(), steps.end(), [](const clsShownStep &step) { return step.leadsOn; }));
    m_steps->setSteps(std::move(steps));
    m_sum->setSteps(std::move(sum));
    m_sum->setVisible(hasSum);
    fillPlaces();
    // Screen readers read the steps with the first focus.
    stops().front()->setAccessibleDescription(
        QStringList({accessibleName(), m_steps->accessibleName(), m_sum->accessibleName()}).join(QStringLiteral("; ")));
}

/// Arranges the buttons in as many lines as they need.
void oWhySheet::fillPlaces()
{
    for (oCustomButton *old : m_places) {
        old->setObjectName(QString());
        old->hide(); // it may be the one that was pressed
        old->deleteLater();
    }
    m_places.clear();
    delete m_placesRoom->layout();
    auto *lines = new QVBoxLayout(m_placesRoom);
    const int side = Theme::scaled(Theme::Space16) - Theme::RingRoom;
    lines->setContentsMargins(side, Theme::Space8, side, Theme::Space8);
    lines->setSpacing(Theme::Space4);
    const int room = Theme::scaled(Width) - 2 * side;
    QHBoxLayout *line = nullptr;
    int used = room;
    for (const clsWhyPlace &place : m_text.places) {
        auto *made = button(QStringLiteral("cmdPlace%1").arg(m_places.size() + 1), place.caption);
        const int wide = std::min(made->sizeHint().width(), room);
        if (used + wide > room) {
            line = new QHBoxLayout;
            line->setSpacing(Theme::Space4);
            line->addStretch(1);
            lines->addLayout(line);
            used = 0;
        }
        made->setMaximumWidth(room);
        line->insertWidget(line->count() - 1, made);
        used += wide + Theme::Space4;
        connect(made, &oCustomButton::Click, this, [this, source = place.source] { choose(source); });
        m_places.push_back(made);
    }
    m_placesRoom->setVisible(!m_places.empty());
    m_placesLine->setVisible(!m_places.empty());
}

void oWhySheet::placeAt(const QPoint &at, Point point)
{
    const int wide = Theme::scaled(Width);
    m_steps->resize(wide, m_steps->heightFor(wide));
    m_sum->resize(wide, m_sum->heightFor(wide));
    const int sum = m_sum->isHidden() ? 0 : m_sum->heightFor(wide);
    m_sum->setFixedHeight(sum);
    m_placesRoom->setFixedWidth(wide);
    const int places = m_placesRoom->isHidden() ? 0 : m_placesRoom->layout()->totalMinimumSize().height();
    const int fixed = Theme::scaled(HeadHeight) + 1 + sum + places + (places > 0 ? 1 : 0);
    const int room = int(parentWidget()->height() * LargestShare) - fixed;
    const int steps = std::clamp(m_steps->height(), 0, std::max(Theme::scaled(HeadHeight), room));
    if (m_steps->height() > steps) {
        const int bar = m_view->verticalScrollBar()->sizeHint().width();
        m_steps->resize(wide - bar, m_steps->heightFor(wide - bar));
    }
    m_view->setFixedHeight(steps);
    m_view->verticalScrollBar()->setValue(0);
    const QSize size(wide + 2 * (Around + 1), fixed + steps + 2 * (Around + 1));

    m_pointSide = point;
    const QRect bounds = parentWidget()->rect().adjusted(-Around / 2, -Around / 2, Around / 2, Around / 2);
    QPoint corner = point == Point::Down ? at - QPoint(size.width() / 2, size.height() - Around + PointLength)
                                         : at - QPoint(size.width() - Around + PointLength, size.height() * 2 / 3);
    corner.setX(std::clamp(corner.x(), bounds.left(), std::max(bounds.left(), bounds.right() - size.width())));
    corner.setY(std::clamp(corner.y(), bounds.top(), std::max(bounds.top(), bounds.bottom() - size.height())));
    setGeometry(QRect(corner, size));
    const int edge = Around + Theme::FrameCorner + PointWidth / 2;
    m_pointAt = point == Point::Down ? std::clamp(at.x() - corner.x(), edge, size.width() - edge)
                                     : std::clamp(at.y() - corner.y(), edge, size.height() - edge);
}

void oWhySheet::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body = QRectF(rect()).adjusted(Around + 0.5, Around + 0.5, -Around - 0.5, -Around - 0.5);
    painter.setPen(Qt::NoPen);
    for (int ring = ShadowWidth; ring >= 1; --ring) {
        painter.setBrush(QColor(0x23, 0x1F, 0x26, 5));
        painter.drawRoundedRect(
            body.adjusted(-ring, -ring + 2, ring, ring + 2), Theme::FrameCorner + ring, Theme::FrameCorner + ring);
    }
    QPainterPath sheet;
    sheet.addRoundedRect(body, Theme::FrameCorner, Theme::FrameCorner);
    QPainterPath point;
    const double half = PointWidth / 2.0;
    if (m_pointSide == Point::Down)
        point.addPolygon(QPolygonF({QPointF(m_pointAt - half, body.bottom() - 1),
            QPointF(m_pointAt, body.bottom() + PointLength), QPointF(m_pointAt + half, body.bottom() - 1)}));
    else
        point.addPolygon(QPolygonF({QPointF(body.right() - 1, m_pointAt - half),
            QPointF(body.right() + PointLength, m_pointAt), QPointF(body.right() - 1, m_pointAt + half)}));
    point.closeSubpath();
    painter.setPen(QPen(Theme::Edge, 1));
    painter.setBrush(Theme::Paper);
    painter.drawPath(sheet.united(point));
}

std::vector<QWidget *> oWhySheet::stops() const
{
    std::vector<QWidget *> stops(m_places.begin(), m_places.end());
    if (m_steps->focusPolicy() != Qt::NoFocus)
        stops.push_back(m_steps);
    stops.push_back(cmdClose);
    return stops;
}

/// The Tab key stays on the sheet.
bool oWhySheet::focusNextPrevChild(bool next)
{
    const std::vector<QWidget *> all = stops();
    const auto at = std::find(all.begin(), all.end(), window()->focusWidget()) - all.begin();
    const auto count = std::ssize(all);
    all[size_t(at == count ? 0 : (at + (next ? 1 : count - 1)) % count)]->setFocus(
        next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

bool oWhySheet::takeKey(int key)
{
    QScrollBar &bar = *m_view->verticalScrollBar();
    switch (key) {
    case Qt::Key_Escape: Close(); return true;
    case Qt::Key_Left: focusNextPrevChild(false); return true;
    case Qt::Key_Right: focusNextPrevChild(true); return true;
    case Qt::Key_PageUp: bar.triggerAction(QScrollBar::SliderPageStepSub); return true;
    case Qt::Key_PageDown: bar.triggerAction(QScrollBar::SliderPageStepAdd); return true;
    case Qt::Key_Up:
    case Qt::Key_Down: break;
    default: return false;
    }
    const int direction = key == Qt::Key_Up ? -1 : 1;
    if (m_movesRows)
        emit MoveRow(direction);
    else if (!m_steps->hasFocus() && m_steps->focusPolicy() != Qt::NoFocus)
        m_steps->setFocus(Qt::OtherFocusReason);
    else if (!m_steps->hasFocus() || !m_steps->MoveMark(direction))
        bar.triggerAction(direction < 0 ? QScrollBar::SliderSingleStepSub : QScrollBar::SliderSingleStepAdd);
    return true;
}

void oWhySheet::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(takeKey(event->key()));
}

bool oWhySheet::eventFilter(QObject *watched, QEvent *event)
{
    auto *widget = qobject_cast<QWidget *>(watched);
    if (event->type() == QEvent::KeyPress && widget && isAncestorOf(widget))
        return takeKey(static_cast<QKeyEvent *>(event)->key());
    const bool isPress = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::Wheel;
    if (isPress && widget && widget != this && !isAncestorOf(widget) && widget->window() == window())
        Close(); // the click is also passed on to its target
    return false;
}

void oWhySheet::chooseStep(int step)
{
    const clsWhyStep chosen = m_text.origins[size_t(step)];
    if (chosen.Asked.isEmpty())
        choose(chosen.Source);
    else
        emit FigureAsked(chosen.Asked, chosen.Text);
}

void oWhySheet::choose(const clsWhySource &place)
{
    const clsWhySource chosen = place; // the sheet's own is deleted with the next figure
    Close();
    emit PlaceChosen(chosen);
}

void oWhySheet::Close()
{
    if (!isVisible())
        return;
    const bool hadFocus = isAncestorOf(window()->focusWidget());
    hide();
    if (hadFocus && m_focusBefore)
        m_focusBefore->setFocus(Qt::OtherFocusReason);
}

void oWhySheet::hideEvent(QHideEvent *event)
{
    qApp->removeEventFilter(this);
    QWidget::hideEvent(event);
    emit Closed();
}
