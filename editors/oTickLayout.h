#pragma once

#include <QLayout>

#include <memory>
#include <vector>

/// Ticks with their captions before them: all on one line if there is room, otherwise in columns of equal width; or
/// always in a fixed number of columns.
class oTickLayout : public QLayout {
    Q_OBJECT

public:
    explicit oTickLayout(int columns = 0);
    ~oTickLayout() override;

    /// Adds a tick and its caption at the end.
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
        int label = 0; ///< width of the widest caption
        int pair = 0; ///< width of the widest caption with its tick
        int line = 0; ///< width of all of them on one line
        int height = 0; ///< of one line
        int count = 0;
    };

    clsMeasure measure() const;
    int columnsFor(int width, const clsMeasure &measure) const;
    int rows(int columns, int count) const { return columns > 0 ? (count + columns - 1) / columns : 0; }
    int heightOf(int rows, const clsMeasure &measure) const;

    int m_columns;
    std::vector<std::unique_ptr<QLayoutItem>> m_items; ///< captions and ticks alternately
};
