#pragma once

#include <QTimer>
#include <QWidget>

class oCustomButton;

/// A line that lies over the left of the footer for ten seconds: what was done beside what was asked for. It stays
/// while the pointer is on it, and is announced to screen readers. Beneath it lies what is offered with a button, no
/// wider than it needs; that stays until it is no longer offered.
class oFooterLine : public QWidget {
    Q_OBJECT

public:
    explicit oFooterLine(QWidget *footer);

    void tell(const QString &line);
    /// Offers what the button of this caption does; nothing for an empty text.
    void offer(const QString &text, const QString &caption);
    /// The offer gives its place up while work shows there how far it is.
    void standBack(bool back);
    /// What it says: the line while there is one, and then the offer.
    QString Line() const { return m_line.isEmpty() ? m_offer : m_line; }

    /// The part of the footer that it may take.
    void setRoom(const QRect &room);

signals:
    /// The button of the offer was pressed.
    void Taken();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void end();
    void present();
    void place();
    int left() const;

    QString m_line;
    QString m_offer;
    oCustomButton *m_button;
    QRect m_room;
    bool m_standsBack = false;
    QTimer m_timer;
};
