#pragma once

#include <QTimer>
#include <QWidget>

/// The line above the button bar of a list: what was just deleted, and how it comes back. It waits for ten seconds, and
/// longer while the pointer or the focus is on it. Its room is always there, so that nothing moves.
class oListLine : public QWidget {
    Q_OBJECT

public:
    explicit oListLine(QWidget *parent = nullptr);

    void Tell(const QString &text);
    /// Empties the line, for what is no longer true.
    void Clear();
    const QString &Text() const { return m_text; }

    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool isHeld() const;
    void clearWhenFree();
    QRect textPlace() const;

    QString m_text;
    QTimer m_timer;
};
