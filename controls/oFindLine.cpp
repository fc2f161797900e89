#include "controls/oFindLine.h"

#include "controls/clsGridFind.h"
#include "controls/mdTheme.h"
#include "controls/oCloseButton.h"
#include "controls/oCustomButton.h"
#include "controls/oGridView.h"
#include "controls/oLineBox.h"
#include "controls/oSGrid.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

namespace {

constexpr int Height = 30;
constexpr int BoxWidth = 240;
constexpr int StateWidth = 140;
/// The hint is hidden in a narrower line.
constexpr int RoomForHint = 720;

QLabel *label(const char *name, const QString &text, const QColor &colour, QWidget *parent)
{
    auto *result = new QLabel(text, parent);
    result->setObjectName(QString::fromLatin1(name));
    result->setTextFormat(Qt::PlainText);
    QPalette palette;
    palette.setColor(QPalette::WindowText, colour);
    result->setPalette(palette);
    return result;
}

} // namespace

oFindLine::oFindLine(oSGrid &grid, QWidget *parent)
    : QWidget(parent)
    , m_grid(grid)
    , m_view(*grid.findChild<oGridView *>())
    , m_find(new clsGridFind(*static_cast<const clsGridModel *>(m_view.model()), this))
    , lblFind(label("lblFind", QStringLiteral("Find:"), Theme::Ink, this))
    , txtFind(new oLineBox(this))
    , lblState(label("lblFindState", QString(), Theme::Ink2, this))
    , cmdPrevious(addButton("cmdFindPrevious", "Previous hit", "Previous hit (Shift+Enter)", false))
    , cmdNext(addButton("cmdFindNext", "Next hit", "Next hit (Enter)", true))
    , lblHint(label("lblFindHint", QStringLiteral("Enter: next hit"), Theme::Ink2, this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    txtFind->setObjectName(QStringLiteral("txtFind"));
    auto *close = new oCloseButton(QStringLiteral("Close Find"), this);
    close->setObjectName(QStringLiteral("cmdCloseFind"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, Theme::Space12 - Theme::RingRoom); // the buttons' own edges add the rest
    row->setSpacing(Theme::Space12);
    row->addWidget(lblFind);
    row->addWidget(txtFind);
    row->addWidget(lblState);
    row->addWidget(cmdPrevious);
    row->addSpacing(Theme::Space4 - Theme::Space12);
    row->addWidget(cmdNext);
    row->addStretch(1);
    row->addWidget(lblHint);
    row->addWidget(close);
    takeFonts();
    connect(txtFind, &QLineEdit::textChanged, this, &oFindLine::look);
    connect(cmdPrevious, &oCustomButton::Click, this, [this] { goOn(true); });
    connect(cmdNext, &oCustomButton::Click, this, [this] { goOn(false); });
    connect(close, &QAbstractButton::clicked, this, &oFindLine::Close);
    connect(m_find, &clsGridFind::Changed, &m_view, [this] { m_view.viewport()->update(); });
    connect(m_find, &clsGridFind::Changed, this, &oFindLine::showState);
    connect(&m_grid, &oSGrid::MarksChange, this, &oFindLine::showState);
    m_view.delegate()->setFind(m_find);
    hide();
}

oCustomButton *oFindLine::addButton(const char *name, const char *caption, const char *tip, bool isNext)
{
    auto *button = new oCustomButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setAccessibleName(QString::fromLatin1(caption));
    button->setToolTip(QString::fromLatin1(tip));
    button->setLook(oCustomButton::Look::Arrow);
    button->setGlyph(isNext ? Glyph::ChevronDown : Glyph::ChevronUp);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    button->setEnabled(false);
    button->setAttribute(Qt::WA_LayoutUsesWidgetRect); // includes the ring's margin, so that it is level with the box
    return button;
}

void oFindLine::takeFonts()
{
    for (QLabel *small : {lblState, lblHint})
        small->setFont(Theme::font(-1));
    txtFind->setFixedWidth(Theme::scaled(BoxWidth));
    for (oCustomButton *button : {cmdPrevious, cmdNext})
        button->setFixedHeight(Theme::scaled(Height) + 2 * Theme::RingRoom);
    lblState->setMinimumWidth(Theme::scaled(StateWidth));
}

void oFindLine::Open()
{
    if (isHidden()) {
        txtFind->setAccessibleName(QStringLiteral("Find in %1").arg(m_grid.accessibleName()));
        show();
    }
    m_from = qMax(0, m_grid.SelectedRow() - 1);
    txtFind->selectAll();
    txtFind->setFocus(Qt::ShortcutFocusReason);
}

void oFindLine::Close()
{
    m_grid.setFocus(Qt::OtherFocusReason);
    hide();
    txtFind->clear();
}

/// Selects the first hit at or after the row where the search started; if there is none, the row stays selected.
void oFindLine::look()
{
    m_find->setText(txtFind->text());
    if (m_find->Hits() > 0)
        m_grid.SelectRow((m_find->HitOf(m_from) ? m_from : m_find->NextOf(m_from)) + 1);
}

void oFindLine::goOn(bool back)
{
    const int row = m_grid.SelectedRow() - 1;
    const int hit = back ? m_find->PreviousOf(row) : m_find->NextOf(row);
    if (hit < 0)
        return;
    m_from = hit;
    m_grid.SelectRow(hit + 1);
}

QString oFindLine::State() const
{
    if (m_find->Words().isEmpty())
        return {};
    const int hits = m_find->Hits();
    if (hits == 0)
        return QStringLiteral("no row holds this");
    if (const int hit = m_find->HitOf(m_grid.SelectedRow() - 1))
        return QStringLiteral("hit %1 of %2").arg(hit).arg(hits);
    return hits == 1 ? QStringLiteral("1 hit") : QStringLiteral("%1 hits").arg(hits);
}

void oFindLine::showState()
{
    const QString state = State();
    if (state == lblState->text())
        return;
    lblState->setText(state);
    txtFind->setAccessibleDescription(state);
    cmdPrevious->setEnabled(m_find->Hits() > 0);
    cmdNext->setEnabled(m_find->Hits() > 0);
    lblState->setAccessibleName(state);
    QAccessibleEvent said(lblState, QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
}

void oFindLine::keyPressEvent(QKeyEvent *event)
{
    const Qt::KeyboardModifiers shift = event->modifiers() & ~Qt::KeypadModifier;
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape && !shift)
        Close();
    else if (isEnter && !(shift & ~Qt::ShiftModifier))
        goOn(shift == Qt::ShiftModifier);
    else
        QWidget::keyPressEvent(event);
}

void oFindLine::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    lblHint->setVisible(width() >= Theme::scaled(RoomForHint));
}

void oFindLine::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        takeFonts();
}
