#include "editors/oFieldLabel.h"

#include "controls/mdLeaveFocusedBox.h"
#include "controls/oCheckBox.h"
#include "controls/oInputFilter.h"
#include "editors/clsMnemonics.h"
#include "editors/mdEnterField.h"

#include <QAbstractButton>
#include <QEvent>
#include <QFontInfo>
#include <QPainter>

namespace {

/// A line longer than this is hard to read.
constexpr int WidestQuestion = 640;
constexpr int WidestLabels = 300;

/// What the letter toggles: the field itself, or a tick at its beginning.
QAbstractButton *tickOf(QWidget &field)
{
    auto *button = qobject_cast<QAbstractButton *>(&field);
    return button ? button : qobject_cast<oCheckBox *>(field.focusProxy());
}

} // namespace

int oFieldLabel::WidestBeside()
{
    return Theme::scaled(WidestLabels) + Gap;
}

oFieldLabel::oFieldLabel(const QString &caption, Place place, QWidget *parent)
    : QLabel(clsMnemonics::unmarked(caption), parent)
    , m_caption(caption)
    , m_place(place)
{
    setTextFormat(Qt::PlainText);
    setAccessibleName(caption); // without the mnemonic marks
    if (place == Place::Beside)
        setContentsMargins(0, 0, Gap, 0);
    setWordWrap(place == Place::Above || (place == Place::Beside && sizeHint().width() > WidestBeside()));
    if (place == Place::Above) {
        setMaximumWidth(Theme::scaled(WidestQuestion));
        setAlignment(Qt::AlignLeft | Qt::AlignTop);
        // The height depends on the actual width, not on the preferred one.
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

void oFieldLabel::setDigit(QChar digit)
{
    m_digit = digit;
    if (!digit.isNull())
        grabShortcut(QKeySequence(Qt::ALT | Qt::Key(digit.unicode())));
}

void oFieldLabel::setOneLine()
{
    setWordWrap(false);
    setMaximumWidth(QWIDGETSIZE_MAX);
}

void oFieldLabel::setTopOfFirstLine(int top)
{
    setAlignment(Qt::AlignRight | Qt::AlignTop);
    setContentsMargins(0, top, Gap, 0);
}

/// Layouts pass the frame's width, even if the label uses less of it.
int oFieldLabel::heightForWidth(int width) const
{
    return QLabel::heightForWidth(qMin(width, maximumWidth()));
}

bool oFieldLabel::event(QEvent *event)
{
    if (event->type() != QEvent::Shortcut || !buddy())
        return QLabel::event(event);
    // A box with invalid text keeps the focus, even if a letter is pressed.
    if (!mdLeaveFocusedBox(window()) || !mdEnterField(*buddy()))
        return true;
    if (QAbstractButton *tick = tickOf(*buddy()); tick && m_ticks)
        tick->click();
    return true;
}

/// After the caption, on its first line.
QRect oFieldLabel::placeOfDigit() const
{
    if (m_place == Place::Beside) {
        const bool atTop = alignment() & Qt::AlignTop;
        return {width() - Gap, contentsRect().top(), Gap, atTop ? fontMetrics().height() : contentsRect().height()};
    }
    const int width = fontMetrics().horizontalAdvance(m_digit);
    const int behind = fontMetrics().horizontalAdvance(m_caption) + Theme::Space4;
    return {qMin(behind, this->width() - width), 0, width, fontMetrics().height()};
}

void oFieldLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (m_digit.isNull() || !oInputFilter::UnderlineMnemonics())
        return;
    QPainter painter(this);
    QFont underlined = font();
    underlined.setUnderline(true);
    // Must fit the gap without touching the colon.
    const double part = double(Gap - 2) / fontMetrics().horizontalAdvance(m_digit);
    underlined.setPointSizeF(QFontInfo(font()).pointSizeF() * qMin(1.0, part));
    painter.setFont(underlined);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(placeOfDigit(), Qt::AlignRight | Qt::AlignVCenter, m_digit);
}

bool oFieldLabel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && watched == buddy())
        setEnabled(buddy()->isEnabled());
    return QLabel::eventFilter(watched, event);
}
