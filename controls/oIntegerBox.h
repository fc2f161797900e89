#pragma once

#include <QWidget>

class oTypedText;

/// A box for a count. Leaving it removes blanks and makes empty text 0; text that is not a number keeps the focus. See
/// oTypedText.
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
