#pragma once

#include <QHeaderView>

/// The end of the heading band, above the vertical scroll bar.
class oGridHeaderEnd : public QWidget {
public:
    using QWidget::QWidget;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// The headings of a grid: captions on the canvas colour, aligned like their columns. They can't be clicked, moved or
/// resized, since the order of a list is the claim's.
class oGridHeader : public QHeaderView {
public:
    explicit oGridHeader(QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintSection(QPainter *painter, const QRect &rectangle, int section) const override;
};
