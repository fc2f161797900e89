#include "controls/oInputFilter.h"

#include "controls/mdTheme.h"

#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextEdit>

namespace {

/// Lists, spin boxes and sliders turn their value with the wheel. One that only lies on the wheel's way must not.
bool turnsByAccident(const QObject *watched)
{
    const auto *widget = qobject_cast<const QWidget *>(watched);
    if (!widget || widget->hasFocus())
        return false;
    return qobject_cast<const QComboBox *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget)
        || (qobject_cast<const QAbstractSlider *>(widget) && !qobject_cast<const QScrollBar *>(widget));
}

/// A letter under Alt that belongs to nothing on the screen would be typed into the claim. What AltGr types has no Alt.
bool typesByAccident(const QObject *watched, const QKeyEvent &key)
{
    const Qt::KeyboardModifiers held = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (held != Qt::AltModifier || key.text().isEmpty() || !key.text()[0].isPrint())
        return false;
    // A list would go to the next entry of that letter; one that is typed into passes its keys on to its text where no
    // filter sees them.
    return qobject_cast<const QLineEdit *>(watched) || qobject_cast<const QPlainTextEdit *>(watched)
        || qobject_cast<const QTextEdit *>(watched) || qobject_cast<const QComboBox *>(watched);
}

/// The desktop knows the Menu key alone as that of a text's menu. Lists and grids see to it themselves, and a screen on
/// which the key means something else takes it first.
bool asksForMenu(const QObject *watched, const QKeyEvent &key)
{
    return key.key() == Qt::Key_F10 && (key.modifiers() & ~Qt::KeypadModifier) == Qt::ShiftModifier
        && (qobject_cast<const QLineEdit *>(watched) || qobject_cast<const QPlainTextEdit *>(watched)
            || qobject_cast<const QTextEdit *>(watched));
}

void openMenuOf(QWidget &text)
{
    const QPoint place = text.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, place, text.mapToGlobal(place));
    QCoreApplication::sendEvent(&text, &asked);
}

} // namespace

oInputFilter *oInputFilter::ofApplication()
{
    return qApp->findChild<oInputFilter *>(QString(), Qt::FindDirectChildrenOnly);
}

void oInputFilter::install(QApplication &application)
{
    if (!ofApplication())
        application.installEventFilter(new oInputFilter(&application));
}

bool oInputFilter::UnderlineMnemonics()
{
    const oInputFilter *filter = ofApplication();
    return filter && filter->m_underlineMnemonics;
}

void oInputFilter::setUnderlineMnemonics(bool underline)
{
    if (m_underlineMnemonics == underline)
        return;
    m_underlineMnemonics = underline;
    for (QWidget *widget : QApplication::allWidgets())
        if (widget->isVisible())
            widget->update();
}

void oInputFilter::checkAlt()
{
    if (m_underlineMnemonics && !QGuiApplication::queryKeyboardModifiers().testFlag(Qt::AltModifier))
        setUnderlineMnemonics(false);
}

void oInputFilter::showInvalid(QWidget &box)
{
    // A text edit's page is a widget of its own, to which the style has no say.
    if (const auto *area = qobject_cast<QAbstractScrollArea *>(&box)) {
        QPalette palette;
        if (box.property("invalid").toBool())
            palette.setColor(QPalette::Base, Theme::Pink);
        area->viewport()->setPalette(palette);
    }
    box.update();
}

void oInputFilter::passFontOn(const QWidget &window)
{
    // Only windows are told, and what inherits their font. A part with a font of its own would keep it for ever.
    for (QWidget *part : window.findChildren<QWidget *>()) {
        QEvent changed(QEvent::ApplicationFontChange);
        QCoreApplication::sendEvent(part, &changed);
    }
}

bool oInputFilter::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Alt)
            setUnderlineMnemonics(true);
        else if (!static_cast<QKeyEvent *>(event)->modifiers().testFlag(Qt::AltModifier))
            checkAlt();
        if (asksForMenu(watched, *static_cast<QKeyEvent *>(event))) {
            openMenuOf(*static_cast<QWidget *>(watched));
            event->accept();
            return true;
        }
        if (!typesByAccident(watched, *static_cast<QKeyEvent *>(event)))
            return false;
        event->accept();
        return true;
    case QEvent::KeyRelease:
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Alt)
            setUnderlineMnemonics(false);
        return false;
    case QEvent::WindowActivate:
    case QEvent::MouseButtonPress:
        // A letter that opens a window leaves the release of Alt to one that is blocked by it and hears of no keys.
        checkAlt();
        return false;
    case QEvent::ApplicationDeactivate:
        // The release of Alt+Tab goes to another program.
        setUnderlineMnemonics(false);
        return false;
    case QEvent::Wheel:
        if (!turnsByAccident(watched))
            return false;
        // Ignored, so that it goes on to the page below.
        event->ignore();
        return true;
    case QEvent::ApplicationFontChange:
        if (watched->isWidgetType() && static_cast<QWidget *>(watched)->isWindow())
            passFontOn(*static_cast<QWidget *>(watched));
        return false;
    case QEvent::DynamicPropertyChange:
        if (static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() == "invalid" && watched->isWidgetType())
            showInvalid(*static_cast<QWidget *>(watched));
        return false;
    default: return false;
    }
}
