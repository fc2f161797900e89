#pragma once

#include <QObject>

class QApplication;
class QWidget;

/// Application-wide handling of events before the controls receive them. Underlines mnemonics while Alt is held; passes
/// the wheel over an unfocused list on to the page; repaints a box when it becomes invalid; notifies every widget of a
/// new desktop font. Keeps an Alt letter without a mnemonic from being typed into a text box or choosing a list entry.
/// Makes Shift+F10 open the menu of a text, like the Menu key. Blocks nothing else.
class oInputFilter final : public QObject {
    Q_OBJECT

public:
    /// Installs the filter on the application, which owns it; further calls do nothing.
    static void install(QApplication &application);

    /// Whether mnemonics are underlined at present.
    static bool UnderlineMnemonics();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;

    /// The application's filter, if installed.
    static oInputFilter *ofApplication();
    void setUnderlineMnemonics(bool underline);
    /// Ends the underlining if the release of Alt was missed.
    void checkAlt();
    static void showInvalid(QWidget &box);
    static void passFontOn(const QWidget &window);

    bool m_underlineMnemonics = false;
};
