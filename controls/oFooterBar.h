#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class oFooterLine;
class oTimeSpentBox;

/// The status line of the main window: the program's name and version, the progress of long work, the claim's clock,
/// the date and the time. Every part has a fixed place, independent of the texts.
class oFooterBar : public QWidget {
    Q_OBJECT

public:
    explicit oFooterBar(QWidget *parent = nullptr);

    oTimeSpentBox *TimeSpentTimer() const { return m_timeSpentTimer; }
    QProgressBar *ProgressBar() const { return m_progressBar; }

    /// Shows the progress and repaints immediately: the window handles no events meanwhile. Writes only what has
    /// changed.
    void showProgress(int value, int maximum, const QString &text);
    void clearProgress();
    /// Reports what was done in addition to the request; the line disappears by itself.
    void showLine(const QString &line);
    /// Offers an action with a button of this caption until withdrawn; an empty text withdraws it.
    void showOffer(const QString &text, const QString &caption);
    /// Updates the program's name and the time.
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
    /// Gives all parts the small variant of the desktop's font, and room for it.
    void followFont();

    QLabel *lblProgramInfo;
    QProgressBar *m_progressBar;
    oTimeSpentBox *m_timeSpentTimer;
    QWidget *m_line;
    QLabel *lblDateTime;
    oFooterLine *m_footerLine;
    QTimer tmrUpdate;
};
