#pragma once

#include <QWidget>

class oTypedText;

/// A box for a duration, typed as 1:30, as decimal hours or as minutes. Leaving it normalises to "01:30"; anything
/// else, including empty text, keeps the focus. Text from the program is not altered. See oTypedText.
class oTimeBox : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE setText)

public:
    explicit oTimeBox(QWidget *parent = nullptr);

    QString Text() const;
    void setText(const QString &text);
    /// Normalises the text, or refuses it as on leaving the box; true if it is valid. For a screen that is about to
    /// read the time.
    bool ForceFormat();

    /// Whether the user is typing here, even in a window behind another.
    bool isActive() const;
    /// Sets the small form for the footer.
    void setCompact();

signals:
    /// A key with a character was pressed: its code, 13 for Return.
    void KeyPress(int character);
    /// The focus leaves the box, and its text is valid.
    void Left();

private:
    oTypedText *txtText;
};
