#pragma once

#include <QWidget>

class oTypedText;

/// A box for a count. Leaving it drops blanks and makes 0 of an empty text; what is no number is held. See oTypedText.
class oIntegerBox : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE setText)

public:
    explicit oIntegerBox(QWidget *parent = nullptr);

    QString Text() const;
    void setText(const QString &text);

private:
    oTypedText *txtText;
};
