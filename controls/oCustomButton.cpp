#include "controls/oCustomButton.h"

#include "controls/mdCaption.h"
#include "controls/mdTheme.h"

#include <QKeyEvent>

namespace {

struct clsLookName {
    oCustomButton::Look look;
    QLatin1String name;
};

// clang-format off
constexpr clsLookName Names[] = {
    {oCustomButton::Look::Secondary,   QLatin1String("secondary")},
    {oCustomButton::Look::Default,     QLatin1String("default")},
    {oCustomButton::Look::Danger,      QLatin1String("danger")},
    {oCustomButton::Look::Small,       QLatin1String("small")},
    {oCustomButton::Look::JoinedLeft,  QLatin1String("joinedLeft")},
    {oCustomButton::Look::JoinedRight, QLatin1String("joinedRight")},
    {oCustomButton::Look::Arrow,       QLatin1String("arrow")},
    {oCustomButton::Look::Band,        QLatin1String("band")},
};
// clang-format on

} // namespace

oCustomButton::Look oCustomButton::lookFromName(const QString &name)
{
    for (const clsLookName &row : Names)
        if (row.name == name)
            return row.look;
    return Look::Secondary;
}

oCustomButton::oCustomButton(QWidget *parent)
    : QPushButton(parent)
{
    setLook(Look::Secondary);
    connect(this, &QPushButton::clicked, this, &oCustomButton::Click);
}

void oCustomButton::setCaption(const QString &caption)
{
    setText(caption);
}

QString oCustomButton::Caption() const
{
    return mdPlainCaption(text());
}

void oCustomButton::setLook(Look look)
{
    m_look = look;
    const bool filled = look == Look::Default || look == Look::Danger;
    // Only these may be the default: otherwise Enter would press the button that was added first.
    setAutoDefault(filled);
    setDefault(filled);
    chooseFont();
    for (const clsLookName &row : Names)
        if (row.look == look)
            setProperty("look", QString(row.name));
    updateGeometry();
    update();
}

void oCustomButton::chooseFont()
{
    QFont own;
    if (m_look == Look::Default || m_look == Look::Danger)
        own.setWeight(QFont::DemiBold);
    else if (m_look == Look::Small)
        own = Theme::font(-1);
    setFont(own);
}

void oCustomButton::setGlyph(Glyph glyph)
{
    setProperty("glyph", int(glyph));
    updateGeometry();
    update();
}

bool oCustomButton::event(QEvent *event)
{
    // Without the delay of an animated click, during which a fast typist would still type into the old window. The
    // focused box is left as by a mouse click, so that it normalises its text before the button acts on it.
    if (event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent *>(event)->isAmbiguous()) {
        if (focusPolicy() & Qt::ClickFocus)
            setFocus(Qt::ShortcutFocusReason);
        click();
        return true;
    }
    const bool done = QPushButton::event(event);
    if (event->type() == QEvent::ApplicationFontChange)
        chooseFont();
    return done;
}

void oCustomButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QPushButton::keyPressEvent(event);
        return;
    }
    // A focused button handles Enter; otherwise Enter belongs to the default one. A key held down presses once, and its
    // repeats press nothing else either.
    event->accept();
    if (!event->isAutoRepeat())
        click();
}

void oCustomButton::focusInEvent(QFocusEvent *event)
{
    QPushButton::focusInEvent(event);
    // The ring of each half of a pair overlaps the other half.
    if (m_look == Look::JoinedLeft || m_look == Look::JoinedRight)
        raise();
}
