#pragma once

#include <QString>
#include <QWidget>

/// What the printed box does with a text that doesn't fit it, and the same in words.
struct clsPrintNote {
    enum clsSign { Fits, Smaller, RunsOn, Cut };

    clsSign sign = Fits;
    QString words {};
};

/// Draws such a sign; it takes that size.
void mdPaintPrintSign(QPainter &painter, const QRect &place, clsPrintNote::clsSign sign);
QSize mdPrintSignSize();

/// The small sign of such a note. It shows nothing for a text that fits, and its words are its tooltip.
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
