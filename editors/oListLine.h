#pragma once

#include <QTimer>
#include <QWidget>

class oCustomButton;

/// The line above the button bar of a list: what was just deleted, and how it comes back. It waits for ten seconds, and
/// longer while the pointer or the focus is on it. Beneath that it offers what can be done here, which stays until it
/// is no longer so. Its room is always there, so that nothing moves.
class oListLine : public QWidget {
    Q_OBJECT

public:
    explicit oListLine(QWidget *parent = nullptr);

    void Tell(const QString &text);
    /// Empties the line, for what is no longer true.
    void Clear();
    /// Offers what the button of this caption does; nothing for an empty text.
    void Offer(const QString &text, const QString &caption);
    /// What it says: the news while there are some, and then the offer.
    const QString &Text() const { return m_text.isEmpty() ? m_offer : m_text; }

    QSize sizeHint() const override;

signals:
    /// The button of the offer was pressed.
    void Taken();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool isHeld() const;
    void clearWhenFree();
    QRect textPlace() const;

    void placeButton();
    void announce();

    QString m_text;
    QString m_offer;
    oCustomButton *m_button;
    QTimer m_timer;
};
