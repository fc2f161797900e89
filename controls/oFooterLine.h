#pragma once

#include <QTimer>
#include <QWidget>

class oCustomButton;

/// A line over the left of the footer for ten seconds: what was done in addition to the request. It stays while the
/// pointer is on it, and is announced to screen readers. Below it is an offer with a button, no wider than needed,
/// which stays until withdrawn.
class oFooterLine : public QWidget {
    Q_OBJECT

public:
    explicit oFooterLine(QWidget *footer);

    void tell(const QString &line);
    /// Offers an action with a button of this caption; an empty text withdraws it.
    void offer(const QString &text, const QString &caption);
    /// Hides the offer while progress is shown in its place.
    void standBack(bool back);
    /// The visible text: the line if any, otherwise the offer.
    QString Line() const { return m_line.isEmpty() ? m_offer : m_line; }

    /// The part of the footer available to it.
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
