#include "controls/frmMessageBox.h"

#include "base/mdPlayWav.h"
#include "base/mdProgramFolder.h"
#include "controls/mdLargestWindow.h"
#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"
#include "controls/oHeaderBar.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QStringList>
#include <QTimer>
#include <QVBoxLayout>

namespace {

using UI = clsUserInterface;

constexpr int NarrowestBox = 440;
constexpr int WidestBox = 560;

struct clsButtonSet {
    std::vector<UI::Answer> shown;
    UI::Answer preset;
    UI::Answer systemPreset; ///< of a system box: Enter never presses a destructive button
};

/// By the number of the set.
const clsButtonSet &buttonSet(UI::Buttons buttons)
{
    // clang-format off
    static const clsButtonSet sets[] = {
        {{UI::OK},                      UI::OK,  UI::OK},
        {{UI::OK, UI::Cancel},          UI::OK,  UI::OK},
        {{UI::Yes, UI::No},             UI::Yes, UI::No},
        {{UI::Yes, UI::No, UI::Cancel}, UI::Yes, UI::Yes},
    };
    // clang-format on
    return sets[size_t(buttons)];
}

int iconOf(UI::SystemIcon icon)
{
    switch (icon) {
    case UI::Critical: return 0;
    case UI::Question: return 1;
    case UI::Information: return 2;
    }
    return 0;
}

/// The header's icon groups for the icons 0, 1 and 2.
int iconGroup(int icon)
{
    static constexpr int groups[] = {2, 4, 3};
    return groups[qBound(0, icon, 2)];
}

/// Questions whose Yes is destructive.
bool losesSomething(const QString &title)
{
    return title == u"Delete?" || title == u"Overwrite?";
}

QString countdownCaption(int seconds)
{
    return QStringLiteral("&OK (%1)").arg(seconds);
}

} // namespace

frmMessageBox::frmMessageBox(QWidget *parent)
    : QDialog(parent)
    , m_header(new oHeaderBar(this))
    , m_paper(new QScrollArea(this))
    , m_message(new QLabel)
    , m_timer(new QTimer(this))
{
    setObjectName(QStringLiteral("frmMessageBox"));
    m_header->setObjectName(QStringLiteral("oHeader"));
    buildMessage();

    auto *bar = new QHBoxLayout;
    bar->setContentsMargins(Theme::Space24, Theme::Space12, Theme::Space24, Theme::Space12);
    bar->setSpacing(Theme::Space8);
    bar->addStretch();
    addButton(*bar, "cmdOK", QStringLiteral("&OK"), UI::OK);
    addButton(*bar, "cmdYes", QStringLiteral("&Yes"), UI::Yes);
    addButton(*bar, "cmdNo", QStringLiteral("N&o"), UI::No);
    addButton(*bar, "cmdCancel", QStringLiteral("Ca&ncel"), UI::Cancel);

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(m_header);
    all->addWidget(m_paper, 1);
    all->addWidget(mdHorizontalLine(this));
    all->addLayout(bar);

    m_timer->setObjectName(QStringLiteral("tmrAutoOK"));
    m_timer->setInterval(1000);
    connect(m_timer, &QTimer::timeout, this, &frmMessageBox::countDown);
}

void frmMessageBox::buildMessage()
{
    m_message->setObjectName(QStringLiteral("lblMessage"));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    // A click sets the focus, for copying; the first focus is on a button.
    m_message->setFocusPolicy(Qt::ClickFocus);
    m_message->setWordWrap(true);
    m_message->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_message->setContentsMargins(Theme::Space24, Theme::Space24, Theme::Space24, Theme::Space24);
    QPalette paper;
    paper.setColor(QPalette::Window, Theme::Paper);
    m_paper->setPalette(paper);
    m_paper->setFrameShape(QFrame::NoFrame);
    m_paper->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_paper->setFocusPolicy(Qt::NoFocus);
    m_paper->setWidgetResizable(true);
    m_paper->setWidget(m_message);
}

