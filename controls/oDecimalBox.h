#pragma once

#include <QWidget>

class oTypedText;

/// A box for an amount or a rate. Leaving it, or writing a value from the program, normalises to "0.00": removes a
/// pound or per-cent sign and makes empty text 0.00; text that is not a number keeps the focus. See oTypedText.
class oDecimalBox : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE setText)

public:
    explicit oDecimalBox(QWidget *parent = nullptr);

    QString Text() const;
    void setText(const QString &text);

private:
    oTypedText *txtText;
};
