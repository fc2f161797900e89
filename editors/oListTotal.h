#pragma once

#include "editors/mdListTotals.h"

#include <QTimer>
#include <QWidget>

class oSGrid;

/// The total under a list, at its right end: how many items, and what they come to on the bill. It follows its grid. A
/// total that can't be computed is a red "!" with the sign of an error, and why is its tooltip.
class oListTotal : public QWidget {
    Q_OBJECT

public:
    /// `sum` may be missing, for a list whose rows aren't marked.
    oListTotal(clsListTotal (*total)(), clsListTotal (*sum)(const clsMarkedItems &), oSGrid &grid, QWidget *parent);

    /// "30 items", or what the total leaves out; "3 of 30 items" where several are marked.
    QString Counted() const { return m_counted; }
    /// What all come to, or those that are marked.
    QString Figure() const { return m_figure; }
    QString Failure() const { return m_whyNot; }

    QSize sizeHint() const override;
    /// Where there is little room the count gives way, and is in the tooltip.
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
    QTimer m_renewal; ///< once what the claim derives from its lists has been brought up to date
    QString m_counted;
    QString m_figure;
    QString m_whyNot;
};
