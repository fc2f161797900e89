#pragma once

#include <QFrame>

class oCheckBox;
class oTypedText;

/// A date box, with or without a tick before it. Leaving it, or writing a value from the program, normalises to
/// "dd/mm/yy"; text that is not a date keeps the focus. A date without a year gets the year last typed in any date box
/// of the program. Up and Down step by a day. With the tick, no date is the text "31/12/29" outside and an empty box
/// inside. See oTypedText.
class oDateBox : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE setText)

public:
    explicit oDateBox(QWidget *parent = nullptr);

    /// The text; the no-date value for an empty box with a visible tick.
    QString Text() const;
    /// The no-date value clears the tick, visible or not, and so disables and empties the box.
    void setText(const QString &text);

    /// Empties the box for the next item: the tick is set, with no date yet.
    void Clear();

    /// Whether the tick is set, visible or not.
    bool HasDate() const;
    /// The text in the box, empty if none.
    QString TypedText() const;

    bool ShowTickBox() const { return m_showTickBox; }
    void setShowTickBox(bool show);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void ticked(bool hasDate);

    oTypedText *txtText;
    oCheckBox *chkShowDate;
    bool m_showTickBox = false;
};
