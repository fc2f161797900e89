#pragma once

#include <QTimer>
#include <QWidget>

class oCustomButton;
class oTimeBox;

/// The running clock of the claim: a time, and a button that starts and stops it. It counts whole minutes and writes
/// each new time to the claim immediately. The time can't be typed while the clock runs.
class oTimeSpentBox : public QWidget {
    Q_OBJECT

public:
    explicit oTimeSpentBox(QWidget *parent = nullptr);

    QString TimeSpent() const;
    /// Shows a time, unless the user is typing one: the window may be refreshed at any moment.
    void setTimeSpent(const QString &time);

    void StartTimer();
    void StopTimer();

protected:
    bool event(QEvent *event) override;

private:
    void run(bool runs);
    /// Makes the button as wide as its wider caption, so that nothing moves when the clock starts.
    void fitButton();
    void tick();
    void writeToForm() const;

    oTimeBox *txtTime;
    oCustomButton *cmdStartStop;
    QTimer tmrTimer;
};

/// The clock in the footer of the main window; null until that is loaded.
extern oTimeSpentBox *TimeSpentBox;
