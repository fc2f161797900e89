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

/// Lists, spin boxes and sliders change their value with the wheel. They must not if the wheel only passes over them.
bool turnsByAccident(const QObject *watched)
{
    const auto *widget = qobject_cast<const QWidget *>(watched);
    if (!widget || widget->hasFocus())
        return false;
    return qobject_cast<const QComboBox *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget)
        || (qobject_cast<const QAbstractSlider *>(widget) && !qobject_cast<const QScrollBar *>(widget));
}

/// An Alt letter without a mnemonic on the screen would be typed into the claim. Text typed with AltGr has no Alt
/// modifier.
bool typesByAccident(const QObject *watched, const QKeyEvent &key)
{
    const Qt::KeyboardModifiers held = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (held != Qt::AltModifier || key.text().isEmpty() || !key.text()[0].isPrint())
        return false;
    // A list would jump to the next entry with that letter; an editable one passes its keys directly to its text,
    // bypassing filters.
    return qobject_cast<const QLineEdit *>(watched) || qobject_cast<const QPlainTextEdit *>(watched)
        || qobject_cast<const QTextEdit *>(watched) || qobject_cast<const QComboBox *>(watched);
}

/// The desktop treats only the Menu key as a request for a text's menu. Lists and grids handle the request themselves,
/// and a screen that uses the key for something else gets it first.
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
    // A text edit's page is a separate widget, which the style doesn't draw.
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
    // Only windows and widgets that inherit their font are notified. A widget with its own font would keep it.
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
        // If an Alt letter opens a window, the release of Alt is sent to this one, which is blocked and receives no
        // keys.
        checkAlt();
        return false;
    case QEvent::ApplicationDeactivate:
        // The release of Alt+Tab is sent to another program.
        setUnderlineMnemonics(false);
        return false;
    case QEvent::Wheel:
        if (!turnsByAccident(watched))
            return false;
        // Ignored, so that the page below receives it.
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
