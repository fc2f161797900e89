#pragma once

#include "controls/mdSigns.h"

#include <QWidget>

#include <functional>
#include <vector>

class QHBoxLayout;
class QLabel;
class oCustomButton;

/// What waits for the user's attention: a sentence, and what can be done.
struct clsNotice {
    struct clsAnswer {
        QString caption; ///< an ampersand marks the mnemonic
        std::function<void()> act;
    };

    Sign sign = Sign::Note;
    QString sentence {};
    std::vector<clsAnswer> answers {};
};

/// The bar under the header of the main window. It shows one notice at a time and is not there without one; it waits,
/// takes no focus when it comes, and is announced to screen readers once.
class oNoticeBar : public QWidget {
    Q_OBJECT

public:
    explicit oNoticeBar(QWidget *parent = nullptr);

    /// Shows these, the gravest first. What was shown stays in sight as long as nothing graver is new.
    void setNotices(std::vector<clsNotice> notices);
    int count() const { return int(m_notices.size()); }
    /// The sentence that shows; empty for none.
    QString Sentence() const;
    /// The next notice, after the last the first again.
    void showNext();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// Screen readers are told of the notice that shows.
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
