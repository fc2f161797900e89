#pragma once

#include <QObject>
#include <QTimer>

class oTotalsStrip;

/// Fills the strip of totals from a copy of the open claim, which thus stays unchanged, when the program is idle.
class clsStripFiller : public QObject {
    Q_OBJECT

public:
    explicit clsStripFiller(oTotalsStrip &strip, QObject *parent = nullptr);

    /// Call when the claim may have changed.
    void Renew();
    /// Call when the claim has been closed.
    void Forget();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void Renewed();

private:
    void fill();

    oTotalsStrip &m_strip;
    QTimer m_idle;
};
