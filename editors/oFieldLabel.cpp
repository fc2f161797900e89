#include "editors/oFieldLabel.h"

#include "controls/mdLeaveFocusedBox.h"
#include "controls/mdTheme.h"
#include "editors/clsMnemonics.h"

#include <QAbstractButton>
#include <QEvent>

namespace {

/// A line longer than this is hard to read.
constexpr int WidestQuestion = 640;

} // namespace

oFieldLabel::oFieldLabel(const QString &caption, Place place, QWidget *parent)
    : QLabel(clsMnemonics::unmarked(caption), parent)
    , m_caption(caption)
    , m_place(place)
{
    setTextFormat(Qt::PlainText);
    if (place == Place::Above) {
        setWordWrap(true);
        setMaximumWidth(Theme::scaled(WidestQuestion));
        setAlignment(Qt::AlignLeft | Qt::AlignTop);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    } else {
        setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
}

void oFieldLabel::setField(QWidget *field)
{
    setBuddy(field);
    field->installEventFilter(this);
    setEnabled(field->isEnabled());
}

void oFieldLabel::setTopOfFirstLine(int top)
{
    setAlignment(Qt::AlignRight | Qt::AlignTop);
    setContentsMargins(0, top, 0, 0);
}

bool oFieldLabel::event(QEvent *event)
{
    if (event->type() != QEvent::Shortcut || !buddy())
        return QLabel::event(event);
    // A box with bad input lets nobody go, neither by a letter.
    if (!mdLeaveFocusedBox(window()))
        return true;
    buddy()->setFocus(Qt::ShortcutFocusReason);
    window()->setAttribute(Qt::WA_KeyboardFocusChange);
    if (auto *button = qobject_cast<QAbstractButton *>(buddy()); button && m_ticks)
        button->click();
    return true;
}

bool oFieldLabel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && watched == buddy())
        setEnabled(buddy()->isEnabled());
    return QLabel::eventFilter(watched, event);
}
