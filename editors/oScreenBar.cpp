#include "editors/oScreenBar.h"

#include "controls/mdLine.h"
#include "controls/mdLowScreen.h"
#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"
#include "controls/oLeftRightButton.h"
#include "editors/clsMnemonics.h"
#include "editors/mdSectionRoutes.h"
#include "editors/oStoredNote.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QShortcut>

namespace {

/// Below this width there is no room for the links.
constexpr int RoomForJumps = 820;

/// The fixed letters of these buttons.
struct clsFixedLetter {
    const char *caption;
    char letter;
};
constexpr clsFixedLetter FixedLetters[] = {{"Save", 'S'}, {"Close", 'C'}, {"Cancel", 'N'}};

} // namespace

oScreenBar::oScreenBar(const clsScreen &screen, QWidget *parent)
    : QWidget(parent)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Theme::Space24, Theme::Space12, Theme::Space24, Theme::Space12);
    row->setSpacing(Theme::Space8);
    if (screen.section)
        addSwitcher(screen.section);
    if (!screen.jumps.empty())
        row->addSpacing(Theme::Space24 - Theme::Space8);
    for (const clsScreenJump &jump : screen.jumps) {
        const QString section = QString::fromUtf8(jump.section);
        m_jumps.push_back(addButton(jump.control, section));
        connect(m_jumps.back(), &oCustomButton::Click, this, [this, section] { emit Jump(section); });
    }
    if (screen.add) {
        m_stored = new oStoredNote(this);
        row->addWidget(m_stored, 1);
        addSaveAndAdd();
    } else {
        row->addStretch(1);
    }
    addEnding(screen.ending);
}

oCustomButton *oScreenBar::addButton(const char *name, const QString &caption)
{
    auto *button = new oCustomButton(this);
    button->setObjectName(QString::fromUtf8(name));
    button->setCaption(clsMnemonics::unmarked(caption));
    layout()->addWidget(button);
    return button;
}

/// Whether a section is the first or last does not depend on the form type.
void oScreenBar::addSwitcher(const char *section)
{
    const QString name = QString::fromUtf8(section);
    const QString anyType = QStringLiteral("Claim1");
    m_switcher = new oLeftRightButton(this);
    m_switcher->setObjectName(QStringLiteral("oFormSwitcher"));
    m_switcher->setLeftCaption(QStringLiteral("<< Prev"));
    m_switcher->setRightCaption(QStringLiteral("Next >>"));
    m_switcher->setLeftEnabled(!mdPrevSection(name, anyType).isEmpty());
    m_switcher->setRightEnabled(!mdNextSection(name, anyType).isEmpty());
    connect(m_switcher, &oLeftRightButton::LeftClick, this, &oScreenBar::Prev);
    connect(m_switcher, &oLeftRightButton::RightClick, this, &oScreenBar::Next);
    layout()->addWidget(m_switcher);
    // Screens open only with a claim, and its form type doesn't change while one is open.
    const QString type = Form ? Form->FormType() : QString();
    m_switcher->setLeftTarget(mdPrevSection(name, type));
    m_switcher->setRightTarget(mdNextSection(name, type));
    for (const auto &[key, behind] : {std::pair(Qt::Key_PageDown, true), std::pair(Qt::Key_PageUp, false)})
        connect(new QShortcut(QKeySequence(Qt::CTRL | key), this), &QShortcut::activated, this,
            [this, toNext = behind] { emit Walk(toNext); });
}

/// It has a key instead of a letter, so that the letters of the fields don't change.
void oScreenBar::addSaveAndAdd()
{
    oCustomButton *button = addButton("cmdSaveAndAdd", QStringLiteral("Save and Add"));
    button->setToolTip(QStringLiteral("Stores this item and begins the next (Ctrl+Enter)"));
    connect(button, &oCustomButton::Click, this, &oScreenBar::SaveAndAdd);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto *keys = new QShortcut(QKeySequence(Qt::CTRL | key), this);
        connect(keys, &QShortcut::activated, this, &oScreenBar::SaveAndAdd);
    }
}

void oScreenBar::addEnding(clsScreenEnding ending)
{
    if (ending == clsScreenEnding::Close) {
        m_endings = {addButton("cmdClose", QStringLiteral("Close"))};
        connect(m_endings[0], &oCustomButton::Click, this, &oScreenBar::Close);
    } else {
        m_endings = {addButton("cmdSave", QStringLiteral("Save")), addButton("cmdCancel", QStringLiteral("Cancel"))};
        connect(m_endings[0], &oCustomButton::Click, this, &oScreenBar::Save);
        connect(m_endings[1], &oCustomButton::Click, this, &oScreenBar::Cancel);
    }
    m_endings[0]->setLook(oCustomButton::Look::Default);
}

void oScreenBar::giveLetters(clsMnemonics &letters)
{
    for (oCustomButton *button : m_endings)
        for (const clsFixedLetter &row : FixedLetters)
            if (button->Caption() == QLatin1String(row.caption))
                button->setCaption(letters.marked(button->Caption(), QLatin1Char(row.letter)));
    // A disabled end doesn't need a letter.
    if (m_switcher && m_switcher->LeftEnabled())
        m_switcher->setLeftCaption(letters.marked(m_switcher->LeftCaption()));
    if (m_switcher && m_switcher->RightEnabled())
        m_switcher->setRightCaption(letters.marked(m_switcher->RightCaption()));
    for (oCustomButton *button : m_jumps)
        button->setCaption(letters.marked(button->Caption()));
}

void oScreenBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Theme::Paper);
    mdPaintLine(painter, rect(), Qt::TopEdge, Theme::Line);
}

void oScreenBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    for (oCustomButton *button : m_jumps)
        button->setVisible(width() >= Theme::scaled(RoomForJumps));
    const bool low = mdIsOnLowScreen(*this);
    const int edge = low ? Theme::Space16 : Theme::Space24;
    const int gap = low ? Theme::Space8 : Theme::Space12;
    layout()->setContentsMargins(edge, gap, edge, gap);
}
