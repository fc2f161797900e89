#include "shell/oCheckPanel.h"

#include "controls/mdIcons.h"
#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/oCloseButton.h"
#include "shell/clsCheckState.h"
#include "shell/oCheckList.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace {

constexpr int Width = 360;
constexpr int HeadingHeight = 44;
constexpr int TickSide = 24;

QLabel *label(const char *name, const QColor &colour, QWidget *parent)
{
    auto *result = new QLabel(parent);
    result->setObjectName(QString::fromLatin1(name));
    result->setTextFormat(Qt::PlainText);
    QPalette palette;
    palette.setColor(QPalette::WindowText, colour);
    result->setPalette(palette);
    return result;
}

} // namespace

oCheckPanel::oCheckPanel(clsCheckState &state, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
    , lblCaption(label("lblCheckCaption", Theme::Ink, this))
    , lblCounts(label("lblCheckCounts", Theme::Ink2, this))
    , lblTrouble(label("lblCheckTrouble", Theme::Ink2, this))
    , m_nothing(new QWidget(this))
    , lblNothing(label("lblCheckNothing", Theme::Ink2, m_nothing))
    , m_list(new oCheckList(this))
    , cmdClose(new oCloseButton(QStringLiteral("Close the check"), this))
    , m_pages(new QStackedLayout)
{
    setObjectName(QStringLiteral("oCheckPanel"));
    setAccessibleName(QStringLiteral("Check Claim"));
    build();
    takeFonts();
    m_list->setKeys([this](int finding) { return m_state.KeyOf(finding); });
    connect(&m_state, &clsCheckState::Changed, this, &oCheckPanel::showFindings);
    connect(cmdClose, &QAbstractButton::clicked, this, &oCheckPanel::CloseAsked);
    showFindings();
}

void oCheckPanel::build()
{
    lblCaption->setText(QStringLiteral("Check Claim"));
    lblTrouble->setWordWrap(true);
    lblTrouble->setContentsMargins(Theme::Space16, Theme::Space4, Theme::Space16, Theme::Space8);
    cmdClose->setObjectName(QStringLiteral("cmdCloseCheck"));

    auto *heading = new QHBoxLayout;
    heading->setContentsMargins(Theme::Space16, 0, Theme::Space8, 0);
    heading->setSpacing(Theme::Space8);
    heading->addWidget(lblCaption);
    lblCounts->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    heading->addWidget(lblCounts, 1);
    heading->addWidget(cmdClose);
    auto *headingArea = new QWidget(this);
    headingArea->setLayout(heading);
    headingArea->setFixedHeight(Theme::scaled(HeadingHeight));

    lblNothing->setAlignment(Qt::AlignHCenter);
    lblNothing->setWordWrap(true);
    auto *tick = new QLabel(m_nothing);
    const int side = Theme::scaled(TickSide);
    tick->setPixmap(mdGlyphIcon(Glyph::Tick, Theme::Ink2).pixmap(QSize(side, side), devicePixelRatio()));
    tick->setAlignment(Qt::AlignHCenter);
    tick->setObjectName(QStringLiteral("lblCheckTick"));
    auto *nothing = new QVBoxLayout(m_nothing);
    nothing->addStretch(1);
    nothing->addWidget(tick);
    nothing->addWidget(lblNothing);
    nothing->addStretch(1);

    m_pages->addWidget(m_list);
    m_pages->addWidget(m_nothing);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(1, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(headingArea);
    all->addWidget(mdHorizontalLine(this));
    all->addWidget(lblTrouble);
    all->addLayout(m_pages, 1);
}

void oCheckPanel::takeFonts()
{
    lblCaption->setFont(Theme::font(0, true));
    for (QLabel *small : {lblCounts, lblTrouble, lblNothing})
        small->setFont(Theme::font(-1));
}

void oCheckPanel::showFindings()
{
    m_list->ShowFindings(m_state.Findings(), m_state.Groups());
    const QString counts = mdCountsInWords(m_state.Groups(), true);
    showCounts();
    lblTrouble->setText(m_state.Trouble());
    lblTrouble->setVisible(!m_state.Trouble().isEmpty());
    const bool failed = !m_state.Failure().isEmpty();
    lblNothing->setText(failed ? m_state.Failure() : QStringLiteral("Nothing found."));
    findChild<QLabel *>(QStringLiteral("lblCheckTick"))->setVisible(!failed);
    const bool hadFocus = isAncestorOf(window()->focusWidget());
    m_pages->setCurrentWidget(m_state.Groups().empty() ? m_nothing : static_cast<QWidget *>(m_list));
    if (hadFocus)
        TakeFocus();
    m_list->setAccessibleDescription(counts.isEmpty() ? lblNothing->text() : counts);
}

/// Leaves out the notes if there is no room.
void oCheckPanel::showCounts()
{
    const QString all = mdCountsInWords(m_state.Groups(), true);
    const bool fits = lblCounts->fontMetrics().horizontalAdvance(all) <= lblCounts->width();
    lblCounts->setText(fits ? all : mdCountsInWords(m_state.Groups(), false));
    lblCounts->setToolTip(fits ? QString() : all);
}

void oCheckPanel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    showCounts();
}

void oCheckPanel::TakeFocus()
{
    QWidget *first = m_state.Groups().empty() ? static_cast<QWidget *>(cmdClose) : m_list;
    first->setFocus(Qt::OtherFocusReason);
}

QSize oCheckPanel::sizeHint() const
{
    return {Theme::scaled(Width), Theme::scaled(Width)};
}

void oCheckPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        takeFonts();
}

void oCheckPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Theme::Paper);
    mdPaintLine(painter, rect(), Qt::LeftEdge | Qt::TopEdge, Theme::Line);
}
