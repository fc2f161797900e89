#pragma once

#include <QObject>

class QApplication;
class QWidget;

/// What the whole application does with events before its controls see them: mnemonics are underlined while Alt is
/// held, a wheel over a list that hasn't the focus scrolls the page, a box that is marked as invalid is painted anew,
/// and every part of a window hears of a new font of the desktop. A letter under Alt that leads nowhere is not typed
/// into a text box and chooses nothing in a list. Shift+F10 opens the menu of a text as the Menu key does. It eats
/// nothing else.
class oInputFilter final : public QObject {
    Q_OBJECT

public:
    /// Watches the application, which owns the filter; a second call changes nothing.
    static void install(QApplication &application);

    /// Whether mnemonics are underlined at the moment.
    static bool UnderlineMnemonics();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;

    /// The one that watches the application, if any.
    static oInputFilter *ofApplication();
    void setUnderlineMnemonics(bool underline);
    /// Ends the underlining where the release of Alt went unseen.
    void checkAlt();
    static void showInvalid(QWidget &box);
    static void passFontOn(const QWidget &window);

    bool m_underlineMnemonics = false;
};
