#include "controls/oOrderArrows.h"

#include "controls/mdGridMetrics.h"
#include "controls/mdTheme.h"

#include <QAbstractButton>
#include <QPainter>
#include <QVBoxLayout>

namespace {

class oArrowButton : public QAbstractButton {
public:
    oArrowButton(bool up, QWidget *parent)
        : QAbstractButton(parent)
        , m_up(up)
    {
        setFocusPolicy(Qt::NoFocus);
        setAttribute(Qt::WA_Hover);
        setAutoRepeat(true);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override { return {mdGridScaled(28), mdGridScaled(32)}; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const bool hot = isEnabled() && (underMouse() || isDown());
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(!isEnabled() ? Theme::EdgeOff : hot ? Theme::Purple : Theme::Edge);
        painter.setBrush(!isEnabled() ? Theme::Canvas : isDown() ? Theme::Selected : hot ? Theme::Hover : Theme::Paper);
        painter.drawRoundedRect(
            QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Theme::ControlCorner, Theme::ControlCorner);

        const double unit = mdGridScaled(100) / 100.0;
        const QPointF middle = QRectF(rect()).center();
        const double tip = (m_up ? -2.5 : 2.5) * unit;
        painter.setPen(
            QPen(isEnabled() ? Theme::Ink : Theme::Ink3, 1.5 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF chevron[]
            = {middle + QPointF(-5 * unit, -tip), middle + QPointF(0, tip), middle + QPointF(5 * unit, -tip)};
        painter.drawPolyline(chevron, 3);
    }

private:
    bool m_up;
};

} // namespace

oOrderArrows::oOrderArrows(QWidget *parent)
    : QWidget(parent)
    , m_up(new oArrowButton(true, this))
    , m_down(new oArrowButton(false, this))
{
    m_up->setObjectName(QStringLiteral("cmdUp"));
    m_up->setAccessibleName(QStringLiteral("Move up"));
    m_up->setToolTip(QStringLiteral("Move up (Alt+Up)"));
    m_down->setObjectName(QStringLiteral("cmdDown"));
    m_down->setAccessibleName(QStringLiteral("Move down"));
    m_down->setToolTip(QStringLiteral("Move down (Alt+Down)"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::Space4);
    layout->addStretch();
    layout->addWidget(m_up);
    layout->addWidget(m_down);
    layout->addStretch();
    connect(m_up, &QAbstractButton::clicked, this, &oOrderArrows::UpClick);
    connect(m_down, &QAbstractButton::clicked, this, &oOrderArrows::DownClick);
    setMovable(false, false);
}

void oOrderArrows::setMovable(bool up, bool down)
{
    m_up->setEnabled(up);
    m_down->setEnabled(down);
}
