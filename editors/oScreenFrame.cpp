#include "editors/oScreenFrame.h"

#include "controls/mdLeaveFocusedBox.h"
#include "controls/mdTheme.h"
#include "editors/clsFrameRows.h"

#include <QGridLayout>
#include <QPainter>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

oScreenFrame::oScreenFrame(const clsScreenFrame &frame, QWidget *parent)
    : oFrame(parent)
    , m_parts(new QBoxLayout(QBoxLayout::TopToBottom))
{
    setObjectName(QString::fromUtf8(frame.name));
    setCaption(QString::fromUtf8(frame.caption));
    m_parts->setSpacing(Theme::Space32);
    bodyLayout()->addLayout(m_parts, 1);
    clsFrameRows(*this, frame).layOut();
}

void oScreenFrame::setLetter(const QString &markedCaption)
{
    const QKeySequence key = QKeySequence::mnemonic(markedCaption);
    if (key.isEmpty())
        return;
    setMarkedCaption(markedCaption);
    auto *letter = new QShortcut(key, this);
    connect(letter, &QShortcut::activated, this, [this] {
        if (!mdLeaveFocusedBox(window()))
            return;
        const auto first = std::find_if(m_fields.begin(), m_fields.end(),
            [this](const clsScreenField &field) { return field.control->isEnabledTo(window()); });
        if (first == m_fields.end())
            return;
        first->control->setFocus(Qt::ShortcutFocusReason);
        window()->setAttribute(Qt::WA_KeyboardFocusChange);
    });
}

void oScreenFrame::setLabelColumn(int width)
{
    if (m_labelColumn == 0)
        return;
    m_labelColumn = width;
    for (int part = 0; part < m_parts->count(); ++part)
        static_cast<QGridLayout *>(m_parts->itemAt(part)->layout())->setColumnMinimumWidth(0, width);
}

void oScreenFrame::setSideBySide(bool sideBySide)
{
    m_parts->setDirection(sideBySide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_parts->setSpacing(sideBySide ? Theme::Space32 : Theme::Space16);
}

int oScreenFrame::narrowestWidth() const
{
    int width = 0;
    for (int part = 0; part < m_parts->count(); ++part)
        width = qMax(width, m_parts->itemAt(part)->minimumSize().width());
    const QMargins edges = bodyLayout()->contentsMargins() + layout()->contentsMargins();
    return width + edges.left() + edges.right();
}

void oScreenFrame::paintEvent(QPaintEvent *event)
{
    oFrame::paintEvent(event);
    QPainter painter(this);
    const bool wholeWidth = m_parts->count() == 1;
    for (const QWidget *hairline : m_hairlines) {
        QRect line = hairline->geometry();
        if (wholeWidth) {
            line.setLeft(1);
            line.setRight(width() - 2);
        }
        painter.fillRect(line, Theme::Hairline);
    }
}
