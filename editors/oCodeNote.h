#pragma once

#include <QWidget>

class oCodeCombo;

/// Explains the chosen code beside its box: the bill's column and the firm's words. The tooltip has the whole text if
/// it is cut off; screen readers read it with the box.
class oCodeNote : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Shows the code of this box from now on.
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
