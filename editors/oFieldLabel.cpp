#include "editors/oFieldLabel.h"

#include "controls/mdLeaveFocusedBox.h"
#include "controls/mdTheme.h"
#include "controls/oCheckBox.h"
#include "editors/clsMnemonics.h"

#include <QAbstractButton>
#include <QEvent>

namespace {

/// A line longer than this is hard to read.
constexpr int WidestQuestion = 640;
constexpr int WidestLabels = 300;

/// What the letter ticks: the field itself, or the tick that stands first in it.
QAbstractButton *tickOf(QWidget &field)
{
    auto *button = qobject_cast<QAbstractButton *>(&field);
    return button ? button : qobject_cast<oCheckBox *>(field.focusProxy());
}

} // namespace

int oFieldLabel::WidestBeside()
{
    return Theme::scaled(WidestLabels);
}

oFieldLabel::oFieldLabel(const QString &caption, Place place, QWidget *parent)
    : QLabel(clsMnemonics::unmarked(caption), parent)
    , m_caption(caption)
    , m_place(place)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(place == Place::Above || (place == Place::Beside && sizeHint().width() > WidestBeside()));
    if (place == Place::Above) {
        setMaximumWidth(Theme::scaled(WidestQuestion));
        setAlignment(Qt::AlignLeft | Qt::AlignTop);
        // As high as its lines are at the width that it gets, and not at the one that it would like.
        QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
    } else {
        setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        if (wordWrap())
            setMaximumWidth(WidestBeside());
    }
}

void oFieldLabel::setField(QWidget *field)
{
    setBuddy(field);
    field->installEventFilter(this);
    setEnabled(field->isEnabled());
}

void oFieldLabel::setOneLine()
{
    setWordWrap(false);
    setMaximumWidth(QWIDGETSIZE_MAX);
}

void oFieldLabel::setTopOfFirstLine(int top)
{
    setAlignment(Qt::AlignRight | Qt::AlignTop);
    setContentsMargins(0, top, 0, 0);
}

/// A layout asks for the width of the frame, also where the label takes less of it.
int oFieldLabel::heightForWidth(int width) const
{
    return QLabel::heightForWidth(qMin(width, maximumWidth()));
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
    if (QAbstractButton *tick = tickOf(*buddy()); tick && m_ticks)
        tick->click();
    return true;
}

bool oFieldLabel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && watched == buddy())
        setEnabled(buddy()->isEnabled());
    return QLabel::eventFilter(watched, event);
}
