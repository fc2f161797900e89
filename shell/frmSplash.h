#pragma once

#include <QWidget>

class QTimer;

/// The window that stands while the program begins. It gives an administrator three quarters of a second in which a key
/// opens one of the commands for the place of the databases; then it asks for the main window, once.
/// It stays alive, hidden, to the end of the program.
class frmSplash : public QWidget {
    Q_OBJECT

public:
    explicit frmSplash(QWidget *parent = nullptr);

    /// Leaves the screen to the main window. There is no way back.
    void StepAside();

signals:
    /// The time is over: the main window is to be made.
    void Initialised();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void tmrInit_Timer();
    void build();

    QTimer *tmrInit;
    bool m_initialised = false;
};
