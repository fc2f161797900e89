#pragma once

#include "base/clsUserInterface.h"

#include <QDialog>

#include <map>
#include <vector>

class QHBoxLayout;
class QLabel;
class QScrollArea;
class QTimer;
class oCustomButton;
class oHeaderBar;

/// The system's message box: a message or question with one of four sets of buttons and an optional countdown, after
/// which it closes itself with OK. Created for one message, shown modally; Result returns the answer.
class frmMessageBox : public QDialog {
    Q_OBJECT

public:
    explicit frmMessageBox(QWidget *parent = nullptr);

    /// `icon` is 0 (problem), 1 (question) or 2 (information); `timeout` is in seconds, 0 for no countdown.
    void Initialise(
        const QString &message, const QString &title, clsUserInterface::Buttons buttons, int icon, int timeout);

    /// The plain system box, in the same look. It is silent and has no countdown.
    void InitialiseSystem(const QString &message, const QString &title, clsUserInterface::Buttons buttons,
        clsUserInterface::SystemIcon icon);

    /// The user's answer.
    clsUserInterface::Answer Result() const { return m_result; }

    /// Esc and the close box mean Cancel, otherwise No, otherwise OK.
    void reject() override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildMessage();
    void addButton(QHBoxLayout &bar, const char *name, const QString &caption, clsUserInterface::Answer given);
    void answer(clsUserInterface::Answer given);
    void write(const QString &message, const QString &title, int icon);
    void chooseButtons(
        const std::vector<clsUserInterface::Answer> &shown, clsUserInterface::Answer preset, bool danger);
    void countDown();
    void reserveCountdown();
    void fit();

    std::map<clsUserInterface::Answer, oCustomButton *> m_buttons;
    oHeaderBar *m_header;
    QScrollArea *m_paper;
    QLabel *m_message;
    QTimer *m_timer;
    int m_remaining = 0;
    clsUserInterface::Answer m_result = clsUserInterface::OK;
};
