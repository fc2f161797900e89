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
    oListTotal(clsListTotal (*total)(), oSGrid &grid, QWidget *parent);

    /// "30 items", or what the total leaves out.
    QString Counted() const { return m_counted; }
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

    clsListTotal (*m_total)();
    const oSGrid &m_grid;
    QTimer m_renewal; ///< once what the claim derives from its lists has been brought up to date
    QString m_counted;
    QString m_figure;
    QString m_whyNot;
};
