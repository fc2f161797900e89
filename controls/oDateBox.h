#pragma once

#include <QFrame>

class oCheckBox;
class oTypedText;

/// A box for a date, with or without a tick in front of it. Leaving it, and a value that the program writes, give
/// "dd/mm/yy"; what is no date is held. A date typed without its year falls into the year that was last used in any
/// date box of the program. Up and Down step a day. With the tick, no date is the text "31/12/29" outside and an empty
/// box inside. See oTypedText.
class oDateBox : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE setText)

public:
    explicit oDateBox(QWidget *parent = nullptr);

    /// The text; the no-date value for an empty box that shows its tick.
    QString Text() const;
    /// The no-date value clears the tick, shown or not, and so disables and empties the box.
    void setText(const QString &text);

    /// Empties the box for the next item: the tick is set, and no date is given yet.
    void Clear();

    /// Whether the tick is set, shown or not.
    bool HasDate() const;
    /// What stands in the box, empty where nothing does.
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
