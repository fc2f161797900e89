#pragma once

#include "controls/mdSigns.h"

#include <QWidget>

#include <functional>
#include <vector>

class QHBoxLayout;
class QLabel;
class oCustomButton;

/// A notice for the user: a sentence, and the possible actions.
struct clsNotice {
    struct clsAnswer {
        QString caption; ///< an ampersand marks the mnemonic
        std::function<void()> act;
    };

    Sign sign = Sign::Note;
    QString sentence {};
    std::vector<clsAnswer> answers {};
};

/// The bar below the header of the main window. Shows one notice at a time and is hidden without one; doesn't take the
/// focus when it appears, and is announced to screen readers once.
class oNoticeBar : public QWidget {
    Q_OBJECT

public:
    explicit oNoticeBar(QWidget *parent = nullptr);

    /// Shows these, the most severe first. The current notice stays visible unless a more severe one is new.
    void setNotices(std::vector<clsNotice> notices);
    int count() const { return int(m_notices.size()); }
    /// The visible sentence; empty if none.
    QString Sentence() const;
    /// Shows the next notice, after the last one the first.
    void showNext();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// Announces the visible notice to screen readers.
    void Announced(const QString &sentence);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    const clsNotice &shown() const { return m_notices[m_shown]; }
    size_t placeOf(const QString &sentence) const;
    void present();
    void leaveFocusBehind();
    void buildAnswers();
    oCustomButton *addButton(const QString &name);
    void followWindow();
    void elide();

    std::vector<clsNotice> m_notices;
    size_t m_shown = 0;
    QString m_announced;
    QHBoxLayout *m_row;
    QLabel *lblSentence;
    QLabel *lblCount;
    oCustomButton *cmdNext;
    std::vector<oCustomButton *> m_answers;
};
