#pragma once

#include <QTimer>
#include <QWidget>

class oCustomButton;

/// The line above a list's button bar, which shows what was just deleted and how to restore it for ten seconds, longer
/// while the pointer or the focus is on it. With lower priority it shows an offer, which stays until it no longer
/// applies. Its space is always reserved, so that nothing moves.
class oListLine : public QWidget {
    Q_OBJECT

public:
    explicit oListLine(QWidget *parent = nullptr);

    void Tell(const QString &text);
    /// Removes a message that is no longer true.
    void Clear();
    /// Shows an offer with a button of this caption; an empty text removes it.
    void Offer(const QString &text, const QString &caption);
    /// The shown text: the message if there is one, otherwise the offer.
    const QString &Text() const { return m_text.isEmpty() ? m_offer : m_text; }

    QSize sizeHint() const override;

signals:
    /// The offer's button was pressed.
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
