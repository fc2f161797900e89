#pragma once

#include <QTimer>
#include <QWidget>

/// A line that lies over the left of the footer for ten seconds: what was done beside what was asked for. It stays
/// while the pointer is on it, and is announced to screen readers.
class oFooterLine : public QWidget {
    Q_OBJECT

public:
    explicit oFooterLine(QWidget *footer);

    void tell(const QString &line);
    QString Line() const { return m_line; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void end();

    QString m_line;
    QTimer m_timer;
};
