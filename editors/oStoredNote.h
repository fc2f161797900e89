#pragma once

#include <QLabel>

/// Shows what "Save and Add" has just stored, at the left of the bar, until the next key press in a box of the screen.
class oStoredNote : public QLabel {
    Q_OBJECT

public:
    explicit oStoredNote(QWidget *parent);

    /// Shows the name of the stored item.
    void Tell(const QString &item);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
