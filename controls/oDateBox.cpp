#include "controls/oDateBox.h"

#include "base/mdClock.h"
#include "base/mdDateText.h"
#include "base/mdReadAs.h"
#include "base/mdTypedText.h"
#include "controls/mdTheme.h"
#include "controls/oCheckBox.h"
#include "controls/oTypedText.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QSignalBlocker>

namespace {

/// The year last typed into any date box of the program; used for a date without a year.
int lastYear = 0;
/// The date set by Up or Down, until something is typed: its year was not typed.
QString steppedTo;

std::optional<QString> typedDate(const QString &text)
{
    if (!steppedTo.isEmpty() && text == steppedTo)
        return text;
    return TypedDate(text, lastYear);
}

/// The date `days` later, skipping the no-date value; nothing if the text is not a date.
QString stepped(const QString &text, int days)
{
    int year = lastYear;
    const std::optional<QString> date = TypedDate(text, year);
    const std::optional<QDate> day = date ? DateFromText(*date) : std::nullopt;
    if (!day)
        return {};
    const QString next = DateText(day->addDays(days));
    return next == NoDate ? DateText(day->addDays(2 * days)) : next;
}

// clang-format off
const clsTypedKind Kind {
    .normalised = typedDate,
    .whatFits = QLatin1String("A date, such as 21/11/26"),
    .alignment = Qt::AlignLeft,
    .normalisesWrites = true,
    .refusesWhenDisabled = false,
    .readAs = DateReadAs,
};
// clang-format on

} // namespace

oDateBox::oDateBox(QWidget *parent)
    : QFrame(parent)
    , txtText(oTypedText::inside(*this, Kind))
    , chkShowDate(new oCheckBox(this))
{
    chkShowDate->setObjectName(QStringLiteral("chkShowDate"));
    chkShowDate->setCaption(QStringLiteral("Has a date"));
    chkShowDate->setChecked(true);
    chkShowDate->setVisible(false);
    static_cast<QBoxLayout *>(layout())->insertWidget(0, chkShowDate);
    setTabOrder(chkShowDate, txtText);
    connect(chkShowDate, &oCheckBox::Click, this, &oDateBox::ticked);
    connect(txtText, &QLineEdit::textEdited, this, [] { steppedTo.clear(); });
}

QString oDateBox::Text() const
{
    return m_showTickBox && txtText->text().isEmpty() ? QString(NoDate) : txtText->text();
}

bool oDateBox::HasDate() const
{
    return chkShowDate->Checked();
}

QString oDateBox::TypedText() const
{
    return txtText->text();
}

void oDateBox::setText(const QString &text)
{
    txtText->write(text);
    // Even if no tick is visible to bring the date back: the value means that there is none.
    if (text == NoDate) {
        chkShowDate->setChecked(false);
        ticked(false);
    }
}

void oDateBox::Clear()
{
    {
        const QSignalBlocker quiet(chkShowDate);
        chkShowDate->setChecked(true);
    }
    txtText->setEnabled(true);
    txtText->clear();
    txtText->validate(); // an empty box is never pink
}

/// The text box passes both keys on. Undo restores the typed text.
void oDateBox::keyPressEvent(QKeyEvent *event)
{
    const int days = event->key() == Qt::Key_Up ? 1 : event->key() == Qt::Key_Down ? -1 : 0;
    if (days == 0 || (event->modifiers() & ~Qt::KeypadModifier) || !txtText->isActive()) {
        QFrame::keyPressEvent(event);
        return;
    }
    event->accept();
    const QString next = stepped(txtText->text(), days);
    if (next.isEmpty())
        return;
    txtText->selectAll();
    txtText->insert(next);
    txtText->selectAll();
    steppedTo = next;
}

void oDateBox::setShowTickBox(bool show)
{
    m_showTickBox = show;
    chkShowDate->setVisible(show);
    // The square of the focused tick extends by this much: layouts treat it as outside the box, so that its visible
    // edges align with its neighbours'. The frame style makes layouts do so.
    const int room = show ? Theme::RingRoom : 0;
    layout()->setContentsMargins(room, room, room, room);
    setProperty("ringRoom", show);
    setFrameStyle(QFrame::NoFrame);
}

void oDateBox::ticked(bool hasDate)
{
    txtText->setEnabled(hasDate);
    if (hasDate) {
        // Today in the desktop's format; leaving the box normalises it.
        txtText->setText(Now().date().toString(QStringLiteral("dd/MM/yyyy")));
        txtText->setFocus(Qt::OtherFocusReason);
    } else {
        txtText->clear();
        txtText->validate(); // an empty box is never pink
    }
}