void frmMessageBox::addButton(QHBoxLayout &bar, const char *name, const QString &caption, UI::Answer given)
{
    auto *button = new oCustomButton(this);
    button->setObjectName(QLatin1String(name));
    button->setCaption(caption);
    connect(button, &oCustomButton::Click, this, [this, given] { answer(given); });
    bar.addWidget(button);
    m_buttons[given] = button;
}

void frmMessageBox::write(const QString &message, const QString &title, int icon)
{
    QString lines = message;
    m_message->setText(lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    setAccessibleDescription(m_message->text());
    m_header->setCaption(title);
    setWindowTitle(title);
    m_header->setIconGroup(iconGroup(icon));
}

void frmMessageBox::Initialise(const QString &message, const QString &title, UI::Buttons buttons, int icon, int timeout)
{
    write(message, title, icon);
    const clsButtonSet &set = buttonSet(buttons);
    chooseButtons(set.shown, set.preset, losesSomething(title));
    m_remaining = timeout;
    if (timeout >= 1) {
        reserveCountdown();
        m_timer->start();
    }
    fit();
    PlayWav(ProgramPath(QStringLiteral("Sounds/Alert.wav")));
}

void frmMessageBox::InitialiseSystem(
    const QString &message, const QString &title, UI::Buttons buttons, UI::SystemIcon icon)
{
    write(message, title, iconOf(icon));
    const clsButtonSet &set = buttonSet(buttons);
    chooseButtons(set.shown, set.systemPreset, false);
    fit();
}

void frmMessageBox::chooseButtons(const std::vector<UI::Answer> &shown, UI::Answer preset, bool danger)
{
    for (const auto &[which, button] : m_buttons)
        button->setVisible(false);
    for (const UI::Answer which : shown)
        m_buttons[which]->setVisible(true);
    m_buttons[preset]->setLook(danger ? oCustomButton::Look::Danger : oCustomButton::Look::Default);
    m_buttons[preset]->setFocus();
}

void frmMessageBox::reserveCountdown()
{
    // As wide as its longest caption from the start, so that nothing moves during the countdown.
    oCustomButton *ok = m_buttons[UI::OK];
    ok->setCaption(countdownCaption(m_remaining));
    ok->setMinimumWidth(ok->sizeHint().width());
    ok->setCaption(QStringLiteral("&OK"));
}

void frmMessageBox::countDown()
{
    oCustomButton *ok = m_buttons[UI::OK];
    const int before = m_remaining;
    m_remaining = before - 1;
    ok->setCaption(countdownCaption(m_remaining));
    // Even if the set has no OK: the box must not stay open.
    if (before == 1)
        ok->click();
}

void frmMessageBox::answer(UI::Answer given)
{
    m_timer->stop();
    m_result = given;
    QDialog::accept();
}

void frmMessageBox::reject()
{
    for (const UI::Answer which : {UI::Cancel, UI::No, UI::OK})
        if (!m_buttons[which]->isHidden())
            return answer(which);
}

void frmMessageBox::fit()
{
    // No wider than its longest line, so that a short question gets a small box.
    int widest = 0;
    for (const QString &line : m_message->text().split(u'\n'))
        widest = qMax(widest, fontMetrics().horizontalAdvance(line));
    const QScreen *on = screen() ? screen() : QGuiApplication::primaryScreen();
    const QSize room = mdLargestWindow(*on); // a longer message scrolls
    const int wanted = qMax(widest + 2 * Theme::Space24 + 2, m_header->captionWidth());
    int width = qBound(Theme::scaled(NarrowestBox), wanted, Theme::scaled(WidestBox));
    width = qMin(qMax(width, layout()->minimumSize().width()), room.width());
    const int least = Theme::scaled(72);
    const int rest = layout()->totalSizeHint().height() - m_paper->sizeHint().height();
    resize(width, qMin(rest + qMax(m_message->heightForWidth(width), least), room.height()));
}

void frmMessageBox::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    // A scroll bar that appeared while the box is sized would wrap a line that just fits, and then be needed.
    const bool cut = m_message->heightForWidth(m_paper->width()) > m_paper->height();
    m_paper->setVerticalScrollBarPolicy(cut ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}
