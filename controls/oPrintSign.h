#pragma once

#include <QString>
#include <QWidget>

/// How the printed form handles a text that doesn't fit its box, as a sign and in words.
struct clsPrintNote {
    enum clsSign { Fits, Smaller, RunsOn, Cut };

    clsSign sign = Fits;
    QString words {};
};

/// Draws such a sign in that size.
void mdPaintPrintSign(QPainter &painter, const QRect &place, clsPrintNote::clsSign sign);
QSize mdPrintSignSize();

/// The small sign of such a note. Shows nothing for a text that fits; its tooltip has the words.
class oPrintSign : public QWidget {
    Q_OBJECT

public:
    explicit oPrintSign(QWidget *parent = nullptr);

    void setNote(const clsPrintNote &note);
    const clsPrintNote &Note() const { return m_note; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    clsPrintNote m_note;
};
