#pragma once

#include <QWidget>

class oTypedText;

/// A box for a duration, typed as 1:30, as hours with decimals or as minutes. Leaving it gives "01:30"; anything else,
/// an empty text included, is held. What the program writes is taken as it is. See oTypedText.
class oTimeBox : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE setText)

public:
    explicit oTimeBox(QWidget *parent = nullptr);

    QString Text() const;
    void setText(const QString &text);
    /// Normalises the text at once, or refuses it as leaving the box does; whether it fits. For a screen that is about
    /// to read the time.
    bool ForceFormat();

    /// Whether the user is typing here, be it in a window behind another.
    bool isActive() const;
    /// The small form of the footer.
    void setCompact();

signals:
    /// A key with a character was pressed: its code, 13 for Return.
    void KeyPress(int character);
    /// The focus leaves the box, and its text fits.
    void Left();

private:
    oTypedText *txtText;
};
