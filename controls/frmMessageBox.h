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

/// The system's own message box: what happened or what is asked, with one of four sets of buttons, and if told so a
/// countdown after which it closes itself with OK. It is made for one message, shown modally and read by Result.
class frmMessageBox : public QDialog {
    Q_OBJECT

public:
    explicit frmMessageBox(QWidget *parent = nullptr);

    /// `icon` is 0 (problem), 1 (question) or 2 (information); `timeout` is in seconds, 0 for no countdown.
    void Initialise(
        const QString &message, const QString &title, clsUserInterface::Buttons buttons, int icon, int timeout);

    /// The plain box of the system, in the look of the others. It is silent and doesn't count down.
    void InitialiseSystem(const QString &message, const QString &title, clsUserInterface::Buttons buttons,
        clsUserInterface::SystemIcon icon);

    /// What the user answered.
    clsUserInterface::Answer Result() const { return m_result; }

    /// Esc and the close box: Cancel, else No, else OK.
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
