#pragma once

#include <QLayout>

#include <memory>
#include <vector>

/// Ticks with their captions before them, side by side: all in one line while there is room for it, else in columns of
/// equal width; or in a fixed number of columns from the start.
class oTickLayout : public QLayout {
    Q_OBJECT

public:
    explicit oTickLayout(int columns = 0);
    ~oTickLayout() override;

    /// Puts a tick and its caption behind the ones before.
    void addTick(QWidget *label, QWidget *tick);

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return m_columns == 0; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    struct clsMeasure {
        int label = 0; ///< the widest caption
        int pair = 0; ///< the widest caption with its tick
        int line = 0; ///< all of them in one line
        int height = 0; ///< of one line
        int count = 0;
    };

    clsMeasure measure() const;
    int columnsFor(int width, const clsMeasure &measure) const;
    int rows(int columns, int count) const { return columns > 0 ? (count + columns - 1) / columns : 0; }
    int heightOf(int rows, const clsMeasure &measure) const;

    int m_columns;
    std::vector<std::unique_ptr<QLayoutItem>> m_items; ///< caption and tick in turn
};
