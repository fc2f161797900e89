#include "controls/oOrderArrows.h"

#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"

#include <QVBoxLayout>

oOrderArrows::oOrderArrows(QWidget *parent)
    : QWidget(parent)
    , m_up(addArrow(QStringLiteral("cmdUp"), QStringLiteral("Move up"), Glyph::ChevronUp))
    , m_down(addArrow(QStringLiteral("cmdDown"), QStringLiteral("Move down"), Glyph::ChevronDown))
{
    m_up->setToolTip(QStringLiteral("Move up (Alt+Up)"));
    m_down->setToolTip(QStringLiteral("Move down (Alt+Down)"));
    auto *layout = new QVBoxLayout(this);
    // A layout leaves no room for a button beyond its edge.
    layout->setContentsMargins(Theme::RingRoom, 0, Theme::RingRoom, 0);
    layout->setSpacing(Theme::Space4);
    layout->addStretch();
    layout->addWidget(m_up);
    layout->addWidget(m_down);
    layout->addStretch();
    connect(m_up, &oCustomButton::Click, this, &oOrderArrows::UpClick);
    connect(m_down, &oCustomButton::Click, this, &oOrderArrows::DownClick);
    setMovable(false, false);
}

oCustomButton *oOrderArrows::addArrow(const QString &objectName, const QString &accessibleName, Glyph glyph)
{
    auto *arrow = new oCustomButton(this);
    arrow->setObjectName(objectName);
    arrow->setAccessibleName(accessibleName);
    arrow->setLook(oCustomButton::Look::Arrow);
    arrow->setGlyph(glyph);
    arrow->setFocusPolicy(Qt::NoFocus);
    arrow->setAutoRepeat(true);
    arrow->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return arrow;
}

void oOrderArrows::setMovable(bool up, bool down)
{
    m_up->setEnabled(up);
    m_down->setEnabled(down);
}
