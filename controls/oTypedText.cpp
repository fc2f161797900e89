#include "controls/oTypedText.h"

#include "controls/mdLeaveFocusedBox.h"
#include "controls/mdTheme.h"
#include "controls/oBoxNote.h"

#include <QAccessible>
#include <QDialog>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QPointer>

namespace {

constexpr int BoxWidth = 112;
constexpr int CompactWidth = 64;
constexpr int CompactPadding = 8;

} // namespace

oTypedText *oTypedText::inside(QWidget &box, const clsTypedKind &kind)
{
    auto *text = new oTypedText(box, kind);
    auto *layout = new QHBoxLayout(&box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::Space12);
    layout->addWidget(text);
    // Before the proxy, which would take over the policy. The box itself is not a tab stop, but a label's mnemonic
    // requires a policy.
    box.setFocusPolicy(Qt::ClickFocus);
    box.setFocusProxy(text);
    box.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return text;
}

oTypedText::oTypedText(QWidget &box, const clsTypedKind &kind)
    : oLineBox(&box)
    , m_kind(kind)
{
    setObjectName(QStringLiteral("txtText"));
    setAlignment(kind.alignment | Qt::AlignVCenter);
    setTextMargins(Theme::Space4, 0, Theme::Space4, 0);
    mdGuardFocusedBoxes();
    connect(this, &QLineEdit::textChanged, this, [this] { oBoxNote::Clear(*parentWidget()); });
}

void oTypedText::write(const QString &newText)
{
    if (newText == text())
        return;
    setText(newText);
    if (m_kind.normalisesWrites && !isActive())
        validate();
}

bool oTypedText::validate()
{
    setInvalid(false);
    const std::optional<QString> normalised = m_kind.normalised(text());
    if (normalised) {
        const QString before = text();
        const bool typed = isModified();
        if (*normalised != before)
            setText(*normalised);
        setModified(false);
        if (typed)
            tellReading(before, *normalised);
        return true;
    }
    if (!isEnabled() && !m_kind.refusesWhenDisabled)
        return true;
    setInvalid(true);
    setFocus(Qt::OtherFocusReason);
    selectAll();
    return false;
}

void oTypedText::tellReading(const QString &typed, const QString &read)
{
    if (!m_kind.readAs)
        return;
    const std::optional<clsReadAs> told = m_kind.readAs(typed, read);
    if (!told)
        return;
    const auto use = [this](const QString &better) {
        setFocus(Qt::OtherFocusReason);
        selectAll();
        insert(better);
    };
    oBoxNote::Show(*parentWidget(), {told->words, Sign::Note, told->better, told->shortWords}, use);
}

bool oTypedText::refuses()
{
    return !m_kind.normalised(text()) && !validate();
}

bool oTypedText::leave()
{
    if (!isVisible() || !isEnabled())
        return true;
    if (!validate())
        return false;
    emit Left();
    return true;
}

bool oTypedText::isActive() const
{
    return isVisible() && window()->focusWidget() == this;
}

void oTypedText::setCompact()
{
    m_compact = true;
    setAlignment(Qt::AlignCenter);
    setFont(Theme::font(-1));
    setTextMargins(0, 0, 0, 0);
    updateGeometry();
}

QSize oTypedText::sizeHint() const
{
    if (!m_compact)
        return {Theme::scaled(BoxWidth), oLineBox::sizeHint().height()};
    return {Theme::scaled(CompactWidth), fontMetrics().height() + CompactPadding};
}

void oTypedText::setInvalid(bool invalid)
{
    if (invalid == m_invalid)
        return;
    m_invalid = invalid;
    QPalette back;
    if (invalid)
        back.setColor(QPalette::Base, Theme::Pink);
    setPalette(back);
    setProperty("invalid", invalid); // the style draws the red edge and the sign
    const QString whatFits = invalid ? QString(m_kind.whatFits) : QString();
    setToolTip(whatFits);
    setAccessibleDescription(whatFits);
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

bool oTypedText::event(QEvent *event)
{
    const bool done = oLineBox::event(event);
    if (m_compact && event->type() == QEvent::ApplicationFontChange)
        setFont(Theme::font(-1));
    return done;
}

void oTypedText::focusInEvent(QFocusEvent *event)
{
    oLineBox::focusInEvent(event);
    if (m_inside && mdIsInterruption(event->reason()))
        return;
    m_inside = true;
    selectAll();
    // A click would set the caret and clear the selection at once.
    m_selectsOnRelease = event->reason() == Qt::MouseFocusReason;
}

void oTypedText::focusOutEvent(QFocusEvent *event)
{
    oLineBox::focusOutEvent(event);
    if (!m_inside || mdIsInterruption(event->reason()))
        return;
    m_inside = false;
    // A box being disabled or hidden can't keep the focus.
    if (isEnabled() && isVisible() && validate())
        emit Left();
}

void oTypedText::showEvent(QShowEvent *event)
{
    oLineBox::showEvent(event);
    // The screen names the box; a screen reader reads the text box inside.
    if (const QString name = parentWidget()->accessibleName(); !name.isEmpty())
        setAccessibleName(name);
}

void oTypedText::hideEvent(QHideEvent *event)
{
    oLineBox::hideEvent(event);
    m_inside = false;
}

void oTypedText::keyPressEvent(QKeyEvent *event)
{
    const QPointer<oTypedText> self(this);
    if (!event->text().isEmpty())
        emit KeyPress(event->text().at(0).unicode());
    // The box passes Return on, and a dialog presses its default button.
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!self || (isReturn && qobject_cast<QDialog *>(window()) && !leave())) {
        event->accept();
        return;
    }
    oLineBox::keyPressEvent(event);
}

void oTypedText::mouseReleaseEvent(QMouseEvent *event)
{
    oLineBox::mouseReleaseEvent(event);
    if (m_selectsOnRelease && !hasSelectedText())
        selectAll();
    m_selectsOnRelease = false;
}
