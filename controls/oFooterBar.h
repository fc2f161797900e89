#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class oFooterLine;
class oTimeSpentBox;

/// The status line of the main window: the program's name and version, how far long work has come, the claim's clock,
/// the date and the time. Every part has its fixed place, whatever the texts are.
class oFooterBar : public QWidget {
    Q_OBJECT

public:
    explicit oFooterBar(QWidget *parent = nullptr);

    oTimeSpentBox *TimeSpentTimer() const { return m_timeSpentTimer; }
    QProgressBar *ProgressBar() const { return m_progressBar; }

    /// Shows how far work has come, and repaints at once: the window handles no events meanwhile. Only what differs is
    /// written.
    void showProgress(int value, int maximum, const QString &text);
    void clearProgress();
    /// Tells what was done beside what was asked for; the line goes by itself.
    void showLine(const QString &line);
    /// Offers what the button of this caption does, until that is no longer offered; nothing for an empty text.
    void showOffer(const QString &text, const QString &caption);
    /// Writes the program's name and the present time.
    void UpdateInfo();

signals:
    /// The button of the offer was pressed.
    void OfferTaken();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void placeLine();
    void updateDateTime();
    /// Gives all parts the small form of the desktop's font, and the room that it needs.
    void followFont();

    QLabel *lblProgramInfo;
    QProgressBar *m_progressBar;
    oTimeSpentBox *m_timeSpentTimer;
    QWidget *m_line;
    QLabel *lblDateTime;
    oFooterLine *m_footerLine;
    QTimer tmrUpdate;
};
