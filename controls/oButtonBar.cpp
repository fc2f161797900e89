#include "controls/oButtonBar.h"

#include "controls/mdLine.h"
#include "controls/mdTheme.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

oButtonBar::oButtonBar(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QHBoxLayout(this))
{
    setObjectName(QStringLiteral("oButtonBar"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_layout->setContentsMargins(Theme::Space24, Theme::Space12, Theme::Space24, Theme::Space12);
    m_layout->setSpacing(Theme::Space8);
    m_layout->addStretch();
}

void oButtonBar::AddButton(QWidget *button)
{
    m_layout->addWidget(button);
}

void oButtonBar::AddLeft(QWidget *widget)
{
    m_layout->insertWidget(m_left++, widget);
}

void oButtonBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Theme::Paper);
    mdPaintLine(painter, rect(), Qt::TopEdge, Theme::Line);
}

void oButtonBar::layOut(QDialog &dialog, QWidget *header, QWidget *content, oButtonBar *bar)
{
    auto *layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto *middle = new QVBoxLayout;
    middle->setContentsMargins(Theme::Space24, Theme::Space16, Theme::Space24, Theme::Space24);
    middle->addWidget(content);
    middle->addStretch();
    layout->addWidget(header);
    layout->addLayout(middle, 1);
    layout->addWidget(bar);
}
