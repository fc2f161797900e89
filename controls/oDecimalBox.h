#pragma once

#include <QWidget>

class oTypedText;

/// A box for an amount or a rate. Leaving it, and a value that the program writes, give "0.00": a pound or per-cent
/// sign goes, an empty text becomes 0.00, and anything that is no number is held. See oTypedText.
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
