#pragma once

#include "editors/mdListTotals.h"

#include <QTimer>
#include <QWidget>

class oSGrid;

/// The total below a list, at its right end: the number of items and their amount on the bill. Follows the grid. For a
/// total that can't be computed it shows a red "!" with the error sign, and the reason as a tooltip.
class oListTotal : public QWidget {
    Q_OBJECT

public:
    /// `sum` is null for a list whose rows can't be marked.
    oListTotal(clsListTotal (*total)(), clsListTotal (*sum)(const clsMarkedItems &), oSGrid &grid, QWidget *parent);

    /// "30 items", or what the total leaves out; "3 of 30 items" if several are marked.
    QString Counted() const { return m_counted; }
    /// The amount of all items, or of the marked ones.
    QString Figure() const { return m_figure; }
    QString Failure() const { return m_whyNot; }

    QSize sizeHint() const override;
    /// If there is little room the count is only in the tooltip.
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void renew();

    void followMarks();
    clsListTotal totalNow();
    QString word() const;

    oSGrid &m_grid;
    clsListTotal (*m_total)();
    clsListTotal (*m_sum)(const clsMarkedItems &);
    bool m_ofMarked = false;
    QTimer m_renewal; ///< delayed until the claim has updated what it derives from its lists
    QString m_counted;
    QString m_figure;
    QString m_whyNot;
};
