#include "controls/oLeftRightButton.h"

#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"

#include <QHBoxLayout>

namespace {

void tellTarget(oCustomButton &button, const QString &direction, const QString &target)
{
    const QString words = target.isEmpty() ? QString() : direction + QStringLiteral(": ") + target;
    button.setToolTip(words);
    button.setAccessibleName(words.isEmpty() ? direction : words);
}

} // namespace

oLeftRightButton::oLeftRightButton(QWidget *parent)
    : QFrame(parent)
    , m_btnLeft(new oCustomButton(this))
    , m_btnRight(new oCustomButton(this))
{
    m_btnLeft->setObjectName(QStringLiteral("btnLeft"));
    m_btnLeft->setLook(oCustomButton::Look::JoinedLeft);
    m_btnRight->setObjectName(QStringLiteral("btnRight"));
    m_btnRight->setLook(oCustomButton::Look::JoinedRight);
    setLeftCaption(QStringLiteral("<<"));
    setRightCaption(QStringLiteral(">>"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Theme::RingRoom, Theme::RingRoom, Theme::RingRoom, Theme::RingRoom);
    row->setSpacing(0);
    row->addWidget(m_btnLeft);
    row->addWidget(m_btnRight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // The margin is room for the rings, so that layouts align the visible edges. The frame style makes layouts do so.
    setProperty("ringRoom", true);
    setFrameStyle(QFrame::NoFrame);
    connect(m_btnLeft, &oCustomButton::Click, this, &oLeftRightButton::LeftClick);
    connect(m_btnRight, &oCustomButton::Click, this, &oLeftRightButton::RightClick);
}

void oLeftRightButton::setLeftCaption(const QString &caption)
{
    m_btnLeft->setCaption(caption);
}

QString oLeftRightButton::LeftCaption() const
{
    return m_btnLeft->Caption();
}

void oLeftRightButton::setRightCaption(const QString &caption)
{
    m_btnRight->setCaption(caption);
}

QString oLeftRightButton::RightCaption() const
{
    return m_btnRight->Caption();
}

void oLeftRightButton::setLeftTarget(const QString &target)
{
    tellTarget(*m_btnLeft, QStringLiteral("Previous"), target);
}

void oLeftRightButton::setRightTarget(const QString &target)
{
    tellTarget(*m_btnRight, QStringLiteral("Next"), target);
}

void oLeftRightButton::setLeftEnabled(bool enabled)
{
    m_btnLeft->setEnabled(enabled);
}

bool oLeftRightButton::LeftEnabled() const
{
    return m_btnLeft->isEnabledTo(this);
}

void oLeftRightButton::setRightEnabled(bool enabled)
{
    m_btnRight->setEnabled(enabled);
}

bool oLeftRightButton::RightEnabled() const
{
    return m_btnRight->isEnabledTo(this);
}
