#include "editors/oScreenFrame.h"

#include "controls/mdLeaveFocusedBox.h"
#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/oContentSwitcher.h"
#include "editors/clsFrameRows.h"
#include "editors/clsMnemonics.h"
#include "editors/mdEnterField.h"

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
    if (frame.switcher)
        addPages(frame);
    else
        clsFrameRows(*this, *m_parts, frame.rows).layOut(frame.tickColumns);
    setLabelColumn(m_labelColumn);
}

void oScreenFrame::addPages(const clsScreenFrame &frame)
{
    setBare(Caption().isEmpty());
    m_switcher = new oContentSwitcher(this);
    m_switcher->setObjectName(QString::fromUtf8(frame.switcher));
    int number = 0;
    for (const clsScreenPage &page : frame.pages) {
        auto *container = new QWidget(this);
        auto *parts = new QVBoxLayout(container);
        parts->setContentsMargins(0, 0, 0, 0); // the switcher's pages have margins
        // The page's caption is created before its fields, so that it comes first in the tab order.
        m_switcher->AddContent(container, QString::fromUtf8(page.caption));
        clsFrameRows(*this, *parts, page.rows, ++number).layOut();
    }
    m_parts->addWidget(m_switcher, 1);
    m_grows = true;
}

QBoxLayout &oScreenFrame::belowColumns()
{
    if (!m_below) {
        m_below = new QVBoxLayout;
        m_below->setContentsMargins(0, Theme::Space16, 0, 0);
        bodyLayout()->addLayout(m_below, 1);
    }
    return *m_below;
}

void oScreenFrame::giveLetter(clsMnemonics &letters)
{
    if (!m_switcher)
        return giveLetter(*this, letters, 0);
    for (int page = 1; page <= m_switcher->Pages(); ++page)
        giveLetter(*m_switcher->Page(page), letters, page);
}

void oScreenFrame::giveLetter(oFrame &caption, clsMnemonics &letters, int page)
{
    const QString marked = letters.marked(caption.Caption());
    const QKeySequence key = QKeySequence::mnemonic(marked);
    if (key.isEmpty())
        return;
    caption.setMarkedCaption(marked);
    auto *letter = new QShortcut(key, this);
    connect(letter, &QShortcut::activated, this, [this, page] {
        if (mdLeaveFocusedBox(window()))
            enter(page);
    });
}

void oScreenFrame::enter(int page)
{
    if (m_switcher)
        m_switcher->SwitchTo(page);
    const auto first = std::find_if(m_fields.begin(), m_fields.end(), [this, page](const clsScreenField &field) {
        return field.page == page && field.control->isEnabledTo(window());
    });
    if (first != m_fields.end())
        mdEnterField(*first->control);
}

void oScreenFrame::setLabelColumn(int width)
{
    if (m_labelColumn == 0)
        return;
    m_labelColumn = width;
    for (QGridLayout *grid : m_grids)
        grid->setColumnMinimumWidth(0, width);
}

void oScreenFrame::setSideBySide(bool sideBySide)
{
    m_parts->setDirection(sideBySide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_parts->setSpacing(sideBySide ? Theme::Space32 : Theme::Space16);
}

int oScreenFrame::narrowestWidth() const
{
    int width = m_below ? m_below->minimumSize().width() : 0;
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
        mdPaintLine(painter, line, Qt::TopEdge, Theme::Hairline);
    }
}
