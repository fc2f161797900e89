#pragma once

#include <QWidget>

class oCodeCombo;

/// What the chosen code stands for, behind its box: the column of the bill and the firm's words. What is cut is whole
/// in the tooltip; a screen reader hears it with the box.
class oCodeNote : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Follows the code of a box from now on.
    void Follow(oCodeCombo &box);
    const QString &Words() const { return m_words; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void renew(oCodeCombo &box);

    QString m_words;
};
