#pragma once

#include <QWidget>

class QTimer;

/// The window shown while the program starts. For three quarters of a second an administrator can press a key to open
/// one of the database folder commands; then it requests the main window, once. It stays alive, hidden, until the
/// program ends.
class frmSplash : public QWidget {
    Q_OBJECT

public:
    explicit frmSplash(QWidget *parent = nullptr);

    /// Hides the splash for the rest of the run.
    void StepAside();

signals:
    /// The time is up: create the main window.
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
